#pragma once

#include "project/units.hpp"

namespace korven::drawings {

/// Height of the paper that the log is made for where there is no printer: A4, upright [cm].
inline constexpr double altezzaPaginaA4 = 29.7;

/// A page as low as this leaves the layers no room [cm].
inline constexpr double paginaTroppoBassa = 8.1;

/// Lower edge of the log on its sheet of 28.5 cm [cm], so that it fits a page of that height:
///
///     28.5 - altezzaPagina + 0.1, at least 0.6
///
/// @param altezzaPagina  of the printer [cm], above `paginaTroppoBassa`: asserted
[[nodiscard]] double bordoInferiore(double altezzaPagina);

/// Where depths lie on the sheet of the log.
class ScalaProfondita {
 public:
    static constexpr double yTesta = 21;  ///< ordinate of the ground level [cm]

    /// @param profondita      foot of the last layer [m], above 0
    /// @param bordoInferiore  of the drawing [cm], below 20.6
    /// @pre both in range: asserted
    ScalaProfondita(double profondita, double bordoInferiore);

    /// The scale is 1 : N, with N = 100 H / (20.6 - lower edge): all layers fill the column.
    [[nodiscard]] double N() const { return N_; }
    /// Ordinate of a depth [m]: 21 - 100 d / N.
    [[nodiscard]] double y(double profondita) const {
        return yTesta - project::inCentimetri(profondita) / N_;
    }

 private:
    double N_;
};

/// Step of the depth scale [m]: 1, from a depth above 20 m 2, above 50 m 5, above 100 m 10.
[[nodiscard]] double passoProfondita(double profondita);

}  // namespace korven::drawings
