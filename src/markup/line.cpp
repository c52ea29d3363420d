#include "markup/line.hpp"

#include "base/code_page.hpp"

namespace korven::markup {

MarkupLine takeApart(std::string_view line) {
    const std::string_view text = base::senzaSpaziEsterni(line);
    MarkupLine parts;
    parts.text = text;
    parts.directive = text.starts_with('#');
    if (!parts.directive) return parts;

    const auto blank = text.find(' ');
    parts.keyword = base::maiuscolo(text.substr(0, blank));
    if (blank != std::string_view::npos)
        parts.argument = base::senzaSpaziEsterni(text.substr(blank + 1));
    return parts;
}

}  // namespace korven::markup
