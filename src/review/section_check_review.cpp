#include <cmath>
#include <optional>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "results/section_uses.hpp"
#include "review/result_checks.hpp"
#include "structure/partial_factors.hpp"
#include "structure/section_type.hpp"
#include "structure/shear_check.hpp"

// The verdicts of the report on the section. Numbers and verdicts are those of the report itself,
// with its two decimals, so that nobody reads one thing there and another here.

namespace korven::review {

namespace {

using base::traduttore;
using project::DatiProgetto;
using project::numeroMostrato;
using project::Sezione;
using structure::TipoSezione;
namespace unita = project::unita;

// What makes a section stronger: in words, and where it is typed.
struct Rinforzo {
    std::string_view testo;
    std::vector<double Sezione::*> campi;
};

// A positive moment stretches the downhill face.
Rinforzo rinforzoFlessione(const Sezione& s, bool positivo) {
    switch (structure::tipoSezione(s)) {
        case TipoSezione::diaframma:
            if (positivo)
                return {"aumentare i ferri del lato valle o lo spessore",
                        {&Sezione::diametroValle, &Sezione::interasseValle,
                         &Sezione::spessoreDiaframma}};
            return {
                "aumentare i ferri del lato monte o lo spessore",
                {&Sezione::diametroMonte, &Sezione::interasseMonte, &Sezione::spessoreDiaframma}};
        case TipoSezione::pali:
            return {"adottare tubi più grandi, più spessi o più vicini",
                    {&Sezione::paliDiamEst, &Sezione::paliDiamInt, &Sezione::paliInterasse}};
        case TipoSezione::palancola:
            return {"adottare palancole più alte, più spesse o di acciaio migliore",
                    {&Sezione::palancolaAltAla, &Sezione::palancolaSpessore, &Sezione::fyk}};
        case TipoSezione::paliArmati:
            return {"aumentare i ferri, o adottare pali più grandi o più vicini",
                    {&Sezione::armDiamLong, &Sezione::armNumLong, &Sezione::armDiamPalo,
                     &Sezione::armInterasse}};
        case TipoSezione::nessuno:
            break;
    }
    return {};
}

Rinforzo rinforzoTaglio(bool bielle) {
    if (bielle)
        return {"adottare pali più grandi o più vicini, o un calcestruzzo migliore",
                {&Sezione::armDiamPalo, &Sezione::armInterasse, &Sezione::fck}};
    return {"infittire le staffe o aumentarne il diametro",
            {&Sezione::armDiamStaffe, &Sezione::armPassoStaffe}};
}

Soggetto campi(const Rinforzo& rinforzo) {
    Soggetto soggetto;
    for (const auto campo : rinforzo.campi)
        soggetto.campi.push_back(project::nomeStabile(project::campo(campo)));
    return soggetto;
}

// ", usata al 120.0 %"; without a resistance there is no share.
std::string uso(double progetto, double resistenza) {
    if (resistenza == 0) return {};
    const std::string quota[] = {numeroMostrato(progetto / resistenza, 1, unita::percento)};
    return ", " + base::riempito(traduttore("usata per %1 %"), quota);
}

void flessione(const DatiProgetto& dati, bool positivo, double Md, double MRd,
               const results::NumeroRelazione& dove, ElencoOsservazioni& elenco) {
    const Rinforzo rinforzo = rinforzoFlessione(dati.sezione, positivo);
    elenco.aggiungi(
        "flessione-non-verificata", campi(rinforzo),
        {traduttore(positivo ? "momento positivo" : "momento negativo"),
         project::numeroRelazione(mostrato(unita::momento, Md)), std::to_string(dove.fase),
         numeroMostrato(dove.z, 2), project::numeroRelazione(mostrato(unita::momento, MRd)),
         uso(Md, MRd), traduttore(rinforzo.testo)});
}

// The smaller resistance to one moment of those under the axial force as it acts and under none.
// The check multiplies a force that helps the section, too.
struct SenzaFavore {
    std::optional<double> positiva, negativa;  // that the moment is beyond [t m]
};
SenzaFavore senzaFavore(const DatiProgetto& dati, const results::ConfrontoMomenti& c) {
    SenzaFavore trovate;
    if (dati.sforzoNormale == 0) return trovate;
    const auto minore = [](std::optional<double>& trovata, double resistenza) {
        if (!trovata || std::fabs(resistenza) < std::fabs(*trovata)) trovata = resistenza;
    };
    DatiProgetto altri = dati;
    for (const double sforzo : {dati.sforzoNormale / structure::fsAzioniSezione, 0.0}) {
        altri.sforzoNormale = sforzo;
        const auto altro =
            results::controlli(dati.sezione, results::momentiResistenti(altri), c.mMax, c.mMin, 0);
        if (!altro.flessione) continue;
        if (altro.flessione->fallitaPos()) minore(trovate.positiva, altro.flessione->mrPos);
        if (altro.flessione->fallitaNeg()) minore(trovate.negativa, altro.flessione->mrNeg);
    }
    return trovate;
}

void favorevole(const DatiProgetto& dati, bool positivo, double Md, double MRd,
                const results::NumeroRelazione& dove, ElencoOsservazioni& elenco) {
    const Rinforzo rinforzo = rinforzoFlessione(dati.sezione, positivo);
    Soggetto soggetto = campi(rinforzo);
    soggetto.campi.insert(soggetto.campi.begin(),
                          project::nomeStabile(project::campo(&DatiProgetto::sforzoNormale)));
    elenco.aggiungi(
        "flessione-con-sforzo-favorevole", soggetto,
        {traduttore(positivo ? "momento positivo" : "momento negativo"),
         project::numeroRelazione(mostrato(unita::momento, Md)), std::to_string(dove.fase),
         numeroMostrato(dove.z, 2), base::testoDecimali(structure::fsAzioniSezione, 2),
         project::numeroRelazione(mostrato(unita::momento, MRd)), uso(Md, MRd),
         traduttore(rinforzo.testo)});
}

void taglio(const structure::ConfrontoTaglio& c, bool bielle, const results::NumeroRelazione& dove,
            ElencoOsservazioni& elenco) {
    const Rinforzo rinforzo = rinforzoTaglio(bielle);
    const double VRd = bielle ? c.Vrd2 : c.Vrd3;
    elenco.aggiungi(
        "taglio-non-verificato", campi(rinforzo),
        {project::numeroRelazione(c.Vsd), std::to_string(dove.fase), numeroMostrato(dove.z, 2),
         traduttore(bielle ? "resistenza delle bielle di calcestruzzo"
                           : "resistenza dell'armatura d'anima"),
         project::numeroRelazione(VRd), uso(c.Vsd, VRd), traduttore(rinforzo.testo)});
}

}  // namespace

void controlloVerifiche(const DatiProgetto& dati, const safety::Margine& margine,
                        ElencoOsservazioni& elenco) {
    if (!margine.relazione || margine.relazione->fasi.empty()) return;
    const auto& relazione = *margine.relazione;
    if (const auto& c = relazione.flessione) {
        if (c->fallitaPos())
            flessione(dati, true, c->mdMax, c->mrPos, relazione.momentoMassimo(), elenco);
        if (c->fallitaNeg())
            flessione(dati, false, c->mdMin, c->mrNeg, relazione.momentoMinimo(), elenco);
        const SenzaFavore altre = senzaFavore(dati, *c);
        if (altre.positiva && !c->fallitaPos())
            favorevole(dati, true, c->mdMax, *altre.positiva, relazione.momentoMassimo(), elenco);
        if (altre.negativa && !c->fallitaNeg())
            favorevole(dati, false, c->mdMin, *altre.negativa, relazione.momentoMinimo(), elenco);
    }
    // The shear check looks at the last stage alone.
    if (const auto& c = relazione.taglioSezione) {
        const results::NumeroRelazione& dove = relazione.fasi.back().taglio;
        if (c->rotturaBielle()) taglio(*c, true, dove, elenco);
        if (c->rotturaArmatura()) taglio(*c, false, dove, elenco);
    }
}

}  // namespace korven::review
