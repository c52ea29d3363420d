#include "markup/table_fitting.hpp"

#include <algorithm>
#include <string>

#include "base/code_page.hpp"
#include "markup/number_profile.hpp"

namespace korven::markup {

namespace {

int decimalsOf(CellGrid& grid, int column) {
    int decimals = textProfile;
    for (int row = 1; row <= grid.rowCount(); ++row)
        decimals = std::max(decimals, numberProfile(grid.cell(row, column)));
    return decimals;
}

void align(CellGrid& grid, int column) {
    const int decimals = decimalsOf(grid, column);
    for (int row = 1; row <= grid.rowCount(); ++row) {
        std::string& cell = grid.cell(row, column);
        const std::string aligned = alignedCell(cell, numberProfile(cell), decimals);
        cell = base::senzaSpaziEsterni(aligned);
    }
}

double widestOf(CellGrid& grid, int column, const TextMeasure& measure) {
    double widest = 0;  // no text is narrower
    for (int row = 1; row <= grid.rowCount(); ++row)
        widest = std::max(widest, measure(grid.cell(row, column)));
    return widest;
}

}  // namespace

FittedTable fitColumns(CellGrid& grid, BlockKind kind, const TextMeasure& measure) {
    for (int column = 1; column <= grid.columns(); ++column) align(grid, column);
    FittedTable fitted;
    for (int column = 1; column <= grid.columns(); ++column) {
        double width = widestOf(grid, column, measure);
        if (kind == BlockKind::list && column == 1) width += columnGap;
        fitted.widths.push_back(width);
        fitted.total += width + columnGap;
    }
    return fitted;
}

}  // namespace korven::markup
