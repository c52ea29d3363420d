#pragma once

#include <span>
#include <string>

#include "tables/result_table.hpp"

// A table, or a part of it, as a spreadsheet takes it from the clipboard: numbers with all their
// digits, words as they are shown, the heads of the columns with their units in the first line.

namespace korven::tables {

/// A part of a table: rows and columns of it, in the order in which they are to stand.
struct Parte {
    std::span<const std::size_t> righe, colonne;
};

/// Lines of cells parted by tabs, every line ended by a line feed. The decimal sign is the point.
[[nodiscard]] std::string testoTabulato(const Prospetto& prospetto, const Parte& parte);
/// All of it.
[[nodiscard]] std::string testoTabulato(const Prospetto& prospetto);

/// The same as a table of a document, in UTF-8. Numbers stand beside their cells in the form that
/// spreadsheets read whatever their decimal sign is, so that 12.5 is a number in Rome too.
[[nodiscard]] std::string testoHtml(const Prospetto& prospetto, const Parte& parte);

}  // namespace korven::tables
