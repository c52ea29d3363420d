#include "shell/viewer/viewer.hpp"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>

#include "plot/plot_engine.hpp"

namespace korven::shell {

namespace {

// Takes a form out of use, but not the windows that belong to it, as the preview and the help: Qt
// would take them along.
void disabilita(QWidget& forma) {
    forma.setEnabled(false);
    for (QWidget* sua : forma.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (sua->isWindow()) sua->setEnabled(true);
}

}  // namespace

VisoreDisegni::VisoreDisegni(QWidget& principale, PorteGrafica& porte, base::Dialogo& dialogo)
    : principale_(principale),
      porte_(porte),
      dialogo_(dialogo),
      superficie_([this] { return apri(); }, [this] { forma_->mostraDisegno(); }) {
    plot::statoPlot.superficie = &superficie_;
    plot::statoPlot.metrica = &metrica_;
    plot::statoPlot.sorveglia = &sorveglianza_;
    principale_.installEventFilter(this);
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { fineSessione_ = true; });
}

VisoreDisegni::~VisoreDisegni() {
    if (plot::statoPlot.superficie == &superficie_) plot::statoPlot.superficie = nullptr;
    if (plot::statoPlot.metrica == &metrica_) plot::statoPlot.metrica = nullptr;
    if (plot::statoPlot.sorveglia == &sorveglianza_) plot::statoPlot.sorveglia = nullptr;
}

plot::SpazioDisegno VisoreDisegni::apri() {
    if (!forma_)
        forma_ = std::make_unique<GRAFICA>(superficie_, porte_, dialogo_, [this] { chiusa(); });
    if (!plot::statoPlot.replay) plot::statoPlot.foglioStampante = porte_.foglioStampante();
    disabilita(principale_);
    fineSessione_ = false;
    return forma_->apri();
}

// The close button in the frame of a disabled window works all the same. The end of the desktop's
// session, which closes all windows in their order, is not to be held up.
bool VisoreDisegni::eventFilter(QObject* oggetto, QEvent* evento) {
    const bool chiude = oggetto == &principale_ && evento->type() == QEvent::Close;
    if (!chiude || fineSessione_ || !forma_ || !forma_->isVisible())
        return QObject::eventFilter(oggetto, evento);
    evento->ignore();
    forma_->raise();
    forma_->activateWindow();
    return true;
}

void VisoreDisegni::attendi() {
    if (forma_ && forma_->isVisible()) attesa_.exec();
}

void VisoreDisegni::chiudi() {
    if (forma_) forma_->close();
}

void VisoreDisegni::chiusa() {
    attesa_.quit();
    principale_.setEnabled(true);
    principale_.show();
    principale_.activateWindow();
}

}  // namespace korven::shell
