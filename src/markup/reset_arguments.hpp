#pragma once

#include <string>
#include <string_view>

namespace korven::markup {

inline constexpr double pointsPerCentimetre = 72 / 2.54;

/// The page as #RESET describes it to a renderer with pages. Lengths are whole points.
struct ResetArguments {
    double leftMargin = 0;
    double rightMargin = 0;
    double topMargin = 0;       ///< from the top of the page to the header line
    double bottomMargin = 0;    ///< from the foot of the page to the footer line
    double headerGap = 0;       ///< between header line and first body line
    double footerGap = 0;       ///< kept free above the footer line
    double headerFontSize = 0;  ///< of header and footer [points, whole]
    std::string headerFontName;
};

/// Reads "a,b,c,d,e,f,size,font": six lengths in centimetres, in the order of the struct, the font
/// size in points and the font, taken unchanged. A length becomes the integer part (rounded down)
/// of its points, the size loses its decimals. Missing fields read as empty, and what begins with
/// no number counts 0; the point alone is a decimal sign, a comma always ends the field.
[[nodiscard]] ResetArguments parseReset(std::string_view argument);

}  // namespace korven::markup
