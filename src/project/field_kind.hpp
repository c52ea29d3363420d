#pragma once

#include <type_traits>
#include <utility>
#include <variant>

#include "project/field_table.hpp"

// Of which kind the values of a field are.

namespace korven::project {

/// True for a field whose values are of a type: a double, an int (a count), a bool, a std::string.
template <class T>
[[nodiscard]] bool tiene(const Campo& campo) {
    return std::visit(
        [](auto membro) {
            using Valore = decltype(cella(std::declval<DatiProgetto&>(), membro, 1));
            return std::is_same_v<std::remove_cvref_t<Valore>, T>;
        },
        campo.membro);
}

/// True for a field between whose values there are others: no code, no flag, no number of rows.
[[nodiscard]] inline bool continuo(const Campo& campo) {
    return tiene<double>(campo) && campo.codici.empty();
}

}  // namespace korven::project
