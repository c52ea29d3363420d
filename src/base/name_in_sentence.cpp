#include "base/name_in_sentence.hpp"

#include "base/code_page.hpp"
#include "base/translated_texts.hpp"

namespace korven::base {

std::string nellaFrase(const std::string& nome) {
    constexpr int tedesco = 2;
    return linguaCorrente() == tedesco ? nome : conMinuscola(nome);
}

}  // namespace korven::base
