#include <utility>

#include "analysis/input_checks.hpp"
#include "analysis/run_arrays.hpp"
#include "base/translated_texts.hpp"
#include "review/remark_list.hpp"
#include "structure/offered_stiffness.hpp"
#include "structure/section_millimetres.hpp"
#include "structure/section_type.hpp"
#include "structure/section_validity.hpp"

namespace korven::review {

namespace {

using base::traduttore;
using project::DatiProgetto;
using project::Sezione;
using structure::TipoSezione;

constexpr const char* oltreMeta = "l'asse delle armature arriva a metà della sezione o la supera";

bool qualcosaScritto(const Sezione& s) {
    Sezione vuota;
    for (const auto tipo : project::tipiSezione) vuota.*tipo = s.*tipo;
    return !(s == vuota);
}

// The stiffness of the section as a run would take it, 0 if it has none.
double rigidezzaDallaSezione(const Sezione& s) {
    return structure::troppiFerri(s) ? 0 : structure::rigidezzaOfferta(s).value_or(0);
}

// A typed stiffness this many times the section's own, or less than that part of it, is a slip.
constexpr double scartoRigidezza = 3;

void controlloRigidezza(const DatiProgetto& dati, ElencoRilievi& elenco) {
    const double EJ = dati.rigidezzaEJ;
    const double sezione = rigidezzaDallaSezione(dati.sezione);
    const std::string scritta = campoEValore(&DatiProgetto::rigidezzaEJ, EJ) + ": ";
    if (EJ == 0 && sezione == 0) elenco.impedimento(traduttore(analysis::messaggioSenzaEJ));
    if (EJ < 0) elenco.avviso(scritta + traduttore("valore negativo"));
    if (EJ > 0 && sezione > 0 && (EJ > scartoRigidezza * sezione || sezione > scartoRigidezza * EJ))
        elenco.avviso(conValoreTraParentesi(
            scritta + traduttore("è lontana da quella della sezione"),
            project::mostrato(project::campo(&DatiProgetto::rigidezzaEJ), sezione)));
}

// The fields of one face of the diaphragm.
struct Faccia {
    std::string_view nome;
    double Sezione::*copriferro;
    double Sezione::*interasse;
    double Sezione::*diametro;
};

constexpr Faccia facce[] = {
    {"lato monte", &Sezione::copriferroMonte, &Sezione::interasseMonte, &Sezione::diametroMonte},
    {"lato valle", &Sezione::copriferroValle, &Sezione::interasseValle, &Sezione::diametroValle},
};

void controlloFaccia(const Faccia& faccia, const Sezione& s, ElencoRilievi& elenco) {
    const struct {
        double copriferro, interasse, diametro;
    } f{s.*faccia.copriferro, s.*faccia.interasse, s.*faccia.diametro};
    const std::string dove = traduttore(faccia.nome) + ": ";
    const std::string copriferro = dove + campoEValore(faccia.copriferro, f.copriferro) + ": ";
    if ((f.interasse > 0) != (f.diametro > 0)) {
        elenco.avviso(dove + campoEValore(faccia.interasse, f.interasse) + ", " +
                      campoEValore(faccia.diametro, f.diametro) + ": " +
                      traduttore("la faccia conta come non armata"));
        return;
    }
    const bool armata = f.interasse > 0;
    // Without a whole face the section counts as defined in part and no bars count at all.
    if (armata && f.copriferro <= 0 && structure::sezioneValida(s))
        elenco.avviso(copriferro + traduttore("senza copriferro il calcolo conta le armature ma la "
                                              "relazione non le mostra"));
    if (!armata && f.copriferro > 0)
        elenco.avviso(copriferro + traduttore("la faccia conta come non armata"));
    if (armata && s.spessoreDiaframma > 0 &&
        f.copriferro + f.diametro / 2 >= s.spessoreDiaframma / 2)
        elenco.avviso(copriferro + traduttore(oltreMeta));
}

void controlloStaffe(const Sezione& s, ElencoRilievi& elenco) {
    if ((s.armPassoStaffe > 0) == (s.armDiamStaffe > 0)) return;
    elenco.avviso(campoEValore(&Sezione::armDiamStaffe, s.armDiamStaffe) + ", " +
                  campoEValore(&Sezione::armPassoStaffe, s.armPassoStaffe) + ": " +
                  traduttore("senza l'uno o l'altro non c'è verifica a taglio"));
}

// The shear check takes the largest value of all nodes, those at the ends included.
void controlloTaglio(const DatiProgetto& dati, ElencoRilievi& elenco) {
    if (!structure::staffePresenti(dati.sezione) || !structure::sezioneValida(dati.sezione)) return;
    if (analysis::vincoli(dati).incastroPiede)
        elenco.avviso(
            campoEValore(&DatiProgetto::vincoloPiede, dati.vincoloPiede) + ": " +
            traduttore("la verifica a taglio conta anche il valore al piede incastrato, che "
                       "non è un taglio della paratia e cresce con il numero di segmenti"));
    if (dati.forzaTesta != 0)
        elenco.avviso(
            campoEValore(&DatiProgetto::forzaTesta, dati.forzaTesta) + ": " +
            traduttore("la verifica a taglio conta anche il valore in testa, che è il doppio "
                       "della forza e non è il taglio della paratia"));
}

void controlloMisure(const Sezione& s, ElencoRilievi& elenco) {
    switch (structure::tipoSezione(s)) {
        case TipoSezione::diaframma:
            for (const Faccia& faccia : facce) controlloFaccia(faccia, s, elenco);
            break;
        case TipoSezione::pali:
            if (s.paliDiamEst > 0 && s.paliDiamInt >= s.paliDiamEst)
                elenco.avviso(campoEValore(&Sezione::paliDiamInt, s.paliDiamInt) + ": " +
                              traduttore("non è minore del diametro esterno"));
            break;
        case TipoSezione::paliArmati:
            if (s.armDiamPalo > 0 && structure::raggioFerri(structure::paliArmatiMm(s)) <= 0)
                elenco.avviso(campoEValore(&Sezione::armCopriferro, s.armCopriferro) + ": " +
                              traduttore(oltreMeta));
            controlloStaffe(s, elenco);
            break;
        case TipoSezione::palancola:
        case TipoSezione::nessuno:
            break;
    }
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

// Few piles have so many bars, but any report of ten bars or more shows such a number.
constexpr double ferriDaRelazione = 100;

// The editor stores a tenth of the number that is typed, so 12 typed for twelve bars becomes 1.2.
void controlloFerri(const DatiProgetto& dati, ElencoRilievi& elenco) {
    const Sezione& s = dati.sezione;
    if (structure::tipoSezione(s) != TipoSezione::paliArmati || s.armNumLong == 0) return;
    if (auto troppi = analysis::motivoFerri(dati); !troppi.empty())
        elenco.impedimento(std::move(troppi));
    else if (s.armNumLong < 1)
        elenco.avviso(conValoreTraParentesi(
            traduttore("numero di ferri memorizzato minore di 1: i pali contano come non armati "
                       "(scheda e relazione mostrano dieci volte il numero usato nel calcolo)"),
            s.armNumLong));
    else if (s.armNumLong >= ferriDaRelazione)
        elenco.avviso(conValoreTraParentesi(
            traduttore("numero di ferri memorizzato di 100 o più: sembra quello della relazione, "
                       "che mostra dieci volte il numero usato nel calcolo"),
            s.armNumLong));
    else if (!intero(s.armNumLong))
        elenco.avviso(conValoreTraParentesi(
            traduttore("numero di ferri memorizzato non intero (scheda e relazione mostrano dieci "
                       "volte il numero usato nel calcolo)"),
            s.armNumLong));
}

}  // namespace

void controlloSezione(const DatiProgetto& dati, ElencoRilievi& elenco) {
    controlloRigidezza(dati, elenco);
    controlloTipo(dati.sezione, elenco);
    controlloMisure(dati.sezione, elenco);
    controlloFerri(dati, elenco);
    controlloTaglio(dati, elenco);
}

}  // namespace korven::review
