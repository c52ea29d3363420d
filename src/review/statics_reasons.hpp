#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "project/project_data.hpp"
#include "safety/margin.hpp"

namespace korven::review {

/// Where the report's rules leave the statics: in words, an Italian key, and with the fields; both
/// empty where none of them is known to be the cause.
struct Motivo {
    std::string_view testo;
    std::vector<std::string> campi;
};

/// Why the report has another moment than the statics.
/// @param margine  of the same wall
/// @pre the report has one: asserted
[[nodiscard]] Motivo motivoMomento(const project::DatiProgetto& dati,
                                   const safety::Margine& margine,
                                   const safety::Confronto& confronto);

/// Why it has another shear. @pre as above
[[nodiscard]] Motivo motivoTaglio(const project::DatiProgetto& dati, const safety::Margine& margine,
                                  const safety::Confronto& confronto);

}  // namespace korven::review
