#pragma once

#include <string>
#include <string_view>

#include "base/file_error.hpp"

namespace korven::markup {

/// Name and size of a font for which the mark-up gives none: an empty name, a size of 0 or less.
inline constexpr std::string_view defaultFontName = "Arial";
inline constexpr double defaultFontSize = 10;  ///< [points]

/// A font as the mark-up names it. Name and size are what the file holds: the name may be empty or
/// unknown, the size 0.
struct ReportFont {
    std::string name;
    double size = 0;  ///< [points]
    bool bold = false;
    bool italic = false;
    bool operator==(const ReportFont&) const = default;
};

/// Size of the sheet [points].
struct SheetSize {
    double width = 0;
    double height = 0;
};

/// A printer, or the file that takes its place, did not take what it was to print. Unlike a broken
/// mark-up this is no reason to end the program.
class PrinterError : public base::ErroreFile {
 public:
    using ErroreFile::ErroreFile;
};

/// Takes the printed report page by page. Positions are points from the upper left corner of what
/// the printer can print on, y downward.
class ReportPrinter {
 public:
    virtual ~ReportPrinter() = default;

    /// The whole sheet, with what the printer can't print on.
    [[nodiscard]] virtual SheetSize sheet() = 0;
    /// The font of all that is measured and written from here on, also on later pages. May be
    /// called before the first page.
    virtual void setFont(const ReportFont& font) = 0;
    /// Width of a text in the font in force [points].
    [[nodiscard]] virtual double textWidth(std::string_view text) = 0;
    /// Height of a line of text, from its top to its foot, whatever it holds [points].
    [[nodiscard]] virtual double textHeight() = 0;
    /// From the top of a line to the top of the next [points].
    [[nodiscard]] virtual double lineStep() = 0;

    /// Starts a page, and the print job if none runs.
    /// @throws PrinterError when the printer takes none
    virtual void startPage() = 0;
    /// Writes a text; y is the top of its line. Positions may lie beyond the page.
    virtual void write(double x, double y, std::string_view text) = 0;
    virtual void endPage() = 0;
    /// All pages of a document have been handed over. No page is open.
    /// @throws PrinterError when the job is lost
    virtual void endJob() = 0;
};

}  // namespace korven::markup
