#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "document/page.hpp"
#include "tables/result_table.hpp"

namespace korven::document {

/// A column of a table as it is set. Lengths are points.
struct ColonnaDisposta {
    std::size_t indice = 0;  ///< in the table
    double x = 0;            ///< from the left end of the text
    double larghezza = 0;    ///< with the room at both its sides
    double decimali = 0;     ///< of a column of numbers: what is kept right of the point
};

/// The parts of a table, one below the other; one for a table that is not too wide.
struct TavolaDisposta {
    double corpo = 0;  ///< size of its font
    std::vector<std::vector<ColonnaDisposta>> parti;
};

/// Room at each side of a cell [pt].
inline constexpr double margineCella = 4;

/// True for a cell with a remark on it that nobody may overlook.
[[nodiscard]] bool grave(const tables::Cella& cella);
[[nodiscard]] Carattere carattere(const tables::Cella& cella, double corpo);

/// A number as it is shown, parted at its point; the second part begins with it. Nothing of a word.
struct NumeroPartito {
    std::string intero, decimali;
};
[[nodiscard]] bool eNumero(const tables::Cella& cella);
[[nodiscard]] NumeroPartito partito(const std::string& testo);

/// Chooses the size of the font, then the widths of the columns: no number and, where possible, no
/// word is broken. A table that does not fit in its smallest size is parted by columns, and each
/// part repeats the first.
[[nodiscard]] TavolaDisposta disponi(const tables::Prospetto& prospetto, double larghezza,
                                     const MisuraCaratteri& misura);

}  // namespace korven::document
