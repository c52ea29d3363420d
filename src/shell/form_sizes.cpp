#include "shell/form_sizes.hpp"

#include <QByteArray>
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

void ricordaMisure(const QWidget& finestra) {
    ricordiFinestre().setValue(finestra.objectName(), finestra.saveGeometry());
}

}  // namespace korven::shell
