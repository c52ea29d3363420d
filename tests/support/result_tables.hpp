#pragma once

#include <algorithm>
#include <string_view>

#include "tables/result_table.hpp"

namespace korven::test {

/// The place of a column by its title; one past the last for none.
inline std::size_t posto(const tables::Prospetto& p, std::string_view titolo) {
    const auto c = std::find_if(p.colonne.begin(), p.colonne.end(),
                                [&](const tables::Colonna& una) { return una.titolo == titolo; });
    return static_cast<std::size_t>(c - p.colonne.begin());
}

}  // namespace korven::test
