#include "tools/hatch_canvas.hpp"

#include <gtest/gtest.h>

namespace korven::tools {
namespace {

using Strokes = std::vector<HatchStroke>;

const std::vector<HatchPoint> square = {{-10, -10}, {10, -10}, {10, 10}, {-10, 10}};

TEST(HatchCanvas, KeepsStrokesInsideTheTileInTheirOrder) {
    HatchCanvas canvas;
    canvas.chain({{0, 0}, {10, 5}, {20, 0}}, true);
    canvas.dot({3.4, -2.6});
    EXPECT_EQ(canvas.strokes(),
              (Strokes{{0, 0, 10, 5}, {10, 5, 20, 0}, {20, 0, 0, 0}, {3, -3, 3, -3}}));
}

TEST(HatchCanvas, CutsAStrokeAtTheEdgeAndContinuesItOnTheOppositeSide) {
    HatchCanvas canvas;
    canvas.chain({{90, 0}, {110, 10}}, false);
    EXPECT_EQ(canvas.strokes(), (Strokes{{90, 0, 100, 5}, {-100, 5, -90, 10}}));
}

TEST(HatchCanvas, CutsAtBothEdgesOfACorner) {
    HatchCanvas canvas;
    canvas.chain({{90, 80}, {110, 120}}, false);  // through (100, 100)
    canvas.chain({{90, 90}, {120, 105}}, false);  // x = 100 first, at y = 95
    EXPECT_EQ(canvas.strokes(), (Strokes{{90, 80, 100, 100},
                                         {-100, -100, -90, -80},
                                         {90, 90, 100, 95},
                                         {-100, 95, -90, 100},
                                         {-90, -100, -80, -95}}));
}

TEST(HatchCanvas, BringsWhatLiesInAnotherTileBackIntoTheFirst) {
    HatchCanvas canvas;
    canvas.chain({{-150, 210}, {-140, 220}}, false);
    canvas.dot({250, 0});
    EXPECT_EQ(canvas.strokes(), (Strokes{{50, 10, 60, 20}, {50, 0, 50, 0}}));
}

// The crossing shall be straight, so a corner on the edge goes one unit further.
TEST(HatchCanvas, MovesACornerOffTheEdge) {
    HatchCanvas canvas;
    canvas.chain({{80, 0}, {100, 0}, {120, 40}}, false);
    EXPECT_EQ(canvas.strokes(), (Strokes{{80, 0, 100, 0}, {-100, 0, -99, 0}, {-99, 0, -80, 40}}));
}

TEST(HatchCanvas, KeepsALineFromEdgeToEdgeWhole) {
    HatchCanvas canvas;
    canvas.chain({{-100, 30}, {100, 30}}, false);
    EXPECT_EQ(canvas.strokes(), (Strokes{{-100, 30, 100, 30}}));
}

TEST(HatchCanvas, RunsNoLineAlongAnEdge) {
    HatchCanvas canvas;
    canvas.chain({{100, -5}, {100, 5}}, false);
    canvas.chain({{0, -100}, {9, -100}}, false);
    EXPECT_EQ(canvas.strokes(), (Strokes{{-99, -5, -99, 5}, {0, -99, 9, -99}}));
}

// It would end there on one side alone.
TEST(HatchCanvas, MovesAnEndOffTheEdgeThatOnlyRoundingPutsThere) {
    HatchCanvas canvas;
    canvas.chain({{80, 0}, {99.6, 20}}, false);
    EXPECT_EQ(canvas.strokes(), (Strokes{{80, 0, 100, 19}, {-100, 19, -99, 20}}));
}

TEST(HatchCanvas, DropsStrokesThatRoundingLeavesWithoutLength) {
    HatchCanvas canvas;
    canvas.chain({{0, 0}, {0.3, 0.3}, {9, 0}}, false);
    EXPECT_EQ(canvas.strokes(), (Strokes{{0, 0, 9, 0}}));
}

TEST(HatchCanvas, HidesWhatLiesInsideAShape) {
    HatchCanvas canvas;
    canvas.chain({{-40, 0}, {40, 0}}, false);  // crosses it
    canvas.chain({{-5, 3}, {5, 3}}, false);    // inside
    canvas.chain({{-40, 20}, {40, 20}}, false);
    canvas.dot({2, 2});
    canvas.dot({12, 2});
    canvas.hide(square);
    EXPECT_EQ(canvas.strokes(),
              (Strokes{{-40, 0, -10, 0}, {10, 0, 40, 0}, {-40, 20, 40, 20}, {12, 2, 12, 2}}));
}

TEST(HatchCanvas, HidesTheSameWhicheverWayRoundTheShapeGoes) {
    HatchCanvas canvas;
    canvas.chain({{-40, 0}, {40, 0}}, false);
    canvas.hide({square.rbegin(), square.rend()});
    EXPECT_EQ(canvas.strokes(), (Strokes{{-40, 0, -10, 0}, {10, 0, 40, 0}}));
}

TEST(HatchCanvas, HidesBeyondTheEdgeToo) {
    HatchCanvas canvas;
    canvas.chain({{-98, 0}, {-40, 0}}, false);
    std::vector<HatchPoint> right = square;
    for (auto& p : right) p.x += 100;  // 90 to 110, that is up to -90 on the other side
    canvas.hide(right);
    EXPECT_EQ(canvas.strokes(), (Strokes{{-90, 0, -40, 0}}));
}

TEST(HatchCanvas, LeavesNoCrumbsBesideAShape) {
    HatchCanvas canvas;
    canvas.chain({{-12, 0}, {40, 0}}, false);
    canvas.hide(square);
    EXPECT_EQ(canvas.strokes(), (Strokes{{10, 0, 40, 0}}));
}

}  // namespace
}  // namespace korven::tools
