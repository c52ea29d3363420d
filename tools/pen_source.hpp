#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace korven::tools {

/// The languages that drawings have a configuration in: all of the program.
inline constexpr std::size_t penLanguages = 6;

/// Texts in these languages, in the order of the language codes; UTF-8.
using PenTexts = std::array<std::string, penLanguages>;

/// A pen of the plotter.
struct PenRow {
    PenTexts label;      ///< what the pen is for
    int colour = 0;      ///< number of a colour, 0 to 15; 0: the pen draws nothing
    double width = 0.0;  ///< width of its lines [mm], not negative
    std::string font;    ///< name of the typeface of its texts
};

/// A colour that pens choose from.
struct ColourRow {
    PenTexts name;
    int value = 0;  ///< 24 bits, red in the low byte
};

/// The content of data/penne.txt: row i of a table at index i - 1.
struct PenSource {
    std::vector<PenRow> pens;        ///< 30
    std::vector<ColourRow> colours;  ///< 15
    double left = 0.0;               ///< shift of a drawing to the right [cm]
    double top = 0.0;                ///< shift downward [cm]
};

/// Reads the source; its head explains the form.
///
/// @param path  name of the source in errors
/// @throws base::ErroreFile with the line: rows out of order, missing or too many, a number out of
/// its range, a language missing, a label or name that another row of the language has
[[nodiscard]] PenSource readPenSource(const std::string& path, std::string_view content);

/// Name of the module configuration file of a language, code 1 to 6: "module06ita.CFG".
[[nodiscard]] std::string penFileName(int language);

/// Its bytes: four lines a pen (label, colour, width, font), two a colour (name, value), the two
/// margins; Windows-1252, CR LF.
[[nodiscard]] std::string penFileBytes(const PenSource& source, int language);

}  // namespace korven::tools
