#include "drawings/hatch_drawing.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_error.hpp"
#include "support/hatch_setup.hpp"

namespace korven::drawings {
namespace {

using test::polilinee;
using Linee = std::vector<std::string>;

// Unit 0.01: at step 1 a tile of 2 cm, half side 1 cm, 50 stroke units to half a centimetre.
class DisegnaCampitura : public test::ProvaCampiture {
 protected:
    DisegnaCampitura() {
        plot::plotApri(0, 0, 20, 20);
        plot::plotPenna(10);
    }

    void pattern(const std::vector<TrattoCampitura>& tratti, double unita = 0.01) {
        libreria({{5, {unita, tratti, "prova"}}});
    }
    void libreria(const test::LibreriaDiProva& tutte) {
        scriviLibreria(programma, tutte);
        dimenticaCampiture();
    }
    static Linee disegno(int decimali = 3) { return polilinee(10, decimali); }
};

TEST_F(DisegnaCampitura, DrawsThePatternAtItsUnitAtStepOne) {
    pattern({{-50, 0, 50, 0}});
    disegnaCampitura(105, 0, 2, 0, 2);
    EXPECT_EQ(disegno(), Linee{"0.500 1.000, 1.500 1.000"});
}

TEST_F(DisegnaCampitura, WithoutAStepIsSmallerByTheFourthRootOfTwo) {
    pattern({{-50, 0, 50, 0}});
    disegnaCampitura(5, 0, 1.6, 0, 1.6);  // the tile is 1.68 cm wide
    // 0.5 / 1.189207 = 0.42045
    EXPECT_EQ(disegno(5), Linee{"0.37955 0.80000, 1.22045 0.80000"});
}

TEST_F(DisegnaCampitura, AtStepFiveIsTwiceAsLargeAsAtStepOne) {
    pattern({{-50, 0, 50, 0}});
    disegnaCampitura(505, 0, 4, 0, 4);
    EXPECT_EQ(disegno(), Linee{"1.000 2.000, 3.000 2.000"});
}

TEST_F(DisegnaCampitura, TakesTheSidesOfTheRectangleInAnyOrder) {
    pattern({{-50, -50, 50, 0}});
    disegnaCampitura(105, 4, 6, 9, 7);
    EXPECT_EQ(disegno(), Linee{"4.500 7.500, 5.500 8.000"});
}

TEST_F(DisegnaCampitura, LaysTheFirstGroupFromTheRightBelowTheNext) {
    libreria({{5, {0.01, {{-50, 0, 50, 0}}, "a"}}, {12, {0.01, {{0, -50, 0, 50}}, "b"}}});
    disegnaCampitura(112105, 0, 2, 0, 2);
    EXPECT_EQ(disegno(), (Linee{"0.500 1.000, 1.500 1.000", "1.000 0.500, 1.000 1.500"}));
}

TEST_F(DisegnaCampitura, GoesOnWhileTheCodeBeforeItsDivisionWasAThousandOrMore) {
    libreria({{5, {0.01, {{-50, 0, 50, 0}}, "a"}}, {12, {0.01, {{0, -50, 0, 50}}, "b"}}});
    disegnaCampitura(12005, 0, 1, 0, 1);
    ASSERT_EQ(disegno().size(), 2u) << "pattern 5, then 12";
    EXPECT_TRUE(disegno()[0].ends_with("0.500")) << disegno()[0];
    EXPECT_TRUE(disegno()[1].starts_with("0.500 ")) << disegno()[1];
}

TEST_F(DisegnaCampitura, AGroupWithoutAPatternDrawsNothingAndTheNextGoesOn) {
    pattern({{-50, 0, 50, 0}});
    for (const double codice : {0.0, 7.0, 100.0, 199.0}) disegnaCampitura(codice, 0, 2, 0, 2);
    EXPECT_EQ(disegno(), Linee{});
    disegnaCampitura(105007, 0, 2, 0, 2);
    disegnaCampitura(105000, 3, 5, 0, 2);
    EXPECT_EQ(disegno(), (Linee{"0.500 1.000, 1.500 1.000", "3.500 1.000, 4.500 1.000"}));
}

TEST_F(DisegnaCampitura, ARectangleSmallerThanATileHoldsItsMiddleAlone) {
    pattern({{-50, 0, 50, 0}, {-50, 50, 50, 50}});
    disegnaCampitura(105, 0, 0.6, 0, 0.4);
    EXPECT_EQ(disegno(), Linee{"0.600 0.200, 0.000 0.200"})
        << "cut on both sides: the second cut exchanges the ends";
}

TEST_F(DisegnaCampitura, TilesCoverTheRectangleFromItsMiddleOutward) {
    pattern({{-50, 0, 50, 0}});
    disegnaCampitura(105, 0, 4, 0, 2);
    // The end beyond the right side comes first when it is cut, and stays so.
    EXPECT_EQ(disegno(), (Linee{"0.000 1.000, 0.500 1.000", "1.500 1.000, 2.500 1.000",
                                "4.000 1.000, 3.500 1.000"}));
}

TEST_F(DisegnaCampitura, TilesGoRowByRowFromBelow) {
    pattern({{0, 0, 0, 50}});
    disegnaCampitura(105, 0, 4, 0, 4);
    // Middles at 0, 2 and 4 both ways; the strokes of the uppermost row touch the edge alone and
    // are dots there, which grow towards the middle.
    EXPECT_EQ(disegno(), (Linee{"0.000 0.000, 0.000 0.500", "2.000 0.000, 2.000 0.500",
                                "4.000 0.000, 4.000 0.500", "0.000 2.000, 0.000 2.500",
                                "2.000 2.000, 2.000 2.500", "4.000 2.000, 4.000 2.500",
                                "0.000 4.000, 0.010 4.000", "2.000 4.000, 1.990 4.000",
                                "4.000 4.000, 3.990 4.000"}));
}

TEST_F(DisegnaCampitura, LeavesOutATileThatOnlyRoundingWouldShow) {
    pattern({{-100, 0, 100, 0}});
    disegnaCampitura(105, 0, 2.0001, 0, 1);
    EXPECT_EQ(disegno(5), Linee{"0.00005 0.50000, 2.00005 0.50000"})
        << "0.00005 on each side stay bare";
    disegnaCampitura(105, 0, 2.001, 5, 6);
    EXPECT_EQ(disegno().size(), 2u) << "chained with the tiles on both sides";
    EXPECT_EQ(disegno(4)[1], "0.0000 5.5000, 0.0005 5.5000, 2.0005 5.5000, 2.0010 5.5000");
}

TEST_F(DisegnaCampitura, CutsAtTheLeftSideFirstAndThenAtTheRight) {
    pattern({{-200, -100, 200, 100}});
    disegnaCampitura(105, 0, 2, 0, 2);
    EXPECT_EQ(disegno(), Linee{"2.000 1.500, 0.000 0.500"});
}

TEST_F(DisegnaCampitura, DropsStrokesOutsideAndKeepsThoseOnTheEdge) {
    pattern({{-100, 101, 100, 101}, {-100, 100, 100, 100}});
    disegnaCampitura(105, 0, 2, 0, 2);
    EXPECT_EQ(disegno(), Linee{"0.000 2.000, 2.000 2.000"});
}

TEST_F(DisegnaCampitura, AStrokeThatContinuesTheLastOneCostsNoPenMove) {
    pattern({{0, 0, 50, 0}, {50, 0, 50, 50}, {0, 50, 50, 50}, {0, 20, 50, 20}});
    disegnaCampitura(105, 0, 2, 0, 2);
    EXPECT_EQ(disegno(), (Linee{"1.000 1.000, 1.500 1.000, 1.500 1.500, 1.000 1.500",
                                "1.000 1.200, 1.500 1.200"}))
        << "the third is turned round, since its second end lies where the pen is";
}

TEST_F(DisegnaCampitura, StrokesATenThousandthApartAreChained) {
    pattern({{0, 0, 50, 0}, {51, 0, 100, 0}, {0, 50, 50, 50}}, 0.00009);
    disegnaCampitura(105, 0, 0.018, 0, 0.018);
    EXPECT_EQ(disegno(5)[0], "0.00900 0.00900, 0.01350 0.00900, 0.01800 0.00900");
    pattern({{0, 0, 50, 0}, {52, 0, 100, 0}}, 0.00009);
    disegnaCampitura(105, 1, 1.018, 0, 0.018);
    EXPECT_EQ(disegno(5).size(), 4u) << "0.00018 are too far";
}

TEST_F(DisegnaCampitura, ADotGrowsATenthOfAMillimetreTowardsTheMiddle) {
    pattern({{-50, 0, -50, 0}, {50, 0, 50, 0}});
    disegnaCampitura(105, 0, 2, 0, 2);
    EXPECT_EQ(disegno(), (Linee{"0.500 1.000, 0.510 1.000", "1.500 1.000, 1.490 1.000"}));
}

TEST_F(DisegnaCampitura, DrawsWithThePenOfTheCaller) {
    pattern({{-50, 0, 50, 0}});
    plot::plotPenna(17);
    disegnaCampitura(105, 0, 2, 0, 2);
    EXPECT_EQ(polilinee(17), Linee{"0.500 1.000, 1.500 1.000"});
}

TEST_F(DisegnaCampitura, OfAMissingLibraryIsAnErrorEvenWhereNothingIsToBeDrawn) {
    dimenticaCampiture();
    EXPECT_THROW(disegnaCampitura(0, 0, 2, 0, 2), base::ErroreFile);
    pattern({{-50, 0, 50, 0}});
    disegnaCampitura(105, 0, 2, 0, 2);
    std::filesystem::remove(programma / "set4.rtn");
    EXPECT_THROW(disegnaCampitura(7, 0, 2, 0, 2), base::ErroreFile) << "strokes are read anew";
}

TEST_F(DisegnaCampitura, TakesACodeOfAnyLength) {
    pattern({{-50, 0, 50, 0}});
    disegnaCampitura(1e300, 0, 2, 0, 2);
    disegnaCampitura(105000000000105, 0, 2, 0, 2);
    EXPECT_EQ(disegno(), Linee{"0.500 1.000, 1.500 1.000, 0.500 1.000"}) << "there and back";
}

}  // namespace
}  // namespace korven::drawings
