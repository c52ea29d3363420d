#include "drawings/log/description_blocks.hpp"

#include <gtest/gtest.h>

namespace korven::drawings {
namespace {

void aspetta(const std::vector<double>& trovati, const std::vector<double>& attesi) {
    ASSERT_EQ(trovati.size(), attesi.size());
    for (std::size_t i = 0; i < attesi.size(); ++i) EXPECT_NEAR(trovati[i], attesi[i], 1e-12) << i;
}

TEST(AltezzaBlocco, GrowsByOneAndAHalfCharactersALine) {
    EXPECT_DOUBLE_EQ(altezzaBlocco(1, 0.25), 0.5);
    EXPECT_DOUBLE_EQ(altezzaBlocco(2, 0.25), 0.875);
    EXPECT_DOUBLE_EQ(altezzaBlocco(10, 0.2), 3.1);
}

TEST(AltezzaBlocco, OfNoLinesIsNothing) { EXPECT_EQ(altezzaBlocco(0, 0.25), 0); }

TEST(DisponiBlocchi, EndsABlockOnItsOwnLineWhereItHasRoom) {
    aspetta(disponiBlocchi({{16, 1}, {11, 2}, {1, 0.5}}, 21, 1), {16, 11, 1});
    aspetta(disponiBlocchi({{16, 5}}, 21, 1), {16});
}

TEST(DisponiBlocchi, PushesABlockBelowTheOneBefore) {
    aspetta(disponiBlocchi({{20, 3}, {19, 0.5}, {10, 1}}, 21, 1), {18, 17.5, 10});
}

TEST(DisponiBlocchi, SetsTheLastBlockOnTheFootOfTheTableAndPushesUpWhatOverlaps) {
    aspetta(disponiBlocchi({{10, 1}, {2, 0.5}, {1, 1.25}}, 21, 1), {10, 2.25, 1});
    aspetta(disponiBlocchi({{3, 1}, {2, 1}, {1, 1.5}}, 21, 1), {3.5, 2.5, 1});
}

TEST(DisponiBlocchi, StopsPushingUpAtTheFirstBlockThatHasRoom) {
    // The second is clear above the third, so the first two stay as they were.
    aspetta(disponiBlocchi({{10.5, 1}, {10, 1}, {2, 1}, {1, 1.5}}, 21, 1), {10.5, 9.5, 2.5, 1});
}

TEST(DisponiBlocchi, ABlockWithoutLinesTakesNoRoom) {
    aspetta(disponiBlocchi({{16, 0}, {15.5, 0.5}}, 21, 1), {16, 15.5});
    aspetta(disponiBlocchi({{20.5, 1}, {20.2, 0}}, 21, 1), {20, 20});
    aspetta(disponiBlocchi({}, 21, 1), {});
}

TEST(DisponiBlocchi, TooManyBlocksLeaveAtTheTop) {
    aspetta(disponiBlocchi({{15, 10}, {10, 9}, {1, 3}}, 21, 1), {13, 4, 1});
}

}  // namespace
}  // namespace korven::drawings
