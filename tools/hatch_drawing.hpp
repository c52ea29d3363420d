#pragma once

#include <vector>

#include "tools/hatch_canvas.hpp"
#include "tools/hatch_source.hpp"

namespace korven::tools {

/// The strokes of one pattern: its commands carried out in their order, cut at the edges of the
/// tile. The same source gives the same strokes everywhere.
[[nodiscard]] std::vector<HatchStroke> drawHatch(const HatchSource& source,
                                                 const HatchPattern& pattern);

}  // namespace korven::tools
