#pragma once

#include "scene/picture.hpp"
#include "studies/charts/chart_kind.hpp"

// What a study shows of one of its results, drawn with the plot engine.

namespace korven::studies {

/// A size at which the chart can be read [cm].
struct FormatoGrafico {
    double larghezza, altezza;
};
[[nodiscard]] FormatoGrafico formatoGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                                            const GraficoStudio& grafico);

/// Draws what `scegliGrafico` chooses, in shown units. What a variant has not is marked below its
/// place: a wall that falls, data that were refused, a number that it has not. A
/// wall that stands with its toe dug free has a mark of its own, and no curve leads to it. Of rows
/// that many variants have left out only those that the summary keeps, which is said.
/// @param larghezza, altezza  [cm]
[[nodiscard]] scene::Scena scenaGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                                        const GraficoStudio& grafico, double larghezza,
                                        double altezza);

/// Makes it the drawing of the plot engine, of that size.
void disegnaGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                    const GraficoStudio& grafico, double larghezza, double altezza);

}  // namespace korven::studies
