#include "shell/rescue/rescue_state.hpp"

#include <QLabel>
#include <QVBoxLayout>

#include "shell/forms/elided_label.hpp"
#include "shell/picture/state_picture.hpp"

namespace korven::shell {

StatoProgetto::StatoProgetto(const Parole& parole, const project::DatiProgetto& dati,
                             QWidget* padre)
    : QGroupBox(parole.titolo, padre) {
    setObjectName(parole.nome);
    auto* tempo = new QLabel(parole.quando, this);
    tempo->setObjectName(QStringLiteral("quando"));
    tempo->setTextFormat(Qt::PlainText);
    auto* percorso = new EtichettaAccorciata(this);
    percorso->setObjectName(QStringLiteral("file"));
    percorso->setContentsMargins(0, 0, 0, 0);
    percorso->mostra(parole.file);
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(tempo);
    colonna->addWidget(percorso);
    colonna->addWidget(new QuadroStato(dati, this), 1);
}

}  // namespace korven::shell
