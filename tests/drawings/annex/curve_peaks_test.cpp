#include "drawings/annex/curve_peaks.hpp"

#include <gtest/gtest.h>

#include "project/units.hpp"

namespace korven::drawings {
namespace {

TEST(Picchi, HaveNoMarkWhereTheirValueIsPrintedAsZero) {
    CurvaPannello curva;
    curva.z = {0, 1, 2};
    curva.valori = {0.0, 0.004, -0.02};  // [t m/m], shown as 0.0 and -0.2 kN m/m
    const std::vector<scene::Punto> punti{{0, 0}, {1, 10}, {-5, 20}};
    const auto tutti = picchi(curva, project::unita::momentoAlMetro, punti, 0);
    ASSERT_EQ(tutti.size(), 1U);
    EXPECT_EQ(tutti[0].forme.at(0).at(0), "-0.2 · 2.00 m");
    EXPECT_EQ(tutti[0].punto.y, 20);
}

}  // namespace
}  // namespace korven::drawings
