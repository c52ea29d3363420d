#include "shell/grafica_viewer.hpp"

#include <QWidget>

#include "plot/plot_engine.hpp"

namespace korven::shell {

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
    principale_.setEnabled(false);
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
