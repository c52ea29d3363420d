#include "plot/markers.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

#include "support/plot_record.hpp"

namespace korven::plot {
namespace {

// "U" or "D" and the offsets in twelfths, in which all of them are whole.
std::string scritto(double codice, double angolo = 0) {
    std::string testo;
    for (const auto& p : trattiSimbolo(codice, angolo))
        testo += (testo.empty() ? "" : " ") + std::string(p.codice == 3 ? "U" : "D") +
                 test::cifre(12 * p.dx, 0) + ',' + test::cifre(12 * p.dy, 0);
    return testo;
}

TEST(TrattiSimbolo, EachCodeHasItsShape) {
    const std::map<int, std::string> forme = {
        {1, "U0,6 D-2,6 D-6,2 D-6,-2 D-2,-6 D2,-6 D6,-2 D6,2 D2,6 D0,6"},
        {2, "U0,6 D-6,-6 D6,-6 D0,6"},
        {3, "U-6,0 D6,0 U0,6 D0,-6"},
        {4, "U-6,-6 D6,6 U-6,6 D6,-6"},
        {5, "U0,6 D-6,0 D0,-6 D6,0 D0,6"},
        {6, "U0,-6 D0,6 D-6,0 D6,0 D0,6"},
        {7, "U0,-6 D6,6 D-6,6 D0,-6"},
        {8, "U-6,6 D6,6 D-6,-6 D-6,6"},
        {9, "U-6,6 D0,0 D6,6 U0,0 D0,-6"},
        {10, "U-3,3 D-3,-3 D3,-3 D3,3 D-3,3 U-6,6 D-3,3 U-6,-6 D-3,-3 U6,-6 D3,-3 U6,6 D3,3"},
        {11, "U-6,-6 D6,6 U-6,6 D6,-6 U-6,0 D6,0 U0,6 D0,-6"},
        {12, "U-6,6 D6,6 D6,-6 D-6,-6 D-6,6"},
        {13, "U0,-6 D0,6"},
        {14, "U0,6 D-6,-3 D6,-3 D0,6 U0,-6 D-6,3 D6,3 D0,-6"},
        {15, "U0,0 D12,0"},
        {16, "U0,0 D0,12"}};
    for (const auto& [codice, forma] : forme) EXPECT_EQ(scritto(codice), forma) << codice;
}

TEST(TrattiSimbolo, TriangleTurnedBy180HasItsPointDownAndNoOtherMarkerTurns) {
    EXPECT_EQ(scritto(2, 180), "U0,-6 D-6,6 D6,6 D0,-6");
    EXPECT_EQ(scritto(2, 90), scritto(2));
    for (int codice = 1; codice <= 16; ++codice)
        if (codice != 2) {
            EXPECT_EQ(scritto(codice, 180), scritto(codice)) << codice;
        }
}

TEST(TrattiSimbolo, OtherCodesHaveNoStrokes) {
    for (const double codice : {-1.0, 0.0, 2.5, 17.0, 1000.0}) EXPECT_EQ(scritto(codice), "");
}

}  // namespace
}  // namespace korven::plot
