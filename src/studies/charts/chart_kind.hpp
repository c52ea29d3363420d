#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "studies/shown_columns.hpp"
#include "studies/summary/summary.hpp"

namespace korven::studies {

/// What the chart of a result needs beside the rows that a summary keeps.
struct GraficoStudio {
    std::size_t risultato = 0;  ///< place in a row, one of `FormaRiga::risultati`: asserted
    std::vector<ValoreMostrato> valori{};  ///< of all places of a row
    bool campioni = false;                 ///< the variants are random
    std::string progetto{};                ///< whose study it is; empty where that stands elsewhere
    std::string data{};                    ///< of the drawing; the same
};

/// What is drawn of a result.
enum class SpecieGrafico {
    curva,     ///< over the one field that varies
    famiglia,  ///< over one of two, a curve for each value of the other
    punti,     ///< a point a variant, over the first field
    campioni,  ///< histogram, rank correlations, points over the field of the strongest
};

/// Which chart it is, and over which field.
struct SceltaGrafico {
    SpecieGrafico specie = SpecieGrafico::punti;
    std::size_t ascissa = 0;                 ///< place of the field along the axis
    std::optional<std::size_t> parametro{};  ///< of a family: the field of its curves
    std::string nota{};                      ///< why points are drawn: a sentence, translated
};

/// Of samples `campioni`. Else of one field a curve, of two a family, the field with fewer values
/// giving the curves, of equally many the second. Curves that are more than the eye tells apart
/// (`drawings::massimeSerie`), and three fields, are points.
[[nodiscard]] SceltaGrafico scegliGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                                          const GraficoStudio& grafico);

}  // namespace korven::studies
