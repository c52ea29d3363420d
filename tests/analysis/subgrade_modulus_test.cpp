#include "analysis/subgrade_modulus.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "analysis/pressure_coefficients.hpp"
#include "project/codes.hpp"
#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

using project::DatiProgetto;
using project::MetodoKs;

double rad(double gradi) { return gradi * pi / 180; }

// Nq = tan^2(45 + phi/2) e^(pi tan phi), Nc = (Nq - 1) cot phi, Ngamma = 1.5 (Nq - 1) tan phi,
// worked out to 20 digits. At 30 degrees Hansen's tables give 18.4, 30.1 and 15.1.
TEST(FattoriPortanza, AreHansens) {
    const double attesi[][4] = {{20, 6.39939352108521, 14.8347117779312, 2.94782778714720},
                                {30, 18.4011222187087, 30.1396277915191, 15.0698138957596},
                                {40, 64.1952063889658, 75.3131142487826, 79.5406115597299}};
    for (const auto& [phi, Nq, Nc, Ngamma] : attesi) {
        const FattoriPortanza f = fattoriPortanza(rad(phi));
        EXPECT_NEAR(f.Nq, Nq, 1e-11 * Nq) << phi;
        EXPECT_NEAR(f.Nc, Nc, 1e-11 * Nc) << phi;
        EXPECT_NEAR(f.Ngamma, Ngamma, 1e-11 * Ngamma) << phi;
    }
}

// Prandtl's Nc for a soil without friction is the limit.
TEST(FattoriPortanza, TendToThoseOfClay) {
    const FattoriPortanza f = fattoriPortanza(1e-6);
    EXPECT_NEAR(f.Nq, 1, 1e-5);
    EXPECT_NEAR(f.Nc, 2 + pi, 1e-4);
    EXPECT_NEAR(f.Ngamma, 0, 1e-10);
}

// 40 (2 x 30.139628 + 1.8 x 15.069814 + 10 x 18.401122): no half and no width in the middle term.
TEST(ModuloBowles, IsFortyTimesTheSumOfTheThreeTerms) {
    EXPECT_NEAR(moduloBowles(2, 1.8, 10, fattoriPortanza(rad(30))), -10856.645711, 1e-6);
    EXPECT_NEAR(moduloBowles(0, 0, 1, fattoriPortanza(rad(30))), -40 * 18.4011222187087, 1e-9);
}

// Two layers to 4 and 10 m.
class ModuloReazioneTest : public testing::Test {
 protected:
    double modulo(double metodo, const NodoKs& nodo) {
        dati.metodoKs = metodo;
        const ModuloNodo m = moduloReazione(dati, nodo);
        EXPECT_EQ(m.motivo, Indefinito::no);
        return m.Eh;
    }

    DatiProgetto dati =
        test::muro()
            .strato({.fondo = 4, .gammaN = 1.7, .ks = 1000})
            .strato({.fondo = 10, .gammaN = 1.8, .gammaSat = 2.1, .coesione = 0.5, .ks = 2500})
            .dati();
    const double Nq = 18.4011222187087, Nc = 30.1396277915191, Ngamma = 15.0698138957596;
};

TEST_F(ModuloReazioneTest, BowlesTakesTheNaturalWeightAboveWater) {
    const NodoKs nodo{.strato = 2,
                      .z = 6,
                      .portanza = fattoriPortanza(rad(30)),
                      .falda = 6.1,
                      .sigmaEfficace = 9,
                      .sigmaRiposo = 77};
    EXPECT_NEAR(modulo(1, nodo), -40 * (0.5 * Nc + 1.8 * Ngamma + 9 * Nq), 1e-7);
}

TEST_F(ModuloReazioneTest, BowlesTakesTheSaturatedWeightLessOneFromTheWaterTableOn) {
    for (double falda : {6.0, 2.0, -1.0}) {
        const NodoKs nodo{.strato = 2,
                          .z = 6,
                          .portanza = fattoriPortanza(rad(30)),
                          .falda = falda,
                          .sigmaEfficace = 9};
        EXPECT_NEAR(modulo(1, nodo), -40 * (0.5 * Nc + 1.1 * Ngamma + 9 * Nq), 1e-7) << falda;
    }
}

TEST_F(ModuloReazioneTest, BowlesTakesOffOneWhateverWaterWeighs) {
    const NodoKs nodo{
        .strato = 2, .z = 6, .portanza = fattoriPortanza(rad(30)), .falda = 2, .sigmaEfficace = 9};
    const double prima = modulo(1, nodo);
    dati.gammaAcqua = 1.5;
    EXPECT_EQ(modulo(1, nodo), prima);
}

TEST_F(ModuloReazioneTest, LancellottaIsTheRootOfTheStressAtRest) {
    dati.coeffM = 700;
    EXPECT_DOUBLE_EQ(modulo(2, {.strato = 1, .sigmaRiposo = 6.25}), -1750);
    EXPECT_EQ(modulo(2, {.strato = 1, .sigmaRiposo = 0}), 0);
}

TEST_F(ModuloReazioneTest, LancellottaWithoutCoefficientGivesNoSpring) {
    dati.coeffM = 0;
    EXPECT_EQ(modulo(2, {.strato = 1, .sigmaRiposo = 6.25}), 0);
}

