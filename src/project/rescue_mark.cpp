#include "project/rescue_mark.hpp"

#include <cctype>
#include <charconv>

namespace korven::project {

namespace {

constexpr std::string_view inizio = "recupero di file://";
constexpr int sedici = 16;

// What an address writes as it is; every other byte is written by its number, so that a name in any
// script stands in a line of the code page.
bool comE(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 128 &&
           (std::isalnum(byte) != 0 || std::string_view("/-._~").find(c) != std::string_view::npos);
}

std::string indirizzo(std::string_view percorso) {
    constexpr std::string_view cifre = "0123456789ABCDEF";
    std::string scritto;
    for (const char c : percorso) {
        if (comE(c)) {
            scritto += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        scritto += '%';
        scritto += cifre[byte / sedici];
        scritto += cifre[byte % sedici];
    }
    return scritto;
}

std::optional<std::string> percorso(std::string_view indirizzo) {
    std::string letto;
    for (std::size_t i = 0; i < indirizzo.size(); ++i) {
        if (indirizzo[i] != '%') {
            letto += indirizzo[i];
            continue;
        }
        if (i + 2 >= indirizzo.size()) return std::nullopt;
        int byte = 0;
        const char* cifre = indirizzo.data() + i + 1;
        if (std::from_chars(cifre, cifre + 2, byte, sedici).ptr != cifre + 2) return std::nullopt;
        letto += static_cast<char>(byte);
        i += 2;
    }
    return letto;
}

}  // namespace

std::string segnoRecupero(std::string_view progetto) {
    return std::string(inizio) + indirizzo(progetto) + "\r\n";
}

bool eSegnoRecupero(std::string_view riga) { return riga.starts_with(inizio); }

std::optional<std::string> progettoRecuperato(base::LettoreRighe& file) {
    if (file.soloRigheVuote()) return std::nullopt;
    const std::string riga = file.riga({});
    if (!eSegnoRecupero(riga) || !file.rigaIntera()) return std::nullopt;
    return percorso(std::string_view(riga).substr(inizio.size()));
}

}  // namespace korven::project
