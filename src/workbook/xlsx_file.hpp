#pragma once

#include <string>

#include "workbook/sheet.hpp"

namespace korven::workbook {

/// Characters that a cell of the format may hold.
inline constexpr std::size_t massimoTestoCella = 32767;

/// The bytes of the workbook in the format of spreadsheets (Office Open XML). A sheet has its title
/// with its source in the first row, the heads in the second, both of which stay in place, then the
/// table and below it its notes. Numbers are numbers with 16 digits, shown with as many decimals as
/// the tables show; nothing is a formula. A cell that has nothing to show is empty, and a remark on
/// it says why, where that is known, or on the first of several below one another. The charts are
/// on the last sheet. Equal workbooks give equal bytes, whenever they are written.
/// @param percorso  of the file that it becomes, for errors to name
/// @throws base::ErroreScrittura if the system has no room for the file in the making
[[nodiscard]] std::string xlsx(const CartellaFogli& cartella, const std::string& percorso = "XLSX");

}  // namespace korven::workbook
