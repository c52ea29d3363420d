#include <cmath>

#include "analysis/input_checks.hpp"
#include "base/translated_texts.hpp"
#include "commands/review_list.hpp"
#include "structure/section_millimetres.hpp"
#include "structure/section_type.hpp"
#include "structure/section_validity.hpp"
#include "structure/stiffness_update.hpp"

namespace korven::commands {

namespace {

using base::traduttore;
using project::DatiProgetto;
using project::Sezione;
using structure::TipoSezione;

bool qualcosaScritto(const Sezione& s) {
    Sezione vuota;
    vuota.tipoDiaframma = s.tipoDiaframma;
    vuota.tipoPali = s.tipoPali;
    vuota.tipoPalancola = s.tipoPalancola;
    vuota.tipoPaliArmati = s.tipoPaliArmati;
    return !(s == vuota);
}

// A run asks for the bars as soon as the section is whole, whether or not EJ is typed.
bool troppiFerri(const Sezione& s) {
    return structure::tipoSezione(s) == TipoSezione::paliArmati && structure::sezioneValida(s) &&
           std::floor(s.armNumLong) > structure::massimoFerri;
}

// The stiffness of the section as a run would take it, 0 if it has none.
double rigidezzaDallaSezione(const Sezione& s) {
    return troppiFerri(s) ? 0 : structure::rigidezzaOfferta(s).value_or(0);
}

void controlloRigidezza(const DatiProgetto& dati, ElencoRilievi& elenco) {
    if (dati.rigidezzaEJ < 0)
        elenco.avviso(conValore(traduttore("la rigidezza EJ è negativa"), dati.rigidezzaEJ));
    if (dati.rigidezzaEJ == 0 && rigidezzaDallaSezione(dati.sezione) == 0)
        elenco.impedimento(traduttore(analysis::messaggioSenzaEJ));
}

void controlloTipo(const Sezione& s, ElencoRilievi& elenco) {
    const int tipi = s.tipoDiaframma + s.tipoPali + s.tipoPalancola + s.tipoPaliArmati;
    if (tipi > 1) elenco.avviso(traduttore("sezione: più tipi indicati insieme, vale il primo"));
    if (structure::sezioneValida(s) || !qualcosaScritto(s)) return;
    if (structure::sezioneDefinita(s))
        elenco.avviso(
            traduttore("sezione di pali senza diametro interno: la relazione la mostra con "
                       "resistenza nulla"));
    else if (tipi == 0)
        elenco.avviso(
            traduttore("sezione senza un tipo: nessuna verifica strutturale e nessun ricalcolo di "
                       "EJ"));
    else
        elenco.avviso(
            traduttore("sezione definita solo in parte: nessuna verifica strutturale e nessun "
                       "ricalcolo di EJ"));
}

// The editor stores a tenth of the number that is typed, so 12 typed for twelve bars becomes 1.2.
void controlloFerri(const Sezione& s, ElencoRilievi& elenco) {
    if (structure::tipoSezione(s) != TipoSezione::paliArmati || s.armNumLong == 0) return;
    if (troppiFerri(s))
        elenco.impedimento(
            conValore(traduttore("numero di ferri oltre la capacità (100000)"), s.armNumLong));
    else if (s.armNumLong < 1)
        elenco.avviso(conValore(
            traduttore("numero di ferri memorizzato minore di 1: i pali contano come non armati "
                       "(editore e relazione mostrano dieci volte il numero che calcola)"),
            s.armNumLong));
    else if (!intero(s.armNumLong))
        elenco.avviso(conValore(
            traduttore("numero di ferri memorizzato non intero (editore e relazione mostrano dieci "
                       "volte il numero che calcola)"),
            s.armNumLong));
}

}  // namespace

void controlloSezione(const DatiProgetto& dati, ElencoRilievi& elenco) {
    controlloRigidezza(dati, elenco);
    controlloTipo(dati.sezione, elenco);
    controlloFerri(dati.sezione, elenco);
}

}  // namespace korven::commands
