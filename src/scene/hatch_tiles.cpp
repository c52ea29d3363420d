#include "scene/hatch_tiles.hpp"

#include <cmath>

#include "base/file_error.hpp"
#include "drawings/hatch_library.hpp"
#include "scene/polygon.hpp"

namespace korven::scene {

namespace {

constexpr double mezzoLato = 100;  // of a tile, in stroke units
constexpr double punto = 0.6;      // length of a dot [px]

Piastrella piastrella(const drawings::Campitura& campitura, double passo) {
    const double u = campitura.unita * std::pow(2, (passo - 1) / 4) * pixelPerCentimetro;
    Piastrella p{2 * mezzoLato * u, {}};
    for (const auto& t : drawings::leggiTratti(campitura)) {
        // The library's y runs upward.
        const Punto da{(mezzoLato + t.x1) * u, (mezzoLato - t.y1) * u};
        Punto a{(mezzoLato + t.x2) * u, (mezzoLato - t.y2) * u};
        if (da == a) a.x += punto;
        p.tratti.emplace_back(da, a);
    }
    return p;
}

}  // namespace

std::vector<Piastrella> piastrelle(double codice) {
    std::vector<Piastrella> tutte;
    try {
        for (bool altri = std::isfinite(codice) && codice > 0; altri;
             codice = std::floor(codice / 1000)) {
            altri = codice >= 1000;
            const double gruppo = std::fmod(codice, 1000);
            const auto& campitura =
                drawings::campiture()[static_cast<long>(std::fmod(gruppo, 100))];
            if (campitura.nTratti > 0)
                tutte.push_back(piastrella(campitura, std::floor(gruppo / 100)));
        }
    } catch (const base::ErroreFile&) {
        tutte.clear();
    }
    return tutte;
}

std::vector<std::pair<Punto, Punto>> tratti(const Campitura& campitura) {
    std::vector<std::pair<Punto, Punto>> tutti;
    if (campitura.punti.size() < 3) return tutti;
    const Riquadro r = intorno(campitura.punti);
    for (const Piastrella& p : piastrelle(campitura.codice))
        for (double y = std::floor(r.alto / p.lato) * p.lato; y < r.basso; y += p.lato)
            for (double x = std::floor(r.sinistra / p.lato) * p.lato; x < r.destra; x += p.lato)
                for (const auto& [da, a] : p.tratti)
                    if (const auto t =
                            dentro(campitura.punti, {x + da.x, y + da.y}, {x + a.x, y + a.y}))
                        tutti.push_back(*t);
    return tutti;
}

}  // namespace korven::scene
