#pragma once

#include <xlsxwriter.h>

#include <cstddef>

// Where the parts of a table are on its sheet.

namespace korven::workbook {

inline constexpr lxw_row_t rigaTitolo = 0, rigaTesta = 1;

/// Row of the sheet in which a row of the table is, both counted from 0.
[[nodiscard]] constexpr lxw_row_t rigaFoglio(std::size_t riga) {
    return rigaTesta + 1 + static_cast<lxw_row_t>(riga);
}

}  // namespace korven::workbook
