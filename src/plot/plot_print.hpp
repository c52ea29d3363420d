#pragma once

#include "base/dialogo.hpp"
#include "plot/printer.hpp"

namespace korven::plot {

/// Overlap of neighbouring sheets [cm]: the number in the first line of overlap.cfg in the program
/// folder, 1 without that file.
/// @throws ErroreFile when the file holds no number
[[nodiscard]] double sovrapposizioneFogli();

/// Prints the stored drawing, row by row of sheets at full size, or fitted to one sheet. A printer
/// with fewer than two colour planes prints black, unless a file "forcecol" in the program folder
/// says that it knows colours all the same.
/// @param dialogo  whose pointer waits meanwhile
/// @throws ErroreFile when overlap.cfg is no number or as large as the sheet, or a spill file can't
/// be read
void plotStampa(bool adatta, Stampante& stampante, base::Dialogo& dialogo);

}  // namespace korven::plot
