#pragma once

#include <string_view>

#include "project/section.hpp"

namespace korven::drawings {

/// The letter by which the formulas of a document call a measure of the section, and with them
/// the figure above: one letter, one measure. Those of the section's form differ, since there no
/// formula needs "d" for the effective depth or "s" for the flange.
/// @return empty for a field that is no measure of the figure
[[nodiscard]] std::string_view simboloFormule(double project::Sezione::*misura);

}  // namespace korven::drawings
