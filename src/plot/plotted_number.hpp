#pragma once

#include <string>

namespace korven::plot {

/// The text that `plotNumero` writes: five decimals, of which `decimali` are kept. They are cut,
/// not rounded: 2.678 with one decimal is 2.6.
///
///     1.5:  0 gives "1.", -1 gives "1", 3 gives "1.500"
///
/// @param valore    finite; below 0 it has its sign even when no digit remains: -0.3 is "-0"
/// @param decimali  0 to 5; 0 keeps the point, -1 takes it off, above 5 is as 5
[[nodiscard]] std::string testoPlotNumero(double valore, int decimali);

}  // namespace korven::plot
