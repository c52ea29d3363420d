#include "drawings/charts/series_style.hpp"

#include <cmath>
#include <iterator>
#include <numbers>
#include <utility>

namespace korven::drawings {

namespace {

using scene::Punto;
using scene::Ruolo;
using scene::Tratteggio;

constexpr Ruolo ruoli[] = {Ruolo::primaSerie, Ruolo::secondaSerie, Ruolo::terzaSerie,
                           Ruolo::quartaSerie};

// A regular polygon with corners on a circle, the first at an angle from above.
struct Forma {
    int angoli;
    double giro;    // [rad], clockwise
    double raggio;  // over that of the round one, for areas that look alike
};
constexpr double ottavo = std::numbers::pi / 4;
constexpr Forma forme[] = {{12, 0, 1}, {4, ottavo, 1.25}, {3, 0, 1.35}, {4, 0, 1.25}};

std::vector<Punto> contorno(const Forma& forma, Punto centro) {
    std::vector<Punto> punti;
    const double r = mezzoSegno * forma.raggio;
    for (int i = 0; i < forma.angoli; ++i) {
        const double a = forma.giro + 2 * std::numbers::pi * i / forma.angoli;
        punti.push_back({centro.x + r * std::sin(a), centro.y - r * std::cos(a)});
    }
    return punti;
}

// The first four are full with unbroken lines, the others hollow with dashes.
bool piena(std::size_t numero) { return numero % massimeSerie < std::size(forme); }

}  // namespace

scene::Linea lineaSerie(std::size_t numero, std::vector<Punto> punti) {
    constexpr double spessore = 1.6;
    return {std::move(punti),
            {ruoli[numero % std::size(ruoli)]},
            spessore,
            piena(numero) ? Tratteggio::nessuno : Tratteggio::linee};
}

void segnaSerie(scene::Tela& tela, std::size_t numero, Punto punto) {
    const scene::Tinta tinta{ruoli[numero % std::size(ruoli)]};
    auto punti = contorno(forme[numero % std::size(forme)], punto);
    if (piena(numero)) {
        tela.disegna(scene::Elemento::estremo, 0, scene::Area{std::move(punti), tinta});
        return;
    }
    punti.push_back(punti.front());
    tela.disegna(scene::Elemento::estremo, 0, scene::Linea{std::move(punti), tinta, 1.2});
}

}  // namespace korven::drawings
