#include "drawings/filled_lines.hpp"

#include <utility>

#include "plot/plot_engine.hpp"

namespace korven::drawings {

namespace {

bool cifra(char c) { return c >= '0' && c <= '9'; }

// The end of what begins a text and is not to be parted.
std::size_t fineParte(std::string_view testo) {
    constexpr std::string_view segni = "%<>=";
    std::size_t blanco = testo.find(' ');
    for (; blanco != std::string_view::npos; blanco = testo.find(' ', blanco + 1)) {
        const char prima = blanco > 0 ? testo[blanco - 1] : ' ';
        const char dopo = blanco + 1 < testo.size() ? testo[blanco + 1] : ' ';
        const bool segno = segni.find(dopo) != std::string_view::npos ||
                           segni.find(prima) != std::string_view::npos;
        if (!cifra(prima) && !cifra(dopo) && !segno) break;
    }
    return blanco;
}

}  // namespace

std::vector<std::string> righePiene(std::string_view testo, double altezza, double larghezza,
                                    double rientro) {
    std::vector<std::string> righe(1);
    while (!testo.empty()) {
        const std::size_t fine = fineParte(testo);
        std::string parola(testo.substr(0, fine));
        testo.remove_prefix(fine == std::string_view::npos ? testo.size() : fine + 1);
        std::string& ultima = righe.back();
        const std::string piuLunga = ultima.empty() ? parola : ultima + " " + parola;
        const double posto = larghezza - (righe.size() > 1 ? rientro : 0);
        if (ultima.empty() || plot::larghezzaTesto(altezza, piuLunga) <= posto)
            ultima = piuLunga;
        else
            righe.push_back(std::move(parola));
    }
    return righe;
}

}  // namespace korven::drawings
