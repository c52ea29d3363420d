#pragma once

#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "project/field_table.hpp"
#include "studies/result.hpp"

// The one table of what a study tells of each variant. A name holds the unit and is that of the
// same number in the JSON of `equilibrio` and `sicurezza`, where they have it.

namespace korven::studies {

/// The value of a column of a variant that has none.
inline constexpr double vuoto = std::numeric_limits<double>::quiet_NaN();

/// What the values of a column are.
enum class Specie {
    numero,  ///< of which means and quantiles tell something
    uso,     ///< the same, a share of 1 of what can be borne
    dove,    ///< a depth, a stage or a yes: where a number is, or of which kind
    parola,
};

/// What a study tells of each variant: a number, or one of a few words.
struct Colonna {
    std::string nome;                                       ///< "momento_massimo_kNm"
    const std::vector<std::string_view>* parole = nullptr;  ///< by number; nullptr: a number
    /// The value in the unit of the name, rounded as it is printed; `vuoto` for none.
    double (*valore)(const RisultatoVariante& variante, int tirante) = nullptr;
    Specie specie = Specie::numero;
    int tirante = 0;         ///< counted from 1, of a column that each anchor has
    bool riduzione = false;  ///< needs the strength reductions
    bool lunghezza = false;  ///< needs the search for the shortest wall
    bool scritta = true;     ///< in the file of the study; else what is counted at its end alone
};

/// The columns of a study, in their order.
/// @param tiranti    anchors that a variant may have
/// @param sicurezza  with those that need strength reductions or the shortest wall
[[nodiscard]] std::vector<Colonna> colonne(int tiranti, bool sicurezza);

/// The column that is in every study, the first: what became of the variant, a word of
/// `safety::Causa`.
inline constexpr std::string_view colonnaCausa = "causa";

/// That of what is in the way of a variant that has no numbers.
inline constexpr std::string_view colonnaMotivo = "motivo";

/// That of the stage that does not stand.
inline constexpr std::string_view colonnaCaduta = "fase_caduta";

/// Some columns of all that there are, in the order of the table; `colonnaCausa` is always one.
/// @param nomi   empty: those without the ones that need more work
/// @param oltre  names of others that are there in any case; what is no column is passed over
/// @return the columns, or the first of `nomi` that is none
struct Scelta {
    std::vector<Colonna> colonne;
    std::string sconosciuto;
};
[[nodiscard]] Scelta scegliColonne(const std::vector<std::string>& nomi, int tiranti,
                                   bool sicurezza, std::span<const std::string> oltre = {});

/// These columns, and among them, not to be written, those that the sum of a study counts by: the
/// stage that does not stand and what is used of each resistance. So the sum is the same whatever
/// columns are written.
[[nodiscard]] std::vector<Colonna> conQuelleContate(std::vector<Colonna> scelte, int tiranti);

/// What is said of a name that is no column of any study, translated: the one that was meant, or
/// all that there are.
[[nodiscard]] std::string nessunaColonna(std::string_view nome, int tiranti);

/// True for a column that can be drawn: its numbers are more than a place or a word.
[[nodiscard]] bool disegnabile(const Colonna& colonna);

/// Anchors that a variant may have: those of the project, or all that fit where their number or
/// that of a stage varies.
[[nodiscard]] int tirantiPossibili(const project::DatiProgetto& dati,
                                   std::span<const project::CampoNominato> campi);

}  // namespace korven::studies
