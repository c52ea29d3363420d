#pragma once

#include <optional>

#include "plot/colour.hpp"

namespace korven::plot {

/// The number, 1 to 15, that a colour has in the 16-colour standard palette of DXF, where each
/// number is a layer. Black and every grey become white, 15: the paper of a drawing program is
/// black. Of any other colour each part is reduced to 0 (below 64), 128 (below 192) or 255; a
/// result that is not in the palette has no number.
[[nodiscard]] std::optional<int> livelloDxf(Colore colore);

}  // namespace korven::plot
