#include "report/report_sections.hpp"
#include "results/structure_checks.hpp"
#include "structure/section_type.hpp"
#include "structure/section_validity.hpp"

namespace korven::report {

namespace {

using project::Lato;
using project::Sezione;
using structure::TipoSezione;

void conLista(std::string_view titolo, const std::vector<Voce>& voci, RigheRelazione& righe) {
    righe.titolo(titolo);
    righe.vuota();
    righe.lista(voci);
    righe.vuota();
}

void faccia(std::string_view titolo, double diametro, double interasse, double copriferro,
            RigheRelazione& righe) {
    conLista(titolo,
             {{"Diametro armature [mm]", diametro * 10},
              {"Interasse armature [mm]", interasse * 10},
              {"Copriferro [mm]", copriferro * 10}},
             righe);
}

void diaframma(const Sezione& s, RigheRelazione& righe) {
    righe.titolo("CALCOLO STRUTTURALE DIAFRAMMA");
    if (structure::facciaCompleta(s, Lato::monte))
        faccia("ARMATURA LATO MONTE", s.diametroMonte, s.interasseMonte, s.copriferroMonte, righe);
    if (structure::facciaCompleta(s, Lato::valle))
        faccia("ARMATURA LATO VALLE", s.diametroValle, s.interasseValle, s.copriferroValle, righe);
}

void pali(const Sezione& s, RigheRelazione& righe) {
    conLista("CALCOLO STRUTTURALE PALIFICATA",
             {{"Diametro esterno [mm]", s.paliDiamEst * 10},
              {"Diametro interno [mm]", s.paliDiamInt * 10},
              {"Interasse armature [mm]", s.paliInterasse * 10}},
             righe);
}

void palancola(const Sezione& s, RigheRelazione& righe) {
    conLista("CALCOLO STRUTTURALE PALANCOLA",
             {{"Larghezza totale elemento [mm]", (s.palancolaBase + 2 * s.palancolaLargAla) * 10},
              {"Larghezza ala [mm]", s.palancolaLargAla * 10},
              {"Altezza ala [mm]", s.palancolaAltAla * 10},
              {"Spessore palancola [mm]", s.palancolaSpessore * 10},
              {"Spessore ala [mm]", s.palancolaSpessAla * 10}},
             righe);
}

// The bar count goes through the factor of the lengths and shows ten times the calculating number.
void paliArmati(const Sezione& s, RigheRelazione& righe) {
    const bool staffe = structure::staffePresenti(s);
    conLista("CALCOLO STRUTTURALE PALI ARMATI",
             {{"Diametro pali [mm]", s.armDiamPalo * 10},
              {"Diametro armature longitudinali [mm]", s.armDiamLong * 10},
              {"Numero armature logitudinali [-]", s.armNumLong * 10},
              {"Copriferro armature logitudinali [mm]", s.armCopriferro * 10},
              {"Diametro staffe [mm]", s.armDiamStaffe * 10, staffe},
              {"Passo staffe [mm]", s.armPassoStaffe * 10, staffe}},
             righe);
}

void descrizione(const Sezione& s, RigheRelazione& righe) {
    switch (structure::tipoSezione(s)) {
        case TipoSezione::diaframma:
            return diaframma(s, righe);
        case TipoSezione::pali:
            return pali(s, righe);
        case TipoSezione::palancola:
            return palancola(s, righe);
        case TipoSezione::paliArmati:
            return paliArmati(s, righe);
        case TipoSezione::nessuno:
            return;
    }
}

void materiali(const Sezione& s, RigheRelazione& righe) {
    const bool calcestruzzo = structure::tipoSezione(s) != TipoSezione::palancola;
    conLista("CARATTERISTICHE DEI MATERIALI",
             {{"Modulo elastico acciaio [N/mm²]", s.modEacciaio},
              {"Modulo elastico CLS [N/mm²]", s.modEcls, calcestruzzo},
              {"Resistenza limite acciaio Fyk [N/mm²]", s.fyk},
              {"Resistenza limite CLS Fck [N/mm²]", s.fck, calcestruzzo}},
             righe);
}

void flessione(const results::ConfrontoMomenti& c, RigheRelazione& righe) {
    conLista("VERIFICA DEI MOMENTI FLETTENTI",
             {{"Momento resistente di calcolo (pos.) [kN m]", c.mrPos * 10},
              {"Momento resistente di calcolo (neg.) [kN m]", c.mrNeg * 10, c.negativo},
              {"Momento massimo applicato (pos) [kN m]", c.mMax * 10},
              {"Momento massimo applicato (neg) [kN m]", c.mMin * 10, c.negativo},
              {"F.S. parziale delle azioni [-]", c.fsAzioni},
              {"Momento massimo di calcolo applicato (pos) [kN m]", c.mdMax * 10},
              {"Momento massimo di calcolo applicato (neg) [kN m]", c.mdMin * 10, c.negativo}},
             righe);
    righe.titolo(results::sentenza(true, c.verificatoPos));
    if (c.negativo) righe.titolo(results::sentenza(false, c.verificatoNeg));
}

void taglio(const Sezione& s, const structure::ConfrontoTaglio& confronto, RigheRelazione& righe) {
    righe.vuota();
    righe.titolo("VERIFICA AL TAGLIO");
    righe.lista({{"Diametro staffe [mm]", s.armDiamStaffe * 10},
                 {"Passo staffe [mm]", s.armPassoStaffe * 10},
                 {"Capacità portante bielle CLS - Vrd2 [kN]", confronto.Vrd2},
                 {"Capacità portante armatura d'anima - Vrd3 [kN]", confronto.Vrd3},
                 {"Taglio massimo agente sulla struttura [kN]", confronto.taglioMassimo},
                 {"Coeff. di sicurezza parziale [-]", confronto.fsAzioni},
                 {"Taglio massimo di calcolo - Vsd [kN]", confronto.Vsd}});
    for (const auto rottura : structure::righeRotturaTaglio(confronto)) righe.titolo(rottura);
}

}  // namespace

void sezioneStrutturale(const results::DatiRelazione& dati, RigheRelazione& righe) {
    const Sezione& s = dati.progetto.sezione;
    const auto momenti = results::verificaMomenti(dati);
    if (!momenti) return;
    descrizione(s, righe);
    materiali(s, righe);
    flessione(*momenti, righe);
    if (const auto confronto = results::verificaAlTaglio(dati)) taglio(s, *confronto, righe);
}

}  // namespace korven::report
