#pragma once

#include <string>
#include <string_view>

#include "base/dialogo.hpp"
#include "masks/mask.hpp"

// What may be typed into a field. The same words tell of a fault in both forms.

namespace korven::masks {

enum class Vizio {
    nessuno,
    intervallo,    ///< a number below the minimum or above the maximum
    alfanumerico,  ///< no number: a blank inside it, or a character that numbers don't have
    lunghezza,     ///< a text that is too long; it is cut
    chiave,        ///< none of the values that a column allows
};

/// Checks a text against the limits of a number. Outer blanks don't count, an empty text is fine
/// and reads as 0. What the character test lets through without being a number ("-", "e") reads as
/// 0 and is compared as such; a number too large for a double lies outside any limits.
[[nodiscard]] Vizio controllaNumero(std::string_view testo, double minimo, double massimo);

/// Checks the text of a field of a field form when it is left.
[[nodiscard]] Vizio controllaCampo(const CampoMaschera& campo, std::string_view testo);

/// Checks the text of a cell: an empty or blank one is fine; then come the keys of the column, and
/// after a match the length of a text or the limits of a number.
[[nodiscard]] Vizio controllaCella(const CampoMaschera& colonna, std::string_view testo);

/// The first `caratteri` characters.
[[nodiscard]] std::string tagliato(std::string_view testo, std::size_t caratteri);

/// Tells of a fault in a box with a stop sign.
/// @param aCapo  what parts the sentence about the limits from the limits
void segnala(Vizio vizio, const CampoMaschera& campo, std::string_view titolo,
             std::string_view aCapo, base::Dialogo& dialogo);

}  // namespace korven::masks
