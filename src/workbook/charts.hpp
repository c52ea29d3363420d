#pragma once

#include <xlsxwriter.h>

#include "workbook/sheet.hpp"

namespace korven::workbook {

/// Puts the charts of a workbook side by side on one of its sheets: depth downwards from the head
/// of the wall, the quantity along the upper edge, 0 as a line through it.
void inserisciGrafici(const CartellaFogli& cartella, lxw_workbook* libro, lxw_worksheet* foglio);

}  // namespace korven::workbook
