// What the moduli of a stage take from the stresses, and where a soil has no value.

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "analysis/soil_state.hpp"
#include "project/codes.hpp"
#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

using project::MetodoKs;
using project::MetodoSpinte;
using project::ModoSpinte;
using project::ModoTensioni;

// Layers to 4 and 10 m of phi 30 with water at 2 and 5 m, nodes every 0.5 m to 12 m, excavation at
// 3 m. Nq, Nc and Ngamma of phi 30 by hand.
class SuoloKs : public testing::Test {
 protected:
    std::optional<RifiutoSuolo> calcola() { return calcolaSuolo(dati, 1, 25, 0.5, s); }
    [[nodiscard]] static int nodo(double z) { return 1 + static_cast<int>(std::lround(z / 0.5)); }

    project::DatiProgetto dati =
        test::muro()
            .strato({.fondo = 4, .gammaN = 1.7, .ks = 1000})
            .strato({.fondo = 10, .gammaN = 1.8, .gammaSat = 2.1, .coesione = 0.5, .ks = 2500})
            .falda(2)
            .con(&project::DatiProgetto::faldaValle, 5)
            .fase({.scavo = 3})
            .dati();
    StatoSuolo s;
    const double Nq = 18.4011222187087, Nc = 30.1396277915191, Ngamma = 15.0698138957596;
};

// At 6 m the effective stress is 1.7 x 2 + 2 x 2 + 2.1 x 2 - 4 = 7.6 uphill and 1.7 x 1 + 1.8 x 1 +
// 2.1 x 1 - 1 = 4.6 downhill; both lie under water, G = 1.1.
TEST_F(SuoloKs, BowlesCountsTheEffectiveStressOfItsSideWhateverTheStressMode) {
    dati.metodoKs = valore(MetodoKs::bowles);
    for (double modo : {1.0, 2.0}) {
        dati.modoTensioni = modo;
        ASSERT_FALSE(calcola().has_value());
        EXPECT_NEAR(s.Ehm[nodo(6)], -40 * (0.5 * Nc + 1.1 * Ngamma + 7.6 * Nq), 1e-7) << modo;
        EXPECT_NEAR(s.Ehv[nodo(6)], -40 * (0.5 * Nc + 1.1 * Ngamma + 4.6 * Nq), 1e-7) << modo;
    }
}

TEST_F(SuoloKs, BowlesLooksAtTheWaterOfItsOwnSide) {
    dati.metodoKs = valore(MetodoKs::bowles);
    ASSERT_FALSE(calcola().has_value());
    // 4.5 m: uphill under water; downhill above it, 1.7 x 1 + 1.8 x 0.5 of stress.
    EXPECT_NEAR(s.Ehm[nodo(4.5)], -40 * (0.5 * Nc + 1.1 * Ngamma + 5.95 * Nq), 1e-7);
    EXPECT_NEAR(s.Ehv[nodo(4.5)], -40 * (0.5 * Nc + 1.8 * Ngamma + 2.6 * Nq), 1e-7);
}

// The effective stress of the excavated side is not computed then, and reads 0.
TEST_F(SuoloKs, BowlesLosesItsDepthTermWhenThePressuresComeFromTheOtherSide) {
    dati.metodoKs = valore(MetodoKs::bowles);
    dati.modoSpinte = valore(ModoSpinte::comeMonte);
    ASSERT_FALSE(calcola().has_value());
    EXPECT_NEAR(s.Ehv[nodo(6)], -40 * (0.5 * Nc + 1.1 * Ngamma), 1e-8);
    EXPECT_NEAR(s.Ehv[nodo(11)], -40 * (0.5 * Nc + 1.1 * Ngamma), 1e-8);
    EXPECT_NEAR(s.Ehm[nodo(6)], -40 * (0.5 * Nc + 1.1 * Ngamma + 7.6 * Nq), 1e-7);
}

TEST_F(SuoloKs, LancellottaCountsTheStressThatThePressuresUse) {
    dati.metodoKs = valore(MetodoKs::lancellotta);
    dati.coeffM = 800;
    dati.modoTensioni = valore(ModoTensioni::totali);
    ASSERT_FALSE(calcola().has_value());
    EXPECT_NEAR(s.Ehm[nodo(6)], -800 * std::sqrt(0.5 * 11.6), 1e-9);
    EXPECT_NEAR(s.Ehv[nodo(6)], -800 * std::sqrt(0.5 * 5.6), 1e-9);
    dati.modoSpinte = valore(ModoSpinte::comeMonte);
    ASSERT_FALSE(calcola().has_value());
    EXPECT_NEAR(s.Ehv[nodo(6)], -800 * std::sqrt(0.5 * 11.6), 1e-9);
}

