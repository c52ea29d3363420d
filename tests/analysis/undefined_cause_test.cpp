#include "analysis/undefined_cause.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

namespace korven::analysis {
namespace {

TEST(Causa, IsSilentForAQuantityThatHasAValue) { EXPECT_EQ(causa(Indefinito::no), ""); }

TEST(Causa, TellsEveryCauseInWordsOfItsOwn) {
    std::set<std::string_view> testi;
    for (Indefinito motivo :
         {Indefinito::radiceNegativa, Indefinito::discesaRipida, Indefinito::denominatoreNullo,
          Indefinito::tensioneNegativa, Indefinito::spessoreNullo, Indefinito::nonFinito}) {
        EXPECT_FALSE(causa(motivo).empty());
        testi.insert(causa(motivo));
    }
    EXPECT_EQ(testi.size(), 6u);
}

TEST(Causa, NamesTheSlopeForTheRootOfANegativeNumber) {
    EXPECT_EQ(causa(Indefinito::radiceNegativa),
              "coefficienti di spinta non definiti: l'inclinazione del terreno supera l'angolo di "
              "attrito");
    EXPECT_EQ(causa(Indefinito::discesaRipida),
              "coefficienti di spinta non definiti: la pendenza in discesa del terreno supera "
              "l'angolo di attrito");
}

}  // namespace
}  // namespace korven::analysis
