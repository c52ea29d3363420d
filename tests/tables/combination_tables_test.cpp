#include "tables/combination_tables.hpp"

#include <gtest/gtest.h>

#include "support/wall_builder.hpp"
#include "support/wall_files.hpp"

namespace korven::tables {
namespace {

using factors::Combinazioni;
using factors::Fattori;

Combinazioni calcolate(const project::DatiProgetto& dati, const std::vector<Fattori>& fattori) {
    factors::Norma norma{"n", "N", "f", {}};
    for (const Fattori& f : fattori)
        norma.combinazioni.push_back(
            {"C" + std::to_string(norma.combinazioni.size() + 1), "fonte", f, {}});
    return factors::combinazioni(dati, 50, norma, {});
}

std::vector<std::string> testi(const std::vector<Cella>& riga) {
    std::vector<std::string> tutti;
    for (const Cella& c : riga) tutti.push_back(c.testo);
    return tutti;
}

// A cantilever of 4 m without ground in front, fixed at its toe: a head force of 3 t gives 12 t m
// and 3 t, 120 kN m and 30 kN; with 1.5, which is 1.5/1.35 before and 1.35 after the calculation,
// 180 and 45. Ground without weight or modulus presses nothing.
project::DatiProgetto mensola() {
    return test::muro()
        .lungo(4)
        .strato({.fondo = 30, .gammaN = 0, .gammaSat = 0, .ks = 0})
        .fase({.scavo = 5})
        .con(&project::DatiProgetto::forzaTesta, 3)
        .con(&project::DatiProgetto::vincoloPiede, 3)
        .dati();
}

TEST(ProspettiCombinazioni, ShowTheFactorsAsTheyWereApplied) {
    const auto c = calcolate(mensola(), {{.attrito = 1.25,
                                          .testaVariabile = 1.5,
                                          .effetti = 1.35,
                                          .terra = 1.4,
                                          .scavoQuota = 0.1,
                                          .scavoMassimo = 0.5}});
    const Prospetto p = prospettoFattori(c);
    ASSERT_EQ(p.righe.size(), 1U);
    const std::vector<std::string> attesa = {"C1",   "1.25", "1.00", "1.00", "1.00", "0.74",
                                             "0.00", "1.11", "1.11", "1.35", "1.40", "0.50"};
    EXPECT_EQ(testi(p.righe[0]), attesa);  // 1 / 1.35 on a surcharge that has no factor
    EXPECT_EQ(p.colonne.size(), attesa.size());
}

TEST(ProspettiCombinazioni, ShowEffectsWithTheirFactorAndTheEnvelope) {
    const auto c = calcolate(mensola(), {{}, {.testaVariabile = 1.5, .effetti = 1.35}});
    const Prospetto p = prospettoEffetti(c);
    ASSERT_EQ(p.righe.size(), 3U);
    EXPECT_EQ(p.righe[0][3].testo, "-120.00");
    EXPECT_EQ(p.righe[1][3].testo, "-180.00");
    EXPECT_EQ(p.righe[1][4].testo, "45.00");
    EXPECT_EQ(p.righe[2][3].testo, "-180.00");
    EXPECT_EQ(p.righe[2][4].testo, "45.00");
    // Without a section there is no check that could be met.
    EXPECT_EQ(p.righe[0][5].testo, "in equilibrio");
    EXPECT_EQ(p.righe[2][5].testo, "in equilibrio");
    EXPECT_FALSE(c.giudizio());
    EXPECT_TRUE(prospettoVerifiche(c).righe.empty());
    EXPECT_TRUE(prospettoTiri(c, mensola()).righe.empty());
}

TEST(ProspettiCombinazioni, ShowACombinationThatDoesNotStandWithoutNumbers) {
    const auto dati = test::leggiMuro(KORVEN_EXAMPLES "/palancola_mensola.kvd");
    const auto c = calcolate(dati, {{.attrito = 5, .coesione = 5}, {}});
    const Prospetto p = prospettoEffetti(c);
    const std::vector<std::string> attesa = {"C1", "-", "-", "-", "-", "nessun equilibrio"};
    EXPECT_EQ(testi(p.righe[0]), attesa);
    EXPECT_EQ(p.righe[2][5].testo, "NON verificata");
    EXPECT_EQ(p.righe[2][1], p.righe[1][1]);
}

TEST(ProspettiCombinazioni, ShowTheForceOfEachAnchorUnderEachCombination) {
    const auto dati = test::leggiMuro(KORVEN_EXAMPLES "/diaframma_due_ordini.kvd");
    const auto c = calcolate(dati, {{}, {.effetti = 2}});
    const Prospetto p = prospettoTiri(c, dati);
    ASSERT_EQ(p.righe.size(), 2U);
    ASSERT_EQ(p.colonne.size(), 4U);
    for (std::size_t a = 0; a < 2; ++a) {
        EXPECT_EQ(p.righe[a][0].testo, "Tirante " + std::to_string(a + 1));
        EXPECT_NEAR(*p.righe[a][1].numero, 10 * c.esiti[0].tiri[a].tiro, 1e-9);
        EXPECT_EQ(p.righe[a][3], p.righe[a][2]);
    }
    const Prospetto v = prospettoVerifiche(c);
    ASSERT_FALSE(v.righe.empty());
    EXPECT_EQ(v.righe[0][1].testo, "Flessione, momento positivo [kN m/m]");
}

TEST(ProspettiCombinazioni, CallStrutsStruts) {
    const auto dati = test::leggiMuro(KORVEN_EXAMPLES "/trincea_puntellata.kvd");
    const Prospetto p = prospettoTiri(calcolate(dati, {{}}), dati);
    ASSERT_FALSE(p.righe.empty());
    EXPECT_EQ(p.colonne[0].titolo, "Elemento");
    EXPECT_EQ(p.righe[0][0].testo, "Puntone 1");
}

TEST(ProspettiCombinazioni, ShowWhereEachFactorComesFrom) {
    factors::Combinazione c{"C", "f", {.attrito = 1.25}, {}};
    c.fonti.resize(factors::vociFattori().size());
    c.fonti[0] = "tab. 1";
    const Prospetto p = prospettoFonti(c);
    ASSERT_EQ(p.righe.size(), 1U);  // a factor without a place was not asked for
    const std::vector<std::string> attesa = {"tangente dell'angolo di attrito", "1.25", "tab. 1"};
    EXPECT_EQ(testi(p.righe[0]), attesa);
}

// A surcharge that lies on the retained side pushes, one that was taken away helps: 1.5 and none.
TEST(ProspettiCombinazioni, ShowBothFactorsOfStagesWhoseSurchargesHaveDifferentSigns) {
    auto dati = mensola();
    test::aggiungiFase(dati, {.scavo = 5, .sovraccarico = 1});
    dati.sovraccFase[1] = -1;
    dati.sovraccMonte = 1;
    const auto c = calcolate(dati, {{.testaVariabile = 1.5, .effetti = 1.35}});
    const Prospetto p = prospettoFattori(c);
    const auto celle = testi(p.righe.at(0));
    EXPECT_TRUE(std::any_of(celle.begin(), celle.end(),
                            [](const auto& t) { return t.find('-', 1) != std::string::npos; }));
}

}  // namespace
}  // namespace korven::tables
