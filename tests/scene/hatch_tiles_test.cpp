#include "scene/hatch_tiles.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "scene/polygon.hpp"
#include "support/hatch_setup.hpp"

namespace korven::scene {
namespace {

class PiastrelleTest : public test::ProvaCampiture {
 protected:
    PiastrelleTest() {
        scriviLibreria(programma, {{3, {0.005, {{-100, 0, 100, 0}}, "riga"}},
                                   {4, {0.01, {{0, -50, 0, -50}}, "punto"}}});
    }
};

TEST_F(PiastrelleTest, HaveTheSizeOfTheLibrary) {
    // 200 units of 0.005 cm at 40 px a centimetre; step 5 is twice as large.
    const auto una = piastrelle(103);
    ASSERT_EQ(una.size(), 1U);
    EXPECT_NEAR(una[0].lato, 40, 1e-9);
    EXPECT_NEAR(piastrelle(503)[0].lato, 80, 1e-9);
    EXPECT_EQ(una[0].tratti[0].first, (Punto{0, 20}));
    EXPECT_EQ(una[0].tratti[0].second, (Punto{40, 20}));
}

TEST_F(PiastrelleTest, LieOverEachOtherByTheGroupsOfTheCode) {
    EXPECT_EQ(piastrelle(104103).size(), 2U);
    EXPECT_EQ(piastrelle(199).size(), 0U);  // no strokes
    EXPECT_EQ(piastrelle(0).size(), 0U);
}

TEST_F(PiastrelleTest, TurnTheLibraryUpsideDown) {
    // 50 units below the middle of a tile of 80 px: at 60 from the top.
    EXPECT_NEAR(piastrelle(104)[0].tratti[0].first.y, 60, 1e-9);
}

TEST_F(PiastrelleTest, GiveStrokesThatEndAtTheBorder) {
    const auto t = tratti({rettangolo(10, 10, 70, 30), 103, {}});
    ASSERT_EQ(t.size(), 2U);  // the line at 20, in two tiles
    EXPECT_EQ(t[0].first, (Punto{10, 20}));
    EXPECT_EQ(t[1].second, (Punto{70, 20}));
}

TEST_F(PiastrelleTest, AreNoneWithoutALibrary) {
    std::filesystem::remove(programma / "set4.rtn");
    EXPECT_TRUE(piastrelle(103).empty());
}

}  // namespace
}  // namespace korven::scene
