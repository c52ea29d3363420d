#include "tools/hatch_files.hpp"

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/number_text.hpp"
#include "tools/hatch_drawing.hpp"

namespace korven::tools {

HatchLibrary makeHatchLibrary(const std::string& path, const HatchSource& source) {
    HatchLibrary library;
    library.pattern.resize(hatchRows);
    library.stroke.resize(hatchRows);
    std::size_t sum = 0;
    for (const auto& pattern : source.patterns) {
        const auto row = static_cast<std::size_t>(pattern.number - 1);
        library.pattern[row] = pattern;
        library.stroke[row] = drawHatch(source, pattern);
        sum += library.stroke[row].size();
        if (library.stroke[row].empty())
            throw base::ErroreFile(path, pattern.line, "attesa una campitura con tratti");
        if (sum > static_cast<std::size_t>(hatchStrokeLimit))
            throw base::ErroreFile(
                path, pattern.line,
                "attesi al più " + std::to_string(hatchStrokeLimit) + " tratti in tutto");
    }
    return library;
}

std::string strokeCountBytes(const HatchLibrary& library) {
    std::string bytes;
    for (const auto& strokes : library.stroke) bytes += std::to_string(strokes.size()) + "\r\n";
    return bytes;
}

std::string hatchUnitBytes(const HatchLibrary& library) {
    std::string bytes;
    for (const auto& pattern : library.pattern)
        bytes += base::formattaNumero(pattern.unit) + "\r\n";
    return bytes;
}

std::string hatchNameBytes(const HatchLibrary& library, int language) {
    std::string bytes;
    for (const auto& pattern : library.pattern)
        bytes += base::inCp1252(pattern.name.at(static_cast<std::size_t>(language - 1))) + "\r\n";
    return bytes;
}

std::string strokeBytes(const HatchLibrary& library) {
    std::string bytes;
    for (const auto& strokes : library.stroke)
        for (const auto& stroke : strokes)
            for (const int value : {stroke.x1, stroke.y1, stroke.x2, stroke.y2}) {
                bytes += static_cast<char>(value & 0xFF);
                bytes += static_cast<char>((value >> 8) & 0xFF);
            }
    return bytes;
}

}  // namespace korven::tools
