#include "safety/toe_movement.hpp"

#include <gtest/gtest.h>

namespace korven::safety {
namespace {

equilibrium::ProblemaFase problema(int nodi, int nParete) {
    equilibrium::ProblemaFase p;
    p.h = 0.5;
    p.nodi.resize(static_cast<std::size_t>(nodi));
    p.nParete = nParete;
    return p;
}

TEST(MotoPiede, IsThatOfTheLastNodeOfTheWall) {
    const MotoPiede libero = motoPiede(problema(3, 3), {0.02, 0.01, -0.003});
    EXPECT_EQ(libero.spostamento, -0.003);
    EXPECT_FALSE(libero.cedimento);
    EXPECT_EQ(motoPiede(problema(4, 3), {0.02, 0.01, 0.001, 0}).spostamento, 0.001);
}

// The wall turns by up to 0.008 / h, the clamp by 0.002 / h.
TEST(MotoPiede, ComparesTheRotationOfAFixedToeWithTheLargestOfTheWall) {
    EXPECT_DOUBLE_EQ(motoPiede(problema(4, 3), {0.012, 0.010, 0.002, 0}).cedimento.value(), 0.25);
    EXPECT_EQ(motoPiede(problema(4, 3), {0.012, 0.006, 0, 0}).cedimento, 0);
    EXPECT_FALSE(motoPiede(problema(4, 3), {0, 0, 0, 0}).cedimento);
}

}  // namespace
}  // namespace korven::safety
