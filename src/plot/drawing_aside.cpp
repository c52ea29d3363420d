#include "plot/drawing_aside.hpp"

#include <utility>

namespace korven::plot {

DisegnoAParte::DisegnoAParte() : tenuto_(std::exchange(statoPlot, StatoPlot{})) {
    statoPlot.metrica = tenuto_.metrica;
    statoPlot.sorveglia = tenuto_.sorveglia;
}

DisegnoAParte::~DisegnoAParte() { statoPlot = std::move(tenuto_); }

}  // namespace korven::plot
