#pragma once

#include <span>
#include <string_view>

#include "analysis/diagrams.hpp"
#include "base/twin_names.hpp"
#include "project/units.hpp"
#include "results/report_data.hpp"

namespace korven::drawings {

class FaseDisegnata;

/// What the diagrams differ by.
struct RigaDiagramma {
    analysis::Diagramma diagramma;
    base::Gemelli nome;       ///< in names of files and on the command line
    project::Unita unita;     ///< of the values as the axis divides them, and of its numbers
    std::string_view titolo;  ///< over the drawing, an Italian key
    double verso;             ///< -1 where values grow to the left
    /// The value that the scale is made for, in the unit of the axis:
    ///
    ///     pressures       passive pressure uphill at the toe in the last stage [t/m2]
    ///     displacements   the extreme of all stages with the larger size, its sign kept [cm]
    ///     moments         the larger size of both extremes of all stages [t m]
    ///     shear           the same of the last stage alone [t]
    double (*valoreDiScala)(const results::DatiRelazione& dati);
    /// Draws what the diagram shows of a stage.
    void (*curve)(const FaseDisegnata& fase);
};

/// The diagrams in the order of their numbers.
[[nodiscard]] std::span<const RigaDiagramma> diagrammi();

[[nodiscard]] const RigaDiagramma& rigaDiagramma(analysis::Diagramma diagramma);

}  // namespace korven::drawings
