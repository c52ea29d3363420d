#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace korven::exchange {

/// A translated sentence with its values for %1 to %9, the beginning of a value that is too long to
/// be read.
[[nodiscard]] std::string frase(std::string_view chiave, std::initializer_list<std::string> valori);

/// "riga 5: ...", "riga 5, colonna 2: ...": what is wrong at a place of a file. A column is counted
/// from 1; 0 leaves it out.
[[nodiscard]] std::string inRiga(long riga, std::size_t colonna, std::string_view cosa);

}  // namespace korven::exchange
