#pragma once

#include <string_view>

#include "exchange/layer_rows.hpp"

// Layers as a table of parted cells, for spreadsheets. Units are those of the editor.

namespace korven::exchange {

/// Reads layers. The sign between cells is found out: semicolon, comma or tab; a line "sep=;" says
/// it too. The first row tells the names of the columns (layer_columns.hpp) unless it begins with
/// a number: then the columns are those of the editor, in its order. Rows without a text are passed
/// over. Numbers have a decimal point, or a comma where no comma parts the cells, one of the two in
/// the whole file. Without a column of depths the thicknesses are added up from the head of the
/// wall. A line end in a description becomes a blank, a character that no project file can hold
/// a "?".
///
/// Each fault is told with line and column, and then nothing is taken: a text that is no number, a
/// number beyond the limits of its field, a missing depth, a cell without a column, more layers
/// than a project holds, no layer at all.
/// @param testo  UTF-8 (file_text.hpp)
[[nodiscard]] StratiLetti leggiCsv(std::string_view testo);

}  // namespace korven::exchange
