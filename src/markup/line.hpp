#pragma once

#include <string>
#include <string_view>

namespace korven::markup {

/// One line of report mark-up, taken apart.
struct MarkupLine {
    bool directive = false;
    std::string text;      ///< the whole line without its outer blanks
    std::string keyword;   ///< of a directive: up to the first blank, in upper case, with its "#"
    std::string argument;  ///< of a directive: what follows that blank, without outer blanks
};

/// Takes a line apart: one that begins with "#" after its leading blanks is a directive, any other
/// is content. There is no way to escape the "#". Only blanks (code 32) are trimmed and part the
/// keyword from its argument; tabs are content, as they part the cells of a table row.
[[nodiscard]] MarkupLine takeApart(std::string_view line);

}  // namespace korven::markup
