#include <gtest/gtest.h>

#include "support/log_setup.hpp"

// The column of the scale: from x 17.5 to 18.5, the axis of the bar at 18.1.

namespace korven::drawings {
namespace {

using test::polilinee;
using test::testiCon;
using Linee = std::vector<std::string>;

class StratigrafiaScala : public test::ProvaStratigrafia {
 protected:
    // Numbers of the scale, those left of the axis above the foot.
    static Linee numeri() {
        Linee tutti;
        for (const auto& t : plot::statoPlot.archivio.testi())
            if (t.x > 17.1 && t.angolo == 0) tutti.push_back(t.testo);
        return tutti;
    }
    // Lines across the column.
    static int traverse() {
        int quante = 0;
        for (const auto& linea : polilinee(4))
            quante += linea.starts_with("17.500 ") &&
                      linea.find(", 18.500 ") != std::string::npos && linea.size() < 30;
        return quante;
    }
};

TEST_F(StratigrafiaScala, HasABlockForEachStepRightAndLeftInTurn) {
    disegna();
    EXPECT_TRUE(tracciata(4, "18.120 21.000, 18.120 20.000"));
    EXPECT_TRUE(tracciata(4, "18.300 21.000, 18.300 20.000"));
    EXPECT_TRUE(tracciata(4, "18.080 20.000, 18.080 19.000"));
    EXPECT_TRUE(tracciata(4, "17.900 20.000, 17.900 19.000"));
    EXPECT_TRUE(tracciata(4, "18.120 19.000, 18.120 18.000"));
    EXPECT_FALSE(tracciata(4, "18.100 21.000, 18.100 20.000")) << "the axis itself";
    EXPECT_FALSE(tracciata(4, "18.320 21.000, 18.320 20.000")) << "ten lines";
}

TEST_F(StratigrafiaScala, NumbersTheLowerEndOfEachBlockButTheLast) {
    disegna();
    EXPECT_EQ(traverse(), 20);
    EXPECT_EQ(numeri().size(), 19u) << "none at 20, though it is a whole step";
    EXPECT_EQ(testiCon("\"1\""), Linee{"\"1\" 17.800 20.100 h 0.20"});
    EXPECT_EQ(testiCon("\"9\""), Linee{"\"9\" 17.800 12.100 h 0.20"});
    EXPECT_EQ(testiCon("\"10\" 17"), Linee{"\"10\" 17.600 11.100 h 0.20"});
    EXPECT_EQ(testiCon("\"19\""), Linee{"\"19\" 17.600 2.100 h 0.20"});
}

TEST_F(StratigrafiaScala, StopsTheLastBlockAtTheLastLayer) {
    strati({5, 7.5});  // N 37.5
    disegna();
    EXPECT_EQ(numeri(), (Linee{"1", "2", "3", "4", "5", "6", "7"}));
    EXPECT_EQ(traverse(), 8);
    // 7 m lie at 21 - 700 / 37.5; the eighth block is on the left.
    EXPECT_TRUE(tracciata(4, "18.080 2.333, 18.080 1.000"));
    EXPECT_TRUE(tracciata(4, "17.500 1.000, 18.500 1.000"));
}

TEST_F(StratigrafiaScala, TakesLargerStepsForDeeperProfiles) {
    strati({21});
    disegna();
    EXPECT_EQ(numeri(), (Linee{"2", "4", "6", "8", "10", "12", "14", "16", "18", "20"}));
    strati({51});
    disegna();
    EXPECT_EQ(numeri(), (Linee{"5", "10", "15", "20", "25", "30", "35", "40", "45", "50"}));
    strati({120});
    disegna();
    EXPECT_EQ(numeri().size(), 11u);
    EXPECT_EQ(numeri().back(), "110");
}

TEST_F(StratigrafiaScala, PlacesNumbersByTheirDigits) {
    strati({2000});
    disegna();
    EXPECT_EQ(testiCon("\"100\" 17").at(0), "\"100\" 17.400 20.100 h 0.20");
    EXPECT_EQ(testiCon("\"1000\" 17").at(0), "\"1000\" 17.200 11.100 h 0.20");
}

TEST_F(StratigrafiaScala, OfAnAbsurdDepthEndsInAnErrorNotInAnEndlessDrawing) {
    strati({1e12});
    EXPECT_THROW(disegna(), base::ErroreIndice);
}

}  // namespace
}  // namespace korven::drawings
