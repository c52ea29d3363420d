#include "results/section_uses.hpp"

#include <gtest/gtest.h>

#include "support/sample_sections.hpp"

namespace korven::results {
namespace {

// 1000 kN m and -800 kN m, the downhill side stretched first.
structure::MomentiResistenti resistenze() {
    structure::MomentiResistenti MRd;
    MRd[1] = -1e9;
    MRd[2] = 8e8;
    return MRd;
}

// By hand, with the factor of actions gamma: a moment of 60 t m is 600 gamma kN m of 1000.
TEST(Uso, IsTheDesignValueOverTheResistanceOfItsSide) {
    const Controlli c = controlli(structure::diaframmaSimmetrico(), resistenze(), 60, -20, 5);
    const double gamma = c.flessione->fsAzioni;
    const auto positivo = uso(c, Verifica::momentoPositivo);
    ASSERT_TRUE(positivo);
    EXPECT_NEAR(positivo->progetto, 600 * gamma, 1e-9);
    EXPECT_NEAR(*positivo->uso(), 0.6 * gamma, 1e-12);
    EXPECT_FALSE(positivo->fallita);
    const auto negativo = uso(c, Verifica::momentoNegativo);
    ASSERT_TRUE(negativo);
    EXPECT_NEAR(negativo->progetto, -200 * gamma, 1e-9);
    EXPECT_NEAR(*negativo->uso(), 0.25 * gamma, 1e-12);
}

TEST(Uso, FailsWhereTheResistanceIsReached) {
    const Controlli c = controlli(structure::diaframmaSimmetrico(), resistenze(), 101, -90, 0);
    EXPECT_TRUE(uso(c, Verifica::momentoPositivo)->fallita);
    EXPECT_TRUE(uso(c, Verifica::momentoNegativo)->fallita);
}

TEST(Uso, IsNoneOfACheckThatIsNotMade) {
    const Controlli diaframma = controlli(structure::diaframmaSimmetrico(), resistenze(), 60, 0, 5);
    EXPECT_FALSE(uso(diaframma, Verifica::momentoNegativo));
    EXPECT_FALSE(uso(diaframma, Verifica::bielle));
    EXPECT_FALSE(uso(diaframma, Verifica::armatura));
    for (const Verifica v : tutteLeVerifiche) EXPECT_FALSE(uso(controlli({}, {}, 60, -20, 5), v));
}

TEST(Uso, HasNoShareOfAResistanceThatIsNone) {
    const auto senza =
        uso(controlli(structure::diaframmaSimmetrico(), {}, 60, 0, 5), Verifica::momentoPositivo);
    ASSERT_TRUE(senza);
    EXPECT_FALSE(senza->uso());
    EXPECT_TRUE(senza->fallita);
}

// The shear has no sign: -5 t/m are 50 kN/m.
TEST(Uso, OfAShearTakesItsSize) {
    project::Sezione pali = structure::paliArmati();
    pali.armDiamStaffe = 1;
    pali.armPassoStaffe = 20;
    const Controlli c = controlli(pali, resistenze(), 60, 0, -5);
    ASSERT_TRUE(c.taglio);
    const double gamma = c.taglio->fsAzioni;
    const auto bielle = uso(c, Verifica::bielle), armatura = uso(c, Verifica::armatura);
    ASSERT_TRUE(bielle && armatura);
    EXPECT_NEAR(bielle->progetto, 50 * gamma, 1e-9);
    EXPECT_NEAR(*armatura->uso(), 50 * gamma / c.taglio->Vrd3, 1e-12);
}

}  // namespace
}  // namespace korven::results
