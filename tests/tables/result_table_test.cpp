#include "tables/result_table.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace korven::tables {
namespace {

TEST(Cella, ShowsTwoDecimalsInTheUnitOfPeopleAndKeepsAllDigits) {
    const double y = 0.0123456789;  // m
    EXPECT_EQ(spostamento(y).testo, "12.35");
    EXPECT_EQ(spostamento(y).numero, y * 1000);
    EXPECT_EQ(momento(-1.23456).testo, "-12.35");
    EXPECT_EQ(momento(-1.23456).numero, -1.23456 * 10);
    EXPECT_EQ(forza(0.1).testo, "1.00");
    EXPECT_EQ(pressione(2).testo, "20.00");
    EXPECT_EQ(profondita(-0.0).testo, "0.00");
    EXPECT_FALSE(std::signbit(*profondita(-0.0).numero));
}

TEST(Cella, OfNoNumberHasNone) {
    const Cella c = momento(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(c.testo, "-");
    EXPECT_FALSE(c.numero);
}

TEST(Colonna, IsHeadedByItsUnitIfItHasOne) {
    EXPECT_EQ(colonna(project::unita::momentoAlMetro, "Momento", "x").testa(), "Momento [kN m/m]");
    EXPECT_EQ(colonnaParole("Esito", "x").testa(), "Esito");
    EXPECT_FALSE(colonnaParole("Esito", "x").numerica);
}

}  // namespace
}  // namespace korven::tables
