#include "commands/report_print.hpp"

#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "markup/print_renderer.hpp"

namespace korven::commands {

void stampaRelazione(const std::string& relazione, const ApriStampante& apri,
                     base::Dialogo& dialogo) {
    if (!base::esisteFile(relazione)) return;
    dialogo.puntatore(base::Puntatore::normale);
    try {
        if (const auto stampante = apri()) markup::printReport(relazione, *stampante, dialogo);
    } catch (const markup::PrinterError& errore) {
        dialogo.messaggio(errore.what(), base::traduttore("ATTENZIONE") + "!", base::Icona::avviso);
    }
}

}  // namespace korven::commands
