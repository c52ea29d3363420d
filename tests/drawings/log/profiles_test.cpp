#include <gtest/gtest.h>

#include "support/log_setup.hpp"

// The columns of unit weights, friction and strength: 3.2 cm each, from x 7.9, 11.1 and 14.3.

namespace korven::drawings {
namespace {

using test::polilinee;
using test::testiCon;
using Linee = std::vector<std::string>;

using StratigrafiaProfili = test::ProvaStratigrafia;

void valori(base::Tabella<double, 100>& tabella, double a, double b, double c) {
    tabella[1] = a;
    tabella[2] = b;
    tabella[3] = c;
}

TEST_F(StratigrafiaProfili, MarkTheUnitWeightsInKilonewtons) {
    disegna();
    EXPECT_TRUE(tracciata(4, "8.433 1.000, 8.433 21.000"));
    EXPECT_TRUE(tracciata(4, "10.567 1.000, 10.567 21.000"));
    EXPECT_EQ(testiCon("\" 5\""), Linee{"\" 5\" 8.433 21.100 h 0.20 centred"});
    EXPECT_EQ(testiCon("\"25\""), Linee{"\"25\" 10.567 21.100 h 0.20 centred"});
    EXPECT_EQ(testiCon("\"15\" 9."), Linee{"\"15\" 9.500 21.100 h 0.20 centred"});
}

TEST_F(StratigrafiaProfili, MarkTheFrictionAngleInDegrees) {
    disegna();
    EXPECT_EQ(testiCon("\"30\" 13."), Linee{"\"30\" 13.020 21.100 h 0.20 centred"});
    EXPECT_TRUE(tracciata(4, "11.740 1.000, 11.740 21.000"));
    EXPECT_TRUE(tracciata(4, "13.660 1.000, 13.660 21.000"));
}

TEST_F(StratigrafiaProfili, AreStaircasesFromTheGroundToTheLastFoot) {
    valori(dati.gammaN, 1.5, 1.8, 2.1);
    valori(dati.gammaSat, 1.8, 1.8, 2.4);
    valori(dati.phiStrato, 25, 30, 30);
    disegna();
    const auto curve = polilinee(30);
    ASSERT_EQ(curve.size(), 5u);
    EXPECT_EQ(curve[0],
              "9.500 21.000, 9.500 16.000, 9.820 16.000, 9.820 11.000, 10.140 11.000, "
              "10.140 1.000");
    EXPECT_EQ(curve[1],
              "9.820 21.000, 9.820 16.000, 9.820 16.000, 9.820 11.000, 10.460 11.000, "
              "10.460 1.000");
    EXPECT_EQ(curve[2],
              "12.700 21.000, 12.700 16.000, 13.020 16.000, 13.020 11.000, 13.020 11.000, "
              "13.020 1.000");
}

TEST_F(StratigrafiaProfili, EndAtTheFootOfTheTableAtTheLatest) {
    strati({5, 30, 20});  // a file may hold what no editor lets pass
    valori(dati.phiStrato, 25, 25, 25);
    disegna();
    EXPECT_EQ(polilinee(30)[2],
              "12.700 21.000, 12.700 16.000, 12.700 16.000, 12.700 1.000, 12.700 1.000, "
              "12.700 1.000");
}

TEST_F(StratigrafiaProfili, OfStrengthTakeTheFirstScaleThatHoldsAllValues) {
    const std::tuple<double, double, const char*, const char*> casi[] = {
        {1, 0, "\"10\" 14.940", "\"40\" 16.860"},    // full scale 5
        {5, 2, "\"10\" 14.940", "\"40\" 16.860"},    // not below 5
        {5.1, 2, "\"20\" 14.940", "\"80\" 16.860"},  // 10
        {2, 10, "\"20\" 14.940", "\"80\" 16.860"},
        {2, 10.1, "\"100\" 14.940", "\"400\" 16.860"},  // 50
        {60, 0, "\"100\" 14.940", "\"400\" 16.860"}};
    for (const auto& [c, su, prima, ultima] : casi) {
        valori(dati.coesione, 0, c, 0);
        valori(dati.suStrato, 0, 0, su);
        disegna();
        EXPECT_EQ(testiCon(prima).size(), 1u) << c << ' ' << su;
        EXPECT_EQ(testiCon(ultima).size(), 1u) << c << ' ' << su;
    }
}

TEST_F(StratigrafiaProfili, OfStrengthAreCohesionThenUndrainedStrength) {
    valori(dati.coesione, 1, 0, 2.5);
    valori(dati.suStrato, 5, 5, 0);
    disegna();
    const auto curve = polilinee(30);
    EXPECT_EQ(curve[3],
              "14.940 21.000, 14.940 16.000, 14.300 16.000, 14.300 11.000, 15.900 11.000, "
              "15.900 1.000");
    EXPECT_EQ(curve[4],
              "17.500 21.000, 17.500 16.000, 17.500 16.000, 17.500 11.000, 14.300 11.000, "
              "14.300 1.000");
}

TEST_F(StratigrafiaProfili, OfStrengthAboveFiftyRunBeyondTheColumn) {
    valori(dati.coesione, 100, 0, 0);
    disegna();
    EXPECT_TRUE(polilinee(30)[3].starts_with("20.700 21.000, 20.700 16.000"));
}

TEST_F(StratigrafiaProfili, OfStrengthAreHeadedByWhatTheLayersHave) {
    disegna();
    EXPECT_EQ(testiCon("\"coesione [kN/m²]\"").size(), 1u);

    dati.coesione[2] = 1;
    disegna();
    EXPECT_EQ(testiCon("\"c' [kN/m²]\""), Linee{"\"c' [kN/m²]\" 16.025 21.500 h 0.25 angle 90"});
    EXPECT_EQ(testiCon("Su [").size() + testiCon("coesione").size(), 0u);

    dati.suStrato[1] = 1;
    disegna();
    EXPECT_EQ(testiCon("\"c' [kN/m²]\""), Linee{"\"c' [kN/m²]\" 15.492 21.500 h 0.25 angle 90"});
    EXPECT_EQ(testiCon("\"Su [kN/m²]\""), Linee{"\"Su [kN/m²]\" 16.558 21.500 h 0.25 angle 90"});

    dati.coesione[2] = 0;
    disegna();
    EXPECT_EQ(testiCon("\"Su [kN/m²]\""), Linee{"\"Su [kN/m²]\" 16.025 21.500 h 0.25 angle 90"});
    EXPECT_EQ(testiCon("c' [").size() + testiCon("coesione").size(), 0u);
}

}  // namespace
}  // namespace korven::drawings
