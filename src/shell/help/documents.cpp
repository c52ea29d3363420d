#include "shell/help/documents.hpp"

#include <QDesktopServices>
#include <QUrl>

#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

void apriDocumento(const std::string& nome, base::Dialogo& dialogo) {
    const auto avvisa = [&](const std::string& testo) {
        dialogo.messaggio(testo, base::traduttore("ATTENZIONE") + "!", base::Icona::avviso);
    };
    const std::string file = base::fileDocumento(nome);
    if (file.empty())
        return avvisa(
            base::traduttore("Accanto al programma non ci sono i suoi documenti: sono "
                             "nella cartella da cui è stato costruito, in docs."));
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(qt(file))))
        avvisa(base::traduttore(
                   "Nessun programma del sistema apre il documento: aprire a mano con un browser") +
               "\n" + file);
}

}  // namespace korven::shell
