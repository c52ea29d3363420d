#include "drawings/annex/panel_scale.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/axis_steps.hpp"
#include "drawings/annex/paper.hpp"
#include "project/units.hpp"

namespace korven::drawings {

namespace {

constexpr double em = corpoCarta;
constexpr double aria = 0.45 * em, oltre = 0.45 * em;  // between numbers, at the edges

std::vector<NumeroAscissa> numeri(const ScalaPannello& scala, double passo,
                                  const scene::MisuraTesti& misura) {
    std::vector<NumeroAscissa> tutti;
    for (double i = std::ceil(scala.minimo / passo); i * passo <= scala.massimo; ++i) {
        NumeroAscissa& n = tutti.emplace_back();
        n.tacca = n.x = scala.x(i * passo);
        n.testo = base::numeroAsse(i * passo, passo);
        n.mezza = misura.larghezza(n.testo, corpoPiccolo, false) / 2;
        const double sporge = n.mezza - oltre;
        if (scala.x2 - scala.x1 > 2 * sporge)
            n.x = std::clamp(n.x, scala.x1 + sporge, scala.x2 - sporge);
    }
    return tutti;
}

bool sgombri(const NumeroAscissa& a, const NumeroAscissa& b) {
    return std::fabs(a.x - b.x) >= a.mezza + b.mezza + aria;
}

// Of a number from 0, which is farther than all.
double lontano(const ScalaPannello& scala, const NumeroAscissa& n) {
    const double d = std::fabs(n.tacca - scala.x(0));
    return d < 1 ? scala.x2 - scala.x1 : d;
}

}  // namespace

ScalaPannello::ScalaPannello(const DatiPannello& dati, double sinistra, double destra)
    : x1(sinistra), x2(destra) {
    constexpr double respiro = 0.05;  // of the whole
    for (const CurvaPannello& curva : dati.curve)
        for (const double v : curva.valori) {
            minimo = std::min(minimo, mostrato(dati.unita, v));
            massimo = std::max(massimo, mostrato(dati.unita, v));
        }
    if (minimo == massimo) massimo = 1;
    const double largo = respiro * (massimo - minimo);
    if (minimo < 0) minimo -= largo;
    if (massimo > 0) massimo += largo;
}

std::vector<NumeroAscissa> numeriAscisse(const ScalaPannello& scala,
                                         const scene::MisuraTesti& misura) {
    std::vector<NumeroAscissa> scelti;
    for (int quanti = 6; quanti > 0; --quanti) {
        auto prova = numeri(scala, base::passoAsse(scala.massimo - scala.minimo, quanti), misura);
        const bool tutti = std::adjacent_find(prova.begin(), prova.end(),
                                              [](const NumeroAscissa& a, const NumeroAscissa& b) {
                                                  return !sgombri(a, b);
                                              }) == prova.end();
        if (tutti && prova.size() < 2 && !scelti.empty()) break;
        scelti = std::move(prova);
        if (tutti) break;
    }
    std::stable_sort(scelti.begin(), scelti.end(),
                     [&](const NumeroAscissa& a, const NumeroAscissa& b) {
                         return lontano(scala, a) > lontano(scala, b);
                     });
    std::vector<NumeroAscissa> scritti;
    for (NumeroAscissa& n : scelti)
        if (std::all_of(scritti.begin(), scritti.end(),
                        [&](const NumeroAscissa& uno) { return sgombri(n, uno); }))
            scritti.push_back(std::move(n));
    return scritti;
}

}  // namespace korven::drawings
