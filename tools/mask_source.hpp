#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korven::tools {

/// One field of a mask, as it goes into the mask file.
struct MaskField {
    std::string label;
    std::string type;
    double least = 0;
    double most = 0;
    std::string help;
};

/// One block of data/maschere.txt.
struct MaskSource {
    std::string file;  ///< name of the mask file
    int kind = 0;      ///< 1 fields, 2 to 4 grids
    std::string title;
    int context = 0;  ///< entry of the help context table
    std::string reference;
    std::vector<std::string> buttons;
    std::vector<std::string> choices;  ///< items of each choice field, parted by "|"
    std::vector<MaskField> fields;     ///< the choices, then the others
};

/// Reads the source; its head explains the form.
///
/// @param path  name of the source in errors
/// @throws base::ErroreFile with the line: a line of another form or out of order, a text that
///         Windows-1252 lacks, a comma in a text that would end there, a field that the project
///         has not, a choice without codes, after another field or in a grid, limits the wrong
///         way round
[[nodiscard]] std::vector<MaskSource> readMaskSource(const std::string& path,
                                                     std::string_view content);

/// The bytes of a mask file, Windows-1252 with CR LF.
[[nodiscard]] std::string maskFileBytes(const MaskSource& mask);

/// The texts of a mask that the program translates, as it asks for them.
[[nodiscard]] std::vector<std::string> maskTexts(const MaskSource& mask);

}  // namespace korven::tools
