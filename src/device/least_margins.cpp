#include "device/least_margins.hpp"

#include <QPageLayout>
#include <QPrinter>

namespace korven::device {

MarginiMinimi::MarginiMinimi(QPrinter& stampante, double almeno)
    : stampante_(stampante), diPrima_(stampante.pageLayout().margins(QPageLayout::Point)) {
    stampante_.setFullPage(false);
    QPageLayout pagina = stampante_.pageLayout();
    pagina.setUnits(QPageLayout::Point);
    stampante_.setPageMargins(pagina.minimumMargins() | QMarginsF(almeno, almeno, almeno, almeno),
                              QPageLayout::Point);
}

MarginiMinimi::~MarginiMinimi() { stampante_.setPageMargins(diPrima_, QPageLayout::Point); }

}  // namespace korven::device
