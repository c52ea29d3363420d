#include "base/filled_text.hpp"

namespace korven::base {

std::string riempito(std::string_view testo, std::span<const std::string> valori) {
    std::string pieno;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        const bool segno =
            testo[i] == '%' && i + 1 < testo.size() && testo[i + 1] >= '1' && testo[i + 1] <= '9';
        const std::size_t quale = segno ? static_cast<std::size_t>(testo[i + 1] - '1') : 0;
        if (segno && quale < valori.size()) {
            pieno += valori[quale];
            ++i;
        } else {
            pieno += testo[i];
        }
    }
    return pieno;
}

}  // namespace korven::base
