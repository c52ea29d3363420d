#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "project/project_data.hpp"
#include "python/calculations.hpp"

namespace korven::python {

/// What is asked of all variants of a study, as the command `serie` takes it.
struct RichiestaSerie {
    Modo modo;
    bool ricalcolaEJ = false;
    bool iterazione = false;  ///< the specified run, not the equilibrium solution
    bool sicurezza = false;
    std::vector<std::string> colonne{};   ///< empty: those of the command
    std::vector<std::string> fallisce{};  ///< what makes a variant fail that stands
    int fili = 0;                         ///< threads; 0: all processors
};

/// Of a row that is no wall: it neither stands nor fails.
inline constexpr signed char nessunaParete = -1;

/// A study as a table: first the fields, then what it tells of each variant.
struct TabellaSerie {
    std::vector<std::string> nomi{};  ///< of the columns
    /// Of a column of words these, by number; nothing of one of numbers.
    std::vector<std::vector<std::string_view>> parole{};
    std::uint64_t righe = 0;
    std::vector<double> valori{};  ///< row by row, NaN for none
    /// Of each row, where it was asked what makes it fail: 1 for a wall that does not stand, or
    /// meets one of the conditions, else 0; `nessunaParete` for data that were refused.
    std::vector<signed char> fallite{};
};

/// Computes the variants of a plan.
/// @param piano    a table of fields and values, as the command reads it from a file
/// @param fermata  asked about ten times a second from the thread that calls this: true ends the
///                 study
/// @throws ErroreCampo with all that is wrong with the plan, by line and column, for a column that
///         there is not, for a condition that is none and for an argument out of its range
[[nodiscard]] TabellaSerie serie(const project::DatiProgetto& dati, std::string_view piano,
                                 const RichiestaSerie& richiesta,
                                 const std::function<bool()>& fermata);

}  // namespace korven::python
