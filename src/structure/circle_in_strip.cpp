#include "structure/circle_in_strip.hpp"

#include <cassert>
#include <cmath>
#include <numbers>

namespace korven::structure {

namespace {

using std::numbers::pi;

// The part of a circle of radius r further than t from its centre, 0 < t <= r. An edge that grazes
// the circle may round to t = r, never beyond it: then w = 0, atan gives pi/2 and nothing is left.
double cap(double t, double r) {
    const double w = std::sqrt(r * r - t * t);
    return r * r * (pi - 2 * std::atan(t / w)) / 2 - t * w;
}

// What lies on the far side of an edge that is `distanza` from the centre; a negative distance
// means that the centre lies on the far side too.
double oltre(double distanza, double r) {
    if (distanza > 0) return cap(distanza, r);
    if (distanza < 0) return pi * (r * r) - cap(-distanza, r);
    return pi * (r * r) / 2;
}

}  // namespace

double areaCerchioInStriscia(double c, double r, double y0, double y1) {
    assert(!(r < 0) && !(y1 < y0));  // NaN of a section beyond all measure passes
    if (c + r <= y0 || c - r >= y1) return 0;
    const bool tagliatoSotto = c - r < y0;
    const bool tagliatoSopra = c + r > y1;
    double area = pi * (r * r);
    if (tagliatoSotto) area -= oltre(c - y0, r);
    if (tagliatoSopra) area -= oltre(y1 - c, r);
    return area;
}

}  // namespace korven::structure
