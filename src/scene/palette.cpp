#include "scene/palette.hpp"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>

namespace korven::scene {

namespace {

constexpr Rgb esa(std::uint32_t rrggbb) {
    return {static_cast<std::uint8_t>(rrggbb >> 16), static_cast<std::uint8_t>(rrggbb >> 8),
            static_cast<std::uint8_t>(rrggbb)};
}

struct Coppia {
    std::uint32_t chiara, scura;
};

// One row a role, in the order of the roles; those of layers come from the table below.
constexpr std::array<Coppia, numeroRuoli> ruoli{{
    {0xFFFFFF, 0x1D2126},  // sfondo
    {0x1A1F24, 0xECEFF2},  // testo
    {0x4A525A, 0xB4BDC6},  // testoTenue
    {0x5B4630, 0xB79B78},  // terreno
    {0, 0},                // strato
    {0, 0},                // fondoStrato
    {0xB9C0C6, 0x59636D},  // muro
    {0x2B3238, 0xD3DAE0},  // bordoMuro
    {0x0A5FA5, 0x79BDF2},  // acqua
    {0xD6EAF8, 0x1B3A55},  // fondoAcqua
    {0x8A3F00, 0xF3A96A},  // carico
    {0x2A3F6F, 0xB5C6F5},  // tirante
    {0xA4AEC2, 0x5C6679},  // tiranteFuturo
    {0x6B5A48, 0xC4AF97},  // fase
    {0x7A838C, 0x87919B},  // quota
    {0x5E666E, 0x99A3AD},  // asse
    {0xE1E5E9, 0x343B43},  // griglia
    {0x00695C, 0x5FD3C4},  // curva
    {0xCDE8E4, 0x1B4440},  // fondoCurva
    {0x8F3F0B, 0xF2A873},  // curvaMonte
    {0xF6DFCF, 0x503626},  // fondoMonte
    {0x2C6B2F, 0x8FD694},  // curvaValle
    {0xD8ECD9, 0x26442A},  // fondoValle
    {0xB3141E, 0xFF8A8A},  // meccanismo
    {0xF9D3D5, 0x5A2429},  // fondoMeccanismo
    {0xE0A100, 0xD9A514},  // limiteAttivo
    {0xD64500, 0xFF7A3D},  // limitePassivo
    {0x854D00, 0xF5BE62},  // avviso
    {0xC2185B, 0xFF7FB0},  // evidenza
    {0x1A1F24, 0xECEFF2},  // primaSerie
    {0x0A5FA5, 0x79BDF2},  // secondaSerie
    {0xB04A00, 0xF3A96A},  // terzaSerie
    {0x00705A, 0x5FD3C4},  // quartaSerie
}};

// The pens that the stratigraphic log draws hatch colours 1 to 21 with, as they are delivered, and
// the same hues on a dark ground. Row 0 is ground of which nothing is known.
constexpr std::array<Coppia, numeroColoriStrato> strati{{
    {0x777777, 0x9A9A9A}, {0x3A3A3A, 0xC8CDD2}, {0x6E420C, 0xC79A62}, {0xBF8400, 0xE0AE3C},
    {0x1EA63E, 0x5CC878}, {0x1474BE, 0x6CB2E8}, {0x16167A, 0x9A9AF0}, {0x6E420C, 0xC79A62},
    {0x1474BE, 0x6CB2E8}, {0x044016, 0x6FBF8A}, {0x72209A, 0xC58AE6}, {0xD81C1C, 0xF07C7C},
    {0x349BBF, 0x7CCBE6}, {0xBF8400, 0xE0AE3C}, {0xC410C0, 0xEE84EA}, {0x1EA63E, 0x5CC878},
    {0x600810, 0xE08C96}, {0x2424E6, 0xA0A0FF}, {0x349BBF, 0x7CCBE6}, {0x044016, 0x6FBF8A},
    {0x72209A, 0xC58AE6}, {0xD81C1C, 0xF07C7C},
}};

// Hatches and their ground stay behind what is drawn upon them.
constexpr double forzaTratto = 0.5, forzaFondo = 0.14;

Rgb scelta(const Coppia& coppia, Tavolozza tavolozza) {
    return esa(tavolozza == Tavolozza::chiara ? coppia.chiara : coppia.scura);
}

Rgb mescola(Rgb sotto, Rgb sopra, double forza) {
    const auto parte = [forza](std::uint8_t a, std::uint8_t b) {
        return static_cast<std::uint8_t>(std::lround(a + forza * (b - a)));
    };
    return {parte(sotto.r, sopra.r), parte(sotto.g, sopra.g), parte(sotto.b, sopra.b)};
}

double lineare(std::uint8_t canale) {
    const double c = canale / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double luminanza(Rgb c) {
    return 0.2126 * lineare(c.r) + 0.7152 * lineare(c.g) + 0.0722 * lineare(c.b);
}

}  // namespace

Rgb colore(Tinta tinta, Tavolozza tavolozza) {
    assert(tinta.strato >= 0 && tinta.strato < numeroColoriStrato);
    if (tinta.ruolo != Ruolo::strato && tinta.ruolo != Ruolo::fondoStrato)
        return scelta(ruoli[static_cast<std::size_t>(tinta.ruolo)], tavolozza);
    return mescola(scelta(ruoli[0], tavolozza),
                   scelta(strati[static_cast<std::size_t>(tinta.strato)], tavolozza),
                   tinta.ruolo == Ruolo::strato ? forzaTratto : forzaFondo);
}

double contrasto(Rgb a, Rgb b) {
    const double x = luminanza(a), y = luminanza(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

Tavolozza tavolozza(Rgb testoFinestra, Rgb sfondoFinestra) {
    return luminanza(testoFinestra) > luminanza(sfondoFinestra) ? Tavolozza::scura
                                                                : Tavolozza::chiara;
}

}  // namespace korven::scene
