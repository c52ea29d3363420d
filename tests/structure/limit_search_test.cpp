#include "structure/limit_search.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace korven::structure {
namespace {

const PuntiAllungamento facce{0, 100};

// A steel plate 100 mm deep, 1000 mm2.
ModelloStrisce piastra(double fyd) {
    ModelloStrisce m{.dy = 1, .fcd = 20, .fyd = fyd, .modEacciaio = 200000, .Ac = {}, .As = {}};
    for (int i = 1; i <= nStrisce; ++i) m.As[i] = 10;
    return m;
}

TEST(LimiteSuperato, IsNotYetExceededWhereItIsExactlyReached) {
    EXPECT_FALSE(limiteSuperato(-0.0035, 0, 100, facce));
    EXPECT_FALSE(limiteSuperato(0.01, 0, 100, facce));
    EXPECT_TRUE(limiteSuperato(std::nextafter(-0.0035, -1), 0, 100, facce));
    EXPECT_TRUE(limiteSuperato(std::nextafter(0.01, 1), 0, 100, facce));
}

TEST(LimiteSuperato, ReadsShorteningAtTheFacesAndElongationAtItsPoints) {
    const PuntiAllungamento coperti{20, 70};
    // 0.012 at y = 0 falls to 0.01 at y = 20 and to 0.002 at y = 100: the face itself is not asked.
    EXPECT_FALSE(limiteSuperato(0.0119, -1e-4, 100, coperti));
    EXPECT_TRUE(limiteSuperato(0.0121, -1e-4, 100, coperti));
    // -0.003 at y = 0, 0.0095 at y = 70, 0.0149 at y = 100
    EXPECT_FALSE(limiteSuperato(-0.003, 1.79e-4, 100, coperti));
    EXPECT_TRUE(limiteSuperato(-0.003, 1.87e-4, 100, coperti));
    // shortening at the uphill face
    EXPECT_FALSE(limiteSuperato(0.006, -0.94e-4, 100, coperti));
    EXPECT_TRUE(limiteSuperato(0.006, -0.96e-4, 100, coperti));
}

// Elastic plate: the limit is -0.0035 at a face, chi = 0.007 / 100;
// M = E chi 10 (100^3 - 100) / 12. The last halving lies within 0.02 / 100 / 16384 of the limit,
// 0.0175 % of chi.
TEST(CercaLimite, FindsTheCurvatureOfTheLimitWithinItsTolerance) {
    const double atteso = 200000 * 0.7e-4 * 10 * (1e6 - 100) / 12;
    const MomentiResistenti MRd = cercaLimite(piastra(1e6), 100, facce, 0);
    EXPECT_NEAR(MRd[1], -atteso, 1.8e-4 * atteso);
    EXPECT_NEAR(MRd[2], atteso, 1.8e-4 * atteso);
}

// Curvatures after 14 halvings are odd multiples of 0.02 / 100 / 16384, and the elastic moment is
// that multiple of E I. A plate of 1 m2, so that 1 N off the balance of forces does not blur it.
TEST(CercaLimite, EndsAfterFourteenHalvings) {
    ModelloStrisce m = piastra(1e6);
    for (int i = 1; i <= nStrisce; ++i) m.As[i] = 10000;
    const double passo = 200000 * (0.02 / 100 / 16384) * 10000 * (1e6 - 100) / 12;
    const double multiplo = cercaLimite(m, 100, facce, 0)[2] / passo;
    EXPECT_NEAR(multiplo, std::round(multiplo), 1e-3);
    EXPECT_EQ(std::fmod(std::round(multiplo), 2), 1);
}

TEST(CercaLimite, SectionCrushedOrTornByItsAxialForceHasNoResistance) {
    for (double Nd : {400.0 * 1000 + 10, 1e7, 1e300, -400.0 * 1000 - 10, -1e7, -1e300}) {
        const MomentiResistenti MRd = cercaLimite(piastra(400), 100, facce, Nd);
        EXPECT_EQ(MRd[1], 0) << Nd;
        EXPECT_EQ(MRd[2], 0) << Nd;
    }
}

TEST(CercaLimite, SectionWithoutAnyAreaOrDepthHasNoResistanceRatherThanNoValue) {
    ModelloStrisce m = piastra(400);
    m.As = {};
    for (double H : {100.0, 1e-320, 1e308}) {
        m.dy = H / nStrisce;
        const MomentiResistenti MRd = cercaLimite(m, H, {0, H}, 0);
        EXPECT_EQ(MRd[1], 0) << H;
        EXPECT_EQ(MRd[2], 0) << H;
    }
}

}  // namespace
}  // namespace korven::structure
