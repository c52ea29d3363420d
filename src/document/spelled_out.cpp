#include "document/spelled_out.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "base/code_page.hpp"

namespace korven::document {

namespace {

using Voce = std::pair<std::string_view, std::string_view>;

constexpr std::array voci = std::to_array<Voce>({
    {"α", "alfa"},  {"β", "beta"},   {"γ", "gamma"},  {"δ", "delta"},  {"ε", "epsilon"},
    {"ζ", "zeta"},  {"η", "eta"},    {"θ", "theta"},  {"κ", "kappa"},  {"λ", "lambda"},
    {"μ", "mu"},    {"ν", "nu"},     {"ξ", "xi"},     {"π", "pi"},     {"ρ", "rho"},
    {"σ", "sigma"}, {"τ", "tau"},    {"φ", "phi"},    {"ϕ", "phi"},    {"χ", "chi"},
    {"ψ", "psi"},   {"ω", "omega"},  {"Γ", "Gamma"},  {"Δ", "Delta"},  {"∆", "Delta"},
    {"Θ", "Theta"}, {"Λ", "Lambda"}, {"Σ", "Sigma"},  {"∑", "Sigma"},  {"Φ", "Phi"},
    {"Ψ", "Psi"},   {"Ω", "Omega"},  {"≤", "<="},     {"≥", ">="},     {"≠", "<>"},
    {"≈", "~"},     {"−", "-"},      {"√", "sqrt"},   {"∞", "inf"},    {"→", "->"},
    {"←", "<-"},    {"′", "'"},      {"″", "\""},     {"∙", "·"},      {"⋅", "·"},
    {"₀", "0"},     {"₁", "1"},      {"₂", "2"},      {"₃", "3"},      {"⁴", "^4"},
    {"⁻", "^-"},    {"\u2009", " "}, {"\u202f", " "}, {"\u2011", "-"},
});

}  // namespace

std::string perEsteso(std::string_view utf8) {
    std::string scritto;
    while (!utf8.empty()) {
        const std::string_view lettera = utf8.substr(0, base::lunghezzaPrimoCarattere(utf8));
        utf8.remove_prefix(lettera.size());
        const auto* voce = std::find_if(voci.begin(), voci.end(),
                                        [&](const Voce& v) { return v.first == lettera; });
        scritto += voce != voci.end() ? voce->second : lettera;
    }
    return scritto;
}

}  // namespace korven::document
