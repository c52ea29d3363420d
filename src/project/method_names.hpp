#pragma once

#include <string_view>

#include "project/codes.hpp"

namespace korven::project {

/// A method of the soil pressures by its name, which is the same in all languages: the command line
/// takes it.
struct NomeMetodo {
    std::string_view nome;
    MetodoSpinte codice;
};

/// By name.
inline constexpr NomeMetodo nomiMetodi[] = {{"bell", MetodoSpinte::bell},
                                            {"coulomb", MetodoSpinte::coulomb},
                                            {"rankine", MetodoSpinte::rankine}};

/// The name of the method with this code. @pre it is one of theirs: asserted
[[nodiscard]] std::string_view nomeMetodo(double codice);

}  // namespace korven::project
