#include <gtest/gtest.h>

#include "support/log_setup.hpp"

// The columns of depths, graphics and water.

namespace korven::drawings {
namespace {

using test::polilinee;
using test::testiCon;
using Linee = std::vector<std::string>;

using StratigrafiaStrati = test::ProvaStratigrafia;

TEST_F(StratigrafiaStrati, NumberTheDepthsNearTheRightEdge) {
    disegna();
    EXPECT_EQ(testiCon("\"5.0\""), Linee{"\"5.0\" 1.900 16.100 h 0.20"});
    EXPECT_EQ(testiCon("\"10.0\""), Linee{"\"10.0\" 1.700 11.100 h 0.20"});
    EXPECT_EQ(testiCon("\"20.0\""), Linee{"\"20.0\" 1.700 1.220 h 0.20"})
        << "0.12 above the foot, the lower limit of the labels";
}

TEST_F(StratigrafiaStrati, NumberDepthsOfThreeDigitsFurtherLeft) {
    strati({100, 200});
    disegna();
    EXPECT_EQ(testiCon("\"100.0\""), Linee{"\"100.0\" 1.500 11.100 h 0.20"});
}

TEST_F(StratigrafiaStrati, CutTheDepthsToADecimal) {
    strati({5.99, 20});
    disegna();
    EXPECT_EQ(testiCon("\"5.9\"").size(), 1u);
}

TEST_F(StratigrafiaStrati, TieEachNumberToItsDepthOnBothSidesButTheLast) {
    strati({5, 5.1, 20});
    disegna();
    // 10 cm apart: the labels keep 0.24 cm.
    EXPECT_EQ(testiCon("\"5.1\""), Linee{"\"5.1\" 1.900 15.860 h 0.20"});
    EXPECT_TRUE(tracciata(4, "1.500 16.000, 1.600 16.000"));
    EXPECT_TRUE(tracciata(4, "2.700 16.000, 2.600 16.000"));
    EXPECT_TRUE(tracciata(4, "1.500 15.900, 1.600 15.760"));
    EXPECT_TRUE(tracciata(4, "2.700 15.900, 2.600 15.760"));
    EXPECT_FALSE(tracciata(4, "1.500 1.000, 1.600 1.120"));
}

TEST_F(StratigrafiaStrati, AreFilledWithTheirHatchInThePenOfTheirColour) {
    dati.descrStrato[1] = "105C3 Sabbia";
    disegna();
    EXPECT_EQ(polilinee(12), (Linee{"2.950 16.500, 3.450 16.500", "2.950 17.500, 3.450 17.500",
                                    "2.950 18.500, 3.450 18.500", "2.950 19.500, 3.450 19.500",
                                    "2.950 20.500, 3.450 20.500"}));
}

TEST_F(StratigrafiaStrati, AreFilledInPenTenWithoutAColour) {
    dati.descrStrato[2] = "105 Sabbia";
    disegna();
    EXPECT_EQ(polilinee(10).size(), 5u);
    EXPECT_EQ(polilinee(10).front(), "2.950 11.500, 3.450 11.500");
}

TEST_F(StratigrafiaStrati, EndWithALineAcrossTheColumn) {
    disegna();
    EXPECT_TRUE(tracciata(4, "2.700 16.000, 3.700 16.000"));
    EXPECT_TRUE(tracciata(4, "2.700 11.000, 3.700 11.000"));
    EXPECT_TRUE(tracciata(4, "2.700 1.000, 3.700 1.000"));
}

TEST_F(StratigrafiaStrati, WithANegativeCodeLeaveNoLineToTheNext) {
    dati.descrStrato[1] = "-105 Sabbia";
    disegna();
    EXPECT_EQ(polilinee(10).size(), 5u) << "the hatch is there";
    EXPECT_FALSE(tracciata(4, "2.700 16.000, 3.700 16.000"));
    EXPECT_TRUE(tracciata(4, "2.700 11.000, 3.700 11.000"));
}

TEST_F(StratigrafiaStrati, WithoutACodeOrWithAnUnknownPatternStayBlank) {
    dati.descrStrato[1] = "Argilla grigia";
    dati.descrStrato[2] = "177C2 Limo";
    dati.descrStrato[3] = "";
    disegna();
    for (int penna = 10; penna < 30; ++penna) EXPECT_TRUE(polilinee(penna).empty()) << penna;
}

TEST_F(StratigrafiaStrati, ShowTheWaterTableByFiveLinesThatGrowShorter) {
    dati.faldaMonte = 4;
    disegna();
    EXPECT_TRUE(tracciata(4, "6.900 17.000, 7.900 17.000"));
    EXPECT_TRUE(tracciata(4, "7.000 16.900, 7.800 16.900"));
    EXPECT_TRUE(tracciata(4, "7.100 16.800, 7.700 16.800"));
    EXPECT_TRUE(tracciata(4, "7.200 16.700, 7.600 16.700"));
    EXPECT_TRUE(tracciata(4, "7.300 16.600, 7.500 16.600"));
    EXPECT_EQ(testiCon("\"4.0\""), Linee{"\"4.0\" 7.200 17.100 h 0.20"});
}

TEST_F(StratigrafiaStrati, NumberADeeperWaterTableFurtherLeft) {
    dati.faldaMonte = 12.5;
    disegna();
    EXPECT_EQ(testiCon("\"12.5\""), Linee{"\"12.5\" 7.000 8.600 h 0.20"});
    strati({5, 10, 200});
    dati.faldaMonte = 150;
    disegna();
    EXPECT_EQ(testiCon("\"150.0\""), Linee{"\"150.0\" 6.800 6.100 h 0.20"});
}

TEST_F(StratigrafiaStrati, ShowNoWaterTableAtTheFootOfTheLastLayerOrBelow) {
    for (const double falda : {20.0, 30.0}) {
        dati.faldaMonte = falda;
        disegna();
        EXPECT_FALSE(tracciata(4, "6.900 1.000, 7.900 1.000"));
        EXPECT_EQ(testiCon("\"20.0\"").size(), 1u) << "the foot of the layer";
        EXPECT_EQ(testiCon("\"30.0\"").size(), 0u);
    }
}

}  // namespace
}  // namespace korven::drawings
