#pragma once

#include <optional>

#include "plot/colour.hpp"

namespace korven::plot {

/// Number, 1 to 15, of the colour of the 16-colour standard palette that a colour comes out as in a
/// DXF file, where each number is a layer. Black and every grey become white, 15: the paper of a
/// drawing program is black. Of any other colour each part is reduced to 0 (below 64), 128 (below
/// 192) or 255; what then stands in no row of the palette has no number.
[[nodiscard]] std::optional<int> livelloDxf(Colore colore);

}  // namespace korven::plot
