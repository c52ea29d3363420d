#include "shell/rescue/rescue_state.hpp"

#include <QLabel>
#include <QVBoxLayout>

#include "shell/forms/elided_label.hpp"

namespace korven::shell {

StatoProgetto::StatoProgetto(const QString& nome, const QString& titolo, const QString& quando,
                             const QString& file, QWidget* padre)
    : QGroupBox(titolo, padre) {
    setObjectName(nome);
    auto* tempo = new QLabel(quando, this);
    tempo->setObjectName(QStringLiteral("quando"));
    tempo->setTextFormat(Qt::PlainText);
    auto* percorso = new EtichettaAccorciata(this);
    percorso->setObjectName(QStringLiteral("file"));
    percorso->setContentsMargins(0, 0, 0, 0);
    percorso->mostra(file);
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(tempo);
    colonna->addWidget(percorso);
}

}  // namespace korven::shell
