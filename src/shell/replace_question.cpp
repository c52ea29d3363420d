#include "shell/replace_question.hpp"

#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "shell/dialogo_qt.hpp"

namespace korven::shell {

bool puoSostituire(const std::string& percorso) {
    using base::traduttore;
    if (!base::esisteFile(percorso)) return true;
    return DialogoQt().domanda(traduttore("Volete sovrascrivere il file") + '\n' + percorso + '?',
                               traduttore("ATTENZIONE") + "!", base::Pulsanti::siNo,
                               base::Icona::avviso) == base::Risposta::si;
}

}  // namespace korven::shell
