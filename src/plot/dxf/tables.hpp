#pragma once

#include <string>
#include <string_view>

#include "plot/geometry.hpp"

namespace korven::plot {

/// All of a DXF file before its first entity: the header with the extent of the drawing and the
/// text style, the tables of line types, layers and styles, the start of the entities. UTF-8, lines
/// ended by CR LF. The blanks in front of codes and values belong to the format.
[[nodiscard]] std::string inizioDxf(const Riquadro& estensione, std::string_view stile);

}  // namespace korven::plot
