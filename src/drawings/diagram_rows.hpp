#pragma once

#include <string_view>

#include "analysis/diagrams.hpp"
#include "project/units.hpp"
#include "results/report_data.hpp"

namespace korven::drawings {

class FaseDisegnata;

/// What the diagrams differ by.
struct RigaDiagramma {
    analysis::Diagramma diagramma;
    project::Unita unita;     ///< of the values
    std::string_view titolo;  ///< over the drawing, an Italian key
    /// The axis is divided in the shown unit; else in the stored one, and only its numbers are
    /// shown.
    bool asseMostrato;
    double verso;  ///< -1 where values grow to the left
    /// Of a diagram's values the one that `valoreDiScala` gives; `fattore` is that of the curves.
    double (*massimo)(const results::DatiRelazione& dati, double fattore);
    void (*curve)(const FaseDisegnata& fase, double fattore);

    /// A value of the axis over a stored one.
    [[nodiscard]] constexpr double fattoreCurve() const { return asseMostrato ? unita.fattore : 1; }
    /// A number at the axis over its value.
    [[nodiscard]] constexpr double fattoreNumeri() const {
        return asseMostrato ? 1 : unita.fattore;
    }
    /// The value that the scale is made for, in the unit of the axis:
    ///
    ///     pressures       passive pressure uphill at the toe in the last stage [t/m2]
    ///     displacements   the extreme of all stages with the larger size, its sign kept [cm]
    ///     moments         the larger size of both extremes of all stages [t m]
    ///     shear           the same of the last stage alone [t]
    [[nodiscard]] double valoreDiScala(const results::DatiRelazione& dati) const {
        return massimo(dati, fattoreCurve());
    }
};

[[nodiscard]] const RigaDiagramma& rigaDiagramma(analysis::Diagramma diagramma);

}  // namespace korven::drawings
