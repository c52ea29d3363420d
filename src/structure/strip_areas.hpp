#pragma once

#include "structure/section_millimetres.hpp"
#include "structure/strip_model.hpp"

namespace korven::structure {

/// Areas of the strips of one section, per `bStriscia` of wall [mm2].
struct AreeStrisce {
    TabellaStrisce Ac;  ///< concrete
    TabellaStrisce As;  ///< steel
};

// Bars, piles and tubes are true circles, cut exactly where a strip ends. Each circle becomes an
// area per metre by x bStriscia / spacing.

/// Two layers of bars in a solid wall; the bars' room is taken out of the concrete. A face whose
/// spacing or diameter is not above 0 has no steel.
[[nodiscard]] AreeStrisce areeDiaframma(const DiaframmaMm& d, double bStriscia);

/// Steel tube between two concentric circles, concrete inside.
[[nodiscard]] AreeStrisce areePali(const PaliMm& p, double bStriscia);

/// Steel alone: every strip holds the two webs of a wave, the outer ones the flanges too.
[[nodiscard]] AreeStrisce areePalancola(const PalancolaMm& p, double bStriscia);

/// A round pile with a ring of bars, the first at mid-depth; the bars' room is taken out of the
/// concrete. A count below 1 gives a pile of plain concrete.
[[nodiscard]] AreeStrisce areePaliArmati(const PaliArmatiMm& p, double bStriscia);

}  // namespace korven::structure
