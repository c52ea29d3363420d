#include "markup/cells.hpp"

#include <gtest/gtest.h>

namespace korven::markup {
namespace {

using Cells = std::vector<std::string>;

ScanState table(const Cells& rows) {
    ScanState state;
    for (const auto& row : rows) state.rows[++state.rowCount] = row;
    return state;
}

TEST(CutIntoCells, CutsAtEachTabAndKeepsTheTexts) {
    EXPECT_EQ(cutIntoCells("a\t b \tc"), (Cells{"a", " b ", "c"}));
    EXPECT_EQ(cutIntoCells("a"), (Cells{"a"}));
    EXPECT_EQ(cutIntoCells(""), (Cells{""}));
    EXPECT_EQ(cutIntoCells("\ta\t"), (Cells{"", "a", ""}));
}

TEST(CellGrid, CountsTheColumnsOfTheLastRow) {
    CellGrid grid;
    grid.fill(table({"a\tb\tc", "d\te"}));
    EXPECT_EQ(grid.rowCount(), 2);
    EXPECT_EQ(grid.columns(), 2);
    EXPECT_EQ(grid.cell(1, 3), "c");
    EXPECT_EQ(grid.cell(2, 2), "e");
    grid.fill(table({}));
    EXPECT_EQ(grid.columns(), 0);
}

TEST(CellGrid, MissingCellsKeepWhatAnEarlierTableLeftThere) {
    CellGrid grid;
    grid.fill(table({"old 1\told 2\told 3", "x\ty\tz"}));
    grid.fill(table({"new", "a\tb\tc"}));
    EXPECT_EQ(grid.cell(1, 1), "new");
    EXPECT_EQ(grid.cell(1, 2), "old 2");
    EXPECT_EQ(grid.cell(1, 3), "old 3");
}

TEST(CellGrid, HoldsRows1To510AndColumns1To30) {
    CellGrid grid;
    grid.fill(table(Cells(510, std::string(29, '\t'))));
    EXPECT_EQ(grid.columns(), 30);
    EXPECT_THROW(grid.fill(table(Cells(511, "a"))), base::ErroreIndice);
    EXPECT_THROW(grid.fill(table({std::string(30, '\t')})), base::ErroreIndice);
    EXPECT_THROW((void)grid.cell(0, 1), base::ErroreIndice);
}

}  // namespace
}  // namespace korven::markup
