#include "base/value_error.hpp"

#include "base/translated_texts.hpp"

namespace korven::base {

ErroreValore::ErroreValore()
    : std::range_error(traduttore("i dati portano a un valore troppo grande per essere scritto")) {}

}  // namespace korven::base
