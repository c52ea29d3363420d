#pragma once

#include <vector>

#include "scene/picture.hpp"
#include "studies/shown_columns.hpp"
#include "studies/summary/summary.hpp"

// What a study shows of one of its results, drawn with the plot engine.

namespace korven::studies {

/// What the chart of a result needs beside the rows that a summary keeps.
struct GraficoStudio {
    std::size_t risultato = 0;  ///< place in a row, one of `FormaRiga::risultati`: asserted
    std::vector<ValoreMostrato> valori{};  ///< of all places of a row
    bool campioni = false;                 ///< the variants are random
};

/// A size at which the chart can be read [cm].
struct FormatoGrafico {
    double larghezza, altezza;
};
[[nodiscard]] FormatoGrafico formatoGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                                            const GraficoStudio& grafico);

/// Of one field that is no sample's the result over it; of two a family of curves, the field with
/// fewer values giving the curves, where it has a dozen at most. Else, and of samples, the
/// histogram of the result with its quantiles, the bars of its rank correlations, the strongest
/// first, and the result over the field of the strongest. Of rows that many variants have left out
/// only those that the summary keeps.
/// @param larghezza, altezza  [cm]
[[nodiscard]] scene::Scena scenaGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                                        const GraficoStudio& grafico, double larghezza,
                                        double altezza);

/// Makes it the drawing of the plot engine, of that size.
void disegnaGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                    const GraficoStudio& grafico, double larghezza, double altezza);

}  // namespace korven::studies
