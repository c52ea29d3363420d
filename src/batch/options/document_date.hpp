#pragma once

#include <string>

#include "batch/options/choices.hpp"

namespace korven::batch {

/// Why the date of the document that is asked for can't be told: SOURCE_DATE_EPOCH says something
/// that is no number of seconds, and no option says otherwise. A date of today would go unnoticed
/// where someone means to make the same document again. Empty: nothing is wrong, or the command
/// dates nothing.
[[nodiscard]] std::string dataIgnota(const Opzioni& opzioni);

}  // namespace korven::batch
