#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "exchange/layer_rows.hpp"

namespace korven::exchange {

/// What is wrong with the cell of a layer, without its place, translated: no number, a number
/// beyond the limits of the editor, no depth; empty when it is fine.
/// @param testo  with a decimal point, without outer blanks
[[nodiscard]] std::string difettoCella(Colonna colonna, std::string_view testo);

/// The number that a text is to its end; nothing for any other text.
[[nodiscard]] std::optional<double> soloNumero(std::string_view testo);

/// The number of a text, 0 for an empty one.
[[nodiscard]] double numero(std::string_view testo);

/// The text of a computed depth [m], to a millionth of a metre: sums and differences of decimal
/// numbers carry rounding in their last digits.
[[nodiscard]] std::string testoProfondita(double metri);

/// Adds what holds for all rows together: refuses none at all and more than a project holds, warns
/// where depths are out of order or the same. Faults leave no rows.
void controllaTabella(StratiLetti& letti);

}  // namespace korven::exchange
