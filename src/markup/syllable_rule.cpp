#include "markup/syllable_rule.hpp"

#include "base/code_page.hpp"

namespace korven::markup {

namespace {

constexpr std::string_view spazio = " ";
constexpr std::string_view consonantiDoppie = "BCDFGLMNPQRSTVZbcdfglmnpqrstvz";
constexpr std::string_view vocali = "AEIOUaeiou";

// Letters with an accent are none of either kind.
bool unaDi(std::string_view insieme, std::string_view carattere) {
    return carattere.size() == 1 && insieme.find(carattere.front()) != std::string_view::npos;
}

}  // namespace

std::vector<std::string_view> caratteri(std::string_view testo) {
    std::vector<std::string_view> tutti;
    while (!testo.empty()) {
        tutti.push_back(testo.substr(0, base::lunghezzaPrimoCarattere(testo)));
        testo.remove_prefix(tutti.back().size());
    }
    return tutti;
}

std::size_t sillaba(std::span<const std::string_view> testo) {
    const auto carattere = [&](std::size_t i) { return i < testo.size() ? testo[i] : spazio; };
    for (std::size_t i = 0; i < testo.size(); ++i) {
        const auto c = testo[i], n = carattere(i + 1), n2 = carattere(i + 2);
        const bool fineParola = c == spazio || n == spazio;
        const bool doppia = unaDi(consonantiDoppie, c) && n == c;
        const bool primaDiConsonante = unaDi(vocali, c) && !unaDi(vocali, n) && unaDi(vocali, n2);
        if (fineParola || doppia || primaDiConsonante) return i + 1;
    }
    return testo.size() + 1;
}

}  // namespace korven::markup
