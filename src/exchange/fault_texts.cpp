#include "exchange/fault_texts.hpp"

#include <vector>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::exchange {

std::string frase(std::string_view chiave, std::initializer_list<std::string> valori) {
    return base::riempito(base::traduttore(chiave), std::vector<std::string>(valori));
}

std::string inRiga(long riga, std::size_t colonna, std::string_view cosa) {
    const std::string dove = colonna == 0 ? frase("riga %1", {std::to_string(riga)})
                                          : frase("riga %1, colonna %2",
                                                  {std::to_string(riga), std::to_string(colonna)});
    return dove + ": " + std::string(cosa);
}

}  // namespace korven::exchange
