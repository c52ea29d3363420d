#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace korven::studies {

/// How a result is compared with a number.
enum class Confronto { minore, minoreUguale, maggiore, maggioreUguale };

/// ">=".
[[nodiscard]] std::string_view segno(Confronto confronto);

/// What makes a wall that stands fail all the same: "spostamento_massimo_m>0.03".
struct Condizione {
    std::size_t posto;  ///< of the result in a row
    Confronto confronto;
    double limite;

    /// False for a result that a variant has not.
    [[nodiscard]] bool vale(std::span<const double> riga) const;
};

/// Why a text is no condition.
struct DifettoCondizione {
    enum class Motivo {
        forma,        ///< no name, sign and number
        sconosciuto,  ///< no result is called so
        nonNumero,    ///< the limit is no number
        virgola,      ///< it has a decimal comma
        parola,       ///< the result is a word
    } motivo;
    std::string testo;          ///< the piece that is wrong
    std::string atteso = {};    ///< the number with a point, of a comma; the name that was meant
    std::size_t carattere = 1;  ///< of the text, counted from 1
};

/// Reads a condition: the name of a result, one of < <= > >=, a number; blanks count nowhere.
/// @param nomi  of the values of a row, in their order
[[nodiscard]] std::variant<Condizione, DifettoCondizione> leggiCondizione(
    std::string_view testo, std::span<const std::string> nomi);

/// The name of the result that a condition speaks of; empty for a text without a sign.
[[nodiscard]] std::string risultatoDi(std::string_view testo);

/// Why a text is no condition, in one translated line.
[[nodiscard]] std::string parole(const DifettoCondizione& difetto);

}  // namespace korven::studies
