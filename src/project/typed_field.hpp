#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "project/field_table.hpp"

// A field by its stable name and what is typed for it, in the unit that people see: what the
// project then keeps, to the last bit what it would read back from its own file. Nothing here has
// words: a fault is told by whoever shows it.

namespace korven::project {

/// Why a typed name or value can't be taken.
enum class MotivoRifiuto {
    nomeIgnoto,     ///< no field is called so
    senzaRiga,      ///< a column of a table without its row: "phiStrato"
    rigaAssente,    ///< the table of the project has no such row
    nonNumero,      ///< a number is wanted
    virgola,        ///< a number with a decimal comma
    fuoriLimiti,    ///< beyond what the editor of the field takes
    nonIntero,      ///< a number of rows that is not whole
    codiceIgnoto,   ///< no code of the field, neither a number nor a name of one
    nonConservato,  ///< a method of the soil pressures that no file keeps: reading makes it Coulomb
    carattere,      ///< a text with a line end, or a character that Windows-1252 lacks
    troppoLungo,    ///< a text longer than its editor takes
};

/// A refused name or value.
struct Rifiuto {
    MotivoRifiuto motivo;
    std::string nome;              ///< of the field, as typed
    std::string scritto = {};      ///< what was typed for it
    const Campo* campo = nullptr;  ///< nothing for a name that is none
    int righe = 0;                 ///< that the table has, of a row that is not there
};

/// What a field holds, as stored: a number (a count, a code and a flag, 0 or 1, too) or a text.
using ValoreCampo = std::variant<double, std::string>;

/// The field that a name says. A name that is right but for its capitals is none: `nomeSimile` has
/// the right one.
/// @param dati  has the rows
[[nodiscard]] std::variant<CampoNominato, Rifiuto> campoScritto(const DatiProgetto& dati,
                                                                std::string_view nome);

/// The name of a field that was meant by one that is none: the same letters in other capitals, a
/// field of the section without "sezione.", or the one that is near (`base::nomeVicino`); nothing
/// if there is none.
[[nodiscard]] std::optional<std::string> nomeSimile(std::string_view nome);

/// The stored value of a typed one.
/// @param testo  a number in the shown unit, blanks around it; a code by its number or by the name
///               of its enumerator in any capitals ("rankine"); a flag as 0, 1 or -1; a text
[[nodiscard]] std::variant<ValoreCampo, Rifiuto> valoreScritto(const CampoNominato& nominato,
                                                               std::string_view testo);

/// Why a number can't be the field's; nothing if it can. `nonNumero` for one that is not finite and
/// for a field that is a text.
/// @param mostrato  in the shown unit
[[nodiscard]] std::optional<MotivoRifiuto> motivoRifiuto(const Campo& campo, double mostrato);

/// The least and the greatest number that may be typed: of a flag 0 and 1; nothing for a code, a
/// text and a field that takes any number.
[[nodiscard]] std::optional<Limiti> limitiScritti(const Campo& campo);

/// A stored number as it comes back from a file: with seven decimals.
/// @param conservato  finite
[[nodiscard]] double comeNelFile(double conservato);

/// The stored number of a shown one, as it comes back from a file.
/// @param mostrato  finite
[[nodiscard]] double conservatoNelFile(const Campo& campo, double mostrato);

/// False for a code that reading a file replaces: a method of the soil pressures after Coulomb's.
[[nodiscard]] bool tornaDalFile(const Campo& campo, double conservato);

/// What a field holds now.
[[nodiscard]] ValoreCampo valoreConservato(const DatiProgetto& dati, const CampoNominato& campo);

/// The text that `valoreScritto` takes for what a field holds: the number in the shown unit with at
/// most 15 digits, a code and a flag by its number, a text itself.
[[nodiscard]] std::string testoDaScrivere(const DatiProgetto& dati, const CampoNominato& campo);

/// Hands every field of a project to `visita`, as a CampoNominato: in the order of the table, a
/// column row by row.
template <class Visita>
void perOgniValore(const DatiProgetto& dati, Visita visita) {
    for (const Campo& campo : campi())
        for (int riga = 1; riga <= (colonna(campo) ? righe(dati, campo.parte) : 1); ++riga)
            visita(CampoNominato{&campo, riga});
}

/// Gives a field a stored value. With a count the rows that come, or go, are emptied: a new row is
/// one of zeros and an empty text, as the editors insert it.
/// @pre the value is of the field's kind, a count within its table, the row one of the project
void metti(DatiProgetto& dati, const CampoNominato& campo, const ValoreCampo& valore);

}  // namespace korven::project
