#include "studies/charts/chart_kind.hpp"

#include <algorithm>
#include <set>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/charts/series_style.hpp"

namespace korven::studies {

namespace {

using base::riempito;
using base::traduttore;

std::size_t quantiValori(const std::vector<double>& v) {
    return std::set<double>(v.begin(), v.end()).size();
}

SceltaGrafico famiglia(const Riassunto& r) {
    const std::size_t primo = quantiValori(r.tenuti(0)), secondo = quantiValori(r.tenuti(1));
    const std::size_t curve = std::min(primo, secondo);
    if (curve > drawings::massimeSerie)
        return {.nota = riempito(traduttore("Sarebbero %1 curve, %2 al massimo si distinguono: "
                                            "ogni punto è una variante."),
                                 {std::to_string(curve), std::to_string(drawings::massimeSerie)})};
    const std::size_t parametro = primo < secondo ? 0 : 1;
    return {.specie = SpecieGrafico::famiglia, .ascissa = 1 - parametro, .parametro = parametro};
}

}  // namespace

SceltaGrafico scegliGrafico(const Riassunto& riassunto, const FormaRiga& forma,
                            const GraficoStudio& grafico) {
    if (grafico.campioni) return {.specie = SpecieGrafico::campioni};
    if (forma.campi == 1) return {.specie = SpecieGrafico::curva};
    if (forma.campi == 2) return famiglia(riassunto);
    return {.nota = riempito(traduttore("Variano %1 campi: ogni punto è una variante."),
                             {std::to_string(forma.campi)})};
}

}  // namespace korven::studies
