#include "commands/start/language_change.hpp"

#include "base/file_error.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "commands/start/language_start.hpp"

namespace korven::commands {

namespace {

using base::traduttore;

// Somebody may have broken the file since the program has started.
int linguaScritta() {
    try {
        return base::leggiLingua(fileLingua());
    } catch (const base::ErroreFile&) {
        return 0;
    }
}

bool scritta(int codice, const PorteCambioLingua& porte) {
    try {
        scriviLingua(codice, porte.disco);
        return true;
    } catch (const base::ErroreFile& errore) {
        porte.dialogo.messaggio(errore.what(), traduttore("ATTENZIONE") + "!", base::Icona::stop);
        return false;
    }
}

}  // namespace

bool cambiaLingua(const PorteCambioLingua& porte) {
    const int presente = linguaScritta();
    const int codice = porte.scegli(lingueOfferte(), presente);
    if (codice == 0 || (codice != presente && !scritta(codice, porte))) return false;
    if (codice == base::linguaCorrente()) return false;
    return porte.dialogo.domanda(
               traduttore(
                   "La lingua scelta vale dal prossimo avvio. Riavviare adesso il programma?"),
               traduttore("Cambio di lingua"), base::Pulsanti::siNo,
               base::Icona::domanda) == base::Risposta::si;
}

}  // namespace korven::commands
