#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/help_structure.hpp"
#include "tools/text_source.hpp"

namespace korven::tools {

/// Reads data/guida/messaggi.txt, whose head explains the form: every message of the program, in
/// groups.
///
/// @param path  name of the source in errors
/// @throws base::ErroreFile with the line: a message before the first group, a group without
/// messages, a group, a name or a message used twice
[[nodiscard]] std::vector<HelpMessageGroup> readHelpMessages(const std::string& path,
                                                             std::string_view content);

/// The structure with the messages of its groups in a language, "…" in place of what the program
/// puts into them ("%1").
///
/// @param path  name of the source of the messages in errors
/// @param language  code of the language, 1 to 6
/// @throws base::ErroreFile with the line of a message that is no text of the program, and of a
/// group that no page lists; of a page's group that is not there, without a line
[[nodiscard]] HelpStructure withMessages(const std::string& path, HelpStructure structure,
                                         const std::vector<HelpMessageGroup>& groups,
                                         const std::vector<TextRecord>& records, int language);

}  // namespace korven::tools