TEST_F(ModuloReazioneTest, LancellottaRefusesANegativeStress) {
    dati.metodoKs = valore(MetodoKs::lancellotta);
    dati.coeffM = 700;
    EXPECT_EQ(moduloReazione(dati, {.strato = 1, .sigmaRiposo = -0.01}).motivo,
              Indefinito::tensioneNegativa);
    dati.coeffM = 0;  // the root has no value, whatever it is multiplied with
    EXPECT_EQ(moduloReazione(dati, {.strato = 1, .sigmaRiposo = -0.01}).motivo,
              Indefinito::tensioneNegativa);
}

TEST_F(ModuloReazioneTest, ConstantIsTheLayersOwnNegated) {
    EXPECT_EQ(modulo(3, {.strato = 1, .z = 1}), -1000);
    EXPECT_EQ(modulo(3, {.strato = 2, .z = 9}), -2500);
}

TEST_F(ModuloReazioneTest, LinearGrowsFromZeroAtTheSurface) {
    EXPECT_EQ(modulo(4, {.strato = 1, .z = 0, .fondo = 4}), 0);
    EXPECT_DOUBLE_EQ(modulo(4, {.strato = 1, .z = 1, .fondo = 4}), -250);
    EXPECT_DOUBLE_EQ(modulo(4, {.strato = 1, .z = 4, .fondo = 4}), -1000);
}

TEST_F(ModuloReazioneTest, LinearRunsFromTheLayerAboveToTheLayersOwn) {
    EXPECT_DOUBLE_EQ(modulo(4, {.strato = 2, .z = 4, .fondo = 10}), -1000);
    EXPECT_DOUBLE_EQ(modulo(4, {.strato = 2, .z = 7, .fondo = 10}), -1750);
    EXPECT_DOUBLE_EQ(modulo(4, {.strato = 2, .z = 10, .fondo = 10}), -2500);
}

// 1000 + 1500 (z - 4) / 6 beyond 10 m, or / 106 with the bottom a hundred metres deeper.
TEST_F(ModuloReazioneTest, LinearGoesBeyondTheBottomItIsGiven) {
    EXPECT_DOUBLE_EQ(modulo(4, {.strato = 2, .z = 12, .fondo = 10}), -3000);
    EXPECT_DOUBLE_EQ(modulo(4, {.strato = 2, .z = 7, .fondo = 110}), -1000 - 1500 * 3.0 / 106);
}

TEST_F(ModuloReazioneTest, LinearTakesTheOwnValueAtALayerWithoutThickness) {
    dati.profStrato[2] = 4;
    EXPECT_EQ(modulo(4, {.strato = 2, .z = 4, .fondo = 4}), -2500);
}

TEST_F(ModuloReazioneTest, LinearHasNoValueBelowALayerWithoutThickness) {
    dati.profStrato[2] = 4;
    dati.metodoKs = valore(MetodoKs::lineare);
    EXPECT_EQ(moduloReazione(dati, {.strato = 2, .z = 4.5, .fondo = 4}).motivo,
              Indefinito::spessoreNullo);
}

TEST_F(ModuloReazioneTest, IsZeroForACodeThatIsNoMethod) {
    const NodoKs nodo{.strato = 2,
                      .z = 6,
                      .portanza = fattoriPortanza(rad(30)),
                      .sigmaEfficace = 9,
                      .sigmaRiposo = 4};
    for (double codice : {0.0, 5.0, -1.0, 2.5}) EXPECT_EQ(modulo(codice, nodo), 0) << codice;
}

TEST_F(ModuloReazioneTest, OnlyBowlesNeedsFriction) {
    dati.coeffM = 700;
    const NodoKs nodo{.strato = 2, .z = 7, .sigmaRiposo = 4, .fondo = 10};
    EXPECT_EQ(modulo(2, nodo), -1400);
    EXPECT_EQ(modulo(3, nodo), -2500);
    EXPECT_DOUBLE_EQ(modulo(4, nodo), -1750);
}

// At 30 degrees Nq = 18.4011 and Ngamma = 15.0698: -40 (0.9 * 15.0698 - 2 * 18.4011).
TEST(ModuloBowles, TurnsPositiveWithANegativeStressAsTheFormulaHasIt) {
    EXPECT_NEAR(moduloBowles(0, 0.9, -2, fattoriPortanza(pi / 6)), 929.576, 0.01);
}

TEST_F(ModuloReazioneTest, IsNeverPositiveForAnySoilInPractice) {
    std::mt19937 caso(251);
    std::uniform_real_distribution<double> uno(0, 1);
    for (int i = 0; i < 2000; ++i) {
        dati.coeffM = 1000 * uno(caso);
        const int j = 1 + static_cast<int>(caso() % 2);
        const double fondo = dati.profStrato[j];
        const NodoKs nodo{
            .strato = j,
            .z = dati.profStrato[j - 1] + uno(caso) * (fondo - dati.profStrato[j - 1]),
            .portanza = fattoriPortanza(0.01 + 0.8 * uno(caso)),
            .falda = 20 * uno(caso) - 2,
            .sigmaEfficace = 30 * uno(caso),
            .sigmaRiposo = 20 * uno(caso),
            .fondo = fondo};
        for (int metodo = 1; metodo <= 4; ++metodo) ASSERT_LE(modulo(metodo, nodo), 0) << metodo;
    }
}

}  // namespace
}  // namespace korven::analysis
