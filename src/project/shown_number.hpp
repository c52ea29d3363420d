#pragma once

#include <string>

#include "project/units.hpp"

namespace korven::project {

/// A stored number as the progress and the table show it: in the shown unit, rounded half away from
/// zero to `decimali` digits after the point. From a thousand millions on, where a failing wall may
/// get to, the short form "1.000e+12" keeps lines and columns in place; "-" for no number.
[[nodiscard]] std::string numeroMostrato(double valore, int decimali,
                                         const Unita& unita = unita::nessuna);

/// A number that the report has, by its digits: rounded to four decimals and cut to two. Wherever a
/// number is called the report's it is written with these.
/// @param mostrato  in the shown unit; "-" for no number
[[nodiscard]] std::string numeroRelazione(double mostrato);

}  // namespace korven::project
