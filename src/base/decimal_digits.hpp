#pragma once

#include <string>

namespace korven::base {

/// A number as decimal digits: (-1)^negativo * 0.cifre * 10^punto. `cifre` has no zeros at either
/// end; it is empty for 0, which is never negative.
struct CifreDecimali {
    bool negativo = false;
    std::string cifre;
    int punto = 0;
};

/// The digits of the shortest decimal text that reads back as `valore`.
/// @throws ErroreValore if `valore` is not finite: such a value must never reach a text
[[nodiscard]] CifreDecimali cifrePiuBrevi(double valore);

/// Rounds to `decimali` digits after the point, half away from zero.
[[nodiscard]] CifreDecimali arrotondaDecimali(CifreDecimali numero, int decimali);

/// Rounds to `significative` digits in all, half away from zero.
[[nodiscard]] CifreDecimali arrotondaSignificative(const CifreDecimali& numero, int significative);

/// Sign, integer digits, point, decimals, nothing padded: 0 gives ".", 12 gives "12.", 0.5 ".5".
[[nodiscard]] std::string testoNudo(const CifreDecimali& numero);

}  // namespace korven::base
