#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "base/table.hpp"
#include "markup/scan_state.hpp"

namespace korven::markup {

inline constexpr int maximumGridRows = 510;
inline constexpr int maximumGridColumns = 30;

/// The cells of a row: one tab is put after it and it is cut at each tab, so an empty row is one
/// empty cell and a tab at the end adds one. The texts are kept as they are, blanks included.
[[nodiscard]] std::vector<std::string> cutIntoCells(std::string_view row);

/// The cells of the tables of one document, counted from 1. The grid is not cleared between tables:
/// where a row has fewer cells than the last row of its table, the columns that it lacks keep what
/// an earlier table left there.
class CellGrid {
 public:
    /// Takes the collected rows over. The number of columns is the number of cells of the last row.
    /// @throws ErroreIndice for a row beyond 510 or a cell beyond column 30
    void fill(const ScanState& state);

    [[nodiscard]] int rowCount() const { return rowCount_; }
    [[nodiscard]] int columns() const { return columns_; }

    /// @throws ErroreIndice outside rows 1 to 510 and columns 1 to 30
    [[nodiscard]] std::string& cell(int row, int column);

 private:
    // As many as were asked for, not 510: a document of one line is laid out in no time. References
    // to cells stay when rows are added.
    std::deque<base::Tabella<std::string, maximumGridColumns>> rows_;
    int rowCount_ = 0;
    int columns_ = 0;
};

}  // namespace korven::markup
