#include "structure/equilibrium_search.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace korven::structure {
namespace {

// A steel plate 100 mm deep, 1000 mm2, that yields at 0.002.
ModelloStrisce piastra(double fyd = 400) {
    ModelloStrisce m{.dy = 1, .fcd = 0, .fyd = fyd, .modEacciaio = 200000, .Ac = {}, .As = {}};
    for (int i = 1; i <= nStrisce; ++i) m.As[i] = 10;
    return m;
}

TEST(CercaDeformazione, FindsTheAxisOfAPlateInPureBending) {
    for (int k : {-1, 1}) {
        const double chi = k * 1e-5;
        const double eps0 = cercaDeformazione(piastra(), k, chi, 0);
        EXPECT_NEAR(eps0, -50 * chi, 1e-8);
        EXPECT_TRUE(inEquilibrio(piastra(), eps0, chi, 0));
    }
}

TEST(CercaDeformazione, ShortensUnderCompressionAndStretchesUnderTension) {
    // 100 kN on 1000 mm2: 0.0005
    EXPECT_NEAR(cercaDeformazione(piastra(), 1, 0, 100000), -0.0005, 1e-8);
    EXPECT_NEAR(cercaDeformazione(piastra(), -1, 0, -100000), 0.0005, 1e-8);
}

TEST(CercaDeformazione, BalancesWithinOneNewtonOverTheWholeRangeOfCurvature) {
    for (int k : {-1, 1})
        for (int i = 1; i <= 200; ++i) {
            const double chi = k * i * 1e-6;
            for (double Nd : {-50000.0, 0.0, 200000.0}) {
                const double eps0 = cercaDeformazione(piastra(), k, chi, Nd);
                EXPECT_TRUE(inEquilibrio(piastra(), eps0, chi, Nd)) << chi << ' ' << Nd;
            }
        }
}

TEST(CercaDeformazione, WalksToTheUpperEndWhenTheAxialForceCrushesTheSection) {
    // Elastic throughout, so that the forces of the ends meet at the upper end alone.
    const ModelloStrisce m = piastra(1e6);
    const double Nd = 1e7;
    EXPECT_NEAR(cercaDeformazione(m, 1, 0, Nd), 0.01, 1e-8);
    EXPECT_NEAR(cercaDeformazione(m, 1, 1e-5, Nd), 0.01, 1e-8);
    EXPECT_NEAR(cercaDeformazione(m, -1, -1e-5, Nd), 0.01 + 0.001, 1e-8);
    EXPECT_FALSE(inEquilibrio(m, cercaDeformazione(m, 1, 1e-5, Nd), 1e-5, Nd));
}

TEST(CercaDeformazione, EndsWhereTheBracketCannotBeHalvedAnyMore) {
    ModelloStrisce m = piastra();
    for (int i = 1; i <= nStrisce; ++i) m.As[i] = i * 1e20;
    const double eps0 = cercaDeformazione(m, 1, 1e-5, 0);
    EXPECT_GT(eps0, -0.01 - 0.001);
    EXPECT_LT(eps0, 0.01);
    EXPECT_FALSE(inEquilibrio(m, eps0, 1e-5, 0));
}

TEST(InEquilibrio, NeverHoldsForASumThatIsNotFinite) {
    ModelloStrisce m = piastra();
    m.As[1] = HUGE_VAL;
    EXPECT_FALSE(inEquilibrio(m, 0, 0, 0));
    EXPECT_FALSE(inEquilibrio(m, 0.001, 0, 0));
}

}  // namespace
}  // namespace korven::structure
