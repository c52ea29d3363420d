#include "base/translated_texts.hpp"

namespace korven::base {

std::string traduttore(std::string_view testo) {
    const auto primo = testo.find_first_not_of(' ');
    if (primo == std::string_view::npos) return {};
    return std::string(testo.substr(primo, testo.find_last_not_of(' ') - primo + 1));
}

}  // namespace korven::base
