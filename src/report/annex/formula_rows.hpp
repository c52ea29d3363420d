#pragma once

#include <string>
#include <vector>

#include "tables/result_table.hpp"

namespace korven::report {

/// A number as it stands in a formula.
struct Termine {
    std::string simbolo;
    std::string valore;
};

/// A number with so many decimals; one below 0 in brackets.
[[nodiscard]] Termine termine(std::string simbolo, double valore, int decimali);

/// A step of a calculation: what it gives, the formula in symbols, the same with values put in, the
/// value.
struct RigaFormula {
    const char* cosa;     ///< Italian key
    std::string simbolo;  ///< of what it gives
    /// The formula with %1 to %9 in the places of its terms; empty for a number that comes from
    /// elsewhere.
    std::string formula;
    std::vector<Termine> termini;
    double valore;  ///< in `unita`
    int decimali;
    std::string unita;
};

/// A table of formulas, without rows.
[[nodiscard]] tables::Prospetto prospettoFormule(const char* titolo);

void aggiungi(const RigaFormula& riga, tables::Prospetto& prospetto);

}  // namespace korven::report
