#pragma once

#include <array>
#include <string>
#include <vector>

#include "drawings/charts/axes.hpp"

// What has no number in a chart is marked below its field, where it would stand.

namespace korven::drawings {

/// Why there is none.
enum class Mancanza {
    cade,         ///< the wall falls
    rifiutata,    ///< there is no wall
    senzaNumero,  ///< the wall stands, and has not this number
    senzaPiede,   ///< it has the number, but is no wall to be built: that is marked where it is
};

struct SenzaNumero {
    double x;
    Mancanza perche;
    bool operator==(const SenzaNumero&) const = default;
};

/// Of each kind what is said of its mark, translated.
using ParoleMancanze = std::array<std::string, 4>;

/// The height that so many rows of marks need below the field of a chart [px].
[[nodiscard]] double altezzaMancanze(std::size_t righe);

/// Marks a row of them in the strip below the field.
/// @param riga  from 0, downwards
void segnaMancanze(scene::Tela& tela, const Assi& assi, std::size_t riga,
                   const std::vector<SenzaNumero>& mancanti);
/// The height of a row.
[[nodiscard]] double yMancanze(const Assi& assi, std::size_t riga);

/// Marks a number of a wall without its toe, by a ring about its place.
void segnaSenzaPiede(scene::Tela& tela, scene::Punto punto);

/// Below the numbers of the axis what the marks mean that are there.
void spiegaMancanze(scene::Tela& tela, const Assi& assi, const std::vector<SenzaNumero>& tutti,
                    const ParoleMancanze& parole);

}  // namespace korven::drawings
