#pragma once

#include <string>
#include <string_view>

#include "markup/report_printer.hpp"
#include "markup/reset_arguments.hpp"

namespace korven::outdoc {

/// The page of a document: A4, with the margins that the mark-up asks for.
struct DocumentPage {
    markup::ResetArguments layout;
    markup::ReportFont headerFont;  ///< of header and footer

    /// Width between the margins [points].
    [[nodiscard]] double textWidth() const;
    /// Size of the page, margins and the distances of header and footer, in the file's XML.
    [[nodiscard]] std::string words() const;
};

/// The page that #RESET describes. Margins that leave no room for text become 2 cm.
[[nodiscard]] DocumentPage documentPage(std::string_view resetArgument);

}  // namespace korven::outdoc
