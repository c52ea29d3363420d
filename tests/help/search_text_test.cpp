#include "help/search_text.hpp"

#include <gtest/gtest.h>

namespace korven::help {
namespace {

TEST(TestoPagina, IsTheTextBetweenTheTags) {
    EXPECT_EQ(testoPagina("<h3><a name=\"x\"></a>Phi</h3>\n<p>Da <b>18</b> a 28</p>\n"),
              "Phi Da 18 a 28");
}

TEST(TestoPagina, KeepsWordsWholeThatATagWithinALineParts) {
    EXPECT_EQ(testoPagina("k<sub>0</sub> e<sup>2</sup> <code>muro</code>.kvd"), "k0 e2 muro.kvd");
    EXPECT_EQ(testoPagina("<td>a</td><td>b</td>c<br/>d"), "a b c d");
}

TEST(TestoPagina, TurnsEntitiesIntoTheirCharacters) {
    EXPECT_EQ(testoPagina("a &lt; b &amp; &#966; &#8730; &gt;"), "a < b & φ √ >");
    EXPECT_EQ(testoPagina("a&#160;b &ignota; c"),
              "a\xC2\xA0"
              "b c");
}

TEST(TestoPagina, TakesAnUnclosedTagForText) {
    EXPECT_EQ(testoPagina("a < b"), "a < b");
    EXPECT_EQ(testoPagina("a & b"), "a & b");
}

TEST(Piega, MakesSmallLettersWithoutAccents) {
    EXPECT_EQ(piega("Densità È Ü ñ m²").testo, "densita e u n m2");
}

TEST(Piega, NamesGreekLetters) { EXPECT_EQ(piega("φ > σ").testo, "phi > sigma"); }

TEST(Piega, TurnsSignsIntoThoseOfTheKeyboard) {
    EXPECT_EQ(piega("«\u00a0mot\u202f» „Wort“ l’une – a−b …").testo,
              "\" mot \" \"wort\" l'une - a-b ...");
}

TEST(Piega, TellsWhereEachByteComesFrom) {
    const auto piegato = piega("àφx");  // two bytes, two bytes, one
    EXPECT_EQ(piegato.testo, "aphix");
    EXPECT_EQ(piegato.origine, (std::vector<std::size_t>{0, 2, 2, 2, 4}));
}

}  // namespace
}  // namespace korven::help
