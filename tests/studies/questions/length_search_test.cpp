#include "studies/questions/length_search.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "analysis/layer_soil.hpp"
#include "live/section_checks.hpp"
#include "project/codes.hpp"
#include "safety/shortest_wall.hpp"
#include "safety/strength_reduction.hpp"
#include "studies/questions/question_words.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_builder.hpp"

namespace korven::studies {
namespace {

using project::DatiProgetto;

bool mai() { return false; }

// A cantilever in dry sand without wall friction or slope, excavated to 4 m.
DatiProgetto mensola() {
    return test::muro()
        .lungo(10)
        .rigido(20000)
        .strato({.fondo = 30, .phi = 32, .ks = 3000})
        .fase({.scavo = 2})
        .fase({.scavo = 4})
        .dati();
}

RicercaLunghezza cerca(const DatiProgetto& dati, const Criteri& criteri, Scala scala) {
    return cercaLunghezza(dati, 50, criteri, scala, mai);
}

TEST(CercaLunghezza, TriesWholeStepsFromBelowTheExcavation) {
    const auto ricerca = cerca(mensola(), {}, {.passo = 0.5, .finoA = 6.2});
    std::vector<double> lunghezze;
    for (const auto& provata : ricerca.provate) lunghezze.push_back(provata.lunghezza);
    EXPECT_EQ(lunghezze, (std::vector<double>{4.5, 5, 5.5, 6}));
    EXPECT_EQ(cerca(mensola(), {}, {.passo = 0.1, .finoA = 4.3}).provate[1].lunghezza, 4.2);
    EXPECT_TRUE(cerca(mensola(), {}, {.passo = 0.1, .finoA = 4}).provate.empty());
}

// Without criteria the answer is that of the search of the margin, which goes in hundredths.
TEST(CercaLunghezza, WithoutCriteriaIsTheShortestWallThatStands) {
    const auto minima = safety::lunghezzaMinima(mensola(), 50);
    ASSERT_TRUE(minima.lunghezza);
    const auto ricerca = cerca(mensola(), {}, {.passo = 0.01, .finoA = 12});
    ASSERT_NE(ricerca.trovata(), nullptr);
    EXPECT_NEAR(ricerca.trovata()->lunghezza, *minima.lunghezza, 0.0101);
}

TEST(CercaLunghezza, MeetsEachCriterionFromItsAnswerOnAndNotJustBelow) {
    const Criteri tutti[] = {
        {.riduzione = 1.3}, {.spostamento = 0.03}, {.riduzione = 1.2, .spostamento = 0.05}};
    for (const Criteri& criteri : tutti) {
        const auto ricerca = cerca(mensola(), criteri, {.passo = 0.1, .finoA = 20});
        ASSERT_NE(ricerca.trovata(), nullptr);
        const std::size_t qui = *ricerca.risposta;
        EXPECT_FALSE(ricerca.provate.at(qui - 1).basta());
        EXPECT_NEAR(ricerca.provate.back().lunghezza, ricerca.trovata()->lunghezza + 1, 1e-9);
        for (std::size_t i = qui; i < ricerca.provate.size(); ++i) {
            DatiProgetto dati = mensola();
            dati.lunghezzaParatia = ricerca.provate[i].lunghezza;
            for (int k = 1; k <= 2; ++k)
                EXPECT_GE(safety::riduzione(dati, 50, k).F.value_or(99),
                          criteri.riduzione.value_or(0));
            const auto parete = live::calcola(dati, 50);
            ASSERT_TRUE(parete.sta());
            EXPECT_LE(std::fabs(parete.estremi.spostamento.valore),
                      criteri.spostamento.value_or(1));
        }
    }
}

TEST(CercaLunghezza, SaysOfEachLengthWhatItLacks) {
    const auto ricerca =
        cerca(mensola(), {.riduzione = 1.5, .spostamento = 0.02}, {.passo = 0.5, .finoA = 20});
    ASSERT_NE(ricerca.trovata(), nullptr);
    const LunghezzaProvata& corta = ricerca.provate.front();
    EXPECT_EQ(corta.mancati, (std::vector{Criterio::equilibrio, Criterio::riduzione}));
    EXPECT_FALSE(corta.perche.empty());
    EXPECT_FALSE(corta.spostamento);
    ASSERT_TRUE(corta.riduzione);  // below 1: what it is short of
    EXPECT_LT(corta.riduzione->valore, 1);
    EXPECT_EQ(corta.riduzione->fase, 2);
    EXPECT_EQ(inBreve(corta), "nessun equilibrio, riduzione F");
    EXPECT_EQ(inBreve(*ricerca.trovata()), "soddisfa i criteri");
}

TEST(CercaLunghezza, WithoutAnAnswerTellsWhatTheLongestLacks) {
    const Criteri criteri{.spostamento = 1e-6};
    const Scala scala{.passo = 0.5, .finoA = 12};
    const auto ricerca = cerca(mensola(), criteri, scala);
    EXPECT_EQ(ricerca.trovata(), nullptr);
    EXPECT_EQ(ricerca.provate.back().lunghezza, 12);
    const double y = ricerca.provate.back().spostamento->valore;
    char mm[32];
    std::snprintf(mm, sizeof mm, "%.1f", 1000 * y);
    EXPECT_EQ(risposta(ricerca, criteri, scala),
              std::string("Nessuna lunghezza fino a 12 m soddisfa i criteri. Con 12 m: "
                          "spostamento ") +
                  mm +
                  " mm nella fase 2, ammessi 0.0 mm. Criteri: equilibrio in ogni fase, spostamento "
                  "al più 0.001 mm.");
}

// The section that the largest moment just uses up: half of it is not enough.
TEST(CercaLunghezza, ChecksTheSectionByTheRulesOfTheReport) {
    DatiProgetto dati = mensola();
    dati.sezione = structure::diaframmaSimmetrico();
    const LunghezzaProvata buona = prova(dati, 10, 50, {.resistenza = true});
    ASSERT_TRUE(buona.flessione);
    EXPECT_TRUE(buona.basta());
    EXPECT_FALSE(buona.taglio);  // a diaphragm has no stirrups
    dati.lunghezzaParatia = 10;
    const auto controlli = live::controlliSezione(live::calcola(dati, 50), nullptr);
    const auto& f = *controlli.flessione;
    EXPECT_DOUBLE_EQ(buona.flessione->valore, std::max(f.mdMax / f.mrPos, f.mdMin / f.mrNeg));
    // A surcharge that multiplies the moment until the section does not do.
    for (dati.sovraccMonte = 1; dati.sovraccMonte < 40; dati.sovraccMonte *= 2) {
        const LunghezzaProvata provata = prova(dati, 14, 50, {.resistenza = true});
        if (!provata.flessione) continue;
        EXPECT_EQ(provata.flessione->valore < 1, provata.basta()) << dati.sovraccMonte;
    }
}

TEST(CercaLunghezza, StopsWhenAsked) {
    int chieste = 0;
    const auto ricerca = cercaLunghezza(mensola(), 50, {}, {.passo = 0.1, .finoA = 12},
                                        [&] { return ++chieste > 3; });
    EXPECT_TRUE(ricerca.fermata);
    EXPECT_EQ(ricerca.provate.size(), 3U);
}

}  // namespace
}  // namespace korven::studies
