#include "drawings/hatch_code.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace korven::drawings {
namespace {

using Gruppi = std::vector<GruppoCampitura>;

TEST(GruppiCampitura, AreReadFromTheRightInThreeDigits) {
    EXPECT_EQ(gruppiCampitura(12005), (Gruppi{{5, 0}, {12, 0}}));
    EXPECT_EQ(gruppiCampitura(112105), (Gruppi{{5, 1}, {12, 1}}));
    EXPECT_EQ(gruppiCampitura(7000999), (Gruppi{{99, 9}, {0, 0}, {7, 0}}));
}

TEST(GruppiCampitura, AreOneForACodeBelowAThousand) {
    EXPECT_EQ(gruppiCampitura(0), (Gruppi{{0, 0}}));
    EXPECT_EQ(gruppiCampitura(999), (Gruppi{{99, 9}}));
    EXPECT_EQ(gruppiCampitura(1000), (Gruppi{{0, 0}, {1, 0}}));
}

TEST(GruppiCampitura, AreNoneForWhatIsNoNumber) {
    EXPECT_EQ(gruppiCampitura(std::numeric_limits<double>::infinity()), Gruppi{});
    EXPECT_EQ(gruppiCampitura(std::nan("")), Gruppi{});
}

TEST(UnitaTratto, DoublesWithFourSizeSteps) {
    const Campitura campitura{.nTratti = 1, .unita = 0.01, .nome = "a"};
    EXPECT_DOUBLE_EQ(unitaTratto(campitura, 1), 0.01);
    EXPECT_DOUBLE_EQ(unitaTratto(campitura, 5), 0.02);
    EXPECT_NEAR(unitaTratto(campitura, 0), 0.01 / 1.189207, 1e-8);
}

}  // namespace
}  // namespace korven::drawings
