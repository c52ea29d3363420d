#pragma once

#include <string>

#include "base/table.hpp"
#include "plot/colour.hpp"

namespace korven::plot {

inline constexpr int numeroPenne = 30;

/// What a pen draws with.
struct PennaPlot {
    Colore colore = nonDisegnato;  ///< 0: the pen moves and leaves no trace
    double spessore = 0;           ///< line width [cm]
    std::string carattere;         ///< typeface of the texts written with it
    bool operator==(const PennaPlot&) const = default;
};

/// Pens 1 to 30; row 0 is a pen that draws nothing.
using TabellaPenne = base::Tabella<PennaPlot, numeroPenne>;

}  // namespace korven::plot
