#pragma once

#include <QLabel>

namespace korven::shell {

/// A label for sentences: plain text, which is broken into lines where it is narrow.
/// @param nome  object name
[[nodiscard]] inline QLabel* etichettaInRighe(const char* nome, QWidget* padre,
                                              const QString& testo = {}) {
    auto* fatta = new QLabel(testo, padre);
    fatta->setObjectName(QLatin1String(nome));
    fatta->setTextFormat(Qt::PlainText);
    fatta->setWordWrap(true);
    return fatta;
}

}  // namespace korven::shell
