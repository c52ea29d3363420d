#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "review/remark_table.hpp"

namespace korven::review {

/// How many characters of heading line `riga`, from 1 to 6, the sheets of all drawings hold; all of
/// them if there is room. Measured in the typeface that the pens have as delivered.
[[nodiscard]] std::size_t caratteriNelFoglio(std::size_t riga, const std::string& testo);

/// What is odd about a heading line.
struct Stranezza {
    Voce voce;
    std::string testo;  ///< translated
};

/// All that is odd about one: the report takes it for a command, the sheet
/// ends before it does, the log prints it over its neighbour.
/// @param riga   from 1; a line after the sixth has nothing odd
/// @param righe  all lines, element 0 is line 1
[[nodiscard]] std::vector<Stranezza> stranezzeTitolo(std::size_t riga,
                                                     const std::vector<std::string>& righe);

/// The same for the strip of the headings form, in one line; empty if there is nothing to say.
/// @param campo  of the form, from 0
[[nodiscard]] std::string notaTitolo(std::size_t campo, const std::vector<std::string>& righe);

}  // namespace korven::review
