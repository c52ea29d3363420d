#include "factors/load_factors.hpp"

#include <gtest/gtest.h>

#include "support/wall_builder.hpp"

namespace korven::factors {
namespace {

using project::DatiProgetto;

// Effects with 1.35, variable loads with 1.5.
constexpr Fattori suEffetti{.permanente = 1.35,
                            .variabile = 1.5,
                            .testaPermanente = 1.35,
                            .testaVariabile = 1.5,
                            .effetti = 1.35};
// Ground with 1.0 and 1.3, structure with 1.35 and 1.5.
constexpr Fattori suAzioni{
    .permanente = 1, .variabile = 1.3, .testaPermanente = 1.35, .testaVariabile = 1.5};
constexpr NaturaCarichi permanenti{Natura::permanente, Natura::permanente, Natura::permanente};

DatiProgetto conCarichi(double segno) {
    return test::muro()
        .sovraccarico(segno)
        .fase({.sovraccarico = segno})
        .con(&DatiProgetto::forzaTesta, segno)
        .con(&DatiProgetto::momentoTesta, segno)
        .dati();
}

TEST(FattoriDeiCarichi, OfVariableOnesAreDividedByTheFactorOnEffects) {
    const auto c = fattoriCarichi(conCarichi(1), suEffetti, {});
    EXPECT_DOUBLE_EQ(c.monte, 1.5 / 1.35);  // 1.111
    ASSERT_EQ(c.scavo.size(), 1U);
    EXPECT_EQ(c.scavo[0], 0);  // helps
    EXPECT_DOUBLE_EQ(c.forza, 1.5 / 1.35);
    EXPECT_DOUBLE_EQ(c.momento, 1.5 / 1.35);
}

TEST(FattoriDeiCarichi, OfPermanentOnesComeToTheFactorOnEffects) {
    const auto c = fattoriCarichi(conCarichi(1), suEffetti, permanenti);
    EXPECT_EQ(c.monte, 1);
    EXPECT_EQ(c.scavo[0], 1);
    EXPECT_EQ(c.forza, 1);
    EXPECT_EQ(c.momento, 1);
}

// What helps: force and moment towards the ground, a surcharge behind the wall that is taken away.
// On the bottom of the excavation what is taken away presses.
TEST(FattoriDeiCarichi, FollowTheSignOfTheLoad) {
    auto c = fattoriCarichi(conCarichi(-1), suEffetti, {});
    EXPECT_EQ(c.monte, 0);
    EXPECT_DOUBLE_EQ(c.scavo[0], 1.5 / 1.35);
    EXPECT_EQ(c.forza, 0);
    EXPECT_EQ(c.momento, 0);
    c = fattoriCarichi(conCarichi(-1), suEffetti, permanenti);
    EXPECT_EQ(c.monte, 1);
    EXPECT_EQ(c.scavo[0], 1);
    EXPECT_DOUBLE_EQ(c.forza, 1 / 1.35);  // with the factor on effects 1
    EXPECT_DOUBLE_EQ(c.momento, 1 / 1.35);
}

TEST(FattoriDeiCarichi, TellGroundFromStructure) {
    auto c = fattoriCarichi(conCarichi(1), suAzioni, {});
    EXPECT_EQ(c.monte, 1.3);
    EXPECT_EQ(c.forza, 1.5);
    c = fattoriCarichi(conCarichi(1), suAzioni, permanenti);
    EXPECT_EQ(c.monte, 1);
    EXPECT_EQ(c.momento, 1.35);
    EXPECT_EQ(fattoriCarichi(conCarichi(1), suAzioni, {.testa = Natura::permanente}).monte, 1.3);
}

}  // namespace
}  // namespace korven::factors
