#include "desk/study_choice.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "project/typed_field.hpp"
#include "support/wall_files.hpp"

namespace korven::desk {
namespace {

project::DatiProgetto muro() {
    return korven::test::leggiMuro(KORVEN_EXAMPLES "/diaframma_due_ordini.kvd");
}

StudioScritto griglia() {
    StudioScritto s;
    s.variazioni = {{"lunghezzaParatia", 0, {"16", "20", "2"}}, {}};
    return s;
}

TEST(SceltaStudio, OfAGridHasAllVariantsAsTheCommandLineTakesThem) {
    auto s = griglia();
    s.variazioni[1] = {"phiStrato[1]", 0, {"30", "32", "1"}};
    const auto letto = leggi(muro(), 50, s);
    ASSERT_NE(letto.studio, nullptr) << letto.perche;
    EXPECT_EQ(letto.studio->varianti->numero(), 9U);
    EXPECT_EQ(letto.studio->varia,
              (std::vector<std::string>{"lunghezzaParatia=16:20:2", "phiStrato[1]=30:32:1"}));
    EXPECT_EQ(letto.studio->domanda.nSeg, 50);
    EXPECT_FALSE(letto.studio->conto.campioni);
}

TEST(SceltaStudio, OfSamplesTakesTheLawWithItsParameters) {
    StudioScritto s;
    s.campioni = true;
    s.numero = 10;
    s.seme = 7;
    s.variazioni = {{"phiStrato[1]", 0, {"32", "2", "99"}}, {"sovraccMonte", 3, {"5", "10", "20"}}};
    auto letto = leggi(muro(), 50, s);
    ASSERT_NE(letto.studio, nullptr) << letto.perche;
    EXPECT_EQ(letto.studio->varia, (std::vector<std::string>{"phiStrato[1]=normale(32,2)",
                                                             "sovraccMonte=triangolare(5,10,20)"}));
    EXPECT_EQ(letto.studio->varianti->numero(), 10U);
    EXPECT_TRUE(letto.studio->conto.indipendenti);
    s.ipercubo = true;
    EXPECT_FALSE(leggi(muro(), 50, s).studio->conto.indipendenti);
}

TEST(SceltaStudio, SaysWhatIsWrongWithWhatIsTyped) {
    const auto perche = [](const StudioScritto& s) {
        const auto letto = leggi(muro(), 50, s);
        EXPECT_EQ(letto.studio, nullptr);
        return letto.perche;
    };
    EXPECT_EQ(perche({}), "Scegliere almeno un campo che varia.");
    auto s = griglia();
    s.variazioni[0].numeri[2] = "-2";
    EXPECT_NE(perche(s).find("lunghezzaParatia"), std::string::npos) << perche(s);
    s.variazioni[0].numeri[2] = "0,5";
    EXPECT_NE(perche(s).find("0.5"), std::string::npos) << perche(s);
    s = griglia();
    s.variazioni[0].numeri[2] = "0.00001";
    EXPECT_EQ(perche(s),
              "400001 varianti sono troppe per questa finestra, che ne tiene 100000: "
              "korven32c serie le scrive in un file.");
    s = griglia();
    s.fallisce = {{"taglio_massimo_kN", ">", "1"}, {"spostamento_massimo_m", ">", "poco"}};
    EXPECT_TRUE(perche(s).starts_with("Spostamento massimo > poco mm: ")) << perche(s);
}

// Displacements are shown in millimetres and uses in percent, the rows have metres and shares.
TEST(SceltaStudio, TakesCriteriaInTheUnitsThatAreShown) {
    auto s = griglia();
    s.fallisce = {{"spostamento_massimo_m", ">", "30"},
                  {"uso_momento_positivo", ">=", "95.5"},
                  {"tiro_1_kN", "<", "80"}};
    const auto letto = leggi(muro(), 50, s);
    ASSERT_NE(letto.studio, nullptr) << letto.perche;
    EXPECT_EQ(letto.studio->conto.condizioni,
              (std::vector<std::string>{"spostamento_massimo_m>0.03", "uso_momento_positivo>=0.955",
                                        "tiro_1_kN<80"}));
    EXPECT_EQ(detto(s.fallisce[0]), "Spostamento massimo > 30 mm");
    EXPECT_EQ(detto(s.fallisce[1]), "Uso, momento positivo >= 95.5 %");
}

TEST(SceltaStudio, OffersFieldsThatCanVaryWithTheirValues) {
    const auto dati = muro();
    const auto tutti = campiOfferti(dati, false), continui = campiOfferti(dati, true);
    const auto trova = [](const auto& tra, const std::string& nome) {
        return std::ranges::find(tra, nome, &CampoOfferto::nome);
    };
    const auto lunghezza = trova(tutti, "lunghezzaParatia");
    ASSERT_NE(lunghezza, tutti.end());
    EXPECT_NE(lunghezza->voce.find("(lunghezzaParatia) [m]"), std::string::npos);
    EXPECT_EQ(std::stod(lunghezza->ora), dati.lunghezzaParatia);
    EXPECT_NE(trova(tutti, "vincoloPiede"), tutti.end());
    EXPECT_EQ(trova(continui, "vincoloPiede"), continui.end()) << "a code has no law";
    EXPECT_EQ(trova(tutti, "titoli[1]"), tutti.end());
    for (const char* soloConservato : {"suStrato[1]", "faldaValle", "opzioneRiservata"})
        EXPECT_EQ(trova(tutti, soloConservato), tutti.end()) << soloConservato;
    EXPECT_NE(trova(tutti, "nFasi"), tutti.end());
    EXPECT_EQ(trova(tutti, "vincoloPiede")->ora, "libero");
    for (const CampoOfferto& c : tutti) {
        StudioScritto s;
        const auto ora = project::testoDaScrivere(dati, project::campoNominato(c.nome).value());
        s.variazioni = {{c.nome, 0, {ora, ora, "1"}}};
        EXPECT_NE(leggi(dati, 50, s).studio, nullptr) << c.nome << leggi(dati, 50, s).perche;
    }
}

TEST(SceltaStudio, OffersTheResultsThatTheStudyHas) {
    const auto dati = muro();
    for (const bool sicurezza : {false, true}) {
        auto s = griglia();
        s.sicurezza = sicurezza;
        const auto letto = leggi(dati, 50, s);
        const auto offerti = risultatiOfferti(dati, sicurezza);
        EXPECT_EQ(std::ranges::count(offerti, "riduzione", &RisultatoOfferto::nome), sicurezza);
        for (const RisultatoOfferto& r : offerti) {
            EXPECT_NE(r.voce, r.nome) << "has words";
            EXPECT_EQ(std::ranges::count(letto.studio->righe->nomi(), r.nome), 1) << r.nome;
        }
    }
}

TEST(SceltaStudio, NamesTheNumbersOfALaw) {
    using Nomi = std::array<std::string, 3>;
    EXPECT_EQ(nomiNumeri(false, 0), (Nomi{"da", "a", "passo"}));
    EXPECT_EQ(nomiNumeri(true, 0), (Nomi{"media", "scarto tipo", ""}));
    EXPECT_EQ(nomiNumeri(true, 2), (Nomi{"minimo", "massimo", ""}));
    EXPECT_EQ(nomiNumeri(true, 3), (Nomi{"minimo", "più probabile", "massimo"}));
}

}  // namespace
}  // namespace korven::desk
