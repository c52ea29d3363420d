#include "base/decimal_commas.hpp"

#include "base/number_text.hpp"

namespace korven::base {

std::optional<std::string> conIlPunto(std::string_view testo) {
    const auto virgola = testo.find(',');
    if (virgola == std::string_view::npos || testo.find('.') != std::string_view::npos) return {};
    std::string numero(testo);
    numero[virgola] = '.';
    if (!soloUnNumero(numero)) return {};
    return numero;
}

}  // namespace korven::base
