#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/help_markup.hpp"
#include "tools/help_structure.hpp"

namespace korven::tools {

/// One page of the help in one language.
struct HelpPage {
    std::string chapter;
    std::string name;  ///< by which links name it
    int entry = 0;     ///< of the table of help contexts; 0: none
    std::string title;
    std::string words;  ///< further words under which it is found
    HelpBody body;
    long line = 0;  ///< line of "@pagina" in the source, from 1
};

/// Reads the text of the help in one language; the head of the Italian one explains the form. It
/// has the chapters, pages and fields of the structure, in that order.
///
/// @param path  name of the source in errors
/// @param structure  with the labels of that language
/// @throws base::ErroreFile with the line: a line of another form or out of order, mark-up that is
/// not closed, a page without body, a chapter, page or field that is not the next one of the
/// structure, one that is missing, a link that leads nowhere
[[nodiscard]] std::vector<HelpPage> readHelpSource(const std::string& path,
                                                   std::string_view content,
                                                   const HelpStructure& structure);

/// The bytes of a help file, Windows-1252 with CR LF.
[[nodiscard]] std::string helpFileBytes(const std::vector<HelpPage>& pages);

}  // namespace korven::tools
