#pragma once

#include <string>

#include "verification/check.hpp"

// What is told of a case, translated.

namespace korven::verification {

/// "Spostamento, fase 2, z 10 m"; of a wall with one stage without it.
[[nodiscard]] std::string parole(const Caso& caso, const Attesa& attesa);

/// "Relazione", "Equilibrio", "Sezione".
[[nodiscard]] std::string parole(Metodo metodo);

/// "buono", "fallito", "noto".
[[nodiscard]] std::string parole(Verdetto verdetto);

/// The same names for programs, in every language.
[[nodiscard]] std::string codice(Metodo metodo);
[[nodiscard]] std::string codice(Verdetto verdetto);

/// Expected and computed value as people read them, without the unit: with one decimal more than
/// the expected value is written with, at least; words of a quantity of words; "-" for none.
[[nodiscard]] std::string atteso(const Confronto& confronto);
[[nodiscard]] std::string ottenuto(const Confronto& confronto);
/// "0.02 %", or in the unit of the quantity where the tolerance is.
[[nodiscard]] std::string differenza(const Confronto& confronto);

/// "86 casi: 80 buoni, 0 falliti, 6 noti".
[[nodiscard]] std::string sommario(const EsitoVerifica& esito);

}  // namespace korven::verification
