#pragma once

#include <string>

namespace korven::batch {

/// A number as the progress and the table show it: `valore` * 10^`potenza`, rounded half away from
/// zero to `decimali` digits after the point. From a thousand millions on, where a failing wall may
/// get to, the short form "1.000e+12" keeps lines and columns in place; "-" for no number.
[[nodiscard]] std::string numeroMostrato(double valore, int decimali, int potenza = 0);

}  // namespace korven::batch
