#include "masks/clipboard_text.hpp"

#include <algorithm>

namespace korven::masks {

namespace {

constexpr int rigaTagliata = 6;

std::vector<std::string> tagliata(std::string_view testo, char segno) {
    std::vector<std::string> pezzi;
    while (true) {
        const auto fine = testo.find(segno);
        pezzi.emplace_back(testo.substr(0, fine));
        if (fine == std::string_view::npos) return pezzi;
        testo.remove_prefix(fine + 1);
    }
}

}  // namespace

std::vector<std::vector<std::string>> righeAppunti(std::string_view testo) {
    std::vector<std::vector<std::string>> righe;
    while (!testo.empty()) {
        const auto fine = std::min(testo.find('\n'), testo.size());
        std::string_view riga = testo.substr(0, fine);
        const bool intera = fine < testo.size();
        if (intera && riga.ends_with('\r')) riga.remove_suffix(1);
        righe.push_back(tagliata(riga, '\t'));
        testo.remove_prefix(fine + (intera ? 1 : 0));
    }
    return righe;
}

std::string anteprimaAppunti(std::string_view testo) {
    std::size_t fine = 0;
    for (int n = 0; n < rigaTagliata; ++n) {
        const auto trovata = testo.find('\n', fine);
        if (trovata == std::string_view::npos) return std::string(testo);
        fine = trovata + 1;
    }
    return std::string(testo.substr(0, fine)) + "......";
}

}  // namespace korven::masks
