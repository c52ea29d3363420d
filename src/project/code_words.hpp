#pragma once

#include <string>

#include "project/field_table.hpp"

namespace korven::project {

/// What a code of the field is called, translated. Its editor's items are one text, parted by "|",
/// since some languages need all of them to word one.
/// @pre `codice` is one of the field's: asserted
[[nodiscard]] std::string voceTradotta(const Campo& campo, const Codice& codice);

/// What a field is, translated, with its row if it is one of a table: "pretensione del tirante 2";
/// of a flag its caption, since its name is that of its line in the file.
[[nodiscard]] std::string descrizioneTradotta(const Campo& campo, int riga = 1);

}  // namespace korven::project
