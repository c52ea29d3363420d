#pragma once

#include <string_view>

namespace korven::analysis {

/// Why a soil quantity has no value at a node. A run that meets one is refused: nothing meaningless
/// may travel on.
enum class Indefinito {
    no,              ///< it has a value
    radiceNegativa,  ///< square root of a negative number in ka or kp: slope above friction angle
    discesaRipida,   ///< the same on ground that falls away from the wall
    denominatoreNullo,  ///< division by zero in k0, ka or kp
    tensioneNegativa,   ///< square root of a negative vertical stress in ks (Lancellotta)
    spessoreNullo,      ///< ks extended below a last layer of no thickness
    nonFinito,          ///< too large for a number
};

/// The cause in words, an Italian key for the translation.
[[nodiscard]] constexpr std::string_view causa(Indefinito motivo) {
    switch (motivo) {
        case Indefinito::no:
            break;
        case Indefinito::radiceNegativa:
            return "coefficienti di spinta non definiti: l'inclinazione del terreno supera "
                   "l'angolo "
                   "di attrito";
        case Indefinito::discesaRipida:
            return "coefficienti di spinta non definiti: la pendenza in discesa del terreno supera "
                   "l'angolo di attrito";
        case Indefinito::denominatoreNullo:
            return "coefficienti di spinta non definiti: divisione per zero";
        case Indefinito::tensioneNegativa:
            return "ks non definito: tensione verticale negativa";
        case Indefinito::spessoreNullo:
            return "ks non definito: ultimo strato di spessore nullo";
        case Indefinito::nonFinito:
            return "spinte o ks troppo grandi per essere calcolati";
    }
    return {};
}

}  // namespace korven::analysis
