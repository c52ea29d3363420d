#include "structure/material_laws.hpp"

#include <gtest/gtest.h>

#include <utility>

namespace korven::structure {
namespace {

// fcd = 20: plateau at -17.
TEST(TensioneCls, IsAParabolaThenAPlateauInCompression) {
    const std::pair<double, double> casi[] = {{0.01, 0},
                                              {0, 0},
                                              {-0.0005, -17 * 0.4375},  // 1 - (1 - 1/4)^2
                                              {-0.001, -17 * 0.75},
                                              {-0.0015, -17 * 0.9375},
                                              {-0.002, -17},
                                              {-0.0035, -17}};
    for (auto [eps, sigma] : casi) EXPECT_NEAR(tensioneCls(eps, 20), sigma, 1e-13) << eps;
}

TEST(TensioneCls, PlateauHasNoEnd) {
    EXPECT_EQ(tensioneCls(-0.0036, 20), tensioneCls(-0.5, 20));
    EXPECT_DOUBLE_EQ(tensioneCls(-0.5, 20), -17);
}

TEST(TensioneCls, NeverRisesAsShorteningGrows) {
    for (int i = 0; i < 4000; ++i)
        EXPECT_GE(tensioneCls(-i * 1e-6, 25), tensioneCls(-(i + 1) * 1e-6, 25) - 1e-13) << i;
}

TEST(TensioneAcciaio, IsElasticUpToYieldOnBothSidesAndThenPlastic) {
    // yield strain 400 / 200000 = 0.002
    const std::pair<double, double> casi[] = {{0, 0},          {0.001, 200},    {0.0019, 380},
                                              {0.0021, 400},   {0.5, 400},      {-0.001, -200},
                                              {-0.0019, -380}, {-0.0021, -400}, {-0.5, -400}};
    for (auto [eps, sigma] : casi) EXPECT_NEAR(tensioneAcciaio(eps, 400, 200000), sigma, 1e-10);
}

}  // namespace
}  // namespace korven::structure
