#include "markup/report_page.hpp"

#include <cmath>

namespace korven::markup {

double alignedX(Alignment alignment, const LineRoom& room, double width) {
    switch (alignment) {
        case Alignment::centre:
            return (room.width - width) / 2 + room.left;
        case Alignment::right:
            return room.width - width + room.left;
        case Alignment::left:
            break;
    }
    return room.left;
}

double usableLength(double points) { return std::floor(points - pointsPerCentimetre); }

LineRoom ReportPage::room() const {
    return {layout.leftMargin, width - layout.leftMargin - layout.rightMargin};
}

double ReportPage::bodyTop(double headerHeight) const {
    return layout.topMargin + headerHeight + layout.headerGap;
}

double ReportPage::footerTop(double headerHeight) const {
    return height - layout.bottomMargin - headerHeight;
}

double ReportPage::limit(double lineHeight) const {
    return height - layout.bottomMargin - layout.footerGap - lineHeight;
}

}  // namespace korven::markup
