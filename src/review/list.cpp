#include "review/list.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::review {

std::vector<Rilievo> ElencoRilievi::ordinato() {
    std::stable_partition(rilievi_.begin(), rilievi_.end(),
                          [](const Rilievo& r) { return r.impedisce; });
    return std::exchange(rilievi_, {});
}

std::string rigaNumerata(std::string_view nome, int numero, std::string_view testo) {
    return base::traduttore(nome) + " " + std::to_string(numero) + ": " + base::traduttore(testo);
}

std::string conValore(std::string testo, double valore) {
    return std::move(testo) + " (" + base::testoNumero(valore) + ")";
}

// Ten times a stored value may be too large for a number; the review must still be able to tell it.
std::string campo(std::string_view etichetta, double valore) {
    constexpr double massimo = std::numeric_limits<double>::max();
    return base::traduttore(etichetta) + " = " +
           base::testoNumero(std::clamp(valore, -massimo, massimo));
}

std::string rigaCampo(std::string_view nome, int numero, std::string_view etichetta, double valore,
                      std::string_view testo) {
    return base::traduttore(nome) + " " + std::to_string(numero) + ": " + campo(etichetta, valore) +
           ": " + base::traduttore(testo);
}

bool intero(double valore) { return valore == std::floor(valore); }

}  // namespace korven::review
