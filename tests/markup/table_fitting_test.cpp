#include "markup/table_fitting.hpp"

#include <gtest/gtest.h>

#include <string>

namespace korven::markup {
namespace {

using Rows = std::vector<std::string>;

constexpr double u = 72 / 2.54;

double fives(std::string_view text) { return 5.0 * static_cast<double>(text.size()); }

FittedTable fit(CellGrid& grid, const Rows& rows, BlockKind kind = BlockKind::table) {
    ScanState state;
    for (const auto& row : rows) state.rows[++state.rowCount] = row;
    grid.fill(state);
    return fitColumns(grid, kind, fives);
}

TEST(FitColumns, AlignsTheNumbersOfEachColumnByItself) {
    CellGrid grid;
    fit(grid, {"1\t10", "2.50\t7", "3.125\t8"});
    EXPECT_EQ(grid.cell(1, 1), "1.000");
    EXPECT_EQ(grid.cell(2, 1), "2.500");
    EXPECT_EQ(grid.cell(3, 1), "3.125");
    EXPECT_EQ(grid.cell(1, 2), "10");
}

TEST(FitColumns, TakesTheWidestRewrittenAndTrimmedCellTheHeadAmongThem) {
    CellGrid grid;
    const FittedTable fitted = fit(grid, {" Prof. [m] \tn", "1\t  12345  ", "2.125\t7"});
    ASSERT_EQ(fitted.widths.size(), 2u);
    EXPECT_DOUBLE_EQ(fitted.widths[0], 45);  // "Prof. [m]"
    EXPECT_DOUBLE_EQ(fitted.widths[1], 25);  // "12345"
    EXPECT_DOUBLE_EQ(fitted.total, 70 + 2 * 0.5 * u);
}

TEST(FitColumns, FitsATextBesideANumberThatStaysAsItIs) {
    CellGrid grid;
    const FittedTable fitted = fit(grid, {"1", "abc"});
    EXPECT_DOUBLE_EQ(fitted.widths[0], 15);
    EXPECT_EQ(grid.cell(1, 1), "1");
}

TEST(FitColumns, GivesTheLabelsOfAListMoreRoom) {
    CellGrid grid;
    const FittedTable fitted = fit(grid, {"ab\t1"}, BlockKind::list);
    EXPECT_DOUBLE_EQ(fitted.widths[0], 10 + 0.5 * u);
    EXPECT_DOUBLE_EQ(fitted.widths[1], 5);
    EXPECT_DOUBLE_EQ(fitted.total, 15 + 1.5 * u);
}

TEST(FitColumns, LosesTheColumnsThatTheLastRowLacks) {
    CellGrid grid;
    EXPECT_EQ(fit(grid, {"a\tb\tc", "d\te"}).widths.size(), 2u);
}

TEST(FitColumns, CountsWhatAnEarlierTableLeftWhereARowIsShort) {
    CellGrid grid;
    fit(grid, {"x\t1", "y\t2.25"});  // leaves 1.00 and 2.25 in column 2
    const FittedTable fitted = fit(grid, {"a", "b\t7"});
    EXPECT_EQ(grid.cell(1, 2), "1.00");
    EXPECT_EQ(grid.cell(2, 2), "7.00");
    EXPECT_DOUBLE_EQ(fitted.widths[1], 20);
}

TEST(FitColumns, OfNoRowsHasNoColumns) {
    CellGrid grid;
    const FittedTable fitted = fit(grid, {});
    EXPECT_TRUE(fitted.widths.empty());
    EXPECT_DOUBLE_EQ(fitted.total, 0);
}

}  // namespace
}  // namespace korven::markup