// Uphill the last layer counts 100 m deeper, so that its line is flat; downhill the line reaches
// the layer's value at its true bottom and goes on below it.
TEST_F(SuoloKs, LinearTakesTheDeepenedBottomUphillAndTheTrueOneDownhill) {
    dati.metodoKs = valore(MetodoKs::lineare);
    ASSERT_FALSE(calcola().has_value());
    EXPECT_DOUBLE_EQ(s.Ehm[nodo(2)], -500);
    EXPECT_DOUBLE_EQ(s.Ehm[nodo(7)], -(1000 + 1500 * 3.0 / 106));
    EXPECT_DOUBLE_EQ(s.Ehv[nodo(3)], -750);
    EXPECT_DOUBLE_EQ(s.Ehv[nodo(7)], -1750);
    EXPECT_DOUBLE_EQ(s.Ehv[nodo(10)], -2500);
    EXPECT_DOUBLE_EQ(s.Ehv[nodo(12)], -3000);
}

TEST_F(SuoloKs, LinearIsUnharmedByALayerWithoutThicknessBetweenTwoOthers) {
    dati.metodoKs = valore(MetodoKs::lineare);
    dati.nStrati = 3;
    dati.profStrato[2] = 4;
    dati.profStrato[3] = 10;
    dati.phiStrato[3] = 30;
    dati.ksStrato[3] = 4000;
    ASSERT_FALSE(calcola().has_value());
    EXPECT_DOUBLE_EQ(s.Ehv[nodo(4)], -2500);  // what the thin layer has at its bottom
    EXPECT_DOUBLE_EQ(s.Ehm[nodo(4)], -2500);
    EXPECT_DOUBLE_EQ(s.Ehv[nodo(7)], -3250);
}

TEST_F(SuoloKs, LinearTakesTheOwnValueAtTheDepthOfALastLayerWithoutThickness) {
    dati.metodoKs = valore(MetodoKs::lineare);
    dati.profStrato[2] = 4;
    ASSERT_FALSE(calcolaSuolo(dati, 1, 9, 0.5, s).has_value());  // the wall ends there
    EXPECT_DOUBLE_EQ(s.Ehv[nodo(4)], -2500);
    EXPECT_DOUBLE_EQ(s.Ehm[nodo(4)], -1000);
    const auto rifiuto = calcola();
    ASSERT_TRUE(rifiuto.has_value());
    EXPECT_EQ(rifiuto->motivo, Indefinito::spessoreNullo);
    EXPECT_EQ(rifiuto->profondita, 4.5);
}

TEST_F(SuoloKs, ConstantTakesTheLastLayerBelowTheColumnOnBothSides) {
    dati.metodoKs = valore(MetodoKs::costante);
    ASSERT_FALSE(calcola().has_value());
    EXPECT_EQ(s.Ehm[nodo(12)], -2500);
    EXPECT_EQ(s.Ehv[nodo(12)], -2500);
}

TEST_F(SuoloKs, HasNoModulusWithoutAMethod) {
    dati.metodoKs = 5;
    ASSERT_FALSE(calcola().has_value());
    EXPECT_EQ(s.Ehm[nodo(6)], 0);
    EXPECT_EQ(s.Ehv[nodo(6)], 0);
}

TEST_F(SuoloKs, AcceptsAFrictionOfZeroButWithBowles) {
    dati.phiStrato[1] = dati.phiStrato[2] = 0;
    dati.coeffM = 1;
    for (int metodo = 2; metodo <= 4; ++metodo) {
        dati.metodoKs = metodo;
        ASSERT_FALSE(calcola().has_value()) << metodo;
        EXPECT_LT(s.Ehv[nodo(6)], 0) << metodo;
        EXPECT_DOUBLE_EQ(s.kam[nodo(6)], 1);
        EXPECT_DOUBLE_EQ(s.kpv[nodo(6)], -1);
    }
}

