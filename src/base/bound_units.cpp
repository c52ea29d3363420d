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

// The unit behind a blank that follows a number; empty: the blank binds nothing.
std::string_view unitaDietro(std::string_view testo, std::size_t bianco) {
    const bool dopoNumero = testo[bianco] == ' ' && bianco > 0 && cifra(testo[bianco - 1]);
    return dopoNumero ? unitaIn(testo.substr(bianco + 1)) : std::string_view();
}

}  // namespace

std::string unitaUnite(std::string_view testo) {
    std::string unito;
    unito.reserve(testo.size() + testo.size() / 8);
    for (std::size_t i = 0; i < testo.size(); ++i) {
        const std::string_view u = unitaDietro(testo, i);
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

std::vector<std::string_view> paroleUnite(std::string_view riga) {
    std::vector<std::string_view> parole;
    std::size_t inizio = 0;
    for (std::size_t i = 0; i < riga.size(); ++i) {
        const std::string_view u = unitaDietro(riga, i);
        i += u.size();
        if (!u.empty() || riga[i] != ' ') continue;
        parole.push_back(riga.substr(inizio, i - inizio));
        inizio = i + 1;
    }
    parole.push_back(riga.substr(inizio));
    return parole;
}

}  // namespace korven::base
