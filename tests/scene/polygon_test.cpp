#include "scene/polygon.hpp"

#include <gtest/gtest.h>

namespace korven::scene {
namespace {

TEST(Sotto, CutsAPolygonAlongALine) {
    // The square of 10 below the diagonal that falls from its upper left to its lower right corner.
    const auto resto = sotto(rettangolo(0, 0, 10, 10), {0, 0}, {10, 10});
    EXPECT_EQ(resto, (std::vector<Punto>{{0, 0}, {10, 10}, {0, 10}}));
    EXPECT_TRUE(sotto(rettangolo(0, 0, 10, 10), {0, 20}, {10, 20}).empty());
    EXPECT_EQ(sotto(rettangolo(0, 0, 10, 10), {0, -1}, {10, -1}).size(), 4U);
}

TEST(Sotto, FindsWhereTheLineCrossesTheSides) {
    const auto resto = sotto(rettangolo(0, 0, 10, 10), {0, 4}, {10, 6});
    EXPECT_EQ(resto, (std::vector<Punto>{{10, 6}, {10, 10}, {0, 10}, {0, 4}}));
}

TEST(Dentro, CutsAStrokeAtThePolygon) {
    const auto quadrato = rettangolo(0, 0, 10, 10);
    EXPECT_EQ(dentro(quadrato, {-5, 5}, {15, 5}), std::pair(Punto{0, 5}, Punto{10, 5}));
    EXPECT_EQ(dentro(quadrato, {2, 2}, {4, 4}), std::pair(Punto{2, 2}, Punto{4, 4}));
    EXPECT_EQ(dentro(quadrato, {5, 5}, {5, 25}), std::pair(Punto{5, 5}, Punto{5, 10}));
    EXPECT_FALSE(dentro(quadrato, {-5, 5}, {-1, 5}));
    EXPECT_FALSE(dentro(quadrato, {-5, 4}, {4, -5}));  // past a corner
    // The same whichever way the polygon goes round.
    const std::vector<Punto> contrario{{0, 0}, {0, 10}, {10, 10}, {10, 0}};
    EXPECT_EQ(dentro(contrario, {-5, 5}, {15, 5}), std::pair(Punto{0, 5}, Punto{10, 5}));
}

TEST(Intorno, IsTheRectangleAboutThePoints) {
    EXPECT_EQ(intorno({{3, 8}, {-1, 2}, {5, 4}}), (Riquadro{-1, 2, 5, 8}));
}

}  // namespace
}  // namespace korven::scene
