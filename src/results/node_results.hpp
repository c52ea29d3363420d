#pragma once

#include <vector>

#include "results/report_data.hpp"

namespace korven::results {

/// One stage of a run along the wall, as its result file holds it; node 1 in element 0. Units and
/// signs are those of the report: m, t m, t, t/m2, positive towards the excavation.
struct NodiFase {
    std::vector<double> z, y, momento;
    std::vector<double> taglio;       ///< as the diagram draws it: at an anchor that just below it
    std::vector<double> taglioSopra;  ///< at an anchor that just above it, less its force in `tiri`
    std::vector<double> monte, valle;  ///< soil pressures at work, by the method that the run used
    std::vector<double> acqua;         ///< net water pressure
    double costante = 0;               ///< constant pressure
    /// Forces of the anchors in place, from the displacement of their nodes: a slack one has none.
    std::vector<double> tiri;
};

/// All stages; element 0 is stage 1.
[[nodiscard]] std::vector<NodiFase> nodiFasi(const DatiRelazione& dati);

}  // namespace korven::results
