#pragma once

#include <string_view>

#include "markup/report_printer.hpp"

namespace korven::markup {

/// Width of a text [points] where no printer can be asked: exact for the plain face that the report
/// uses but for a few accented letters, on the wide side for a bold one.
[[nodiscard]] double estimatedWidth(const ReportFont& font, std::string_view text);

}  // namespace korven::markup
