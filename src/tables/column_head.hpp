#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "tables/result_table.hpp"

namespace korven::tables {

/// How wide a text is, in whatever unit the widths beside it have.
using LarghezzaTesto = std::function<int(std::string_view)>;

/// The widest piece of a head that can't be broken: a word of its title, or its unit.
[[nodiscard]] int larghezzaMinimaTesta(const Colonna& colonna, const LarghezzaTesto& larga);

/// The head in lines that end with '\n' but for the last, none wider than `spazio` where its words
/// allow it; the unit stays whole.
[[nodiscard]] std::string testaInRighe(const Colonna& colonna, int spazio,
                                       const LarghezzaTesto& larga);

}  // namespace korven::tables
