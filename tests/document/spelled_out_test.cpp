#include "document/spelled_out.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"

namespace korven::document {
namespace {

TEST(PerEsteso, SpellsGreekLettersAndSignsThatTheCodePageLacks) {
    EXPECT_EQ(perEsteso("φ' = 30°, γ ≤ 20 kN/m³"), "phi' = 30°, gamma <= 20 kN/m³");
    EXPECT_EQ(perEsteso("cos²α → −1 · √2"), "cos²alfa -> -1 · sqrt2");
    EXPECT_EQ(perEsteso("√t/m², √(k0 σ)"), "sqrt(t)/m², sqrt(k0 sigma)");
}

TEST(PerEsteso, KeepsTheNameOfALetterApartFromWhatFollowsIt) {
    EXPECT_EQ(perEsteso("σv = q + Σ γ Δz"), "sigma_v = q + Sigma gamma Delta z");
    EXPECT_EQ(perEsteso("γφ' = γc', tan φ"), "gamma_phi' = gamma_c', tan phi");
}

TEST(PerEsteso, WritesExponentsThatTheCodePageLacksBehindOneSign) {
    EXPECT_EQ(perEsteso("(Jm + Jv)) / 10⁶"), "(Jm + Jv)) / 10^6");
    EXPECT_EQ(perEsteso("(%2/2)⁴ · 10⁻³ m"), "(%2/2)^4 · 10^-3 m");
    EXPECT_EQ(perEsteso("H³/12 + 10¹² + 10²⁰"), "H³/12 + 10¹² + 10^20");
}

TEST(PerEsteso, LeavesWhatTheCodePageHas) {
    const std::string testo = "Àéîõü ñ ß € – “…” 12 ½ kN m/m²";
    EXPECT_EQ(perEsteso(testo), testo);
    EXPECT_EQ(perEsteso(""), "");
}

TEST(PerEsteso, LeavesNothingThatTheCodePageWouldAskAfter) {
    EXPECT_TRUE(
        base::rappresentabile(perEsteso("αβγδεζηθκλμνξπρστφχψω ΓΔΘΛΣΦΨΩ ≤≥≠≈−√∞→ a⁰¹²³⁴⁵⁶⁷⁸⁹⁺⁻ "
                                        "b₀₁₂₃₄₅₆₇₈₉")));
}

}  // namespace
}  // namespace korven::document
