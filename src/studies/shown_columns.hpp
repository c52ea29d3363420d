#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "project/units.hpp"
#include "safety/diagnosis.hpp"
#include "studies/row_text.hpp"

// What a study tells as windows, drawings and documents have it: in the words of their language and
// in their units. Its files keep the stable names and units of the columns.

namespace korven::studies {

/// A code with the words that its editor has for it.
struct CodiceMostrato {
    double valore;
    std::string nome;  ///< translated
};

/// How a value of a row is shown.
struct ValoreMostrato {
    std::string titolo;                              ///< "Spostamento massimo", translated
    project::Unita unita = project::unita::nessuna;  ///< from the value of the row to the shown one
    bool intero = false;                             ///< between two whole numbers there is nothing
    std::vector<CodiceMostrato> codici{};            ///< of a field that is one

    /// "Spostamento massimo [mm]".
    [[nodiscard]] std::string testa() const;
    /// The number that is shown for one of the row.
    [[nodiscard]] double mostrato(double valore) const { return project::mostrato(unita, valore); }
    /// "20 kN/m²", or the words of a code.
    [[nodiscard]] std::string detto(double valore) const;
    /// "Spostamento massimo > 30 mm".
    /// @param limite  a text, in the shown unit
    [[nodiscard]] std::string confronto(std::string_view segno, std::string_view limite) const;
};

/// A field by what it is, with its row: its values are shown already.
[[nodiscard]] ValoreMostrato valoreMostrato(const project::CampoNominato& campo);
/// A result by its stable name; the name itself for one without words.
[[nodiscard]] ValoreMostrato valoreMostrato(const std::string& colonna);
/// Of all values of a row.
[[nodiscard]] std::vector<ValoreMostrato> valoriMostrati(const RigheStudio& righe);

/// The verdict of a variant, translated.
[[nodiscard]] std::string causaMostrata(safety::Causa causa);
/// All of them, by number.
[[nodiscard]] std::vector<std::string> causeMostrate();

}  // namespace korven::studies
