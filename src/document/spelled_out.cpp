#include "document/spelled_out.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "base/code_page.hpp"
#include "base/translated_texts.hpp"

namespace korven::document {

namespace {

using Voce = std::pair<std::string_view, std::string_view>;

constexpr std::array voci = std::to_array<Voce>({
    {"β", "beta"},   {"γ", "gamma"},  {"δ", "delta"},  {"ε", "epsilon"}, {"ζ", "zeta"},
    {"η", "eta"},    {"θ", "theta"},  {"κ", "kappa"},  {"λ", "lambda"},  {"μ", "mu"},
    {"ν", "nu"},     {"ξ", "xi"},     {"π", "pi"},     {"ρ", "rho"},     {"σ", "sigma"},
    {"τ", "tau"},    {"φ", "phi"},    {"ϕ", "phi"},    {"χ", "chi"},     {"ψ", "psi"},
    {"ω", "omega"},  {"Γ", "Gamma"},  {"Δ", "Delta"},  {"∆", "Delta"},   {"Θ", "Theta"},
    {"Λ", "Lambda"}, {"Σ", "Sigma"},  {"∑", "Sigma"},  {"Φ", "Phi"},     {"Ψ", "Psi"},
    {"Ω", "Omega"},  {"≤", "<="},     {"≥", ">="},     {"≠", "<>"},      {"≈", "~"},
    {"−", "-"},      {"√", "sqrt"},   {"∞", "inf"},    {"→", "->"},      {"←", "<-"},
    {"′", "'"},      {"″", "\""},     {"∙", "·"},      {"⋅", "·"},       {"₀", "0"},
    {"₁", "1"},      {"₂", "2"},      {"₃", "3"},      {"₄", "4"},       {"₅", "5"},
    {"\u2009", " "}, {"\u202f", " "}, {"\u2011", "-"}, {"₆", "6"},       {"₇", "7"},
    {"₈", "8"},      {"₉", "9"},
});

// Three of them have a place in the code page.
constexpr std::array apici = std::to_array<Voce>({
    {"⁰", "0"},
    {"¹", "1"},
    {"²", "2"},
    {"³", "3"},
    {"⁴", "4"},
    {"⁵", "5"},
    {"⁶", "6"},
    {"⁷", "7"},
    {"⁸", "8"},
    {"⁹", "9"},
    {"⁺", "+"},
    {"⁻", "-"},
});

template <std::size_t quante>
const Voce* voce(const std::array<Voce, quante>& tutte, std::string_view lettera) {
    const auto* trovata =
        std::find_if(tutte.begin(), tutte.end(), [&](const Voce& v) { return v.first == lettera; });
    return trovata != tutte.end() ? trovata : nullptr;
}

std::string_view primaLettera(std::string_view utf8) {
    return utf8.substr(0, utf8.empty() ? 0 : base::lunghezzaPrimoCarattere(utf8));
}

bool tra(std::string_view carattere, std::string_view primo, std::string_view ultimo) {
    return carattere.size() == primo.size() && primo <= carattere && carattere <= ultimo;
}

bool greca(std::string_view carattere) { return tra(carattere, "Α", "ω"); }

// Of a symbol.
bool lettera(std::string_view carattere) {
    return tra(carattere, "A", "Z") || tra(carattere, "a", "z") || greca(carattere);
}

// Takes the exponent at the head of the text, which may be none: "⁻³" becomes "^-3", and "²" stays.
std::string esponente(std::string_view& utf8) {
    std::string comeSta, cifre;
    while (const Voce* apice = voce(apici, primaLettera(utf8))) {
        comeSta += apice->first;
        cifre += apice->second;
        utf8.remove_prefix(apice->first.size());
    }
    return base::rappresentabile(comeSta) ? comeSta : '^' + cifre;
}

// What stands between the name of a letter and what follows it: "sigma_v", "Delta z", "tan phi".
std::string_view stacco(std::string_view carattere, std::string_view seguito) {
    if (!greca(carattere) || !lettera(primaLettera(seguito))) return {};
    return carattere == "Δ" || carattere == "Σ" ? " " : "_";
}

}  // namespace

std::string perEsteso(std::string_view utf8) {
    std::string scritto;
    while (!utf8.empty()) {
        scritto += esponente(utf8);
        const std::string_view carattere = primaLettera(utf8);
        utf8.remove_prefix(carattere.size());
        const Voce* parola = voce(voci, carattere);
        if (carattere == "√" && lettera(primaLettera(utf8))) {
            const std::string_view radicando = primaLettera(utf8);  // of a unit: "√t/m²"
            utf8.remove_prefix(radicando.size());
            scritto += "sqrt(" + perEsteso(radicando) + ')';
            continue;
        }
        if (carattere == "α")
            scritto += base::traduttore("alfa");  // no other letter has two names here
        else
            scritto += parola != nullptr ? parola->second : carattere;
        scritto += stacco(carattere, utf8);
    }
    return scritto;
}

}  // namespace korven::document
