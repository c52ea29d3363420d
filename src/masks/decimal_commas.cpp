#include "masks/decimal_commas.hpp"

#include "base/number_text.hpp"

namespace korven::masks {

std::optional<std::string> conIlPunto(std::string_view testo) {
    const auto virgola = testo.find(',');
    if (virgola == std::string_view::npos || testo.find('.') != std::string_view::npos) return {};
    std::string numero(testo);
    numero[virgola] = '.';
    if (!base::soloUnNumero(numero)) return {};
    return numero;
}

}  // namespace korven::masks
