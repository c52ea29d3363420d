#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/help_markup.hpp"

namespace korven::tools {

/// One page of a file under data/guida.
struct HelpPage {
    std::string chapter;
    std::string name;  ///< by which links name it
    int entry = 0;     ///< of the table of help contexts; 0: none
    std::string title;
    std::string words;  ///< further words under which it is found
    HelpBody body;
    long line = 0;  ///< line of "@pagina" in the source, from 1
};

/// Reads the source of the help of one language; its head explains the form.
///
/// @param path  name of the source in errors
/// @throws base::ErroreFile with the line: a line of another form or out of order, mark-up that is
/// not closed, a page without body, a name or an entry used twice, a link that leads nowhere
[[nodiscard]] std::vector<HelpPage> readHelpSource(const std::string& path,
                                                   std::string_view content);

/// The bytes of a help file, Windows-1252 with CR LF.
[[nodiscard]] std::string helpFileBytes(const std::vector<HelpPage>& pages);

}  // namespace korven::tools
