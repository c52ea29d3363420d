#include "plot/drawing_watch.hpp"

#include "plot/drawing_stop.hpp"
#include "plot/plot_engine.hpp"

namespace korven::plot {

LavoroDisegno::LavoroDisegno() : sorveglia_(statoPlot.sorveglia) {
    ++statoPlot.lavori;
    if (sorveglia_ != nullptr) sorveglia_->inizia();
}

LavoroDisegno::~LavoroDisegno() {
    --statoPlot.lavori;
    if (sorveglia_ != nullptr) sorveglia_->finita();
}

bool LavoroDisegno::inCorso() { return statoPlot.lavori > 0; }

void controllaInterruzione() {
    if (statoPlot.sorveglia != nullptr && statoPlot.sorveglia->fermare()) throw DisegnoInterrotto();
}

}  // namespace korven::plot
