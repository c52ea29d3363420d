#include "analysis/stiffness_update.hpp"

#include <string>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/units.hpp"
#include "structure/offered_stiffness.hpp"
#include "structure/section_validity.hpp"

namespace korven::analysis {

namespace {

namespace unita = project::unita;

// As the editors show it.
std::string riga(const std::string& etichetta, double EJ) {
    return base::traduttore(etichetta) + ": " +
           base::testoNumero(mostrato(unita::rigidezzaFlessionale, EJ));
}

bool accettaSostituzione(double attuale, double calcolata, base::Dialogo& dialogo) {
    using base::traduttore;
    using project::etichetta;
    const auto testo = traduttore(
                           "Volete sostituire Il valore di EJ correntemente definito con quello "
                           "ricalcolato in base alle caratteristiche strutturali del diaframma") +
                       "?";
    const auto titolo = traduttore("ATTENZIONE") + "!";
    const auto valori =
        riga(etichetta("EJ del progetto", unita::rigidezzaFlessionale), attuale) + '\n' +
        riga(etichetta("EJ calcolato dalla sezione", unita::rigidezzaFlessionale), calcolata);
    return dialogo.domandaInformata(testo, titolo, base::Pulsanti::siNo, base::Icona::domanda,
                                    valori) == base::Risposta::si;
}

}  // namespace

void aggiornaEJ(const project::Sezione& sezione, double sforzoNormale, double& rigidezzaEJ,
                structure::MomentiResistenti& MRd, base::Dialogo& dialogo) {
    if (!structure::sezioneValida(sezione)) return;
    structure::momentiResistenti(sezione, sforzoNormale, MRd);
    const auto nuovoEJ = structure::rigidezzaOfferta(sezione);
    if (!nuovoEJ) return;
    if (rigidezzaEJ == 0 ||
        (*nuovoEJ != rigidezzaEJ && accettaSostituzione(rigidezzaEJ, *nuovoEJ, dialogo)))
        rigidezzaEJ = *nuovoEJ;
}

}  // namespace korven::analysis
