#pragma once

#include <string>
#include <vector>

#include "drawings/annex/depth_panels.hpp"
#include "scene/text_measure.hpp"

namespace korven::drawings {

/// The shown numbers of a panel across its width: those of all its curves and 0, with some air.
class ScalaPannello {
 public:
    /// @param x1, x2  left and right end of the panel [px]
    ScalaPannello(const DatiPannello& dati, double x1, double x2);

    /// Where a number lies, in the shown unit [px].
    [[nodiscard]] double x(double mostrato) const {
        return x1 + (x2 - x1) * (mostrato - minimo) / (massimo - minimo);
    }

    double x1, x2;                   ///< ends of the panel
    double minimo = 0, massimo = 0;  ///< numbers there
};

/// A number of the axis above a panel.
struct NumeroAscissa {
    double tacca = 0;  ///< of its mark [px]
    double x = 0;      ///< of its middle, which stays in the panel
    double mezza = 0;  ///< half its width
    std::string testo;
};

/// As many numbers as stand clear of each other; where that is 0 alone, those of a finer step that
/// find room beside it, the farthest first.
[[nodiscard]] std::vector<NumeroAscissa> numeriAscisse(const ScalaPannello& scala,
                                                       const scene::MisuraTesti& misura);

}  // namespace korven::drawings
