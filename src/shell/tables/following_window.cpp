#include "shell/tables/following_window.hpp"

#include <QLabel>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "shell/forms/wrapped_label.hpp"
#include "shell/live/live_view.hpp"
#include "shell/qt_text.hpp"
#include "shell/tables/table_pages.hpp"
#include "shell/tables/table_view.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

constexpr QSize misuraComoda(1000, 560);
// Keys that follow one another at once cost one computation.
constexpr int riposo = 150;  // [ms]

}  // namespace

FinestraProspetti::FinestraProspetti(QWidget& principale, VitaProgetto& vita, const QString& nome,
                                     const QString& titolo)
    : FinestraCompagna(principale, nome, titolo, misuraComoda),
      vita_(vita),
      riposo_(new QTimer(this)),
      colonna_(new QVBoxLayout(this)) {
    riposo_->setSingleShot(true);
    riposo_->setInterval(riposo);
    connect(riposo_, &QTimer::timeout, this, [this] { guardaOra(); });
    connect(&vita, &VitaProgetto::cambiata, this, [this] { guarda(); });
}

QString FinestraProspetti::inCorso() {
    return tradotto("Calcolo in corso") + QStringLiteral("...");
}

void FinestraProspetti::comincia(std::initializer_list<QWidget*> scelte) {
    for (QWidget* scelta : scelte) colonna_->addWidget(scelta);
    frasi_ = etichettaInRighe("frasi", this);
    colonna_->addWidget(frasi_);
    pagine_ = new PagineProspetti(this);
    colonna_->addWidget(pagine_, 1);
}

VistaProspetto* FinestraProspetti::prospetto(const char* nome, const char* titolo) {
    prospetti_.push_back(pagine_->aggiungi(nome, titolo));
    return prospetti_.back();
}

void FinestraProspetti::finisci(QWidget* pulsanti) {
    nota_ = etichettaInRighe("nota", this);
    colonna_->addWidget(nota_);
    colonna_->addWidget(pulsanti);
}

void FinestraProspetti::showEvent(QShowEvent* evento) {
    FinestraCompagna::showEvent(evento);
    if (!evento->spontaneous()) appare();
}

void FinestraProspetti::hideEvent(QHideEvent* evento) {
    if (!evento->spontaneous()) {
        riposo_->stop();
        ferma();
    }
    FinestraCompagna::hideEvent(evento);
}

void FinestraProspetti::changeEvent(QEvent* evento) {
    FinestraCompagna::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() && isVisible()) torna();
}

void FinestraProspetti::guarda() {
    if (isVisible()) riposo_->start();
}

void FinestraProspetti::guardaOra() {
    riposo_->stop();
    const int domanda = osserva();
    if (domanda == 0 || domanda != chiesta_) ferma();
    if (domanda != 0 && chiesta_ == 0) {
        chiesta_ = domanda;
        chiedi();
    }
    mostra();
}

void FinestraProspetti::ferma() {
    chiesta_ = 0;
    lascia();
}

void FinestraProspetti::risposto() {
    chiesta_ = 0;
    mostra();
}

void FinestraProspetti::sospendi(bool sospeso) {
    for (VistaProspetto* vista : prospetti_) vista->sospendi(sospeso);
    frasi_->setEnabled(!sospeso);
}

void FinestraProspetti::svuota(const QString& perche) {
    frasi_->setText(inRighe(perche));
    for (VistaProspetto* vista : prospetti_) vista->mostra({.note = {perche.toStdString()}});
}

}  // namespace korven::shell
