#include "base/bound_units.hpp"

#include <algorithm>

namespace korven::base {

namespace {

constexpr std::string_view spazioUnito = "\u00a0";

// The longer ones before those that begin like them.
constexpr std::string_view unita[] = {
    "kN m/m", "kN m²/m", "kN m²", "kN m", "kN/m/m", "kN/m²", "kN/m³", "kN/m", "kN", "N/mm²",
    "t/m³",   "t/m²",    "mm²",   "mm",   "cm",     "m²",    "m",     "t",    "°",  "%"};

bool cifra(char c) { return c >= '0' && c <= '9'; }

// Behind a unit a word would go on with a letter, a digit or a stroke; UTF-8 beyond ASCII counts as
// one of them.
bool finisce(std::string_view resto) {
    if (resto.empty()) return true;
    const auto c = static_cast<unsigned char>(resto.front());
    const bool lettera = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || cifra(resto.front());
    return !lettera && c < 0x80 && c != '/';
}

// The unit with which a text begins; empty: none.
std::string_view unitaIn(std::string_view testo) {
    const auto* trovata = std::find_if(std::begin(unita), std::end(unita), [&](auto u) {
        return testo.starts_with(u) && finisce(testo.substr(u.size()));
    });
    return trovata == std::end(unita) ? std::string_view() : *trovata;
}

}  // namespace

std::string unitaUnite(std::string_view testo) {
    std::string unito;
    unito.reserve(testo.size() + testo.size() / 8);
    for (std::size_t i = 0; i < testo.size(); ++i) {
        const bool dopoNumero = testo[i] == ' ' && i > 0 && cifra(testo[i - 1]);
        const std::string_view u = dopoNumero ? unitaIn(testo.substr(i + 1)) : std::string_view();
        if (u.empty()) {
            unito += testo[i];
            continue;
        }
        unito += spazioUnito;
        for (const char c : u) c == ' ' ? unito.append(spazioUnito) : unito.append(1, c);
        i += u.size();
    }
    return unito;
}

}  // namespace korven::base
