#pragma once

#include <cstddef>
#include <string_view>

// What a type text of a mask says. "@" in a text's type lifts its length limit.

namespace korven::masks {

/// Type of a field in a field form.
///
/// | type text | kind |
/// | --- | --- |
/// | "0" | number, checked against its limits |
/// | begins with "#" and holds "." | number picture: no more decimals than "#" after its point |
/// | any other | text; its leading number is the greatest length |
///
/// A picture without "@" has no leading number and so takes no text at all: write "##.##@".
struct TipoCampo {
    bool numero = false;
    bool figura = false;
    bool illimitato = false;    ///< the length is not checked
    std::size_t lunghezza = 0;  ///< greatest number of characters
    std::size_t decimali = 0;   ///< of a picture
};

[[nodiscard]] TipoCampo tipoCampo(std::string_view tipo);

/// Type of a column of a grid: text if it begins with "/", and then its whole length, the slash
/// included, is the greatest length of a cell; a number otherwise. The length of the type text is
/// the width of the column in digits either way.
struct TipoColonna {
    bool testo = false;
    bool illimitato = false;
    std::size_t lunghezza = 0;
};

[[nodiscard]] TipoColonna tipoColonna(std::string_view tipo);

/// The text without the decimals that a picture does not take; any other type takes all.
[[nodiscard]] std::string_view conDecimaliAmmessi(std::string_view testo, const TipoCampo& tipo);

}  // namespace korven::masks
