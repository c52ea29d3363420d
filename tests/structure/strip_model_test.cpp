#include "structure/strip_model.hpp"

#include <gtest/gtest.h>

namespace korven::structure {
namespace {

// A steel plate 100 mm deep, strips of 1 mm and 10 mm2; E 200000, fyd 400.
ModelloStrisce piastra() {
    ModelloStrisce m{.dy = 1, .fcd = 20, .fyd = 400, .modEacciaio = 200000, .Ac = {}, .As = {}};
    for (int i = 1; i <= nStrisce; ++i) m.As[i] = 10;
    return m;
}

TEST(ForzaSezione, SumsBothMaterialsAtMidDepthOfEachStrip) {
    ModelloStrisce m = piastra();
    EXPECT_NEAR(forzaSezione(m, 0.001, 0), 1000 * 200, 1e-6);
    m.Ac[1] = 50;  // at y = 0.5
    m.Ac[100] = 30;
    const double eps0 = -0.001, chi = 1e-5;  // -0.000995 at strip 1, -0.000005 at strip 100
    const double cls1 = -17 * (1 - (1 - 0.4975) * (1 - 0.4975));
    const double cls100 = -17 * (1 - (1 - 0.0025) * (1 - 0.0025));
    EXPECT_NEAR(forzaSezione(m, eps0, chi), 1000 * -0.0005 * 200000 + 50 * cls1 + 30 * cls100,
                1e-6);
}

// E I chi with the second moment of 100 strips: 10 (100^3 - 100) / 12.
TEST(MomentoSezione, IsElasticForASmallCurvature) {
    const double I = 10 * (1e6 - 100) / 12;
    EXPECT_NEAR(momentoSezione(piastra(), -0.0005, 1e-5, 0), 200000 * I * 1e-5, 1e-3);
}

TEST(MomentoSezione, IsThePlainSumOfForceTimesDepthWithoutAxialForce) {
    ModelloStrisce m = piastra();
    double atteso = 0;
    for (int i = 1; i <= nStrisce; ++i) atteso += (i - 0.5) * 10 * 200;
    EXPECT_NEAR(momentoSezione(m, 0.001, 0, 0), atteso, 1e-6);
}

TEST(MomentoSezione, VanishesUnderAnAxialForceInBalance) {
    EXPECT_NEAR(momentoSezione(piastra(), -0.001, 0, 200000), 0, 1e-6);
}

TEST(MomentoSezione, SpreadsTheAxialForceOverConcreteAndSteelAlike) {
    // Concrete 100 mm2 at y = 0.5 and steel 300 mm2 at y = 99.5, both unstrained; q = 4000 / 400.
    ModelloStrisce m = piastra();
    m.As = {};
    m.Ac[1] = 100;
    m.As[100] = 300;
    EXPECT_NEAR(momentoSezione(m, 0, 0, 4000), 10 * (0.5 * 100 + 99.5 * 300), 1e-9);
}

// The same plate of 50 strips near one face or near the other: in balance the couple is the same.
TEST(MomentoSezione, DoesNotDependOnWhereTheFaceLies) {
    ModelloStrisce sotto = piastra(), sopra = piastra();
    for (int i = 1; i <= nStrisce; ++i) (i <= 50 ? sopra : sotto).As[i] = 0;
    const double chi = 2e-5, eps = -0.0003, Nd = 10 * 50 * 0.0003 * 200000;  // eps at its axis
    const double M = momentoSezione(sotto, eps - chi * 25, chi, Nd);
    EXPECT_GT(M, 0);
    EXPECT_NEAR(momentoSezione(sopra, eps - chi * 75, chi, Nd), M, 1e-9 * M);
}

}  // namespace
}  // namespace korven::structure
