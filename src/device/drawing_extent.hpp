#pragma once

#include "plot/drawing_store.hpp"
#include "plot/geometry.hpp"

namespace korven::device {

/// What a picture of a drawing shows [cm]: its sheet, and beside it the room for texts that reach
/// beyond the sheet, two centimetres at most on each side.
[[nodiscard]] plot::Riquadro vistaDisegno(const plot::Riquadro& foglio,
                                          const plot::ArchivioDisegno& archivio);

}  // namespace korven::device
