#include "shell/form_sizes.hpp"

#include <QByteArray>
#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace korven::shell {

QSettings ricordiFinestre() {
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("korven32"),
            QStringLiteral("finestre")};
}

bool ripristinaMisure(QWidget& finestra) {
    const QByteArray misure = ricordiFinestre().value(finestra.objectName()).toByteArray();
    return !misure.isEmpty() && finestra.restoreGeometry(misure);
}

QSize misuraMassima(const QWidget& finestra) {
    constexpr QSize cornice(16, 48);
    return finestra.screen()->availableSize() - cornice;
}

void prendiMisura(QWidget& finestra, QSize comoda) {
    if (ripristinaMisure(finestra)) return;
    const QSize massima = misuraMassima(finestra);
    if (comoda.height() > massima.height())
        comoda.rwidth() += finestra.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    finestra.resize(comoda.boundedTo(massima));
}

void ricordaMisure(const QWidget& finestra) {
    ricordiFinestre().setValue(finestra.objectName(), finestra.saveGeometry());
}

}  // namespace korven::shell
