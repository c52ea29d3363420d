#include "scene/hatch_tiles.hpp"

#include <cmath>

#include "base/file_error.hpp"
#include "drawings/hatch_code.hpp"
#include "scene/polygon.hpp"

namespace korven::scene {

namespace {

constexpr double punto = 0.6;  // length of a dot [px]

Piastrella piastrella(const drawings::Campitura& campitura, double passo) {
    constexpr double mezzoLato = drawings::mezzoLatoPiastrella;
    const double u = drawings::unitaTratto(campitura, passo) * pixelPerCentimetro;
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
    if (!(codice > 0)) return tutte;
    try {
        for (const auto& [numero, passo] : drawings::gruppiCampitura(codice)) {
            const auto& campitura = drawings::campiture()[numero];
            if (campitura.nTratti > 0) tutte.push_back(piastrella(campitura, passo));
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
