#include "scene/picture.hpp"

#include <algorithm>
#include <cmath>

namespace korven::scene {

namespace {

constexpr double mezzaRiga = 0.62, bordo = 0.22;  // of the room of a text, in font sizes

}  // namespace

std::vector<Punto> puntaFreccia(const Freccia& freccia) {
    if (freccia.punti.size() < 2) return {};
    const Punto &a = freccia.punti.back(), &da = freccia.punti[freccia.punti.size() - 2];
    const double dx = a.x - da.x, dy = a.y - da.y, lungo = std::hypot(dx, dy);
    if (!(lungo > 0)) return {};
    constexpr double apertura = 0.4;
    const double ux = freccia.testa * dx / lungo, uy = freccia.testa * dy / lungo;
    return {a,
            {a.x - ux - apertura * uy, a.y - uy + apertura * ux},
            {a.x - ux + apertura * uy, a.y - uy - apertura * ux}};
}

Riquadro Testo::riquadro() const {
    const double quota = ancora == Ancora::sinistra ? 0 : ancora == Ancora::centro ? 0.5 : 1;
    const double da = -quota * larghezza - bordo * corpo;
    const double a = (1 - quota) * larghezza + bordo * corpo;
    const double mezza = mezzaRiga * corpo;
    // A turned text runs upward.
    if (verticale) return {punto.x - mezza, punto.y - a, punto.x + mezza, punto.y - da};
    return {punto.x + da, punto.y - mezza, punto.x + a, punto.y + mezza};
}

double Scena::z(double y) const { return std::clamp((y - yTesta) / scala, 0.0, paratia); }

}  // namespace korven::scene
