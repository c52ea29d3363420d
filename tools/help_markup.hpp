#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/help_structure.hpp"

namespace korven::tools {

/// What the mark-up of a page became, and what has to be checked about it.
struct HelpBody {
    std::string html;                  ///< one block a line, ASCII and Windows-1252 characters
    std::vector<std::string> anchors;  ///< places that can be jumped to, as "campo3"
    std::vector<std::string> links;    ///< where links lead: "parametri", "parametri#campo3"
    std::string fault;                 ///< what was expected, where the mark-up is broken
    std::size_t faultLine = 0;         ///< index of the line with the fault
};

/// Turns the lines of a page into HTML, in the tags that the viewer shows; data/guida/ita.txt tells
/// the mark-up at its head. Numeric entities replace characters that Windows-1252 lacks.
///
/// @param frame  of the page: the fields that it tells of and the groups of messages that it
/// lists, both in this order, with labels and messages in the language of the lines
[[nodiscard]] HelpBody helpBody(const std::vector<std::string_view>& lines, const HelpFrame& frame);

}  // namespace korven::tools
