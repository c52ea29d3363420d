#pragma once

#include <cstdint>

namespace korven::plot {

/// A colour: 24 bits, red in the low byte, blue in the high one. A pen of colour 0 draws nothing; a
/// stored stroke of colour 0 is black.
using Colore = std::int32_t;

inline constexpr Colore nonDisegnato = 0;
inline constexpr Colore nero = 0;
inline constexpr Colore bianco = 0xFFFFFF;

[[nodiscard]] constexpr int rosso(Colore colore) { return colore & 0xFF; }
[[nodiscard]] constexpr int verde(Colore colore) { return (colore >> 8) & 0xFF; }
[[nodiscard]] constexpr int blu(Colore colore) { return (colore >> 16) & 0xFF; }
[[nodiscard]] constexpr Colore daRgb(int r, int g, int b) { return r | (g << 8) | (b << 16); }

}  // namespace korven::plot
