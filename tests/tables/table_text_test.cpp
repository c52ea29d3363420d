#include "tables/table_text.hpp"

#include <gtest/gtest.h>

#include "base/number_text.hpp"
#include "masks/clipboard_text.hpp"

namespace korven::tables {
namespace {

Prospetto piccolo() {
    return {.titolo = "Prova",
            .colonne = {{.titolo = "Nodo"},
                        {.titolo = "z", .unita = "m"},
                        {.titolo = "Strato", .numerica = false}},
            .righe = {{cella(1), {.testo = "0.33", .numero = 1.0 / 3}, parola("1: A\tB\nC", 1)},
                      {cella(2), {.testo = "12.00", .numero = 12}, parola("2: <&>", 2)},
                      {cella(3), {}, {}}}};
}

TEST(TestoTabulato, HasHeadsWithUnitsAndAllDigitsOfTheNumbers) {
    EXPECT_EQ(testoTabulato(piccolo()),
              "Nodo\tz [m]\tStrato\n"
              "1\t0.3333333333333333\t1: A B C\n"
              "2\t12\t2: <&>\n"
              "3\t-\t-\n");
}

TEST(TestoTabulato, GivesTheDoublesBackToWhoeverReadsIt) {
    const auto celle = masks::righeAppunti(testoTabulato(piccolo()));
    EXPECT_EQ(base::leggiNumero(celle[1][1]), 1.0 / 3);
    EXPECT_EQ(base::leggiNumero(celle[2][1]), 12);
}

TEST(TestoTabulato, TakesPartsInTheOrderAskedFor) {
    const std::size_t righe[] = {1, 0}, colonne[] = {1, 0};
    EXPECT_EQ(testoTabulato(piccolo(), {righe, colonne}),
              "z [m]\tNodo\n12\t2\n0.3333333333333333\t1\n");
}

TEST(TestoHtml, TellsNumbersWhateverTheDecimalSignAndProtectsWords) {
    const std::size_t righe[] = {1}, colonne[] = {1, 2};
    const std::string html = testoHtml(piccolo(), {righe, colonne});
    EXPECT_NE(html.find("<tr><th>z [m]</th><th>Strato</th></tr>"), std::string::npos) << html;
    EXPECT_NE(html.find("sdval=\"12\" sdnum=\"1033;\" x:num=\"12\">12</td>"), std::string::npos);
    EXPECT_NE(html.find("<td>2: &lt;&amp;&gt;</td>"), std::string::npos);
}

}  // namespace
}  // namespace korven::tables
