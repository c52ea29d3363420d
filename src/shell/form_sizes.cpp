#include "shell/form_sizes.hpp"

#include <QByteArray>
#include <QSettings>
#include <QWidget>

namespace korven::shell {

namespace {

QSettings impostazioni() {
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("korven32"),
            QStringLiteral("finestre")};
}

}  // namespace

bool ripristinaMisure(QWidget& finestra) {
    const QByteArray misure = impostazioni().value(finestra.objectName()).toByteArray();
    return !misure.isEmpty() && finestra.restoreGeometry(misure);
}

void ricordaMisure(const QWidget& finestra) {
    impostazioni().setValue(finestra.objectName(), finestra.saveGeometry());
}

}  // namespace korven::shell
