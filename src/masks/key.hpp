#pragma once

namespace korven::masks {

/// The keys that the forms give a meaning of their own.
enum class Tasto {
    carattere,  ///< types a character, none of those below
    punto,      ///< one of the two "." keys
    canc,       ///< delete
    backspace,
    invio,
    esc,
    f1,
    f2,
    su,
    giu,
    sinistra,
    destra,
};

}  // namespace korven::masks
