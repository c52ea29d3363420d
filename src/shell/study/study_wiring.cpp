#include "shell/study/study_wiring.hpp"

#include <QPointer>
#include <memory>

#include "base/translated_texts.hpp"
#include "shell/main/menu1.hpp"
#include "shell/study/study_window.hpp"
#include "shell/viewer/dialogs.hpp"

namespace korven::shell {

void collegaStudio(commands::FormeProgramma& forme, Menu1& principale, VitaProgetto& vita,
                   base::Dialogo& dialogo, const std::function<QPrinter&()>& stampante,
                   const std::function<void(const std::string&)>& annuncia) {
    const PorteStudio porte{dialogo, std::make_shared<PorteDesktop>(stampante, annuncia),
                            [&principale](const project::DatiProgetto& dati) {
                                return principale.prendi(dati, base::traduttore("Studio"));
                            }};
    forme.studio = [finestra = std::make_shared<QPointer<FinestraStudio>>(), &principale, &vita,
                    porte, guida = forme.paginaGuida] {
        if (*finestra == nullptr) *finestra = new FinestraStudio(principale, vita, porte, guida);
        (*finestra)->mostraDavanti();
    };
}

}  // namespace korven::shell
