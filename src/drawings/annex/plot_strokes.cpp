#include "drawings/annex/plot_strokes.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <optional>

namespace korven::drawings {

namespace {

using scene::Punto;
using scene::Riquadro;

Punto tra(const Punto& da, const Punto& a, double t) {
    return {da.x + t * (a.x - da.x), da.y + t * (a.y - da.y)};
}

// The part of a stroke inside a rectangle, as shares of its length.
// Source: the line clip of Liang and Barsky (1984).
std::optional<std::pair<double, double>> parteDentro(const Punto& da, const Punto& a,
                                                     const Riquadro& r) {
    double primo = 0, ultimo = 1;
    const auto taglia = [&](double verso, double distanza) {
        if (verso == 0) return distanza >= 0;
        const double t = distanza / verso;
        if (verso < 0)
            primo = std::max(primo, t);
        else
            ultimo = std::min(ultimo, t);
        return primo < ultimo;
    };
    const double dx = a.x - da.x, dy = a.y - da.y;
    if (taglia(-dx, da.x - r.sinistra) && taglia(dx, r.destra - da.x) &&
        taglia(-dy, da.y - r.alto) && taglia(dy, r.basso - da.y))
        return std::pair(primo, ultimo);
    return {};
}

}  // namespace

std::vector<TrattoScena> fuori(const Punto& da, const Punto& a,
                               const std::vector<Riquadro>& riquadri) {
    std::vector<std::pair<double, double>> parti{{0, 1}};
    for (const Riquadro& r : riquadri) {
        const auto dentro = parteDentro(da, a, r);
        if (!dentro) continue;
        std::vector<std::pair<double, double>> resto;
        for (const auto& [inizio, fine] : parti) {
            if (inizio < std::min(fine, dentro->first))
                resto.emplace_back(inizio, std::min(fine, dentro->first));
            if (std::max(inizio, dentro->second) < fine)
                resto.emplace_back(std::max(inizio, dentro->second), fine);
        }
        parti = std::move(resto);
    }
    std::vector<TrattoScena> tratti;
    tratti.reserve(parti.size());
    for (const auto& [inizio, fine] : parti)
        tratti.emplace_back(inizio == 0 ? da : tra(da, a, inizio),
                            fine == 1 ? a : tra(da, a, fine));
    return tratti;
}

std::optional<TrattoScena> dentro(const Punto& da, const Punto& a, const Riquadro& riquadro) {
    if (const auto parte = parteDentro(da, a, riquadro))
        return TrattoScena{parte->first == 0 ? da : tra(da, a, parte->first),
                           parte->second == 1 ? a : tra(da, a, parte->second)};
    return {};
}

std::vector<TrattoScena> aTratti(const std::vector<Punto>& punti, double acceso, double spento) {
    assert(acceso > 0 && spento > 0);
    std::vector<TrattoScena> tratti;
    bool segna = true;
    double resta = acceso;
    for (std::size_t i = 0; i + 1 < punti.size(); ++i) {
        const Punto &da = punti[i], &a = punti[i + 1];
        const double lungo = std::hypot(a.x - da.x, a.y - da.y);
        for (double fatto = 0; fatto < lungo;) {
            const bool finisce = fatto + resta <= lungo;
            const double fine = finisce ? fatto + resta : lungo;
            if (segna) tratti.emplace_back(tra(da, a, fatto / lungo), tra(da, a, fine / lungo));
            resta -= fine - fatto;
            fatto = fine;
            if (!finisce) break;
            segna = !segna;
            resta = segna ? acceso : spento;
        }
    }
    return tratti;
}

// Bands between the heights of neighbouring corners: in each of them the sides are straight.
std::vector<std::vector<Punto>> inFasce(const std::vector<Punto>& poligono) {
    if (poligono.size() < 3) return {};
    if (poligono.size() == 3) return {poligono};
    std::vector<double> quote;
    quote.reserve(poligono.size());
    for (const Punto& p : poligono) quote.push_back(p.y);
    std::sort(quote.begin(), quote.end());
    quote.erase(std::unique(quote.begin(), quote.end()), quote.end());
    struct Lato {
        double sopra, sotto;
    };
    std::vector<std::vector<Punto>> fasce;
    std::vector<Lato> lati;
    for (std::size_t k = 0; k + 1 < quote.size(); ++k) {
        const double y1 = quote[k], y2 = quote[k + 1];
        lati.clear();
        for (std::size_t i = 0; i < poligono.size(); ++i) {
            const Punto &p = poligono[i], &q = poligono[(i + 1) % poligono.size()];
            if (std::min(p.y, q.y) > y1 || std::max(p.y, q.y) < y2) continue;
            const auto x = [&](double y) { return p.x + (q.x - p.x) * (y - p.y) / (q.y - p.y); };
            lati.push_back({x(y1), x(y2)});
        }
        std::sort(lati.begin(), lati.end(), [](const Lato& a, const Lato& b) {
            return a.sopra + a.sotto < b.sopra + b.sotto;
        });
        for (std::size_t i = 0; i + 1 < lati.size(); i += 2)
            fasce.push_back({{lati[i].sopra, y1},
                             {lati[i + 1].sopra, y1},
                             {lati[i + 1].sotto, y2},
                             {lati[i].sotto, y2}});
    }
    return fasce;
}

}  // namespace korven::drawings
