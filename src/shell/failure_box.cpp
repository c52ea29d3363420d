#include "shell/failure_box.hpp"

#include <string>

#include "base/file_error.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "plot/drawing_stop.hpp"

namespace korven::shell {

bool conAvviso(base::Dialogo& dialogo, const std::function<void()>& azione) {
    std::string guasto;
    try {
        azione();
        return true;
    } catch (const base::ErroreFile& errore) {
        guasto = errore.what();
    } catch (const base::ErroreValore& errore) {
        guasto = errore.what();
    } catch (const plot::DisegnoInterrotto&) {
        return false;  // nobody needs to be told what he has done himself
    }
    dialogo.messaggio(guasto, base::traduttore("ATTENZIONE") + "!", base::Icona::avviso);
    return false;
}

}  // namespace korven::shell
