#pragma once

namespace korven::live {

/// A curve along the wall, in the order of the keys 1 to 4.
enum class Curva { pressioni, spostamento, momento, taglio };

/// What of a wall is shown.
struct Vista {
    int fase = 0;  ///< from 1; 0: the envelope of all stages
    Curva curva = Curva::momento;

    bool operator==(const Vista&) const = default;
};

}  // namespace korven::live
