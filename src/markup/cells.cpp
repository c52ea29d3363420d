#include "markup/cells.hpp"

namespace korven::markup {

std::vector<std::string> cutIntoCells(std::string_view row) {
    std::vector<std::string> cells;
    for (;;) {
        const auto tab = row.find('\t');
        cells.emplace_back(row.substr(0, tab));
        if (tab == std::string_view::npos) return cells;
        row.remove_prefix(tab + 1);
    }
}

void CellGrid::fill(const ScanState& state) {
    rowCount_ = state.rowCount;
    columns_ = 0;
    for (int row = 1; row <= rowCount_; ++row) {
        columns_ = 0;
        for (auto& text : cutIntoCells(state.rows[row])) cell(row, ++columns_) = std::move(text);
    }
}

std::string& CellGrid::cell(int row, int column) {
    if (row < 1 || row > maximumGridRows) throw base::ErroreIndice(row, maximumGridRows);
    const auto index = static_cast<std::size_t>(row);
    if (rows_.size() <= index) rows_.resize(index + 1);
    return rows_[index][column];
}

}  // namespace korven::markup
