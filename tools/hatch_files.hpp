#pragma once

#include <string>
#include <vector>

#include "tools/hatch_canvas.hpp"
#include "tools/hatch_source.hpp"

namespace korven::tools {

/// The hatch library as its files hold it: 100 rows, a row without a pattern has no strokes, unit 0
/// and an empty name.
struct HatchLibrary {
    std::vector<HatchPattern> pattern;             ///< row i - 1 is pattern i
    std::vector<std::vector<HatchStroke>> stroke;  ///< likewise
};

/// Draws all patterns of the source.
/// @param path  name of the source in errors
/// @throws base::ErroreFile with the line of the pattern: a pattern that nothing is left of, or
/// more strokes in all than `hatchStrokeLimit`
[[nodiscard]] HatchLibrary makeHatchLibrary(const std::string& path, const HatchSource& source);

/// The bytes of "set1.rtn", the numbers of strokes: a number a line, CR LF.
[[nodiscard]] std::string strokeCountBytes(const HatchLibrary& library);

/// The bytes of "set2.rtn", the units in centimetres: a number a line, CR LF.
[[nodiscard]] std::string hatchUnitBytes(const HatchLibrary& library);

/// The bytes of "set3ita.rtn" and its like: a name a line, Windows-1252, CR LF.
/// @param language  code from 1 to 6
[[nodiscard]] std::string hatchNameBytes(const HatchLibrary& library, int language);

/// The bytes of "set4.rtn": x1, y1, x2, y2 of all strokes, 16 bits each, low byte first.
[[nodiscard]] std::string strokeBytes(const HatchLibrary& library);

}  // namespace korven::tools
