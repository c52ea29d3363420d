#pragma once

#include <string>

#include "analysis/diagrams.hpp"
#include "drawings/diagram_scale.hpp"
#include "plot/sheet.hpp"
#include "results/report_data.hpp"

namespace korven::drawings {

/// The largest value that the scale of a diagram is made for, in the unit of the diagram:
///
///     pressures       passive pressure uphill at the toe in the last stage [t/m2]
///     displacements   the extreme of all stages with the larger size, its sign kept [cm]
///     moments         the larger size of both extremes of all stages [t m]
///     shear           the same of the last stage alone [t]
[[nodiscard]] double valoreDiScala(analysis::Diagramma diagramma,
                                   const results::DatiRelazione& dati);

/// Where values and depths lie on the sheet.
class QuadroDiagramma {
 public:
    static constexpr double margine = 0.5;  ///< between the frame and the ends of both axes [cm]
    static constexpr double xZero = plot::xCentro;                          ///< line of the wall
    static constexpr double yTesta = plot::y0 + plot::altQuadro - margine;  ///< wall top
    static constexpr double xSinistra = plot::x0 + margine;
    static constexpr double xDestra = plot::x0 + plot::larghQuadro - margine;
    static constexpr double altezzaEtichette = 0.25;

    QuadroDiagramma(analysis::Diagramma diagramma, const AsseValori& asse, double lunghezzaParatia);

    /// Abscissa of a value of a curve.
    [[nodiscard]] double x(double valore) const { return xZero + verso_ * scalaX_ * valore; }
    /// Ordinate of a depth [m].
    [[nodiscard]] double y(double z) const { return yTesta - scalaY_ * z; }

    /// Draws axes, ticks, units, wall and ground.
    void disegna() const;

 private:
    void asseDeiValori() const;
    void asseDelleProfondita() const;

    analysis::Diagramma diagramma_;
    AsseValori asse_;
    double lunghezza_;
    double verso_;   // -1 where values grow to the left
    double scalaX_;  // cm a unit of value
    double scalaY_;  // cm a metre
};

}  // namespace korven::drawings
