#include "studies/summary/summary_text.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace korven::studies {
namespace {

const FormaRiga forma{.campi = 1, .valori = 3, .risultati = {1}, .usi = {1, 2}};
const NomiRiassunto nomi{.valori = {{.titolo = "Angolo"}, {.titolo = "Primo"}, {.titolo = "Altro"}},
                         .motivi = {"", "rotazione"},
                         .campioni = true,
                         .indipendenti = true};

Riassunto tre(const FormaRiga& sua = forma) {
    const double nessuno = std::nan("");
    Riassunto r(sua, 1);
    r.prendi(0, std::array{30.0, 0.5, 0.4}, {});
    r.prendi(1, std::array{32.0, 0.25, 0.4}, {});
    r.prendi(2, std::array{34.0, 0.125, 0.1}, {});
    r.prendi(3, std::array{20.0, nessuno, nessuno}, {.sorte = Sorte::cade, .motivo = 1, .fase = 2});
    return r;
}

// All that is told.
std::vector<std::string> righeRiassunto(const Riassunto& r, const FormaRiga& sua,
                                        const NomiRiassunto& suoi) {
    auto righe = fattiRiassunto(r, sua, suoi);
    const auto tavole = tavoleInTesto(r, sua, suoi);
    righe.insert(righe.end(), tavole.begin(), tavole.end());
    return righe;
}

// One of four: (0.25 + 0.4802 -+ 1.96 sqrt(0.046875 + 0.060023)) / 1.9604 is 0.0456 and 0.6994.
TEST(TestoRiassunto, TellsOfSamplesHowTheyFailAndHowTheyAreSpread) {
    const std::vector<std::string> attese = {
        "Campioni che falliscono: 1 su 4, probabilità 0.25, con il 95 % di confidenza tra 0.045587 "
        "e "
        "0.69936.",
        "  rotazione, fase 2: 1",
        "Varianti in equilibrio, per l'uso che in ciascuna è il maggiore:",
        "  Primo: 2",
        "  Altro: 1",
        "Valori; quantili e correlazioni da 4 varianti:",
        "          varianti    media        s    min     5 %  50 %   95 %  max",
        "  Angolo         4       29   6.2183     20    21.5    31   33.7   34",
        "  Primo          3  0.29167  0.19094  0.125  0.1375  0.25  0.475  0.5",
        "Correlazione tra i ranghi (Spearman):",
        "         Angolo",
        "  Primo   -1.00",
    };
    const auto righe = righeRiassunto(tre(), forma, nomi);
    ASSERT_EQ(righe.size(), attese.size());
    for (std::size_t i = 0; i < attese.size(); ++i) EXPECT_EQ(righe[i], attese[i]);
}

TEST(TestoRiassunto, OfFactsAloneHasNoTables) {
    const auto fatti = fattiRiassunto(tre(), forma, nomi);
    EXPECT_EQ(fatti.back(), "  Altro: 1");
}

TEST(TestoRiassunto, HasNoIntervalForAHypercubeAndNoProbabilityForAGrid) {
    auto altri = nomi;
    altri.indipendenti = false;
    EXPECT_EQ(
        righeRiassunto(tre(), forma, altri).front(),
        "Campioni che falliscono: 1 su 4, probabilità 0.25; un ipercubo non dà un intervallo.");
    altri.campioni = false;
    const auto righe = righeRiassunto(tre(), forma, altri);
    EXPECT_EQ(righe.front(), "Varianti che falliscono: 1 su 4.");
    EXPECT_EQ(righe.back(), "  Altro: 1");
}

TEST(TestoRiassunto, TellsWhatStandsBeyondAResistance) {
    Riassunto r(forma, 1);
    r.prendi(0, std::array{30.0, 1.15, 0.4}, {});
    r.prendi(1, std::array{32.0, 0.25, 0.4}, {});
    EXPECT_EQ(righeRiassunto(r, forma, nomi)[4],
              "Varianti in equilibrio, ma con un uso maggiore di 100 %: 1. Falliscono solo se un "
              "criterio lo dice.");
}

// As in the first test, beside two that are no walls.
TEST(TestoRiassunto, LeavesRefusedVariantsOutOfTheProbability) {
    Riassunto r = tre();
    const double nessuno = std::nan("");
    for (std::uint64_t i = 4; i < 6; ++i)
        r.prendi(i, std::array{90.0, nessuno, nessuno}, {.sorte = Sorte::rifiutata, .motivo = 1});
    const auto righe = righeRiassunto(r, forma, nomi);
    EXPECT_EQ(righe[0],
              "Varianti con dati che nessun calcolo accetta: 2. Non sono pareti, e non contano tra "
              "quelle che falliscono.");
    EXPECT_EQ(righe[1],
              "Campioni che falliscono: 1 su 4, probabilità 0.25, con il 95 % di confidenza tra "
              "0.045587 e 0.69936.");
    EXPECT_EQ(righe[2], "  rotazione, fase 2: 1");
    EXPECT_EQ(righe[3], "Varianti in equilibrio, per l'uso che in ciascuna è il maggiore:");

    Riassunto nessuna(forma, 1);
    nessuna.prendi(0, std::array{90.0, nessuno, nessuno}, {.sorte = Sorte::rifiutata});
    EXPECT_TRUE(righeRiassunto(nessuna, forma, nomi)[1].starts_with("Valori"));  // no probability
}

// The variants of 0.25 and 0.125 stand, and fail all the same; that of 0.125 by both conditions.
TEST(TestoRiassunto, TellsHowManyFailThatStand) {
    auto sua = forma;
    sua.condizioni = {{1, Confronto::minore, 0.3}, {2, Confronto::minoreUguale, 0.1}};
    auto altri = nomi;
    altri.indipendenti = false;
    const auto righe = righeRiassunto(tre(sua), sua, altri);
    ASSERT_GT(righe.size(), 4U);
    EXPECT_EQ(
        righe[0],
        "Campioni che falliscono: 3 su 4, probabilità 0.75; un ipercubo non dà un intervallo.");
    EXPECT_EQ(righe[1], "  rotazione, fase 2: 1");
    EXPECT_EQ(righe[2], "  in equilibrio con Primo < 0.3: 2");
    EXPECT_EQ(righe[3], "  in equilibrio con Altro <= 0.1: 1");
}

TEST(TestoRiassunto, IsEmptyWithoutVariants) {
    EXPECT_TRUE(righeRiassunto(Riassunto(forma, 1), forma, nomi).empty());
}

TEST(CinqueCifre, AreEnoughToRead) {
    EXPECT_EQ(cinqueCifre(0.0123456), "0.012346");
    EXPECT_EQ(cinqueCifre(123456.7), "123457");
    EXPECT_EQ(cinqueCifre(-2e6), "-2000000");
    EXPECT_EQ(cinqueCifre(1e20), "1e+20");
    EXPECT_EQ(cinqueCifre(345.678), "345.68");
    EXPECT_EQ(cinqueCifre(-0.0), "0");
    EXPECT_EQ(cinqueCifre(std::nan("")), "-");
}

}  // namespace
}  // namespace korven::studies
