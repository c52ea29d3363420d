#pragma once

#include <string>
#include <string_view>

// Dimension lines of the section drawing. All positions in cm of the sheet; all are drawn with the
// pen in use.

namespace korven::structure {

/// "Copriferro =50 [mm]": caption and value of a dimension.
/// @param didascalia  Italian key
/// @param centimetri  the length as it is stored
[[nodiscard]] std::string testoQuota(std::string_view didascalia, double centimetri);

/// "80 [mm]", a length without a caption.
[[nodiscard]] std::string testoMisura(double centimetri);

/// A dimension from x1 to x2 at y, with extension lines from `yOggetto`; the text stands centred on
/// the other side of it.
void quotaOrizzontale(double x1, double x2, double y, double yOggetto, std::string_view testo);

/// A dimension from y1 to y2 at x, with extension lines from `xOggetto`; the text stands turned on
/// the other side of it.
void quotaVerticale(double y1, double y2, double x, double xOggetto, std::string_view testo);

/// A line from a point of the section to the left or right edge of the frame, the text on it at
/// that edge. A text that would reach the section is written smaller.
/// @param xOggetto  where the line ends, with a short slanted stroke
/// @param xLibero   the section begins here: the text stays on its side of it
void richiamoASinistra(double xOggetto, double xLibero, double y, std::string_view testo);
void richiamoADestra(double xOggetto, double xLibero, double y, std::string_view testo);

/// A short upright stroke across a leader at x, where a dimension along it begins or ends.
void tacca(double x, double y);

}  // namespace korven::structure
