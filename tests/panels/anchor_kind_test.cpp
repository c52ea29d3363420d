#include "panels/anchor_kind.hpp"

#include <gtest/gtest.h>

#include "support/mask_setup.hpp"

namespace korven::panels {
namespace {

using masks::ModelloGriglia;

// Rows 1 to 4: a tie, a strut, one whose type is still empty, and nothing.
const ModelloGriglia& tabella() {
    static const masks::Maschera maschera = test::mascheraGriglia();
    static const ModelloGriglia modello{
        maschera, {"3", "2", "400", "8", "0", "4", "900", "", "1", "6", "500", "", ""}};
    return modello;
}

TEST(TipologiaDiscorde, IsToldOfAStrutInARowThatActsInTensionAlone) {
    for (const auto genere : {GenereAncoraggio::puntone, GenereAncoraggio::puntoneTraPareti}) {
        EXPECT_EQ(tipologiaDiscorde(tabella(), 1, genere),
                  "Riga 1: con la tipologia 0 agisce solo in trazione. Un puntone ha la tipologia "
                  "1.");
        EXPECT_TRUE(tipologiaDiscorde(tabella(), 3, genere).starts_with("Riga 3: "));
    }
}

TEST(TipologiaDiscorde, IsNotToldOfAStrutThatActsInCompressionOrOfARowWithoutData) {
    EXPECT_EQ(tipologiaDiscorde(tabella(), 2, GenereAncoraggio::puntone), "");
    EXPECT_EQ(tipologiaDiscorde(tabella(), 4, GenereAncoraggio::puntone), "");
}

TEST(TipologiaDiscorde, IsNotToldOfAnAnchorWhichMayActInCompressionToo) {
    for (const int riga : {1, 2, 3})
        EXPECT_EQ(tipologiaDiscorde(tabella(), riga, GenereAncoraggio::tirante), "");
}

}  // namespace
}  // namespace korven::panels
