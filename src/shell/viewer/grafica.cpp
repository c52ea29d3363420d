#include "shell/viewer/grafica.hpp"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QToolButton>
#include <QWindow>
#include <algorithm>
#include <memory>
#include <utility>

#include "commands/output_title.hpp"
#include "device/text_painting.hpp"
#include "plot/dxf/export.hpp"
#include "plot/plot_engine.hpp"
#include "plot/plot_print.hpp"
#include "plot/zoom_window.hpp"
#include "shell/failure_box.hpp"
#include "shell/form_sizes.hpp"
#include "shell/qt_text.hpp"
#include "shell/viewer/export.hpp"

namespace korven::shell {

namespace {

constexpr int bordo = 8;             // around the drawing [pixels]
constexpr int attesaRidisegno = 40;  // while the window is being resized [ms]

}  // namespace

GRAFICA::GRAFICA(device::SuperficieSchermo& disegno, PorteGrafica& porte, base::Dialogo& dialogo,
                 std::function<void()> chiusa)
    : disegno_(disegno), porte_(porte), dialogo_(dialogo), chiusa_(std::move(chiusa)) {
    setObjectName(QStringLiteral("GRAFICA"));
    striscia_ = fareStriscia();
    area_ = new QWidget(this);
    superficie_ = new SuperficieGrafica(
        disegno_,
        [this](plot::Punto da, plot::Punto a) {
            disarma();
            conAvviso(dialogo_, [=] { plot::plotIngrandisci(da, a); });
        },
        area_);
    auto* disposizione = new QHBoxLayout(this);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->setSpacing(0);
    disposizione->addWidget(striscia_);
    disposizione->addWidget(area_, 1);

    attesaRidisegno_.setSingleShot(true);
    attesaRidisegno_.setInterval(attesaRidisegno);
    attesaRidisegno_.callOnTimeout(this, [this] { ridisegna(); });
}

plot::SpazioDisegno GRAFICA::apri() {
    setWindowTitle(qt(commands::titoloUscite()));
    if (!isVisible()) {
        if (!ripristinaMisure(*this)) {
            // Most sheets are upright.
            const QSize schermo = screen()->availableSize();
            const int altezza = schermo.height() * 9 / 10;
            resize(std::min(altezza * 9 / 10, schermo.width() * 9 / 10), altezza);
        }
        show();
        raise();
        activateWindow();
    }
    layout()->activate();
    disegno_.impostaRapporto(devicePixelRatioF());
    areaDisegnata_ = area_->size();
    return spazio();
}

plot::SpazioDisegno GRAFICA::spazio() const {
    const double rapporto = devicePixelRatioF();
    return {(area_->width() - 2 * bordo) * rapporto, (area_->height() - 2 * bordo) * rapporto,
            striscia_->width() * rapporto};
}

void GRAFICA::mostraDisegno() {
    if (!plot::statoPlot.replay) disarma();  // a new drawing
    superficie_->mostra();
    centra();
    for (QToolButton* pulsante : spostamenti_) pulsante->setEnabled(plot::statoPlot.zoom);
}

// No layout does this: the drawing follows the room, never the other way round.
void GRAFICA::centra() {
    const QSize resto = area_->size() - superficie_->size();
    superficie_->move(resto.width() / 2, resto.height() / 2);
}

void GRAFICA::arma() {
    superficie_->arma(true);
    armato_->show();
    armato_->raise();
    armato_->setFocus();
}

void GRAFICA::disarma() {
    superficie_->arma(false);
    armato_->setChecked(true);  // a click has taken the mark off
    if (armato_->hasFocus()) ingrandisci_->setFocus();
    armato_->hide();
}

void GRAFICA::tutto() {
    disarma();
    plot::plotTutto();
}

void GRAFICA::ridisegna() {
    if (plot::LavoroDisegno::inCorso()) return attesaRidisegno_.start();
    if (!isVisible() || area_->size() == areaDisegnata_) return;
    conAvviso(dialogo_, [] {
        const plot::Riquadro& zoom = plot::statoPlot.rettangoloZoom;
        if (plot::statoPlot.zoom)
            plot::plotZoom(zoom.xmin, zoom.ymin, zoom.xmax, zoom.ymax);
        else
            plot::plotTutto();
    });
}

void GRAFICA::stampa(bool adatta) {
    if (const auto stampante = porte_.stampante(windowTitle().toStdString()))
        plot::plotStampa(adatta, *stampante, dialogo_);
}

void GRAFICA::esportaDxf() {
    conAvviso(dialogo_, [this] {
        const auto percorso = porte_.fileDaSalvare(richiestaDxf());
        if (!percorso) return;
        plot::plotDxf(*percorso, porte_.disco());
        porte_.scritto(*percorso);
    });
    tutto();
}

void GRAFICA::esportaImmagine() {
    const auto percorso = porte_.fileDaSalvare(richiestaImmagine());
    if (!percorso) return;
    scriviImmagine(*percorso, porte_.disco());
    porte_.scritto(*percorso);
}

void GRAFICA::keyPressEvent(QKeyEvent* evento) {
    const QString tasto = evento->text().toUpper();
    // NOLINTBEGIN(bugprone-branch-clone): the keys in the order in which they are looked at
    if (evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        QWidget::keyPressEvent(evento);
    else if (tasto == QLatin1String("S"))
        conAvviso(dialogo_, [this] { stampa(false); });
    else if (tasto == QLatin1String("I"))
        conAvviso(dialogo_, [this] { stampa(true); });
    else if (tasto == QLatin1String("D"))
        conAvviso(dialogo_, [this] { esportaDxf(); });
    else if (tasto == QLatin1String("U"))
        close();
    else if (evento->key() == Qt::Key_Escape && superficie_->armata())
        disarma();
    else if (evento->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(evento);
    // NOLINTEND(bugprone-branch-clone)
}

void GRAFICA::closeEvent(QCloseEvent* evento) {
    attesaRidisegno_.stop();
    ricordaMisure(*this);
    disarma();
    evento->accept();
    disegno_.svuota();
    chiusa_();
}

void GRAFICA::resizeEvent(QResizeEvent*) {
    centra();
    attesaRidisegno_.start();
}

void GRAFICA::showEvent(QShowEvent*) {
    if (schermoSeguito_) return;
    schermoSeguito_ = true;
    // Another screen may have another pixel ratio.
    connect(windowHandle(), &QWindow::screenChanged, this, [this] {
        areaDisegnata_ = {};
        attesaRidisegno_.start();
    });
}

}  // namespace korven::shell
