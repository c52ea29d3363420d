#include "shell/grafica_viewer.hpp"

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
}

VisoreDisegni::~VisoreDisegni() {
    if (plot::statoPlot.superficie == &superficie_) plot::statoPlot.superficie = nullptr;
    if (plot::statoPlot.metrica == &metrica_) plot::statoPlot.metrica = nullptr;
}

plot::SpazioDisegno VisoreDisegni::apri() {
    if (!forma_)
        forma_ = std::make_unique<GRAFICA>(superficie_, porte_, dialogo_, [this] { chiusa(); });
    if (!plot::statoPlot.replay) plot::statoPlot.foglioStampante = porte_.foglioStampante();
    disabilita(principale_);
    return forma_->apri();
}

void VisoreDisegni::attendi() {
    if (forma_ && forma_->isVisible()) attesa_.exec();
}

void VisoreDisegni::chiusa() {
    attesa_.quit();
    principale_.setEnabled(true);
    principale_.show();
    principale_.activateWindow();
}

}  // namespace korven::shell
