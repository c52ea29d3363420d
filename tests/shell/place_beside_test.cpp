#include "shell/place_beside.hpp"

#include <gtest/gtest.h>

namespace korven::shell {
namespace {

constexpr QRect schermo(0, 0, 1024, 600);
constexpr QSize misura(300, 200);

TEST(PostoAccanto, IsToTheRightWhereTheScreenHasTheRoom) {
    EXPECT_EQ(postoAccanto({100, 50, 624, 400}, misura, schermo), QPoint(724, 50));
}

TEST(PostoAccanto, IsToTheLeftWhereOnlyThatHasTheRoom) {
    EXPECT_EQ(postoAccanto({400, 50, 624, 400}, misura, schermo), QPoint(100, 50));
}

TEST(PostoAccanto, IsBelowOrAboveWhereTheSidesHaveNoRoom) {
    EXPECT_EQ(postoAccanto({120, 50, 800, 350}, misura, schermo), QPoint(120, 400));
    EXPECT_EQ(postoAccanto({120, 200, 800, 390}, misura, schermo), QPoint(120, 0));
}

TEST(PostoAccanto, CoversAsLittleAsItCanOnAScreenWithoutRoom) {
    // At the right end 1 x 200 of it, in the corner below 1 x 50.
    EXPECT_EQ(postoAccanto({101, 50, 624, 400}, misura, schermo), QPoint(724, 400));
    // 236 x 200 of it at the right end, 236 x 180 in the corner below, 240 x 180 at the left.
    EXPECT_EQ(postoAccanto({60, 20, 900, 560}, misura, schermo), QPoint(724, 400));
}

TEST(PostoAccanto, IsOnTheScreenAsFarDownAsThatGoes) {
    EXPECT_EQ(postoAccanto({0, 550, 400, 400}, misura, schermo), QPoint(400, 400));
    EXPECT_EQ(postoAccanto({0, -80, 400, 400}, misura, schermo), QPoint(400, 0));
    EXPECT_EQ(postoAccanto({60, 20, 900, 560}, {1100, 700}, schermo), QPoint(0, 0));
}

TEST(PostoAccanto, IsOnTheSecondScreenWithTheOther) {
    EXPECT_EQ(postoAccanto({1100, 50, 500, 400}, misura, {1024, 0, 1024, 600}), QPoint(1600, 50));
}

TEST(PostoPrincipale, IsTheCornerThatLeavesTheRestOfTheScreenToOtherWindows) {
    EXPECT_EQ(postoPrincipale({0, 0, 1920, 1080}), QPoint(0, 0));
    EXPECT_EQ(postoPrincipale({0, 30, 1280, 994}), QPoint(0, 30));
    EXPECT_EQ(postoPrincipale({1024, 0, 1024, 600}), QPoint(1024, 0));
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
