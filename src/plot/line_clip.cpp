#include "plot/line_clip.hpp"

#include <utility>

namespace korven::plot {

namespace {

enum Bordo : unsigned { sinistra = 1, destra = 2, inferiore = 4, superiore = 8 };
constexpr Bordo bordi[] = {sinistra, destra, inferiore, superiore};

unsigned bordiOltrepassati(Punto p, const Riquadro& r) {
    return (p.x < r.xmin ? sinistra : 0U) | (p.x > r.xmax ? destra : 0U) |
           (p.y < r.ymin ? inferiore : 0U) | (p.y > r.ymax ? superiore : 0U);
}

// The point in which the stroke meets the line of a side. The coordinate across the side is that of
// the side itself, so that rounding can't leave the point beyond it.
Punto sulBordo(const Tratto& t, Bordo bordo, const Riquadro& r) {
    const double dx = t.a.x - t.da.x;
    const double dy = t.a.y - t.da.y;
    if (bordo == sinistra || bordo == destra) {
        const double x = bordo == sinistra ? r.xmin : r.xmax;
        return {x, t.da.y + dy * (x - t.da.x) / dx};
    }
    const double y = bordo == inferiore ? r.ymin : r.ymax;
    return {t.da.x + dx * (y - t.da.y) / dy, y};
}

}  // namespace

std::optional<Tratto> ritagliaTratto(Tratto tratto, const Riquadro& riquadro) {
    unsigned da = bordiOltrepassati(tratto.da, riquadro);
    unsigned a = bordiOltrepassati(tratto.a, riquadro);
    for (const Bordo bordo : bordi) {
        if ((da & a) != 0) return std::nullopt;
        if (((da | a) & bordo) == 0) continue;
        if ((da & bordo) == 0) {
            std::swap(tratto.da, tratto.a);
            std::swap(da, a);
        }
        tratto.da = sulBordo(tratto, bordo, riquadro);
        da = bordiOltrepassati(tratto.da, riquadro);
    }
    if ((da & a) != 0) return std::nullopt;
    return tratto;
}

}  // namespace korven::plot
