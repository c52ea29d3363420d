#pragma once

#include <string_view>

#include "project/section.hpp"

namespace korven::drawings {

/// The letter by which the formulas of a document call a measure of the section, and with them
/// the figure above: one letter, one measure. It is that of the section's form, but for the bars of
/// a pile, whose "d" is the effective depth in the formulas of shear.
/// @return empty for a field that is no measure of the figure
[[nodiscard]] std::string_view simboloFormule(double project::Sezione::*misura);

}  // namespace korven::drawings
