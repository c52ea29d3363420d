#include "tools/hatch_drawing.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "base/file_error.hpp"
#include "tools/hatch_files.hpp"

namespace korven::tools {
namespace {

using Strokes = std::vector<HatchStroke>;

const std::string names = "it: Uno\nde: Eins\nfr: À\nes: Uno\nen: One\npt: Um\n";

Strokes drawn(const std::string& commands) {
    const auto source =
        readHatchSource("campiture.txt", "@figura asta\nlinea 0 0 10 0\n@campitura 1 0.005\n" +
                                             names + commands + "\n");
    return drawHatch(source, source.patterns[0]);
}

TEST(HatchDrawing, DrawsLinesChainsAndDots) {
    EXPECT_EQ(drawn("linea 0 0 5 6"), (Strokes{{0, 0, 5, 6}}));
    EXPECT_EQ(drawn("spezzata 0 0 5 6 7 0"), (Strokes{{0, 0, 5, 6}, {5, 6, 7, 0}}));
    EXPECT_EQ(drawn("poligono 0 0 5 6 7 0"), (Strokes{{0, 0, 5, 6}, {5, 6, 7, 0}, {7, 0, 0, 0}}));
    EXPECT_EQ(drawn("punto 3 4"), (Strokes{{3, 4, 3, 4}}));
}

// Four chords half a step beside the axes: a square with its corners at 45 degrees.
TEST(HatchDrawing, DrawsCirclesWithFlatSides) {
    EXPECT_EQ(drawn("cerchio 0 0 10 4"),
              (Strokes{{7, 7, -7, 7}, {-7, 7, -7, -7}, {-7, -7, 7, -7}, {7, -7, 7, 7}}));
}

TEST(HatchDrawing, TurnsEllipses) {  // half axes 20 and 10, turned by 90 degrees: corners (7, 14)
    EXPECT_EQ(drawn("ellisse 0 0 20 10 90 4"),
              (Strokes{{-7, 14, -7, -14}, {-7, -14, 7, -14}, {7, -14, 7, 14}, {7, 14, -7, 14}}));
}

TEST(HatchDrawing, DrawsArcsFromAngleToAngle) {
    EXPECT_EQ(drawn("arco 0 0 10 0 180 2"), (Strokes{{10, 0, 0, 10}, {0, 10, -10, 0}}));
}

// One period of four chords, corners at x = -125, -75, -25, 25, 75: the sines of -45, 45 and 135
// degrees and so on.
TEST(HatchDrawing, DrawsWavesThatCrossTheEdgeInTheMiddleOfAChord) {
    EXPECT_EQ(drawn("onda 0 10 1 4"), (Strokes{{75, -7, 100, 0},
                                               {-100, 0, -75, 7},
                                               {-75, 7, -25, 7},
                                               {-25, 7, 25, -7},
                                               {25, -7, 75, -7}}));
}

TEST(HatchDrawing, LaysBricksWithJointsShiftedByHalfABrick) {
    EXPECT_EQ(drawn("mattoni 2 1"), (Strokes{{-100, -50, 100, -50},
                                             {-50, -50, -50, 50},
                                             {-100, 50, 100, 50},
                                             {50, 50, 50, 100},
                                             {50, -100, 50, -50}}));
}

TEST(HatchDrawing, LeansJoints) {
    EXPECT_EQ(drawn("mattoni 2 1 20").at(1), (HatchStroke{-60, -50, -40, 50}));
}

TEST(HatchDrawing, PlacesFiguresTurnedAndScaled) {
    EXPECT_EQ(drawn("metti asta 20 30 90 200"), (Strokes{{20, 30, 20, 50}}));
}

TEST(HatchDrawing, RepeatsWithAShift) {
    EXPECT_EQ(drawn("ripeti 10 20 2\nlinea 0 0 1 0\nfine"),
              (Strokes{{0, 0, 1, 0}, {10, 20, 11, 20}}));
}

TEST(HatchDrawing, ShiftsEverySecondRowOfAGrid) {
    EXPECT_EQ(
        drawn("griglia 2 2 50\npunto 0 0\nfine"),
        (Strokes{{-75, -50, -75, -50}, {25, -50, 25, -50}, {-25, 50, -25, 50}, {75, 50, 75, 50}}));
}

TEST(HatchDrawing, ScattersEvenlyAndTheSameEachTime) {
    const std::string commands = "sparsi 5 60 0\npunto 0 0\nfine";
    const auto dots = drawn(commands);
    EXPECT_EQ(drawn(commands), dots);
    EXPECT_NE(drawn("sparsi 6 60 0\npunto 0 0\nfine"), dots);
    ASSERT_EQ(dots.size(), 60u);
    // 60 dots on 40,000 square units: 26 units from each to the next in an even order. Dots thrown
    // without care would leave pairs a few units apart.
    for (std::size_t i = 0; i < dots.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_GT(std::hypot(std::remainder(dots[i].x1 - dots[j].x1, 200.0),
                                 std::remainder(dots[i].y1 - dots[j].y1, 200.0)),
                      13.0);
}

TEST(HatchDrawing, KeepsScatteredThingsOutOfOccupiedPlaces) {
    for (const auto& dot : drawn("occupa 0 0 60\nsparsi 5 30 0\npunto 0 0\nfine"))
        EXPECT_GT(std::hypot(dot.x1, dot.y1), 60.0);
}

TEST(HatchFiles, HoldOneRowForEachNumber) {
    const auto source = readHatchSource(
        "campiture.txt", "@campitura 2 0.005\n" + names + "linea -1 2 100 -100\npunto 0 0\n");
    const auto library = makeHatchLibrary("campiture.txt", source);
    std::string noRows;
    std::string noNames;
    for (int i = 3; i <= 100; ++i) {
        noRows += "0\r\n";
        noNames += "\r\n";
    }
    EXPECT_EQ(strokeCountBytes(library), "0\r\n2\r\n" + noRows);
    EXPECT_EQ(hatchUnitBytes(library), "0\r\n0.005\r\n" + noRows);
    EXPECT_EQ(hatchNameBytes(library, 3), "\r\n\xC0\r\n" + noNames);
    EXPECT_EQ(strokeBytes(library),
              std::string("\xFF\xFF\x02\x00\x64\x00\x9C\xFF\x00\x00\x00\x00\x00\x00\x00\x00", 16));
}

TEST(HatchFiles, RefuseMoreStrokesThanSixteenBitsCount) {
    std::string dense = "ripeti 1 0 200\nripeti 0 1 199\npunto 0 0\nfine\nfine\n";
    const auto source =
        readHatchSource("campiture.txt", "@campitura 2 0.005\n" + names +
                                             "punto 0 0\n@campitura 3 0.005\n" + names + dense);
    try {
        (void)makeHatchLibrary("campiture.txt", source);
        FAIL() << "39,801 strokes were taken";
    } catch (const base::ErroreFile& error) {
        EXPECT_EQ(error.riga(), 9);
    }
}

TEST(HatchFiles, RefuseAPatternThatNothingIsLeftOf) {
    const auto source =
        readHatchSource("campiture.txt", "@campitura 2 0.005\n" + names + "occupa 0 0 5\n");
    EXPECT_THROW((void)makeHatchLibrary("campiture.txt", source), base::ErroreFile);
}

}  // namespace
}  // namespace korven::tools
