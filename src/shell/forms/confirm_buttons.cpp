#include "shell/forms/confirm_buttons.hpp"

#include <QHBoxLayout>
#include <QPushButton>
#include <utility>

#include "shell/qt_text.hpp"

namespace korven::shell {

QWidget* pulsantiConferma(QDialog& forma, std::function<void()> conferma) {
    auto* riga = new QWidget(&forma);
    auto* confermato = new QPushButton(tradotto("&Conferma"), riga);
    auto* annullato = new QPushButton(tradotto("&Annulla"), riga);
    confermato->setObjectName(QStringLiteral("Command1"));
    annullato->setObjectName(QStringLiteral("Command2"));
    confermato->setDefault(true);
    QObject::connect(confermato, &QPushButton::clicked, &forma, std::move(conferma));
    QObject::connect(annullato, &QPushButton::clicked, &forma, &QDialog::reject);
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->addStretch();
    disposizione->addWidget(confermato);
    disposizione->addWidget(annullato);
    return riga;
}

}  // namespace korven::shell
