#include "exchange/fault_texts.hpp"

#include <vector>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::exchange {

namespace {

// What a file has where a short text is due may be megabytes long: nobody reads them, and a window
// takes minutes to break such a line.
std::string breve(const std::string& testo) {
    constexpr std::size_t massimo = 80;  // bytes
    if (testo.size() <= massimo) return testo;
    std::size_t fine = massimo;
    while (fine > 0 && (static_cast<unsigned char>(testo[fine]) & 0xC0U) == 0x80U) --fine;
    return testo.substr(0, fine) + "...";
}

}  // namespace

std::string frase(std::string_view chiave, std::initializer_list<std::string> valori) {
    std::vector<std::string> brevi;
    for (const std::string& valore : valori) brevi.push_back(breve(valore));
    return base::riempito(base::traduttore(chiave), brevi);
}

std::string inRiga(long riga, std::size_t colonna, std::string_view cosa) {
    const std::string dove = colonna == 0 ? frase("riga %1", {std::to_string(riga)})
                                          : frase("riga %1, colonna %2",
                                                  {std::to_string(riga), std::to_string(colonna)});
    return dove + ": " + std::string(cosa);
}

}  // namespace korven::exchange
