#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "project/units.hpp"
#include "review/remark.hpp"

namespace korven::tables {

/// What stands in a cell that has nothing to show.
inline constexpr const char* nessuno = "-";

/// One cell of a table of results.
struct Cella {
    std::string testo = nessuno;         ///< as people read it, without a unit
    std::optional<double> numero{};      ///< in the unit of the column, all digits; nothing: a word
    std::optional<double> ordine{};      ///< of a word: by what it is sorted; nothing: its letters
    std::optional<review::Peso> peso{};  ///< of a remark that is made on it
    std::optional<double> barra{};       ///< 0 to 1: length of a bar behind it
    std::string lato{};    ///< of a depth: on which side of its node, as `testo` has it behind it
    std::string perche{};  ///< of a cell that has nothing to show: why, a sentence

    bool operator==(const Cella&) const = default;
};

/// A column with its head; texts are translated.
struct Colonna {
    std::string titolo{};       ///< "Spostamento"
    std::string unita{};        ///< "mm"; empty for none
    std::string spiegazione{};  ///< what it is, with its sign: a sentence
    bool numerica = true;       ///< set at the right

    /// "Spostamento [mm]".
    [[nodiscard]] std::string testa() const;

    bool operator==(const Colonna&) const = default;
};

/// A table of results: the same for a window, a document and a spreadsheet. The first column names
/// the row.
struct Prospetto {
    std::string titolo{};
    std::vector<Colonna> colonne{};
    std::vector<std::vector<Cella>> righe{};  ///< each with a cell for each column
    std::vector<std::string> note{};  ///< sentences that belong to it, or say why it is empty

    bool operator==(const Prospetto&) const = default;
};

/// A column of numbers. Title and explanation are keys of the table of texts.
[[nodiscard]] Colonna colonna(const project::Unita& unita, const char* titolo,
                              const char* spiegazione);
/// The same, headed by a symbol that is the same in all languages.
[[nodiscard]] Colonna colonnaSimbolo(const project::Unita& unita, const char* simbolo,
                                     const char* spiegazione);
/// A column of words.
[[nodiscard]] Colonna colonnaParole(const char* titolo, const char* spiegazione);

/// A stored number in its shown unit, rounded to `decimali`; "-" for one that is none.
[[nodiscard]] Cella cella(double conservato, int decimali, const project::Unita& unita);
/// A count, or the number of a row.
[[nodiscard]] Cella cella(int numero);
/// A cell that has nothing to show. @param perche  why, translated
[[nodiscard]] Cella senza(std::string perche);
/// A word, sorted by its letters or by a number.
[[nodiscard]] Cella parola(std::string testo, std::optional<double> ordine = {});
/// The word of a verdict, a failure with the weight of a danger.
[[nodiscard]] Cella esito(std::string testo, bool fallito);

// The digits that the tables show after the point, the same for a quantity wherever it stands.
[[nodiscard]] Cella profondita(double z);   ///< [m], two decimals
[[nodiscard]] Cella spostamento(double y);  ///< stored in m, shown in mm with two decimals
[[nodiscard]] Cella momento(double M);      ///< stored in t m per metre, two decimals
[[nodiscard]] Cella forza(double T);        ///< stored in t per metre, two decimals
[[nodiscard]] Cella pressione(double p);    ///< stored in t/m2, two decimals

}  // namespace korven::tables
