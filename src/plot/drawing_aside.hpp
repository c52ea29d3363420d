#pragma once

#include "plot/plot_engine.hpp"

namespace korven::plot {

/// For as long as this lives the plotter is another one, empty and without a surface: a drawing for
/// a page of a document, which must not touch the one that a window shows. Metric and watch stay.
class DisegnoAParte {
 public:
    DisegnoAParte();
    DisegnoAParte(const DisegnoAParte&) = delete;
    DisegnoAParte& operator=(const DisegnoAParte&) = delete;
    ~DisegnoAParte();

 private:
    StatoPlot tenuto_;
};

}  // namespace korven::plot
