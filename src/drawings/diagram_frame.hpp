#pragma once

#include "drawings/diagram_rows.hpp"
#include "drawings/diagram_scale.hpp"
#include "plot/sheet.hpp"

namespace korven::drawings {

/// Where values and depths lie on the sheet.
class QuadroDiagramma {
 public:
    static constexpr double margine = 0.5;  ///< between the frame and the ends of both axes [cm]
    static constexpr double xZero = plot::xCentro;                          ///< line of the wall
    static constexpr double yTesta = plot::y0 + plot::altQuadro - margine;  ///< wall top
    static constexpr double xSinistra = plot::x0 + margine;
    static constexpr double xDestra = plot::x0 + plot::larghQuadro - margine;
    static constexpr double altezzaEtichette = 0.25;

    /// @param riga  must outlive it
    QuadroDiagramma(const RigaDiagramma& riga, const AsseValori& asse, double lunghezzaParatia);

    /// Abscissa of a value of a curve.
    [[nodiscard]] double x(double valore) const { return xZero + riga_.verso * scalaX_ * valore; }
    /// Ordinate of a depth [m].
    [[nodiscard]] double y(double z) const { return yTesta - scalaY_ * z; }

    /// Draws axes, ticks, units, wall and ground.
    void disegna() const;

 private:
    void asseDeiValori() const;
    void asseDelleProfondita() const;

    const RigaDiagramma& riga_;
    AsseValori asse_;
    double lunghezza_;
    double scalaX_;  // cm a unit of value
    double scalaY_;  // cm a metre
};

}  // namespace korven::drawings
