// The file, the editors, the remarks and the report speak of the same fields: those of the one
// table. A member of the project that is forgotten at one of these places, and not named here with
// its reason, is found.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <set>
#include <utility>

#include "base/number_text.hpp"
#include "masks/edited_fields.hpp"
#include "masks/edited_section.hpp"
#include "masks/edited_tables.hpp"
#include "project/codes.hpp"
#include "project/field_table.hpp"
#include "project/project_file.hpp"
#include "report/sections.hpp"
#include "review/project_review.hpp"
#include "review/remark_list.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven {
namespace {

using project::Campo;
using project::DatiProgetto;
using project::Membro;
using project::Parte;
using project::Sezione;

using Nomi = std::set<std::string_view>;

Nomi diversiDa(const std::function<bool(const Campo&)>& presente) {
    Nomi mancanti;
    for (const Campo& campo : project::campi())
        if (!presente(campo)) mancanti.insert(campo.nome);
    return mancanti;
}

// One layer, one anchor, one stage and the type of section to which a field belongs, so that each
// field is shown wherever it is.
DatiProgetto progettoCon(const Campo& campo) {
    DatiProgetto d = test::progettoSemplice();
    d.nStrati = d.nTiranti = d.nFasi = 1;
    d.metodoKs = valore(project::MetodoKs::lancellotta);
    d.sezione = campo.parte == Parte::pali         ? structure::paliTubolari()
                : campo.parte == Parte::palancola  ? structure::palancola()
                : campo.parte == Parte::paliArmati ? structure::paliArmati()
                                                   : structure::diaframmaSimmetrico();
    d.sezione.armDiamStaffe = 1;
    d.sezione.armPassoStaffe = 20;
    return d;
}

// Another value than any field has by itself.
constexpr double numeroRaro = 7.625;
constexpr const char* testoRaro = "105C3 marna varicolore";

DatiProgetto conAltroValore(const Campo& campo) {
    DatiProgetto d = progettoCon(campo);
    project::conValore(d, campo, 1, [&](auto& valore) {
        using Valore = std::remove_reference_t<decltype(valore)>;
        if constexpr (std::is_same_v<Valore, double>)
            valore = campo.codici.empty() ? numeroRaro : campo.codici.back().valore;
        else if constexpr (std::is_same_v<Valore, std::string>)
            valore = testoRaro;
        else if constexpr (std::is_same_v<Valore, bool>)
            valore = !valore;
        else
            ++valore;
    });
    // A section without a type is edited as a diaphragm.
    if (campo.membro == Membro(&Sezione::tipoDiaframma)) d.sezione.tipoPali = true;
    return d;
}

bool nelFile(const Campo& campo) {
    return project::testoProgetto(conAltroValore(campo)) !=
           project::testoProgetto(progettoCon(campo));
}

std::vector<std::string> mostratiDagliEditori(DatiProgetto d) {
    std::vector<std::string> testi;
    for (const auto editore : {masks::testiTitoli, masks::testiParatia, masks::testiStrati,
                               masks::testiTiranti, masks::testiFasi}) {
        const auto altri = editore(d);
        testi.insert(testi.end(), altri.begin(), altri.end());
    }
    bool modificato = false;
    const masks::SezioneEditata sezione(d.sezione, modificato);
    for (std::size_t i = 0; i < masks::numeroCampiSezione; ++i) testi.push_back(sezione.testo(i));
    testi.push_back(std::to_string(static_cast<int>(sezione.tipo())));
    return testi;
}

bool inUnEditore(const Campo& campo) {
    return mostratiDagliEditori(conAltroValore(campo)) != mostratiDagliEditori(progettoCon(campo));
}

std::string relazione(const DatiProgetto& d) {
    results::DatiRelazione dati;
    dati.progetto = d;
    report::RigheRelazione righe;
    report::sezioneApertura(d, "piede", righe);
    report::sezioneDati(d, righe);
    report::sezioneStrutturale(dati, righe);
    return righe.testo();
}

// A number must be there with the caption in front of it, or in a table under it.
bool nellaRelazione(const Campo& campo) {
    const DatiProgetto d = conAltroValore(campo);
    const std::string testo = relazione(d);
    const bool quantita =
        campo.codici.empty() && !std::holds_alternative<int DatiProgetto::*>(campo.membro) &&
        campo.parte != Parte::titoli && campo.membro != Membro(&DatiProgetto::descrStrato) &&
        !std::holds_alternative<bool Sezione::*>(campo.membro);
    if (!quantita) return testo != relazione(progettoCon(campo));
    const auto numero = base::formattaDecimali(project::mostrato(d, campo), 2);
    return testo.find(project::colonna(campo) ? numero : '\t' + numero) != std::string::npos;
}

bool traIRilievi(const Campo& campo) {
    constexpr double enorme = 1e308;  // ten times as much is no number
    DatiProgetto d = progettoCon(campo);
    project::conValore(d, campo, 1, [](auto& valore) {
        if constexpr (std::is_same_v<std::remove_reference_t<decltype(valore)>, double>)
            valore = enorme;
    });
    review::ElencoOsservazioni elenco;
    review::controlloMostrati(d, elenco);
    const auto rilievi = elenco.ordinate();
    return rilievi.size() == 1 &&
           rilievi[0].testo.find(review::nomeCampo(campo)) != std::string::npos;
}

TEST(CampiDelProgetto, AreAllInTheFile) { EXPECT_EQ(diversiDa(nelFile), Nomi{}); }

TEST(CampiDelProgetto, AreAllInAnEditorButThreeThatOnlyFilesBring) {
    EXPECT_EQ(diversiDa(inUnEditore), (Nomi{"suStrato", "opzioneRiservata", "faldaValle"}));
}

TEST(CampiDelProgetto, AreAllInTheReportButThoseThatItLeavesOut) {
    EXPECT_EQ(diversiDa(nellaRelazione),
              (Nomi{"suStrato", "descrStrato",         // in the stratigraphic log
                    "opzioneRiservata", "faldaValle",  // no data of the user
                    "gammaAcqua", "sforzoNormale",     // never listed
                    "sezione.spessoreDiaframma", "sezione.armInterasse",
                    "sezione.palancolaBase"}));  // within the width of an element
}

TEST(CampiDelProgetto, AllThatAreShownTenfoldAreLookedAtForNumbersTooLargeToBeShown) {
    const auto nonGuardati = diversiDa(traIRilievi);
    for (const Campo& campo : project::campi()) {
        const bool decuplo = campo.unita.fattore != 1;
        const bool soloDisegnato = campo.nome == "suStrato";
        EXPECT_EQ(nonGuardati.contains(campo.nome), !decuplo || soloDisegnato) << campo.nome;
    }
}

// What hardly any field is meant to hold: too small, too large, none of the codes.
constexpr double insoliti[] = {-2, 0, 0.5, 2.5, 6, 95, 1e4, 1e308};

std::vector<std::string> rilievi(const DatiProgetto& d) {
    std::vector<std::string> testi;
    for (const auto& rilievo : review::esaminaProgetto(d)) testi.push_back(rilievo.testo);
    return testi;
}

// Some such value brings a remark that names the field.
bool esaminato(const Campo& campo) {
    const std::string nome = review::nomeCampo(campo);
    if (nome.empty()) return false;
    const auto prima = rilievi(progettoCon(campo));
    return std::any_of(std::begin(insoliti), std::end(insoliti), [&](double insolito) {
        DatiProgetto d = progettoCon(campo);
        project::conValore(d, campo, 1, [insolito](auto& valore) {
            using Valore = std::remove_reference_t<decltype(valore)>;
            if constexpr (std::is_same_v<Valore, double>)
                valore = insolito;
            else if constexpr (std::is_same_v<Valore, std::string>)
                valore = std::string(500, 'x');
            else if constexpr (std::is_same_v<Valore, bool>)
                valore = !valore;
        });
        const auto dopo = rilievi(d);
        return std::any_of(dopo.begin(), dopo.end(), [&](const std::string& testo) {
            return testo.find(nome) != std::string::npos &&
                   std::find(prima.begin(), prima.end(), testo) == prima.end();
        });
    });
}

TEST(CampiDelProgetto, AllAreNamedByARemarkButThoseNamedHereWithTheirReason) {
    const std::pair<const char*, Nomi> altri[] = {
        {"looked at when a file is read", {"nStrati", "nTiranti", "nFasi"}},
        {"no run takes it", {"opzioneRiservata", "faldaValle"}},
        {"refused in a sentence of its own", {"lunghezzaParatia"}},
        {"named by its row", {"tipoTirante", "descrStrato", "titoli"}},
        {"a remark is on the section as a whole",
         {"sezione.tipoDiaframma", "sezione.tipoPali", "sezione.tipoPalancola",
          "sezione.tipoPaliArmati"}},
    };
    Nomi attesi;
    for (const auto& [perche, nomi] : altri) attesi.insert(nomi.begin(), nomi.end());
    EXPECT_EQ(diversiDa(esaminato), attesi);
}

// The frame of each type holds the fields of its part, and each field is in one.
TEST(CampiDelProgetto, OfTheSectionAreAllInItsFormUnderTheirPart) {
    std::set<const Campo*> nellaForma;
    for (const auto& campo : masks::campiSezione) nellaForma.insert(&campo.campo());
    for (const Campo& campo : project::campi())
        EXPECT_EQ(nellaForma.contains(&campo),
                  std::holds_alternative<double Sezione::*>(campo.membro))
            << campo.nome;
    EXPECT_EQ(nellaForma.size(), masks::numeroCampiSezione);
}

}  // namespace
}  // namespace korven
