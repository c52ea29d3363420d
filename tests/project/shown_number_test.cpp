#include "project/shown_number.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace korven::project {
namespace {

using namespace unita;

TEST(NumeroMostrato, RoundsHalfAwayFromZeroOnBothSides) {
    const struct {
        double valore;
        int decimali;
        Unita unita;
        const char* testo;
    } casi[] = {
        {0.00125, 4, metri, "0.0013"},         {-0.00125, 4, metri, "-0.0013"},
        {0.0000125, 4, spostamento, "0.0013"}, {-0.0000125, 4, spostamento, "-0.0013"},
        {4.1184999, 2, momento, "41.18"},      {4.1185, 2, momento, "41.19"},
        {-4.1185, 2, momento, "-41.19"},       {-0.00001, 2, momento, "0.00"},
        {999999999.5, 0, metri, "1000000000"},
    };
    for (const auto& [valore, decimali, unita, testo] : casi)
        EXPECT_EQ(numeroMostrato(valore, decimali, unita), testo) << valore;
}

TEST(NumeroMostrato, IsShortForWhatNoWallReaches) {
    EXPECT_EQ(numeroMostrato(1e12, 4), "1.000e+12");
    EXPECT_EQ(numeroMostrato(-1.23456e300, 2), "-1.235e+300");
    EXPECT_EQ(numeroMostrato(1e8, 2, momento), "1.000e+09");
    EXPECT_EQ(numeroMostrato(1e308, 2, momento), "-");
    EXPECT_EQ(numeroMostrato(std::numeric_limits<double>::quiet_NaN(), 2), "-");
}

}  // namespace
}  // namespace korven::project
