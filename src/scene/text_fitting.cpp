#include "scene/text_fitting.hpp"

#include <cstddef>

namespace korven::scene {

namespace {

constexpr std::string_view puntini = "\u2026";

// Bytes of the first `n` characters.
std::size_t byteDi(std::string_view testo, std::size_t n) {
    std::size_t i = 0;
    for (; i < testo.size(); ++i)
        if ((static_cast<unsigned char>(testo[i]) & 0xC0) != 0x80 && n-- == 0) break;
    return i;
}

std::size_t caratteri(std::string_view testo) {
    std::size_t n = 0;
    for (const char c : testo) n += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1 : 0;
    return n;
}

std::string_view senzaCoda(std::string_view testo) {
    const std::size_t fine = testo.find_last_not_of(" ,.;:-(");
    return fine == std::string_view::npos ? std::string_view() : testo.substr(0, fine + 1);
}

}  // namespace

std::string accorciato(std::string_view testo, double larghezza, double corpo, bool grassetto,
                       const MisuraTesti& misura) {
    if (misura.larghezza(testo, corpo, grassetto) <= larghezza) return std::string(testo);
    std::size_t da = 0, a = caratteri(testo);  // as many fit, as many do not
    while (a - da > 1) {
        const std::size_t mezzo = (da + a) / 2;
        const std::string prova =
            std::string(senzaCoda(testo.substr(0, byteDi(testo, mezzo)))).append(puntini);
        (misura.larghezza(prova, corpo, grassetto) <= larghezza ? da : a) = mezzo;
    }
    if (da < 2) return {};
    std::string_view testa = testo.substr(0, byteDi(testo, da));
    const std::size_t parola = testa.find_last_of(' ');
    if (parola != std::string_view::npos && 2 * parola >= testa.size() &&
        testo[testa.size()] != ' ')
        testa = testa.substr(0, parola);
    return std::string(senzaCoda(testa)).append(puntini);
}

std::vector<std::string> inRighe(std::string_view testo, double larghezza, double corpo,
                                 int massimo, const MisuraTesti& misura) {
    std::vector<std::string> righe;
    while (!testo.empty() && static_cast<int>(righe.size()) < massimo) {
        if (static_cast<int>(righe.size()) + 1 == massimo) {
            righe.push_back(accorciato(testo, larghezza, corpo, false, misura));
            break;
        }
        std::size_t fine = 0;
        for (std::size_t i = 0; i != std::string_view::npos;) {
            i = testo.find(' ', i + 1);
            const std::string_view prova = testo.substr(0, i);
            if (fine != 0 && misura.larghezza(prova, corpo, false) > larghezza) break;
            fine = prova.size();
        }
        righe.emplace_back(testo.substr(0, fine));
        testo.remove_prefix(fine);
        if (!testo.empty()) testo.remove_prefix(1);
    }
    return righe;
}

}  // namespace korven::scene
