#include "factors/section_use.hpp"

#include <gtest/gtest.h>

#include "project/units.hpp"
#include "structure/bending_resistance.hpp"
#include "structure/shear_check.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_builder.hpp"

namespace korven::factors {
namespace {

equilibrium::Estremi estremi(double massimo, double minimo, double taglio) {
    equilibrium::Estremi e;
    if (massimo > 0) e.momentoMassimo = {massimo, 4, 2};
    if (minimo < 0) e.momentoMinimo = {minimo, 7, 3};
    e.taglio = {taglio, 5, 1, equilibrium::Lato::sotto};
    return e;
}

project::DatiProgetto conSezione(const project::Sezione& sezione, double N = 0) {
    auto dati = test::muro().con(&project::DatiProgetto::sforzoNormale, N).dati();
    dati.sezione = sezione;
    return dati;
}

// Resistance to a positive moment [t m] under a design force [N].
double resistenza(const project::Sezione& s, double Nd) {
    const auto MRd = structure::resistenzaDiaframma(
        structure::diaframmaMm(s), {.modEacciaio = s.modEacciaio, .fyk = s.fyk, .fck = s.fck}, Nd,
        structure::bStrisciaMetro);
    return -MRd[1] / project::newtonMillimetri;
}

TEST(VerificheSezione, PutTheFactorOnEffectsInThePlaceOfTheFixedOne) {
    const auto sezione = structure::diaframmaSimmetrico();
    const auto v = verificheSezione(conSezione(sezione), {.effetti = 1.35}, estremi(40, -10, 20));
    ASSERT_EQ(v.size(), 2U);
    EXPECT_EQ(v[0].oggetto, Oggetto::momentoPositivo);
    EXPECT_NEAR(v[0].progetto, 54, 1e-12);
    EXPECT_NEAR(v[0].resistenza, resistenza(sezione, 0), 1e-9);
    EXPECT_NEAR(v[0].uso().value_or(0), 54 / resistenza(sezione, 0), 1e-9);
    EXPECT_EQ(v[0].verificata, resistenza(sezione, 0) > 54);
    EXPECT_EQ(v[0].fase, 2);
    EXPECT_EQ(v[0].z, 4);
    EXPECT_EQ(v[1].oggetto, Oggetto::momentoNegativo);
    EXPECT_NEAR(v[1].progetto, -13.5, 1e-12);
    EXPECT_LT(v[1].resistenza, 0);
    EXPECT_EQ(v[1].fase, 3);
}

// Compression helps a section that is weakly compressed: the force as it is decides, its factor of
// 1.35 would be on the safe side of nothing. Near crushing it is the other way round.
TEST(VerificheSezione, TakeTheWorseOfTheAxialForceWithItsFactorAndAsItIs) {
    const auto sezione = structure::diaframmaSimmetrico();
    const Fattori fattori{.testaPermanente = 1.35, .effetti = 1.35};
    auto v = verificheSezione(conSezione(sezione, 30), fattori, estremi(40, 0, 0));
    EXPECT_EQ(v[0].perAssiale, 1);
    EXPECT_NEAR(v[0].resistenza, resistenza(sezione, 300000), 1e-6);
    EXPECT_LT(resistenza(sezione, 300000), resistenza(sezione, 405000));
    v = verificheSezione(conSezione(sezione, 700), fattori, estremi(40, 0, 0));
    EXPECT_EQ(v[0].perAssiale, 1.35);
    EXPECT_NEAR(v[0].resistenza, resistenza(sezione, 9450000), 1e-6);
    EXPECT_LT(resistenza(sezione, 9450000), resistenza(sezione, 7000000));
}

TEST(VerificheSezione, CheckANegativeMomentOnlyWhereOneActs) {
    const auto v =
        verificheSezione(conSezione(structure::diaframmaSimmetrico()), {}, estremi(40, 0, 0));
    ASSERT_EQ(v.size(), 1U);
    EXPECT_EQ(v[0].oggetto, Oggetto::momentoPositivo);
}

TEST(VerificheSezione, CheckTheShearOfPilesWithStirrups) {
    auto sezione = structure::paliArmati();
    sezione.armDiamStaffe = 1;
    sezione.armPassoStaffe = 15;
    const auto v = verificheSezione(conSezione(sezione), {.effetti = 1.3}, estremi(10, 0, -20));
    ASSERT_EQ(v.size(), 3U);
    EXPECT_EQ(v[1].oggetto, Oggetto::bielle);
    EXPECT_EQ(v[2].oggetto, Oggetto::armatura);
    const auto pali = structure::verificaTaglio(sezione, 0);  // N of one pile
    const double alMetro = 100 / sezione.armInterasse / 10000;
    EXPECT_NEAR(v[1].progetto, 26, 1e-9);
    EXPECT_NEAR(v[1].resistenza, pali.Vrd2 * alMetro, 1e-6);
    EXPECT_NEAR(v[2].resistenza, pali.Vrd3 * alMetro, 1e-6);
    EXPECT_EQ(v[2].verificata, 26 <= v[2].resistenza);
    EXPECT_EQ(v[1].lato, equilibrium::Lato::sotto);
}

TEST(VerificheSezione, AreNoneWithoutASection) {
    EXPECT_TRUE(verificheSezione(test::muro().dati(), {}, estremi(40, -10, 20)).empty());
}

// 0.5 x 1.35 = 0.675 and 0.53 x 1.35 = 0.7155 beside 1 / 1.4 = 0.71429.
TEST(VerificaTerraTest, HoldsTheShareInUseBelowTheReducedResistance) {
    const Fattori fattori{.effetti = 1.35, .terra = 1.4};
    Verifica v = verificaTerra(fattori, 0.5, 3);
    EXPECT_TRUE(v.verificata);
    EXPECT_NEAR(v.progetto, 0.675, 1e-12);
    EXPECT_NEAR(v.uso().value_or(0), 0.945, 1e-12);  // 0.5 x 1.35 x 1.4
    EXPECT_EQ(v.fase, 3);
    v = verificaTerra(fattori, 0.53, 3);
    EXPECT_FALSE(v.verificata);
    EXPECT_NEAR(v.uso().value_or(0), 1.0017, 1e-12);
}

}  // namespace
}  // namespace korven::factors
