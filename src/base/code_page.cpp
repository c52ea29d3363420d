#include "base/code_page.hpp"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstdint>

namespace korven::base {

namespace {

// Windows-1252 differs from Latin-1 in these 32 places alone.
constexpr unsigned char primoDiverso = 0x80;
constexpr std::array<char32_t, 32> diversi = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t malformato = 0xFFFFFFFF;
constexpr int senzaPosto = -1;

struct Carattere {
    char32_t codice;  // malformato: a byte that begins no well-formed character
    std::size_t byte = 1;
};

// First character of a text that is not empty. Overlong forms, surrogates and codes beyond U+10FFFF
// are malformed; of a malformed sequence one byte is taken, so that reading finds its feet again.
Carattere primoCarattere(std::string_view s) {
    const auto b = [&s](std::size_t i) { return static_cast<unsigned char>(s[i]); };
    if (b(0) < 0x80) return {b(0), 1};
    const std::size_t n = b(0) >= 0xF0 ? 4 : b(0) >= 0xE0 ? 3 : 2;
    if (b(0) < 0xC2 || b(0) > 0xF4 || s.size() < n) return {malformato, 1};
    char32_t c = b(0) & (0x7Fu >> n);
    for (std::size_t i = 1; i < n; ++i) {
        if ((b(i) & 0xC0) != 0x80) return {malformato, 1};
        c = (c << 6) | (b(i) & 0x3Fu);
    }
    const bool troppoLungo = (n == 3 && c < 0x800) || (n == 4 && c < 0x10000);
    if (troppoLungo || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return {malformato, 1};
    return {c, n};
}

void aggiungi(std::string& s, char32_t c) {
    const auto coda = [&s](char32_t v) { s += static_cast<char>(0x80 | (v & 0x3F)); };
    if (c < 0x80) {
        s += static_cast<char>(c);
    } else if (c < 0x800) {
        s += static_cast<char>(0xC0 | (c >> 6));
        coda(c);
    } else {  // all other characters that this file ever writes lie below U+10000
        s += static_cast<char>(0xE0 | (c >> 12));
        coda(c >> 6);
        coda(c);
    }
}

int byteCp1252(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<int>(c);
    const auto trovato = std::find(diversi.begin(), diversi.end(), c);
    if (trovato == diversi.end()) return senzaPosto;
    return primoDiverso + static_cast<int>(trovato - diversi.begin());
}

struct Coppia {
    char32_t piccola, grande;
};
// The letters whose two cases do not lie 32 codes apart.
constexpr Coppia coppieSingole[] = {{0xFF, 0x178}, {0x161, 0x160}, {0x153, 0x152}, {0x17E, 0x17D}};
constexpr char32_t distanza = 0x20;

bool piccola(char32_t c) {
    return (c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7);  // F7: division sign
}

char32_t grandeDi(char32_t c) {
    if (piccola(c)) return c - distanza;
    for (const auto& coppia : coppieSingole)
        if (c == coppia.piccola) return coppia.grande;
    return c;
}

char32_t piccolaDi(char32_t c) {
    if (piccola(c + distanza)) return c + distanza;
    for (const auto& coppia : coppieSingole)
        if (c == coppia.grande) return coppia.piccola;
    return c;
}

template <class Mappa>
std::string mappato(std::string_view utf8, Mappa mappa) {
    std::string s;
    s.reserve(utf8.size() + 1);
    while (!utf8.empty()) {
        const Carattere primo = primoCarattere(utf8);
        const char32_t nuovo = primo.codice == malformato ? malformato : mappa(primo.codice);
        if (nuovo == primo.codice)
            s += utf8.substr(0, primo.byte);
        else
            aggiungi(s, nuovo);
        utf8.remove_prefix(primo.byte);
    }
    return s;
}

}  // namespace

std::string daCp1252(std::string_view byte) {
    std::string s;
    s.reserve(byte.size());
    for (const char c : byte) {
        const auto b = static_cast<unsigned char>(c);
        const bool diverso = b >= primoDiverso && b < primoDiverso + diversi.size();
        aggiungi(s, diverso ? diversi[b - primoDiverso] : b);
    }
    return s;
}

std::string inCp1252(std::string_view utf8) {
    std::string s;
    s.reserve(utf8.size());
    while (!utf8.empty()) {
        const Carattere primo = primoCarattere(utf8);
        const int byte = byteCp1252(primo.codice);
        s += byte == senzaPosto ? '?' : static_cast<char>(byte);
        utf8.remove_prefix(primo.byte);
    }
    return s;
}

bool rappresentabile(std::string_view utf8) {
    while (!utf8.empty()) {
        const Carattere primo = primoCarattere(utf8);
        if (byteCp1252(primo.codice) == senzaPosto) return false;
        utf8.remove_prefix(primo.byte);
    }
    return true;
}

std::string comeNeiFile(std::string_view utf8) { return daCp1252(inCp1252(utf8)); }

std::string maiuscolo(std::string_view utf8) { return mappato(utf8, grandeDi); }

std::string conMaiuscola(std::string_view utf8) {
    const std::size_t prima = utf8.empty() ? 0 : lunghezzaPrimoCarattere(utf8);
    return maiuscolo(utf8.substr(0, prima)).append(utf8.substr(prima));
}
std::string minuscolo(std::string_view utf8) { return mappato(utf8, piccolaDi); }

std::string conMinuscola(std::string_view utf8) {
    const std::size_t prima = utf8.empty() ? 0 : lunghezzaPrimoCarattere(utf8);
    return minuscolo(utf8.substr(0, prima)).append(utf8.substr(prima));
}

std::size_t numeroCaratteri(std::string_view utf8) {
    std::size_t n = 0;
    for (; !utf8.empty(); ++n) utf8.remove_prefix(primoCarattere(utf8).byte);
    return n;
}

std::size_t lunghezzaPrimoCarattere(std::string_view utf8) {
    assert(!utf8.empty());
    return primoCarattere(utf8).byte;
}

std::string_view senzaSpaziEsterni(std::string_view testo) {
    const auto primo = testo.find_first_not_of(' ');
    if (primo == std::string_view::npos) return {};
    return testo.substr(primo, testo.find_last_not_of(' ') - primo + 1);
}

}  // namespace korven::base
