#include "report/annex/greek_letters.hpp"

#include <algorithm>
#include <string_view>

namespace korven::report {

namespace {

struct Lettera {
    std::string_view parola, segno;
};
constexpr Lettera lettere[] = {
    {"alfa", "α"},  {"alpha", "α"}, {"beta", "β"},  {"gamma", "γ"}, {"Ngamma", "Nγ"},
    {"delta", "δ"}, {"phi", "φ"},   {"sigma", "σ"}, {"sqrt", "√"},
};

// UTF-8 beyond ASCII is part of a word too.
bool diParola(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           static_cast<unsigned char>(c) >= 0x80;
}

}  // namespace

std::string conLettereGreche(const std::string& frase) {
    std::string scritta;
    for (auto da = frase.begin(); da != frase.end();) {
        const auto fine = std::find_if_not(da, frase.end(), diParola);
        const std::string_view parola(da, fine);
        const auto* lettera = std::find_if(std::begin(lettere), std::end(lettere),
                                           [&](const Lettera& l) { return l.parola == parola; });
        scritta += lettera != std::end(lettere) ? lettera->segno : parola;
        da = fine;
        if (da != frase.end()) scritta += *da++;
    }
    return scritta;
}

}  // namespace korven::report
