#include "studies/summary/row_conditions.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace korven::studies {
namespace {

const RigheStudio righe({}, colonne(1, false), Formato::csv);

TEST(CondizioniLette, AreAsManyAsTheTexts) {
    const std::vector<std::string> testi = {"spostamento_massimo_m>0.03", "uso_bielle>=1"};
    const auto lette = leggiCondizioni(testi, righe);
    ASSERT_FALSE(lette.difetto);
    ASSERT_EQ(lette.condizioni.size(), 2u);
    EXPECT_EQ(righe.nomi()[lette.condizioni[1].posto], "uso_bielle");
}

TEST(CondizioniLette, StopAtTheFirstThatIsNone) {
    const std::vector<std::string> testi = {"spostamento_massimo_m>0.03", "causa>1", "uso>1"};
    const auto lette = leggiCondizioni(testi, righe);
    ASSERT_TRUE(lette.difetto);
    EXPECT_EQ(lette.difetto->first, "causa>1");
    EXPECT_EQ(parole(lette.difetto->second), "carattere 1: causa: è una parola, non un numero");
}

}  // namespace
}  // namespace korven::studies
