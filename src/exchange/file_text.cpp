#include "exchange/file_text.hpp"

#include <cstdint>

#include "base/code_page.hpp"

namespace korven::exchange {

namespace {

constexpr std::string_view segnoUtf8 = "\xEF\xBB\xBF";
constexpr std::string_view segnoUtf16Basso = "\xFF\xFE";
constexpr std::string_view segnoUtf16Alto = "\xFE\xFF";

unsigned byteA(std::string_view testo, std::size_t i) {
    return static_cast<unsigned char>(testo[i]);
}

// Overlong forms, surrogates and what lies beyond U+10FFFF are no UTF-8.
bool bastaAlCarattere(std::string_view byte, std::size_t i, std::size_t lunghezza) {
    constexpr std::uint32_t minimo[] = {0, 0, 0x80, 0x800, 0x10000};
    std::uint32_t codice = byteA(byte, i) & (0xFFU >> (lunghezza + 1));
    for (std::size_t k = 1; k < lunghezza; ++k) {
        if (i + k >= byte.size() || (byteA(byte, i + k) & 0xC0U) != 0x80U) return false;
        codice = codice << 6U | (byteA(byte, i + k) & 0x3FU);
    }
    return codice >= minimo[lunghezza] && codice <= 0x10FFFF &&
           (codice < 0xD800 || codice > 0xDFFF);
}

bool eUtf8(std::string_view byte) {
    for (std::size_t i = 0; i < byte.size();) {
        const unsigned primo = byteA(byte, i);
        const std::size_t lunghezza = primo < 0x80    ? 1
                                      : primo < 0xC2  ? 0
                                      : primo < 0xE0  ? 2
                                      : primo < 0xF0  ? 3
                                      : primo <= 0xF4 ? 4
                                                      : 0;
        if (lunghezza == 0 || (lunghezza > 1 && !bastaAlCarattere(byte, i, lunghezza)))
            return false;
        i += lunghezza;
    }
    return true;
}

void aggiungi(std::string& testo, std::uint32_t codice) {
    if (codice < 0x80) {
        testo += static_cast<char>(codice);
        return;
    }
    const int seguiti = codice < 0x800 ? 1 : codice < 0x10000 ? 2 : 3;
    constexpr unsigned teste[] = {0, 0xC0, 0xE0, 0xF0};
    testo += static_cast<char>(teste[seguiti] | codice >> (6U * static_cast<unsigned>(seguiti)));
    for (int k = seguiti - 1; k >= 0; --k)
        testo += static_cast<char>(0x80U | (codice >> (6U * static_cast<unsigned>(k)) & 0x3FU));
}

// Half of a pair that stands alone becomes the sign for what can't be read.
std::string daUtf16(std::string_view byte, bool altoPrima) {
    constexpr std::uint32_t illeggibile = 0xFFFD;
    const auto unita = [&](std::size_t i) -> std::uint32_t {
        return altoPrima ? byteA(byte, i) << 8U | byteA(byte, i + 1)
                         : byteA(byte, i + 1) << 8U | byteA(byte, i);
    };
    std::string testo;
    for (std::size_t i = 0; i + 1 < byte.size(); i += 2) {
        std::uint32_t codice = unita(i);
        if (codice >= 0xD800 && codice <= 0xDFFF) {
            const std::uint32_t seconda =
                codice < 0xDC00 && i + 3 < byte.size() ? unita(i + 2) : 0U;
            if (seconda >= 0xDC00 && seconda <= 0xDFFF) {
                codice = 0x10000 + ((codice - 0xD800) << 10U) + (seconda - 0xDC00);
                i += 2;
            } else {
                codice = illeggibile;
            }
        }
        aggiungi(testo, codice);
    }
    return testo;
}

}  // namespace

std::string testoDiFile(std::string_view byte) {
    if (byte.starts_with(segnoUtf16Basso)) return daUtf16(byte.substr(2), false);
    if (byte.starts_with(segnoUtf16Alto)) return daUtf16(byte.substr(2), true);
    if (byte.starts_with(segnoUtf8)) byte.remove_prefix(segnoUtf8.size());
    return eUtf8(byte) ? std::string(byte) : base::daCp1252(byte);
}

}  // namespace korven::exchange
