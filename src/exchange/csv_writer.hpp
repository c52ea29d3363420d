#pragma once

#include <string>
#include <vector>

#include "exchange/layer_rows.hpp"

namespace korven::exchange {

/// Signs of a file of parted cells.
struct FormaCsv {
    char separatore = ';';
    char decimale = ',';
};

/// What spreadsheets of most languages read, and what those of English read.
inline constexpr FormaCsv csvPuntoEVirgola{';', ','};
inline constexpr FormaCsv csvVirgola{',', '.'};

/// Writes layers with a row of names as people see them in the language in force, UTF-8 with its
/// mark, lines ended by CR LF; `leggiCsv` gives the same rows again, whatever the language then,
/// where `difettiRighe` finds no fault.
[[nodiscard]] std::string testoCsv(const RigheStrati& righe, const FormaCsv& forma);

/// What is wrong with rows of the editor, by the rules of reading; row n is the n-th of them.
[[nodiscard]] std::vector<std::string> difettiRighe(const RigheStrati& righe);

}  // namespace korven::exchange
