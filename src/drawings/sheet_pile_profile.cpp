#include "drawings/sheet_pile_profile.hpp"

#include <algorithm>
#include <cassert>

namespace korven::drawings {

namespace {

// One face of the wave from end to end. The face lies `dx` beyond the axis of the flanges and `dy`
// beyond that of the web.
std::array<plot::Punto, 6> faccia(const structure::PalancolaMm& p, double dx, double dy) {
    const double meta = structure::passoOnda(p) / 2;
    // The web runs from (altAla, -meta + base/2) to (-altAla, -base/2).
    const auto ala = [&](double x) {
        return -meta + p.base / 2 + (p.altAla - x) * p.largAla / p.altAla + dy;
    };
    const double ritorno = p.altAla + dx, mezzo = -p.altAla + dx;
    return {{{ritorno, -meta},
             {ritorno, ala(ritorno)},
             {mezzo, ala(mezzo)},
             {mezzo, -ala(mezzo)},
             {ritorno, -ala(ritorno)},
             {ritorno, meta}}};
}

}  // namespace

std::array<plot::Punto, 12> profiloPalancola(const structure::PalancolaMm& p) {
    assert(p.altAla > 0);
    const double mezzaAla = structure::spessoreOrizzontaleAla(p) / 2;
    const auto valle = faccia(p, p.spessore / 2, mezzaAla);
    const auto monte = faccia(p, -p.spessore / 2, -mezzaAla);
    std::array<plot::Punto, 12> profilo{};
    std::copy(monte.rbegin(), monte.rend(), std::copy(valle.begin(), valle.end(), profilo.begin()));
    return profilo;
}

}  // namespace korven::drawings
