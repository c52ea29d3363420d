#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "markup/report_printer.hpp"
#include "markup/scan_state.hpp"

// Paragraphs of a word-processor file in its XML (WordprocessingML). Lengths in it are twentieths
// of a point.

namespace korven::outdoc {

/// A text as XML takes it. Control characters, which XML can't hold, are left out; a tab is the
/// caller's to translate.
[[nodiscard]] std::string xmlText(std::string_view utf8);

/// A length in points as the text of a number in twentieths, within what word processors take.
[[nodiscard]] std::string twentieths(double points);

/// Text that looks alike throughout; its tabs go to the next tab stop. An empty font name is the
/// program's own, Arial, and a size of 0 or less, which no word processor knows, 10 points.
[[nodiscard]] std::string run(const markup::ReportFont& font, std::string_view text);

/// The number of the page, or of all pages.
[[nodiscard]] std::string pageField(const markup::ReportFont& font, std::string_view instruction);

struct TabStop {
    double position = 0;  ///< [points] from the margin
    bool centred = false;
    bool dotted = false;  ///< points lead there
};

struct Paragraph {
    markup::Alignment alignment = markup::Alignment::left;
    std::string_view style;  ///< id of a style of the document; empty: none
    bool keepWithNext = false;
    bool pageBreakBefore = false;
    double indent = 0;  ///< [points]
    std::vector<TabStop> tabs;
    markup::ReportFont font;  ///< of its end, which gives an empty paragraph its height
    std::string runs;
};

[[nodiscard]] std::string paragraph(const Paragraph& content);

}  // namespace korven::outdoc
