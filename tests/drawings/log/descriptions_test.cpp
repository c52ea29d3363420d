#include <gtest/gtest.h>

#include "support/log_setup.hpp"

// The column of the descriptions: from x 3.7 to 6.9, 26 characters of room between 4.0 and 6.6.

namespace korven::drawings {
namespace {

using test::testiCon;
using Linee = std::vector<std::string>;

class StratigrafiaDescrizioni : public test::ProvaStratigrafia {
 protected:
    // Texts of the column, without the heads.
    Linee testi() {
        Linee tutti;
        for (const auto& t : plot::statoPlot.archivio.testi())
            if (t.altezza == 0.25 && t.angolo == 0)
                tutti.push_back(t.testo + ' ' + test::punto(t.x, t.y, 3));
        return tutti;
    }
};

TEST_F(StratigrafiaDescrizioni, EndOnTheFootOfTheirLayer) {
    dati.descrStrato[1] = "5 Sabbia fine";
    disegna();
    // Block of 0.5 cm from 16 to 16.5, base line 0.375 below its upper edge.
    EXPECT_EQ(testi(), Linee{"Sabbia fine 4.000 16.125"});
    EXPECT_TRUE(tracciata(4, "3.700 16.000, 4.000 16.000, 6.600 16.000, 6.900 16.000"));
}

TEST_F(StratigrafiaDescrizioni, JustifyAllLinesButTheLast) {
    dati.descrStrato[1] = "5 Sabbia fine limosa con ghiaia sparsa";
    disegna();
    // Words of 6, 4, 6 and 3 characters: 0.7 cm are left for three blanks.
    EXPECT_EQ(testi(), (Linee{"Sabbia 4.000 16.500", "fine 4.833 16.500", "limosa 5.467 16.500",
                              "con 6.300 16.500", "ghiaia sparsa 4.000 16.125"}));
}

TEST_F(StratigrafiaDescrizioni, WriteLinesThatEndInAPointAsTheyAre) {
    dati.descrStrato[1] = "5 Sabbia fine.|Ghiaia";
    disegna();
    EXPECT_EQ(testi(), (Linee{"Sabbia fine. 4.000 16.500", "Ghiaia 4.000 16.125"}));
}

TEST_F(StratigrafiaDescrizioni, WriteLinesOfOneWordAsTheyAre) {
    dati.descrStrato[1] = "5 Sabbia|Ghiaia";
    disegna();
    EXPECT_EQ(testi(), (Linee{"Sabbia 4.000 16.500", "Ghiaia 4.000 16.125"}));
}

TEST_F(StratigrafiaDescrizioni, JustifyLinesWithAForcedEndToo) {
    dati.descrStrato[1] = "5 Sabbia fine|Ghiaia";
    disegna();
    EXPECT_EQ(testi(), (Linee{"Sabbia 4.000 16.500", "fine 6.200 16.500", "Ghiaia 4.000 16.125"}));
}

TEST_F(StratigrafiaDescrizioni, ShareTheRoomAmongAllBlanksOfALine) {
    dati.descrStrato[1] = "5 Sabbia  fine|Ghiaia";
    disegna();
    // Two blanks in a row are two distances of 0.8: the second word ends at the same place.
    EXPECT_EQ(testi(), (Linee{"Sabbia 4.000 16.500", "fine 6.200 16.500", "Ghiaia 4.000 16.125"}));
}

TEST_F(StratigrafiaDescrizioni, UnderALongTextArePushedDownWithALeaderToTheirFoot) {
    strati({5, 5.2, 20});
    dati.descrStrato[1] = "5 Sabbia fine limosa con ghiaia sparsa";
    dati.descrStrato[2] = "5 Limo";
    disegna();
    EXPECT_EQ(testi().back(), "Limo 4.000 15.625");
    EXPECT_TRUE(tracciata(4, "3.700 15.800, 4.000 15.500, 6.600 15.500, 6.900 15.800"));
}

TEST_F(StratigrafiaDescrizioni, ArePushedUpFromTheFootOfTheTable) {
    strati({5, 19, 20});
    dati.descrStrato[2] = "5 Limo";
    dati.descrStrato[3] = "5 uno|due|tre";
    disegna();
    // Three lines are 1.25 high and end at 1, so the block above goes up to 2.25.
    EXPECT_TRUE(tracciata(4, "3.700 2.000, 4.000 2.250, 6.600 2.250, 6.900 2.000"));
    EXPECT_TRUE(tracciata(4, "3.700 1.000, 4.000 1.000, 6.600 1.000, 6.900 1.000"));
    EXPECT_EQ(testi(),
              (Linee{"Limo 4.000 2.375", "uno 4.000 1.875", "due 4.000 1.500", "tre 4.000 1.125"}));
}

TEST_F(StratigrafiaDescrizioni, WithAnUnderscoreHaveNoLeader) {
    dati.descrStrato[1] = "5 _Sabbia fine";
    disegna();
    EXPECT_EQ(testi(), Linee{"Sabbia fine 4.000 16.125"});
    EXPECT_FALSE(tracciata(4, "3.700 16.000, 4.000 16.000, 6.600 16.000, 6.900 16.000"));
}

TEST_F(StratigrafiaDescrizioni, OfNoTextLeaveTheLeaderAlone) {
    dati.descrStrato[1] = "5";
    disegna();
    EXPECT_TRUE(testi().empty());
    EXPECT_TRUE(tracciata(4, "3.700 16.000, 4.000 16.000, 6.600 16.000, 6.900 16.000"));
}

TEST_F(StratigrafiaDescrizioni, AreCutByTheWidthsOfThePenThatWritesThem) {
    class PerCarattere : public plot::MetricaTesto {
     public:
        [[nodiscard]] double larghezza(std::string_view carattere, double,
                                       std::string_view testo) const override {
            return (carattere == "Arial" ? 0.1 : 9) * static_cast<double>(testo.size());
        }
    };
    auto penne = test::penneDistinte();
    for (int i = 1; i <= plot::numeroPenne; ++i)
        if (i != 4) penne.penne[i].carattere = "Courier New";
    configura(penne);
    const PerCarattere perCarattere;
    plot::statoPlot.metrica = &perCarattere;
    dati.descrStrato[1] = "5 Sabbia fine";
    disegna();
    EXPECT_EQ(testi(), Linee{"Sabbia fine 4.000 16.125"});
}

TEST_F(StratigrafiaDescrizioni, OverrunTheColumnWithAWordThatCannotBeParted) {
    dati.descrStrato[1] = "5 " + std::string(40, 'h') + " fine";
    disegna();
    EXPECT_EQ(testi(), (Linee{std::string(40, 'h') + " 4.000 16.500", "fine 4.000 16.125"}));
}

}  // namespace
}  // namespace korven::drawings
