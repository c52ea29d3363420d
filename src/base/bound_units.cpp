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

bool numeroIn(std::string_view testo) {
    if (testo.starts_with('-')) testo.remove_prefix(1);
    return !testo.empty() && cifra(testo.front());
}

// How much from here on no line parts from what stands before it, the first blank counted: " kN m"
// behind a number, "[kN m" of a unit in brackets. 0: a line may end here.
std::size_t legati(std::string_view testo, std::size_t da) {
    const std::string_view resto = testo.substr(da);
    if (resto.starts_with('[')) {
        const std::string_view u = unitaIn(resto.substr(1));
        return !u.empty() && resto.substr(1 + u.size()).starts_with(']') ? 1 + u.size() : 0;
    }
    if (!resto.starts_with(' ') || da == 0) return 0;
    const std::string_view u = cifra(testo[da - 1]) ? unitaIn(resto.substr(1)) : std::string_view();
    return u.empty() ? 0 : 1 + u.size();
}

// " = " between a symbol and its number.
std::size_t uguale(std::string_view testo, std::size_t da) {
    constexpr std::string_view segno = " = ";
    const std::string_view resto = testo.substr(da);
    const bool valore = resto.starts_with(segno) && numeroIn(resto.substr(segno.size()));
    return valore && da > 0 && testo[da - 1] != ' ' ? segno.size() : 0;
}

// " · " between two numbers.
std::size_t prodotto(std::string_view testo, std::size_t da) {
    constexpr std::string_view segno = " \u00b7 ";
    const std::string_view resto = testo.substr(da);
    const bool numero = resto.starts_with(segno) && numeroIn(resto.substr(segno.size()));
    return numero && da > 0 && cifra(testo[da - 1]) ? segno.size() : 0;
}

}  // namespace

std::string unitaUnite(std::string_view testo) {
    std::string unito;
    unito.reserve(testo.size() + testo.size() / 8);
    for (std::size_t i = 0; i < testo.size(); ++i) {
        const std::size_t insieme = legati(testo, i);
        if (insieme == 0) {
            unito += testo[i];
            continue;
        }
        for (const char c : testo.substr(i, insieme))
            c == ' ' ? unito.append(spazioUnito) : unito.append(1, c);
        i += insieme - 1;
    }
    return unito;
}

std::vector<std::string_view> paroleUnite(std::string_view riga) {
    std::vector<std::string_view> parole;
    std::size_t inizio = 0;
    for (std::size_t i = 0; i < riga.size(); ++i) {
        const std::size_t insieme = std::max({legati(riga, i), uguale(riga, i), prodotto(riga, i)});
        if (insieme > 0) i += insieme - 1;
        if (insieme > 0 || riga[i] != ' ') continue;
        parole.push_back(riga.substr(inizio, i - inizio));
        inizio = i + 1;
    }
    parole.push_back(riga.substr(inizio));
    return parole;
}

}  // namespace korven::base
