#pragma once

#include <algorithm>

#include "project/project_data.hpp"

namespace korven::analysis {

/// Number of anchors in place in stage `fase`, counted from the first row of the anchor table: the
/// whole part of its `tirantiFase`, 0 for a negative one, and no more than `nTiranti`: a row beyond
/// the count is what a longer table left, no anchor. Stage 0 comes before the first and has none.
/// @throws base::ErroreIndice if `tirantiFase` is more than the table holds
[[nodiscard]] inline int tirantiInOpera(const project::DatiProgetto& dati, int fase) {
    const double numero = dati.tirantiFase[fase];
    if (!(numero < project::massimoTiranti + 1))
        throw base::ErroreIndice(project::massimoTiranti + 1, project::massimoTiranti);
    return numero > 0 ? std::min(static_cast<int>(numero), dati.nTiranti) : 0;
}

}  // namespace korven::analysis
