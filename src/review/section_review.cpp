#include "analysis/input_checks.hpp"
#include "analysis/run_arrays.hpp"
#include "base/colon.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "review/limits.hpp"
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

bool qualcosaScritto(const Sezione& s) {
    Sezione vuota;
    for (const auto tipo : project::tipiSezione) vuota.*tipo = s.*tipo;
    return !(s == vuota);
}

// The stiffness of the section as a run would take it, 0 if it has none.
double rigidezzaDallaSezione(const Sezione& s) {
    return structure::troppiFerri(s) ? 0 : structure::rigidezzaOfferta(s).value_or(0);
}

void controlloRigidezza(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    const double EJ = dati.rigidezzaEJ;
    const double sezione = rigidezzaDallaSezione(dati.sezione);
    const Soggetto scritta = campoConValore(&DatiProgetto::rigidezzaEJ, EJ);
    if (EJ == 0 && sezione == 0)
        elenco.conParole("senza-rigidezza", {{}, scritta.campi},
                         traduttore(analysis::messaggioSenzaEJ));
    if (EJ < 0) elenco.aggiungi("ej-negativa", scritta);
    if (EJ > 0 && sezione > 0 && (EJ > scartoRigidezza * sezione || sezione > scartoRigidezza * EJ))
        elenco.conValore("ej-lontana", scritta,
                         project::mostrato(project::campo(&DatiProgetto::rigidezzaEJ), sezione));
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

void controlloFaccia(const Faccia& faccia, const Sezione& s, ElencoOsservazioni& elenco) {
    const struct {
        double copriferro, interasse, diametro;
    } f{s.*faccia.copriferro, s.*faccia.interasse, s.*faccia.diametro};
    const std::string dove = traduttore(faccia.nome) + base::duePunti();
    const Soggetto copriferro = dopo(dove, campoConValore(faccia.copriferro, f.copriferro));
    if ((f.interasse > 0) != (f.diametro > 0)) {
        elenco.aggiungi("faccia-non-armata",
                        dopo(dove, insieme(campoConValore(faccia.interasse, f.interasse),
                                           campoConValore(faccia.diametro, f.diametro))));
        return;
    }
    const bool armata = f.interasse > 0;
    // Without a whole face the section counts as defined in part and no bars count at all.
    if (armata && f.copriferro <= 0 && structure::sezioneValida(s))
        elenco.aggiungi("senza-copriferro", copriferro);
    if (!armata && f.copriferro > 0) elenco.aggiungi("faccia-non-armata", copriferro);
    if (armata && s.spessoreDiaframma > 0 &&
        f.copriferro + f.diametro / 2 >= s.spessoreDiaframma / 2)
        elenco.aggiungi("ferri-a-meta", copriferro);
}

void controlloStaffe(const Sezione& s, ElencoOsservazioni& elenco) {
    if ((s.armPassoStaffe > 0) == (s.armDiamStaffe > 0)) return;
    elenco.aggiungi("staffe-incomplete",
                    insieme(campoConValore(&Sezione::armDiamStaffe, s.armDiamStaffe),
                            campoConValore(&Sezione::armPassoStaffe, s.armPassoStaffe)));
}

// The shear check takes the largest value of all nodes, those at the ends included.
void controlloTaglio(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    if (!structure::staffePresenti(dati.sezione) || !structure::sezioneValida(dati.sezione)) return;
    if (analysis::vincoli(dati).incastroPiede)
        elenco.aggiungi("taglio-al-piede",
                        campoConValore(&DatiProgetto::vincoloPiede, dati.vincoloPiede));
    if (dati.forzaTesta != 0)
        elenco.aggiungi("taglio-in-testa",
                        campoConValore(&DatiProgetto::forzaTesta, dati.forzaTesta));
}

void controlloMisure(const Sezione& s, ElencoOsservazioni& elenco) {
    switch (structure::tipoSezione(s)) {
        case TipoSezione::diaframma:
            for (const Faccia& faccia : facce) controlloFaccia(faccia, s, elenco);
            break;
        case TipoSezione::pali:
            if (s.paliDiamEst > 0 && s.paliDiamInt >= s.paliDiamEst)
                elenco.aggiungi("diametri-invertiti",
                                campoConValore(&Sezione::paliDiamInt, s.paliDiamInt));
            break;
        case TipoSezione::paliArmati:
            if (s.armDiamPalo > 0 && structure::raggioFerri(structure::paliArmatiMm(s)) <= 0)
                elenco.aggiungi("ferri-a-meta",
                                campoConValore(&Sezione::armCopriferro, s.armCopriferro));
            controlloStaffe(s, elenco);
            break;
        case TipoSezione::palancola:
        case TipoSezione::nessuno:
            break;
    }
}

// A line that says by itself what it is about.
template <class Membri>
Soggetto soloCampi(const Membri& membri) {
    Soggetto soggetto;
    for (const auto membro : membri)
        soggetto.campi.push_back(project::nomeStabile(project::campo(membro)));
    return soggetto;
}

void controlloTipo(const Sezione& s, ElencoOsservazioni& elenco) {
    const int tipi = s.tipoDiaframma + s.tipoPali + s.tipoPalancola + s.tipoPaliArmati;
    if (tipi > 1) elenco.aggiungi("piu-tipi", soloCampi(project::tipiSezione));
    if (structure::sezioneValida(s) || !qualcosaScritto(s)) return;
    if (structure::sezioneDefinita(s))
        elenco.aggiungi("pali-senza-interno", soloCampi(structure::campiMancanti(s)));
    else if (tipi == 0)
        elenco.aggiungi("sezione-senza-tipo", soloCampi(project::tipiSezione));
    else
        elenco.aggiungi("sezione-incompleta", soloCampi(structure::campiMancanti(s)));
}

// The editor stores a tenth of the number that is typed, so 12 typed for twelve bars becomes 1.2.
void controlloFerri(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    const Sezione& s = dati.sezione;
    if (structure::tipoSezione(s) != TipoSezione::paliArmati || s.armNumLong == 0) return;
    const Soggetto ferri{{}, campoConValore(&Sezione::armNumLong, s.armNumLong).campi};
    if (const auto troppi = analysis::motivoFerri(dati); !troppi.empty())
        elenco.conParole("troppi-ferri", ferri, troppi);
    else if (s.armNumLong < 1)
        elenco.conValore("ferri-meno-di-uno", ferri, s.armNumLong);
    else if (s.armNumLong >= ferriDaRelazione)
        elenco.conValore("ferri-da-relazione", ferri, s.armNumLong);
    else if (!intero(s.armNumLong))
        elenco.conValore("ferri-non-interi", ferri, s.armNumLong);
    else
        elenco.aggiungi(
            s.armNumLong < ferriPerPalo ? Voce("ferri-troppo-pochi") : "ferri-scritti-e-calcolati",
            ferri,
            {base::testoNumero(
                 project::mostrato(project::campo(&Sezione::armNumLong), s.armNumLong)),
             base::testoNumero(s.armNumLong)});
}

}  // namespace

void controlloSezione(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    controlloRigidezza(dati, elenco);
    controlloTipo(dati.sezione, elenco);
    controlloMisure(dati.sezione, elenco);
    controlloValoriSezione(dati.sezione, elenco);
    controlloFerri(dati, elenco);
    controlloResistenza(dati, elenco);
    controlloTaglio(dati, elenco);
}

}  // namespace korven::review
