#include "drawings/annex/inks.hpp"

#include <array>

#include "drawings/annex/paper.hpp"

namespace korven::drawings {

namespace {

using plot::Colore;
using plot::daRgb;

constexpr Colore grigio(int chiaro) { return daRgb(chiaro, chiaro, chiaro); }
constexpr Colore acqua = daRgb(0, 60, 140), pericolo = daRgb(170, 0, 20);

// One row a role, in the order of the roles.
constexpr std::array<Colore, scene::numeroRuoli> inchiostri{{
    plot::bianco,          // sfondo
    plot::nero,            // testo
    grigio(50),            // testoTenue
    plot::nero,            // terreno
    grigio(125),           // strato
    plot::bianco,          // fondoStrato
    grigio(205),           // muro
    plot::nero,            // bordoMuro
    acqua,                 // acqua
    daRgb(226, 237, 247),  // fondoAcqua
    grigio(30),            // carico
    plot::nero,            // tirante
    grigio(120),           // tiranteFuturo
    grigio(60),            // fase
    grigio(70),            // quota
    grigio(40),            // asse
    grigio(200),           // griglia
    plot::nero,            // curva
    grigio(226),           // fondoCurva
    plot::nero,            // curvaMonte
    grigio(226),           // fondoMonte
    plot::nero,            // curvaValle
    grigio(238),           // fondoValle
    pericolo,              // meccanismo
    daRgb(248, 222, 222),  // fondoMeccanismo
    grigio(170),           // limiteAttivo
    grigio(90),            // limitePassivo
    pericolo,              // avviso
    plot::nero,            // evidenza
    plot::nero,            // primaSerie
    daRgb(0, 90, 170),     // secondaSerie
    daRgb(190, 75, 0),     // terzaSerie
    daRgb(0, 115, 80),     // quartaSerie
}};

constexpr double capello = 0.01;      // [cm]
constexpr double cmPerPixel = 0.018;  // of a line, which paper shows finer than a screen
constexpr double massimaLinea = 3;    // [px]

}  // namespace

Colore inchiostro(scene::Tinta tinta) { return inchiostri[static_cast<std::size_t>(tinta.ruolo)]; }

double spessoreCarta(scene::Ruolo ruolo, double spessore) {
    if (ruolo == scene::Ruolo::griglia || ruolo == scene::Ruolo::strato) return capello;
    return spessore > massimaLinea ? spessore / pixelCarta : spessore * cmPerPixel;
}

}  // namespace korven::drawings
