#pragma once

#include <cstdint>

namespace korven::scene {

/// What a part of the picture is, and so which colour it has on a light and on a dark desktop.
enum class Ruolo {
    sfondo,           ///< the sheet, the air
    testo,            ///< texts that are read first
    testoTenue,       ///< captions, dimensions, numbers of axes
    terreno,          ///< lines of the ground and of the excavation
    strato,           ///< hatch of a layer, by its colour
    fondoStrato,      ///< ground of a layer, by the same
    muro,             ///< inside of the wall
    bordoMuro,        ///< its outline, restraints
    acqua,            ///< water levels and net water pressure
    fondoAcqua,       ///< open water
    carico,           ///< loads
    tirante,          ///< anchors and struts in place
    tiranteFuturo,    ///< those that come later
    fase,             ///< levels of the stages
    quota,            ///< dimension lines
    asse,             ///< axes of a curve
    griglia,          ///< lines behind it
    curva,            ///< displacement, moment, shear
    fondoCurva,       ///< the field between it and its axis, an envelope
    curvaMonte,       ///< pressure of the uphill side
    fondoMonte,       ///< its field
    curvaValle,       ///< pressure of the excavated side
    fondoValle,       ///< its field
    meccanismo,       ///< a wall that moves, and what is said of it
    fondoMeccanismo,  ///< its inside
    limiteAttivo,     ///< soil at its active limit
    limitePassivo,    ///< soil at its passive limit
    avviso,           ///< what keeps a wall from being computed
    evidenza,         ///< the depth that is read
    primaSerie,       ///< curves of a family, told apart
    secondaSerie,
    terzaSerie,
    quartaSerie,
};
inline constexpr int numeroRuoli = static_cast<int>(Ruolo::quartaSerie) + 1;

/// Hatch colours of a layer's graphic code, 1 to 21; 0 is ground of no layer.
inline constexpr int numeroColoriStrato = 22;

/// A role, and for those of layers the number of the hatch colour.
struct Tinta {
    Ruolo ruolo = Ruolo::testo;
    int strato = 0;
    bool operator==(const Tinta&) const = default;
};

/// Red, green and blue, 0 to 255.
struct Rgb {
    std::uint8_t r = 0, g = 0, b = 0;
    bool operator==(const Rgb&) const = default;
};

enum class Tavolozza { chiara, scura };

/// The colour of a role.
/// @pre the number of a layer's colour is known: asserted
[[nodiscard]] Rgb colore(Tinta tinta, Tavolozza tavolozza);

/// How much two colours differ in lightness for the eye, 1 to 21; texts need 4.5.
/// Source: Web Content Accessibility Guidelines 2.1, definition of contrast ratio.
[[nodiscard]] double contrasto(Rgb a, Rgb b);

/// Dark where the desktop writes light on dark.
[[nodiscard]] Tavolozza tavolozza(Rgb testoFinestra, Rgb sfondoFinestra);

}  // namespace korven::scene
