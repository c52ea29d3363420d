#pragma once

#include <string>

#include "project/field_table.hpp"

namespace korven::project {

/// What a code of the field is called, translated. Its editor's items are one text, parted by "|",
/// since some languages need all of them to word one.
/// @pre `codice` is one of the field's: asserted
[[nodiscard]] std::string voceTradotta(const Campo& campo, const Codice& codice);

}  // namespace korven::project
