#include "shell/norms/code_choice.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr int lettereNorma = 24;

factors::Natura detta(const QCheckBox* casella) {
    return casella->isChecked() ? factors::Natura::permanente : factors::Natura::variabile;
}

QHBoxLayout* fila(QWidget* riga) {
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    return disposizione;
}

}  // namespace

SceltaNorma::SceltaNorma(const AspettoNorma& aspetto, QWidget* padre)
    : QWidget(padre), nessuna_(aspetto.nessuna) {
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(fareLista(aspetto));
    colonna->addWidget(fareCarichi(aspetto.tastiNatura));
    offri({}, -1);
}

QWidget* SceltaNorma::fareLista(const AspettoNorma& aspetto) {
    auto* riga = new QWidget(this);
    auto* disposizione = fila(riga);
    norma_ = new QComboBox(riga);
    norma_->setObjectName(QStringLiteral("norma"));
    norma_->setAccessibleName(tradotto("Norma di cui si calcolano le combinazioni"));
    norma_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    norma_->setMinimumContentsLength(lettereNorma);
    auto* etichetta = new QLabel(tradotto(aspetto.etichetta), riga);
    etichetta->setBuddy(norma_);
    disposizione->addWidget(etichetta);
    disposizione->addWidget(norma_, 1);
    connect(norma_, &QComboBox::activated, this, [this] {
        segui();
        emit cambiata();
    });
    return riga;
}

QWidget* SceltaNorma::fareCarichi(bool tasti) {
    carichi_ = new QWidget(this);
    auto* disposizione = fila(carichi_);
    disposizione->addWidget(new QLabel(tradotto("Carichi permanenti:"), carichi_));
    const auto casella = [&](const char* nome, const char* testo) {
        QString detto = tradotto(testo);
        if (!tasti) detto.remove('&');
        auto* fatta = new QCheckBox(detto, carichi_);
        fatta->setObjectName(QLatin1String(nome));
        fatta->setToolTip(tradotto("Con il segno questo carico è permanente, senza è variabile"));
        disposizione->addWidget(fatta);
        connect(fatta, &QCheckBox::toggled, this, &SceltaNorma::cambiata);
        return fatta;
    };
    monte_ = casella("monte", "a &monte");
    scavo_ = casella("scavo", "sul fondo dello &scavo");
    testa_ = casella("testa", "in &testa");
    disposizione->addStretch();
    return carichi_;
}

void SceltaNorma::offri(const std::vector<factors::Norma>& norme, int scelta) {
    const QSignalBlocker muta(norma_);
    norma_->clear();
    if (nessuna_) norma_->addItem(tradotto("nessuna norma"));
    for (const factors::Norma& norma : norme) {
        norma_->addItem(qt(norma.titolo));
        norma_->setItemData(norma_->count() - 1, qt(norma.nome + ", " + norma.file),
                            Qt::ToolTipRole);
    }
    norma_->setCurrentIndex(scelta + (nessuna_ ? 1 : 0));
    segui();
}

int SceltaNorma::scelta() const { return norma_->currentIndex() - (nessuna_ ? 1 : 0); }

factors::NaturaCarichi SceltaNorma::natura() const {
    return {.monte = detta(monte_), .scavo = detta(scavo_), .testa = detta(testa_)};
}

// They matter to a code alone.
void SceltaNorma::segui() { carichi_->setVisible(!nessuna_ || scelta() >= 0); }

}  // namespace korven::shell
