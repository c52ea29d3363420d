#include "shell/form_sizes.hpp"

#include <QByteArray>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <algorithm>

namespace korven::shell {

QSettings ricordiFinestre() {
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("korven32"),
            QStringLiteral("finestre")};
}

namespace {

constexpr QSize cornice(16, 48);

// What is remembered may come from a larger screen, or from one with smaller letters. One that lies
// on the screen stays where it is to the pixel: before it is shown it has no frame yet, so that its
// place, taken as that of the frame, would be lower by the head of the window, again at each start.
void portaSulloSchermo(QWidget& finestra) {
    if (finestra.isMaximized() || finestra.isFullScreen()) return;
    const QRect schermo = finestra.screen()->availableGeometry();
    finestra.resize(finestra.size().boundedTo(misuraMassima(finestra)));
    if (schermo.contains(finestra.geometry())) return;
    QRect intera(finestra.pos(), misuraConCornice(finestra));
    intera.moveRight(std::min(intera.right(), schermo.right()));
    intera.moveBottom(std::min(intera.bottom(), schermo.bottom()));
    intera.moveLeft(std::max(intera.left(), schermo.left()));
    intera.moveTop(std::max(intera.top(), schermo.top()));
    finestra.move(intera.topLeft());
}

}  // namespace

bool ripristinaMisure(QWidget& finestra) {
    const QByteArray misure = ricordiFinestre().value(finestra.objectName()).toByteArray();
    if (misure.isEmpty() || !finestra.restoreGeometry(misure)) return false;
    portaSulloSchermo(finestra);
    return true;
}

QSize misuraConCornice(const QWidget& finestra) { return finestra.size() + cornice; }

QSize misuraMassima(const QWidget& finestra) {
    return finestra.screen()->availableSize() - cornice;
}

bool prendiMisura(QWidget& finestra, QSize comoda) {
    if (ripristinaMisure(finestra)) return true;
    const QSize massima = misuraMassima(finestra);
    if (comoda.height() > massima.height())
        comoda.rwidth() += finestra.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    finestra.resize(comoda.boundedTo(massima));
    return false;
}

void ricordaMisure(const QWidget& finestra) {
    ricordiFinestre().setValue(finestra.objectName(), finestra.saveGeometry());
}

}  // namespace korven::shell
