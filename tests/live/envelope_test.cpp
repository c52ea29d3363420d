#include "live/envelope.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "support/sample_projects.hpp"

namespace korven::live {
namespace {

TEST(InviluppoVivo, HoldsTheExtremesOfAllStages) {
    const PareteViva p = calcola(test::progettoSemplice(), 40);
    const Inviluppo e = inviluppo(p);
    ASSERT_EQ(e.momento.minimo.size(), 41U);
    double massimo = 0;
    for (std::size_t i = 0; i < 41; ++i) {
        const double a = p.fase(1)->momento[i];
        const double b = p.fase(2)->momento[i];
        EXPECT_EQ(e.momento.minimo[i], a < b ? a : b);
        EXPECT_EQ(e.momento.massimo[i], a < b ? b : a);
        massimo = std::max(massimo, e.momento.massimo[i]);
    }
    EXPECT_EQ(massimo, p.estremi.momentoMassimo.valore);
    EXPECT_EQ(e.tiri, p.fase(2)->tiri);  // the first stage has no anchor
}

// What pushes the wall is what its shear is made of: without a restraint and with slack anchors the
// pressures of all nodes, times their length, add up to nothing.
TEST(InviluppoVivo, NetPressuresBalanceAWallWithoutAnchors) {
    auto dati = test::progettoSemplice();
    dati.nFasi = 1;
    const PareteViva p = calcola(dati, 40);
    ASSERT_TRUE(p.sta());
    double somma = 0;
    double grandezza = 0;
    for (std::size_t i = 0; i <= 40; ++i) {
        const double area = i == 0 || i == 40 ? p.h / 2 : p.h;
        somma += area * pressioneNetta(p.fasi[0], i);
        grandezza += area * std::fabs(p.fasi[0].monte[i]);
    }
    EXPECT_NEAR(somma / grandezza, 0, 1e-12);
}

TEST(InviluppoVivo, IsEmptyWithoutAStageThatStands) {
    EXPECT_TRUE(inviluppo(PareteViva{}).y.minimo.empty());
}

}  // namespace
}  // namespace korven::live
