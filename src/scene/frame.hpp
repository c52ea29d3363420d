#pragma once

#include "scene/scene.hpp"
#include "scene/shown_wall.hpp"

namespace korven::scene {

/// Where things are in a picture. From the left: the retained ground, the wall, the excavated side,
/// the panel of the curve.
struct Inquadratura {
    double larghezza = 0, altezza = 0;
    double em = 12;       ///< size of the usual font
    double yTesta = 0;    ///< of depth 0
    double scala = 1;     ///< pixels in a metre
    double xMonte = 0;    ///< uphill face of the wall
    double xValle = 0;    ///< the other
    double xSezione = 0;  ///< where the excavated side ends and the curve's panel begins
    double yFondo = 0;    ///< lower end of the ground
    double pendenza = 0;  ///< pixels by which the ground rises for one away from the wall
    bool curva = true;
    bool stretta = false;  ///< as `Opzioni::stretta`

    [[nodiscard]] double y(double z) const { return yTesta + scala * z; }
    [[nodiscard]] double xMuro() const { return (xMonte + xValle) / 2; }
    /// Ground of the uphill side.
    [[nodiscard]] double suolo(double x) const { return yTesta - pendenza * (xMonte - x); }
    [[nodiscard]] bool visibile(double y) const { return y >= 0 && y <= yFondo; }
};

/// What a text stands on that lies on the excavated side, or on the retained one.
[[nodiscard]] Tinta fondoValle(const Mostrata& m, const Inquadratura& q, double y);
[[nodiscard]] Tinta fondoMonte(const Mostrata& m, const Inquadratura& q, Punto punto);

/// Size of the usual font.
[[nodiscard]] double corpo(const Misura& misura);

/// @param cima  the lower end of headline and verdict
[[nodiscard]] Inquadratura inquadratura(const Mostrata& mostrata, const Misura& misura, double cima,
                                        bool curva);

}  // namespace korven::scene
