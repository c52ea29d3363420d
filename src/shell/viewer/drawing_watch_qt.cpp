#include "shell/viewer/drawing_watch_qt.hpp"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/qt_text.hpp"
#include "shell/termination.hpp"

namespace korven::shell {

DisegnoInCorso::DisegnoInCorso(QWidget* padre) : QWidget(padre, Qt::Dialog) {
    setObjectName(QStringLiteral("DisegnoInCorso"));
    setWindowTitle(QStringLiteral("KORVEN 32"));
    setWindowModality(Qt::ApplicationModal);
    constexpr int larghezza = 40;  // of the title too [characters]
    setMinimumWidth(larghezza * fontMetrics().averageCharWidth());
    auto* disposizione = new QVBoxLayout(this);
    disposizione->addWidget(new QLabel(tradotto("Disegno in corso"), this), 0, Qt::AlignHCenter);
    auto* ferma = new QPushButton(tradotto("&Interrompi"), this);
    connect(ferma, &QPushButton::clicked, this, &DisegnoInCorso::interruzione);
    disposizione->addWidget(ferma, 0, Qt::AlignHCenter);
    ferma->setFocus();
}

void DisegnoInCorso::closeEvent(QCloseEvent* evento) {
    emit interruzione();
    evento->ignore();
}

void DisegnoInCorso::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape || evento->key() == Qt::Key_Return ||
        evento->key() == Qt::Key_Enter)
        emit interruzione();
    else
        QWidget::keyPressEvent(evento);
}

void SorveglianzaQt::inizia() {
    if (lavori_++ > 0) return;
    fermata_ = false;
    inizio_ = servita_ = orologio_();
}

bool SorveglianzaQt::fermare() {
    constexpr unsigned lineePerSguardo = 64;  // the clock costs more than a line
    constexpr std::chrono::milliseconds pazienza{500}, intervallo{30};
    if (lavori_ == 0) return false;
    if (fermata_ || ++chiamate_ % lineePerSguardo != 0) return fermata_;
    const Istante adesso = orologio_();
    if (!finestra_ && adesso - inizio_ >= pazienza) mostra();
    if (!finestra_ || adesso - servita_ < intervallo) return false;
    servita_ = adesso;
    QCoreApplication::processEvents();
    fermata_ = fermata_ || Terminazione::chiesta();
    return fermata_;
}

void SorveglianzaQt::finita() {
    if (--lavori_ == 0) finestra_.reset();
}

void SorveglianzaQt::mostra() {
    finestra_ = std::make_unique<DisegnoInCorso>(sopra_());
    QObject::connect(finestra_.get(), &DisegnoInCorso::interruzione, [this] { fermata_ = true; });
    finestra_->show();
}

}  // namespace korven::shell
