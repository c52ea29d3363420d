#pragma once

#include "plot/drawing_store.hpp"
#include "plot/geometry.hpp"
#include "plot/text_width.hpp"

namespace korven::plot {

/// What a picture of a drawing shows [cm]: its sheet, and beside it the room for texts that begin
/// on the sheet and reach beyond it, two centimetres at most on each side.
/// @param respiro  room beyond the last letter [cm]
[[nodiscard]] Riquadro conTesti(const Riquadro& foglio, const ArchivioDisegno& archivio,
                                const MetricaTesto& metrica, double respiro = 0);

}  // namespace korven::plot
