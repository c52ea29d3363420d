#include "drawings/annex/curve_peaks.hpp"

#include <algorithm>

#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "scene/shown_values.hpp"

namespace korven::drawings {

namespace {

Picco picco(const CurvaPannello& curva, std::size_t i, const project::Unita& unita,
            const scene::Punto& punto) {
    const std::string valore = curva.prima + project::numeroMostrato(curva.valori[i], 1, unita);
    const std::string z = scene::quota(curva.z[i]);
    Picco uno{punto, curva.linea, {{valore + " · " + z}, {valore, z}}};
    if (i >= curva.fasi.size() || curva.fasi[i] == 0) return uno;
    const std::string fase = base::traduttore("fase") + ' ' + std::to_string(curva.fasi[i]);
    uno.forme = {
        {valore + " · " + z + " · " + fase}, {valore + " · " + z, fase}, {valore, z, fase}};
    return uno;
}

// A peak that is printed as 0.0 would say that there is none.
bool nullo(const CurvaPannello& curva, std::size_t i, const project::Unita& unita) {
    return project::numeroMostrato(curva.valori[i], 1, unita).find_first_of("123456789") ==
           std::string::npos;
}

}  // namespace

std::vector<Picco> picchi(const CurvaPannello& curva, const project::Unita& unita,
                          const std::vector<scene::Punto>& punti, double trascurabile) {
    std::vector<Picco> tutti;
    const auto& valori = curva.valori;
    const auto [minore, maggiore] = std::minmax_element(valori.begin(), valori.end());
    for (const auto& [dove, detto] :
         {std::pair{maggiore, curva.massimo && *maggiore > trascurabile},
          std::pair{minore, curva.minimo && *minore < -trascurabile}}) {
        const auto i = static_cast<std::size_t>(dove - valori.begin());
        if (detto && !nullo(curva, i, unita)) tutti.push_back(picco(curva, i, unita, punti[i]));
    }
    return tutti;
}

}  // namespace korven::drawings
