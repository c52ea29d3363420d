#include "structure/stiffness_update.hpp"

#include <cmath>
#include <string>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/units.hpp"
#include "structure/section_millimetres.hpp"
#include "structure/section_type.hpp"
#include "structure/section_validity.hpp"
#include "structure/stiffness.hpp"

namespace korven::structure {

namespace {

constexpr double nmm2PerTm2 = 10000000000;  // 1 t m2 = 1e4 N x 1e6 mm2

// As the editors show it.
std::string riga(std::string_view cosa, double EJ) {
    return base::traduttore(cosa) + ": " + base::testoNumero(project::inKilonewton(EJ));
}

bool accettaSostituzione(double attuale, double calcolata, base::Dialogo& dialogo) {
    using base::traduttore;
    const auto testo = traduttore(
                           "Volete sostituire Il valore di EJ correntemente definito con quello "
                           "ricalcolato in base alle caratteristiche strutturali del diaframma") +
                       "?";
    const auto titolo = traduttore("ATTENZIONE") + "!";
    return dialogo.domandaInformata(testo, titolo, base::Pulsanti::siNo, base::Icona::domanda,
                                    riga("EJ del progetto [kN m²]", attuale) + '\n' +
                                        riga("EJ calcolato dalla sezione [kN m²]", calcolata)) ==
           base::Risposta::si;
}

}  // namespace

bool troppiFerri(const project::Sezione& sezione) {
    return tipoSezione(sezione) == TipoSezione::paliArmati && sezioneValida(sezione) &&
           std::floor(sezione.armNumLong) > massimoFerri;
}

std::optional<double> rigidezzaOfferta(const project::Sezione& sezione) {
    if (!sezioneValida(sezione)) return std::nullopt;
    const double EJ = std::trunc(calcolaEJ(sezione) / nmm2PerTm2);
    return std::isfinite(EJ) ? std::optional(EJ) : std::nullopt;
}

void aggiornaEJ(const project::Sezione& sezione, double sforzoNormale, double& rigidezzaEJ,
                MomentiResistenti& MRd, base::Dialogo& dialogo) {
    if (!sezioneValida(sezione)) return;
    momentiResistenti(sezione, sforzoNormale, MRd);
    const auto nuovoEJ = rigidezzaOfferta(sezione);
    if (!nuovoEJ) return;
    if (rigidezzaEJ == 0 ||
        (*nuovoEJ != rigidezzaEJ && accettaSostituzione(rigidezzaEJ, *nuovoEJ, dialogo)))
        rigidezzaEJ = *nuovoEJ;
}

}  // namespace korven::structure
