#include "project/units_per_metre.hpp"

#include <gtest/gtest.h>

namespace korven::project {
namespace {

TEST(UnitaAlMetro, AddsTheMetreOfWallToWhatActsOnIt) {
    EXPECT_EQ(unitaAlMetro(campo(&DatiProgetto::rigidezzaEJ)).mostrata, "kN m²/m");
    EXPECT_EQ(unitaAlMetro(campo(&DatiProgetto::momentoTesta)).mostrata, "kN m/m");
    EXPECT_EQ(unitaAlMetro(campo(&DatiProgetto::pretTirante)).mostrata, "kN/m");
    EXPECT_EQ(unitaAlMetro(campo(&DatiProgetto::sovraccMonte)).mostrata, "kN/m²");
    EXPECT_EQ(unitaAlMetro(campo(&DatiProgetto::lunghezzaParatia)).mostrata, "m");
}

TEST(UnitaAlMetro, NeverChangesANumber) {
    for (const Campo& c : campi()) EXPECT_EQ(unitaAlMetro(c).fattore, c.unita.fattore) << c.nome;
}

}  // namespace
}  // namespace korven::project
