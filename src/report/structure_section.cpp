#include "report/sections.hpp"
#include "results/structure_checks.hpp"
#include "structure/section_type.hpp"
#include "structure/section_validity.hpp"

namespace korven::report {

namespace {

using project::DatiProgetto;
using project::etichetta;
using project::Lato;
using project::Sezione;
using structure::TipoSezione;
namespace unita = project::unita;

void conLista(std::string_view titolo, const std::vector<Voce>& voci, RigheRelazione& righe) {
    righe.titolo(titolo);
    righe.vuota();
    righe.lista(voci);
    righe.vuota();
}

void faccia(const DatiProgetto& p, std::string_view titolo, double Sezione::*diametro,
            double Sezione::*interasse, double Sezione::*copriferro, RigheRelazione& righe) {
    conLista(titolo, {voce(p, diametro), voce(p, interasse), voce(p, copriferro)}, righe);
}

void diaframma(const DatiProgetto& p, RigheRelazione& righe) {
    righe.titolo("CALCOLO STRUTTURALE DIAFRAMMA");
    if (structure::facciaCompleta(p.sezione, Lato::monte))
        faccia(p, "ARMATURA LATO MONTE", &Sezione::diametroMonte, &Sezione::interasseMonte,
               &Sezione::copriferroMonte, righe);
    if (structure::facciaCompleta(p.sezione, Lato::valle))
        faccia(p, "ARMATURA LATO VALLE", &Sezione::diametroValle, &Sezione::interasseValle,
               &Sezione::copriferroValle, righe);
}

// The spacing of the piles has the caption of the bars.
void pali(const DatiProgetto& p, RigheRelazione& righe) {
    Voce interasse = voce(p, &Sezione::paliInterasse);
    interasse.etichetta = etichetta(project::campo(&Sezione::interasseMonte));
    conLista("CALCOLO STRUTTURALE PALIFICATA",
             {voce(p, &Sezione::paliDiamEst), voce(p, &Sezione::paliDiamInt), interasse}, righe);
}

void palancola(const DatiProgetto& p, RigheRelazione& righe) {
    const Sezione& s = p.sezione;
    const double larghezza = s.palancolaBase + 2 * s.palancolaLargAla;
    conLista("CALCOLO STRUTTURALE PALANCOLA",
             {voce("Larghezza totale elemento", unita::misura, larghezza),
              voce(p, &Sezione::palancolaLargAla), voce(p, &Sezione::palancolaAltAla),
              voce(p, &Sezione::palancolaSpessore), voce(p, &Sezione::palancolaSpessAla)},
             righe);
}

void paliArmati(const DatiProgetto& p, RigheRelazione& righe) {
    const bool staffe = structure::staffePresenti(p.sezione);
    conLista("CALCOLO STRUTTURALE PALI ARMATI",
             {voce(p, &Sezione::armDiamPalo), voce(p, &Sezione::armDiamLong),
              voce(p, &Sezione::armNumLong), voce(p, &Sezione::armCopriferro),
              voce(p, &Sezione::armDiamStaffe, staffe), voce(p, &Sezione::armPassoStaffe, staffe)},
             righe);
}

void descrizione(const DatiProgetto& p, RigheRelazione& righe) {
    switch (structure::tipoSezione(p.sezione)) {
        case TipoSezione::diaframma:
            return diaframma(p, righe);
        case TipoSezione::pali:
            return pali(p, righe);
        case TipoSezione::palancola:
            return palancola(p, righe);
        case TipoSezione::paliArmati:
            return paliArmati(p, righe);
        case TipoSezione::nessuno:
            return;
    }
}

void materiali(const DatiProgetto& p, RigheRelazione& righe) {
    const bool calcestruzzo = structure::tipoSezione(p.sezione) != TipoSezione::palancola;
    conLista("CARATTERISTICHE DEI MATERIALI",
             {voce(p, &Sezione::modEacciaio), voce(p, &Sezione::modEcls, calcestruzzo),
              voce(p, &Sezione::fyk), voce(p, &Sezione::fck, calcestruzzo)},
             righe);
}

void flessione(const results::ConfrontoMomenti& c, RigheRelazione& righe) {
    conLista(
        "VERIFICA DEI MOMENTI FLETTENTI",
        {voce("Momento resistente di calcolo (pos.)", unita::momento, c.mrPos),
         voce("Momento resistente di calcolo (neg.)", unita::momento, c.mrNeg, c.negativo),
         voce("Momento massimo applicato (pos)", unita::momento, c.mMax),
         voce("Momento massimo applicato (neg)", unita::momento, c.mMin, c.negativo),
         voce("F.S. parziale delle azioni", unita::numero, c.fsAzioni),
         voce("Momento massimo di calcolo applicato (pos)", unita::momento, c.mdMax),
         voce("Momento massimo di calcolo applicato (neg)", unita::momento, c.mdMin, c.negativo)},
        righe);
    righe.titolo(results::sentenza(true, c.verificatoPos));
    if (c.negativo) righe.titolo(results::sentenza(false, c.verificatoNeg));
}

void taglio(const DatiProgetto& p, const structure::ConfrontoTaglio& confronto,
            RigheRelazione& righe) {
    righe.vuota();
    righe.titolo("VERIFICA AL TAGLIO");
    righe.lista(
        {voce(p, &Sezione::armDiamStaffe),
         voce(p, &Sezione::armPassoStaffe),
         {etichetta("Capacità portante bielle CLS - Vrd2", unita::forza), confronto.Vrd2},
         {etichetta("Capacità portante armatura d'anima - Vrd3", unita::forza), confronto.Vrd3},
         {etichetta("Taglio massimo agente sulla struttura", unita::forza),
          confronto.taglioMassimo},
         voce("Coeff. di sicurezza parziale", unita::numero, confronto.fsAzioni),
         {etichetta("Taglio massimo di calcolo - Vsd", unita::forza), confronto.Vsd}});
    for (const auto rottura : structure::righeRotturaTaglio(confronto)) righe.titolo(rottura);
}

}  // namespace

void sezioneStrutturale(const results::DatiRelazione& dati, RigheRelazione& righe) {
    const auto momenti = results::verificaMomenti(dati);
    if (!momenti) return;
    descrizione(dati.progetto, righe);
    materiali(dati.progetto, righe);
    flessione(*momenti, righe);
    if (const auto confronto = results::verificaAlTaglio(dati))
        taglio(dati.progetto, *confronto, righe);
}

}  // namespace korven::report
