#include "document/table_columns.hpp"

#include <gtest/gtest.h>

#include "support/sample_document.hpp"

namespace korven::document {
namespace {

const CaratteriStimati misura;
const double foglio = Formato().larghezzaTesto();

double somma(const std::vector<ColonnaDisposta>& colonne) {
    return colonne.back().x + colonne.back().larghezza;
}

TEST(ENumero, IsAFigureAndNoWord) {
    EXPECT_TRUE(eNumero({.testo = "-12.50", .numero = -12.5}));
    EXPECT_FALSE(eNumero({.testo = "-", .numero = 1.0}));
    EXPECT_FALSE(eNumero({.testo = "12.50"})) << "no number behind it";
    EXPECT_FALSE(eNumero({.testo = "12 (fase 3)", .numero = 12.0}));
}

TEST(Partito, CutsBeforeThePoint) {
    EXPECT_EQ(partito("-12.50").intero, "-12");
    EXPECT_EQ(partito("-12.50").decimali, ".50");
    EXPECT_EQ(partito("7").intero, "7");
    EXPECT_EQ(partito("7").decimali, "");
}

TEST(Disponi, SetsATableThatFitsInTheLargestFontWithNoWordBroken) {
    const auto disposta = disponi(test::nodi(5), foglio, misura);
    EXPECT_EQ(disposta.corpo, 8.5);
    ASSERT_EQ(disposta.parti.size(), 1U);
    EXPECT_EQ(disposta.parti[0].size(), 7U);
    EXPECT_LE(somma(disposta.parti[0]), foglio + 0.01);
    EXPECT_GE(disposta.parti[0][6].larghezza,
              misura.larghezza("al limite attivo", {8.5}) + 2 * margineCella);
}

TEST(Disponi, SetsAWiderTableSmaller) {
    const auto disposta = disponi(test::larga(15, 3), foglio, misura);
    EXPECT_LT(disposta.corpo, 8.5);
    EXPECT_EQ(disposta.parti.size(), 1U);
    EXPECT_LE(somma(disposta.parti[0]), foglio + 0.01);
}

TEST(Disponi, PartsATableThatIsTooWideAndRepeatsItsFirstColumn) {
    const auto disposta = disponi(test::larga(40, 3), foglio, misura);
    ASSERT_GT(disposta.parti.size(), 1U);
    std::size_t prossima = 1;
    for (const auto& parte : disposta.parti) {
        EXPECT_LE(somma(parte), foglio + 0.01);
        ASSERT_GE(parte.size(), 2U);
        EXPECT_EQ(parte[0].indice, 0U);
        for (std::size_t k = 1; k < parte.size(); ++k) EXPECT_EQ(parte[k].indice, prossima++);
    }
    EXPECT_EQ(prossima, 40U) << "no column is lost";
}

TEST(Disponi, NeverLeavesThePageHoweverLongAWordIs) {
    tables::Prospetto p;
    p.colonne = {{"A", "", "", false}, {"B", "", "", false}};
    p.righe = {{{.testo = std::string(300, 'w')}, {.testo = std::string(400, 'm')}}};
    for (const auto& parte : disponi(p, foglio, misura).parti)
        EXPECT_LE(somma(parte), foglio + 0.01);
    p.colonne.pop_back();
    p.righe[0].pop_back();
    const auto una = disponi(p, foglio, misura);
    ASSERT_EQ(una.parti.size(), 1U);
    EXPECT_LE(somma(una.parti[0]), foglio + 0.01);
}

TEST(Disponi, HasNoPartForATableWithoutColumns) {
    EXPECT_TRUE(disponi({}, foglio, misura).parti.empty());
}

}  // namespace
}  // namespace korven::document
