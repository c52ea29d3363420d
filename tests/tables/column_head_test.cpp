#include "tables/column_head.hpp"

#include <gtest/gtest.h>

namespace korven::tables {
namespace {

// All letters as wide as 1.
int larga(std::string_view testo) { return static_cast<int>(testo.size()); }

const Colonna momento{.titolo = "Momento min.", .unita = "kN m/m"};

TEST(LarghezzaMinimaTesta, IsThatOfTheWidestWordOrOfTheUnit) {
    EXPECT_EQ(larghezzaMinimaTesta(momento, larga), 8);  // [kN m/m]
    EXPECT_EQ(larghezzaMinimaTesta({.titolo = "Spostamento", .unita = "mm"}, larga), 11);
    EXPECT_EQ(larghezzaMinimaTesta({.titolo = "Di progetto"}, larga), 8);
    EXPECT_EQ(larghezzaMinimaTesta({}, larga), 0);
}

TEST(TestaInRighe, BreaksWhereTheNextWordHasNoRoom) {
    EXPECT_EQ(testaInRighe(momento, 21, larga), "Momento min. [kN m/m]");
    EXPECT_EQ(testaInRighe(momento, 20, larga), "Momento min.\n[kN m/m]");
    EXPECT_EQ(testaInRighe(momento, 13, larga), "Momento min.\n[kN m/m]");
    EXPECT_EQ(testaInRighe(momento, 11, larga), "Momento\nmin.\n[kN m/m]");
}

TEST(TestaInRighe, LeavesAWordWholeThatIsTooWide) {
    EXPECT_EQ(testaInRighe(momento, 3, larga), "Momento\nmin.\n[kN m/m]");
    EXPECT_EQ(testaInRighe({.titolo = "z"}, 0, larga), "z");
    EXPECT_EQ(testaInRighe({}, 5, larga), "");
}

}  // namespace
}  // namespace korven::tables
