#include "shell/place_beside.hpp"

#include <gtest/gtest.h>

namespace korven::shell {
namespace {

constexpr QRect schermo(0, 0, 1024, 600);
constexpr QSize misura(300, 200);

TEST(PostoAccanto, IsToTheRightWhereTheScreenHasTheRoom) {
    EXPECT_EQ(postoAccanto({100, 50, 624, 400}, misura, schermo), QPoint(724, 50));
    EXPECT_EQ(postoAccanto({101, 50, 624, 400}, misura, schermo), QPoint(724, 50));  // over it
}

TEST(PostoAccanto, IsToTheLeftWhereOnlyThatHasTheRoom) {
    EXPECT_EQ(postoAccanto({400, 50, 624, 400}, misura, schermo), QPoint(100, 50));
}

TEST(PostoAccanto, LiesOverTheOtherAtTheEndOfAScreenWithoutRoom) {
    EXPECT_EQ(postoAccanto({60, 20, 900, 560}, misura, schermo), QPoint(724, 20));
}

TEST(PostoAccanto, IsOnTheScreenAsFarDownAsThatGoes) {
    EXPECT_EQ(postoAccanto({0, 550, 400, 400}, misura, schermo), QPoint(400, 400));
    EXPECT_EQ(postoAccanto({0, -80, 400, 400}, misura, schermo), QPoint(400, 0));
    EXPECT_EQ(postoAccanto({60, 20, 900, 560}, {1100, 700}, schermo), QPoint(0, 0));
}

TEST(PostoAccanto, IsOnTheSecondScreenWithTheOther) {
    EXPECT_EQ(postoAccanto({1100, 50, 500, 400}, misura, {1024, 0, 1024, 600}), QPoint(1600, 50));
}

TEST(PostoAccanto, LeavesTheHeadsInSightOfTheWindowsThatLieThere) {
    const QRect altra(100, 50, 624, 400);
    EXPECT_EQ(postoAccanto(altra, misura, schermo, {{724, 50}}), QPoint(696, 78));
    EXPECT_EQ(postoAccanto(altra, misura, schermo, {{696, 78}, {724, 50}}), QPoint(668, 106));
    EXPECT_EQ(postoAccanto(altra, misura, schermo, {{10, 10}}), QPoint(724, 50));
}

TEST(PostoAccanto, StaysOnTheScreenHoweverManyLieThere) {
    QList<QPoint> presi;
    for (int i = 0; i < 60; ++i) {
        const QPoint posto = postoAccanto({100, 380, 624, 400}, misura, schermo, presi);
        EXPECT_TRUE(schermo.contains(QRect(posto, misura))) << posto.x() << ' ' << posto.y();
        presi.append(posto);
    }
}

}  // namespace
}  // namespace korven::shell