TEST_F(SuoloKs, NamesTheFirstDepthWhoseSlopeExceedsTheFriction) {
    dati.metodoKs = valore(MetodoKs::costante);
    dati.inclinazioneMonte = 31;
    dati.phiStrato[1] = 32;
    for (double metodo : {1.0, 2.0}) {
        dati.metodoSpinte = metodo;
        const auto rifiuto = calcola();
        ASSERT_TRUE(rifiuto.has_value());
        EXPECT_EQ(rifiuto->profondita, 4);
        EXPECT_EQ(rifiuto->motivo, Indefinito::radiceNegativa);
    }
    dati.metodoSpinte = valore(MetodoSpinte::bell);  // Bell does not know of slopes
    EXPECT_FALSE(calcola().has_value());
}

TEST_F(SuoloKs, RefusesTheRootOfANegativeStress) {
    dati.metodoKs = valore(MetodoKs::lancellotta);
    dati.coeffM = 800;
    dati.sovraccMonte = -0.5;
    auto rifiuto = calcola();
    ASSERT_TRUE(rifiuto.has_value());
    EXPECT_EQ(rifiuto->profondita, 0);
    EXPECT_EQ(rifiuto->motivo, Indefinito::tensioneNegativa);
    dati.sovraccMonte = 0;
    dati.sovraccFase[1] = -0.5;  // the excavated side, from its first node on
    rifiuto = calcola();
    ASSERT_TRUE(rifiuto.has_value());
    EXPECT_EQ(rifiuto->profondita, 3);
    EXPECT_EQ(rifiuto->motivo, Indefinito::tensioneNegativa);
}

TEST_F(SuoloKs, RefusesDivisionsByZero) {
    dati.metodoKs = valore(MetodoKs::costante);
    dati.metodoSpinte = valore(MetodoSpinte::bell);
    dati.inclinazioneMonte = -90;  // 1 + sin beta
    auto rifiuto = calcola();
    ASSERT_TRUE(rifiuto.has_value());
    EXPECT_EQ(rifiuto->motivo, Indefinito::denominatoreNullo);
    dati.inclinazioneMonte = 0;
    dati.metodoSpinte = valore(MetodoSpinte::coulomb);
    dati.phiStrato[2] = 90;
    rifiuto = calcola();
    ASSERT_TRUE(rifiuto.has_value());
    EXPECT_EQ(rifiuto->motivo, Indefinito::denominatoreNullo);
    EXPECT_EQ(rifiuto->profondita, 4);
}

TEST_F(SuoloKs, RefusesWhatIsTooLargeForANumber) {
    dati.metodoKs = valore(MetodoKs::costante);
    dati.gammaN[1] = dati.gammaSat[1] = 1e308;
    const auto rifiuto = calcola();
    ASSERT_TRUE(rifiuto.has_value());
    EXPECT_EQ(rifiuto->motivo, Indefinito::nonFinito);
    EXPECT_EQ(rifiuto->profondita, 1);  // kp = 3 times 1e308
}

// Level ground, positive stresses: at every node the pressures at rest lie between the limits.
TEST_F(SuoloKs, KeepsThePressureAtRestBetweenTheLimits) {
    std::mt19937 caso(271);
    std::uniform_real_distribution<double> uno(0, 1);
    for (int prova = 0; prova < 200; ++prova) {
        dati.metodoKs = valore(MetodoKs::costante);
        dati.metodoSpinte = 1 + static_cast<double>(caso() % 3);
        for (int j = 1; j <= 2; ++j) {
            dati.phiStrato[j] = 5 + 40 * uno(caso);
            dati.coesione[j] = 3 * uno(caso);
        }
        dati.faldaMonte = 12 * uno(caso) - 1;
        dati.faldaValle = 12 * uno(caso) - 1;
        dati.profFase[1] = 8 * uno(caso);
        dati.sovraccMonte = 3 * uno(caso);
        ASSERT_FALSE(calcola().has_value());
        for (int i = 1; i <= 25; ++i) {
            const double m = s.sigmaVm[i] * s.k0m[i], v = s.sigmaVv[i] * s.k0v[i];
            ASSERT_LE(s.limitiM[i].attiva, m + 1e-12);
            ASSERT_LE(m, s.limitiM[i].passiva + 1e-12);
            ASSERT_LE(s.limitiV[i].passiva, v + 1e-12);
            ASSERT_LE(v, s.limitiV[i].attiva + 1e-12);
        }
    }
}

}  // namespace
}  // namespace korven::analysis
