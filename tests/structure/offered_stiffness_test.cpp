#include "structure/offered_stiffness.hpp"

#include <gtest/gtest.h>

#include "support/sample_sections.hpp"

namespace korven::structure {
namespace {

TEST(RigidezzaOfferta, IsNothingForASectionThatIsNotDefinedOrHasNoNumber) {
    EXPECT_FALSE(rigidezzaOfferta({}));
    auto enorme = paliTubolari();
    enorme.paliDiamEst = 1e90;
    EXPECT_FALSE(rigidezzaOfferta(enorme));
}

// EJ = 1000 (pi/4) (30000 x 290^4 + 200000 (300^4 - 290^4)) / 800 = 40999.97 x 1e10 N mm2.
TEST(RigidezzaOfferta, IsTheWholePartAndNotTheNearestNumber) {
    EXPECT_EQ(rigidezzaOfferta(paliTubolari()), 40999);
}

}  // namespace
}  // namespace korven::structure
