#include "outdoc/document_page.hpp"

#include <algorithm>

#include "outdoc/paragraph.hpp"

namespace korven::outdoc {

namespace {

constexpr double paperWidth = 21.0 * markup::pointsPerCentimetre;
constexpr double paperHeight = 29.7 * markup::pointsPerCentimetre;
constexpr double usualMargin = 2 * markup::pointsPerCentimetre;
constexpr double leastText = 4 * markup::pointsPerCentimetre;
constexpr double lineHeight = 1.2;  // of the font size

void leaveRoom(double& one, double& other, double length) {
    one = std::max(one, 0.0);
    other = std::max(other, 0.0);
    if (length - one - other < leastText) one = other = usualMargin;
}

}  // namespace

double DocumentPage::textWidth() const {
    return paperWidth - layout.leftMargin - layout.rightMargin;
}

// Header and footer push the text away from themselves if their lines need more room.
std::string DocumentPage::words() const {
    const double line = lineHeight * headerFont.size;
    double top = layout.topMargin + line + layout.headerGap;
    double bottom = layout.bottomMargin + line + layout.footerGap;
    leaveRoom(top, bottom, paperHeight);
    return "<w:pgSz w:w=\"" + twentieths(paperWidth) + "\" w:h=\"" + twentieths(paperHeight) +
           "\"/><w:pgMar w:top=\"" + twentieths(top) + "\" w:right=\"" +
           twentieths(layout.rightMargin) + "\" w:bottom=\"" + twentieths(bottom) + "\" w:left=\"" +
           twentieths(layout.leftMargin) + "\" w:header=\"" +
           twentieths(std::min(layout.topMargin, top)) + "\" w:footer=\"" +
           twentieths(std::min(layout.bottomMargin, bottom)) + "\" w:gutter=\"0\"/>";
}

DocumentPage documentPage(std::string_view resetArgument) {
    DocumentPage page;
    page.layout = markup::parseReset(resetArgument);
    page.headerFont = {page.layout.headerFontName, page.layout.headerFontSize, false, false};
    leaveRoom(page.layout.leftMargin, page.layout.rightMargin, paperWidth);
    page.layout.topMargin = std::max(page.layout.topMargin, 0.0);
    page.layout.bottomMargin = std::max(page.layout.bottomMargin, 0.0);
    return page;
}

}  // namespace korven::outdoc
