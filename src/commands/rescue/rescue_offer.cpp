#include "commands/rescue/rescue_offer.hpp"

#include <utility>

#include "base/file_identity.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "commands/rescue/found_rescues.hpp"
#include "commands/rescue/kept_rescue.hpp"
#include "project/output_guard.hpp"

namespace korven::commands {

namespace {

using base::traduttore;

std::string riga(const char* cosa, const std::string& file) {
    return base::riempito(traduttore(cosa), {file});
}

SceltaRecupero scelta(const OffreRecupero& offre, const LavoroRecuperato& trovato,
                      std::size_t altri) {
    return offre({project::fileCorrente, base::quandoScritto(project::progettiProtetti.letto),
                  project::Progetto, trovato.file.percorso(), trovato.quando, trovato.dati,
                  trovato.differenze, altri, project::modificato});
}

bool daTogliere(const LavoroRecuperato& trovato, base::Dialogo& dialogo) {
    return dialogo.domanda(
               traduttore("Il lavoro recuperato non si potrà più riprendere. Volete cancellare") +
                   " " + trovato.file.percorso() + "?",
               traduttore("ATTENZIONE") + "!", base::Pulsanti::siNo,
               base::Icona::avviso) == base::Risposta::si;
}

std::string prendi(LavoroRecuperato& trovato) {
    std::string detto = riga(
        "Si lavora sui dati recuperati, non ancora salvati nel progetto: salvarli con Ctrl+S. Fino "
        "ad allora restano anche in %1",
        trovato.file.percorso());
    project::Progetto = std::move(trovato.dati);
    project::modificato = true;
    recuperoTenuto.adotta(std::move(trovato.file));
    return detto;
}

}  // namespace

std::string offriRecuperi(const OffreRecupero& offre, base::Dialogo& dialogo) {
    std::string detto;
    auto trovati = trovaRecuperi(project::fileCorrente);
    for (std::size_t i = 0; i < trovati.size();) {
        auto& trovato = trovati[i];
        switch (scelta(offre, trovato, trovati.size() - i - 1)) {
            case SceltaRecupero::prendi:
                return prendi(trovato);
            case SceltaRecupero::dopo:
                return riga(
                    "Lavoro recuperato lasciato per dopo: viene proposto di nuovo alla prossima "
                    "apertura. Resta in %1",
                    trovato.file.percorso());
            case SceltaRecupero::tieni:
                if (!daTogliere(trovato, dialogo)) break;  // offered again
                trovato.file.togli();
                detto = riga("Lavoro recuperato cancellato: %1", trovato.file.percorso());
                ++i;
        }
    }
    return detto;
}

}  // namespace korven::commands
