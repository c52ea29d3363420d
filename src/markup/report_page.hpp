#pragma once

#include "markup/reset_arguments.hpp"
#include "markup/scan_state.hpp"

// Where things lie on a page of the report, or in the list of the preview, which is a page without
// margins and without an end. Points, y downward.

namespace korven::markup {

/// The room that lines are aligned in.
struct LineRoom {
    double left = 0;   ///< x of its left end
    double width = 0;  ///< negative when margins eat the page up
};

/// x at which a text or a table of the given width begins; left of the room, or beyond its right
/// end, when it is wider than the room: nothing shrinks and nothing is cut.
[[nodiscard]] double alignedX(Alignment alignment, const LineRoom& room, double width);

/// Length of a sheet, or width of a window, as it is used: one centimetre short, in whole points.
[[nodiscard]] double usableLength(double points);

/// A page of the printed report.
struct ReportPage {
    ResetArguments layout;
    double width = 0;   ///< usable, of the sheet
    double height = 0;  ///< usable

    [[nodiscard]] LineRoom room() const;

    /// y of the first body line below a header line of this height.
    [[nodiscard]] double bodyTop(double headerHeight) const;
    /// y of the footer line.
    /// @param headerHeight  of the header's text: header and footer share their font
    [[nodiscard]] double footerTop(double headerHeight) const;
    /// The y below which no further line begins: one that begins at it still has its place.
    /// @param lineHeight  of the footer, measured in the font in force where the line is written
    [[nodiscard]] double limit(double lineHeight) const;
};

}  // namespace korven::markup
