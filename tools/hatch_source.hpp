#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace korven::tools {

/// One line of the stroke language of data/campiture.txt; the head of that file explains each word.
struct HatchCommand {
    std::string word;                ///< "linea", "cerchio", ...
    bool full = false;               ///< "pieno" came first: the shape hides what lies below
    std::string figure;              ///< of "metti": the name of the figure
    std::vector<int> values;         ///< the numbers after the word
    std::vector<HatchCommand> body;  ///< the lines up to "fine", of a word that repeats them
};

/// A pattern of the source.
struct HatchPattern {
    int number = 0;                   ///< 1 to 100, a row of the library
    double unit = 0.0;                ///< centimetres for each stroke unit at size step 1
    std::array<std::string, 6> name;  ///< in the order of the language codes, UTF-8
    std::vector<HatchCommand> commands;
    long line = 0;  ///< of its "@campitura" in the source, from 1
};

/// The whole source: patterns in ascending numbers, and the figures that they place.
struct HatchSource {
    std::vector<HatchPattern> patterns;
    std::map<std::string, std::vector<HatchCommand>> figures;
};

/// Number of rows of the library, and largest sum of strokes that its 16-bit positions bear.
inline constexpr int hatchRows = 100;
inline constexpr int hatchStrokeLimit = 32766;

/// Reads the source.
///
/// @param path  name of the source in errors
/// @throws base::ErroreFile with the line: an unknown word, a wrong count of numbers, a number out
/// of its range, a figure not known yet, a block without its end, a missing name, numbers of
/// patterns out of order
[[nodiscard]] HatchSource readHatchSource(const std::string& path, std::string_view content);

}  // namespace korven::tools
