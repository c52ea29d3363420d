#include "analysis/soil_state.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "analysis/pressure_coefficients.hpp"
#include "project/codes.hpp"
#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

using project::DatiProgetto;
using project::MetodoKs;
using project::MetodoSpinte;
using project::ModoKs;
using project::ModoSpinte;
using project::ModoTensioni;

// A wall of 12 m, nodes every 0.5 m, layers to 4 and 10 m, excavation at 3 m, water at 2 and 5 m.
class CalcolaSuolo : public testing::Test {
 protected:
    void calcola() { EXPECT_FALSE(calcolaSuolo(dati, 1, nNodi, passo, s).has_value()); }
    std::optional<RifiutoSuolo> rifiuto() {
        auto suolo = std::make_unique<StatoSuolo>();
        return calcolaSuolo(dati, 1, nNodi, passo, *suolo);
    }
    [[nodiscard]] int nodo(double z) const { return 1 + static_cast<int>(std::lround(z / passo)); }
    [[nodiscard]] static double rad(double gradi) { return gradi * pi / 180; }

    DatiProgetto dati = test::muro()
                            .strato({.fondo = 4, .gammaN = 1.7, .gammaSat = 2.0, .ks = 1000})
                            .strato({.fondo = 10,
                                     .gammaN = 1.8,
                                     .gammaSat = 2.1,
                                     .phi = 35,
                                     .coesione = 0.5,
                                     .ks = 2500})
                            .sovraccarico(1)
                            .falda(2)
                            .con(&DatiProgetto::faldaValle, 5)
                            .fase({.scavo = 3, .sovraccarico = 0.4})
                            .dati();
    const int nNodi = 25;
    const double passo = 0.5;
    StatoSuolo s;
};

// At 6 m: 1 + 1.7 x 2 + 2.0 x 2 + 2.1 x 2 = 12.6, water 4. From 3 m: 0.4 + 1.7 x 1 + 1.8 x 1 +
// 2.1 x 1 = 6.0, water 1.
TEST_F(CalcolaSuolo, FillsBothSidesOfANodeBelowTheExcavation) {
    calcola();
    const int i = nodo(6);
    const double seno = std::sin(rad(35)), ka = (1 - seno) / (1 + seno);
    EXPECT_DOUBLE_EQ(s.sigmaVm[i], 8.6);
    EXPECT_DOUBLE_EQ(s.sigmaVv[i], 5.0);
    EXPECT_DOUBLE_EQ(s.acquaNetta[i], 3);
    EXPECT_DOUBLE_EQ(s.phiNodo[i], rad(35));
    EXPECT_EQ(s.cNodo[i], 0.5);
    EXPECT_NEAR(s.k0m[i], 1 - seno, 1e-15);
    EXPECT_NEAR(s.k0v[i], -(1 - seno), 1e-15);
    EXPECT_NEAR(s.kam[i], ka, 1e-14);
    EXPECT_NEAR(s.kav[i], -ka, 1e-14);
    EXPECT_NEAR(s.kpm[i], 1 / ka, 1e-13);
    EXPECT_NEAR(s.kpv[i], -1 / ka, 1e-13);
    EXPECT_EQ(s.Ehm[i], -2500);
    EXPECT_EQ(s.Ehv[i], -2500);
    const double coesione = 2 * 0.5 * std::sqrt(ka);  // tan(45 - phi/2) is the root of ka
    EXPECT_NEAR(s.limitiM[i].attiva, 8.6 * ka - coesione, 1e-13);
    EXPECT_NEAR(s.limitiV[i].attiva, -(5 * ka - coesione), 1e-13);
    EXPECT_NEAR(s.limitiM[i].passiva, 8.6 / ka + 1 / std::sqrt(ka), 1e-12);
    EXPECT_NEAR(s.limitiV[i].passiva, -(5 / ka + 1 / std::sqrt(ka)), 1e-12);
}

TEST_F(CalcolaSuolo, LeavesTheExcavatedSideEmptyAboveTheExcavation) {
    dati.coesione[1] = 3;
    calcola();
    for (int i = 1; i < nodo(3); ++i) {
        for (const auto* colonna : {&s.sigmaVv, &s.Ehv, &s.k0v, &s.kav, &s.kpv})
            EXPECT_EQ((*colonna)[i], 0) << i;
        EXPECT_EQ(s.limitiV[i].attiva, 0);
        EXPECT_EQ(s.limitiV[i].passiva, 0);
        EXPECT_LT(s.Ehm[i], 0);
    }
    EXPECT_LT(s.kpv[nodo(3)], 0);  // the node exactly at the excavation has soil
    EXPECT_DOUBLE_EQ(s.sigmaVv[nodo(3)], 0.4);
}

// A later, deeper stage computes into the values of the one before.
TEST_F(CalcolaSuolo, EmptiesWhatAnEarlierStageLeftAboveTheExcavation) {
    calcola();
    dati.profFase[1] = 6.5;
    calcola();
    EXPECT_EQ(s.sigmaVv[nodo(6)], 0);
    EXPECT_EQ(s.Ehv[nodo(6)], 0);
    EXPECT_EQ(s.limitiV[nodo(6)].passiva, 0);
}

// 15 x 0.24 in doubles lies above 3.6: the node belongs to the excavated part.
TEST_F(CalcolaSuolo, ComparesDepthsExactly) {
    dati.profFase[1] = 3.6;
    ASSERT_LT(15 * 0.24, 3.6);
    EXPECT_FALSE(calcolaSuolo(dati, 1, 51, 0.24, s).has_value());
    EXPECT_EQ(s.kpv[16], 0);
    EXPECT_LT(s.kpv[17], 0);
}

TEST_F(CalcolaSuolo, GivesANodeOnABoundaryTheValuesOfTheLowerLayer) {
    dati.profFase[1] = 4;
    calcola();
    const int i = nodo(4);
    EXPECT_DOUBLE_EQ(s.phiNodo[i], rad(35));
    EXPECT_EQ(s.cNodo[i], 0.5);
    EXPECT_NEAR(s.k0m[i], 1 - std::sin(rad(35)), 1e-15);
    EXPECT_EQ(s.kam[i], s.kam[i + 1]);
    EXPECT_EQ(s.kpv[i], s.kpv[i + 1]);
    EXPECT_EQ(s.Ehm[i], -2500);
    EXPECT_EQ(s.Ehv[i], -2500);
    EXPECT_EQ(s.Ehm[i - 1], -1000);
    EXPECT_DOUBLE_EQ(s.sigmaVm[i], 1 + 1.7 * 2 + 2 * 2 - 2);
}

TEST_F(CalcolaSuolo, GivesNodesBelowTheSoilColumnTheLastLayer) {
    calcola();
    const int i = nodo(12);
    EXPECT_DOUBLE_EQ(s.phiNodo[i], rad(35));
    EXPECT_EQ(s.Ehm[i], -2500);
    EXPECT_EQ(s.Ehv[i], -2500);
    EXPECT_DOUBLE_EQ(s.sigmaVm[i], 1 + 1.7 * 2 + 2 * 2 + 2.1 * 8 - 10);
}

TEST_F(CalcolaSuolo, LetsTheCoefficientsActOnTotalStressAndAddsTheWaterAllTheSame) {
    dati.modoTensioni = valore(ModoTensioni::totali);
    calcola();
    EXPECT_DOUBLE_EQ(s.sigmaVm[nodo(6)], 12.6);
    EXPECT_DOUBLE_EQ(s.sigmaVv[nodo(6)], 6.0);
    EXPECT_DOUBLE_EQ(s.acquaNetta[nodo(6)], 3);
    dati.modoTensioni = 0;  // any code but 1
    calcola();
    EXPECT_DOUBLE_EQ(s.sigmaVm[nodo(6)], 12.6);
}

TEST_F(CalcolaSuolo, CountsTheFullHeadOfAPondButTakesOnlyTheDepthOffTheStress) {
    dati.faldaMonte = -1.5;
    calcola();
    EXPECT_DOUBLE_EQ(s.sigmaVm[nodo(6)], 1 + 2.0 * 4 + 2.1 * 2 - 6);
    EXPECT_DOUBLE_EQ(s.acquaNetta[nodo(4)], 5.5);
}

TEST_F(CalcolaSuolo, CountsDownhillPoresFromTheExcavationButTheHeadFromTheWater) {
    dati.faldaValle = 1;
    calcola();
    EXPECT_DOUBLE_EQ(s.sigmaVv[nodo(6)], 0.4 + 2.0 * 1 + 2.1 * 2 - 3);
    EXPECT_DOUBLE_EQ(s.acquaNetta[nodo(6)], 4 - 5);
    EXPECT_DOUBLE_EQ(s.acquaNetta[nodo(1.5)], -0.5);  // above the excavation too
}

TEST_F(CalcolaSuolo, TakesTheUphillStressDownhillFromTheExcavationOnly) {
    dati.modoSpinte = valore(ModoSpinte::comeMonte);
    calcola();
    for (int i = 1; i <= nNodi; ++i) EXPECT_EQ(s.sigmaVv[i], i < nodo(3) ? 0 : s.sigmaVm[i]) << i;
    EXPECT_DOUBLE_EQ(s.sigmaVv[nodo(3)], 1 + 1.7 * 2 + 2 * 1 - 1);
}

TEST_F(CalcolaSuolo, LeavesTheSlopeOutOfTheExcavatedSide) {
    dati.inclinazioneMonte = 15;
    calcola();
    const int i = nodo(6);
    EXPECT_NEAR(s.kam[i], 0.318858059708874, 1e-13);  // phi 35, slope 15
    EXPECT_NEAR(s.kav[i], -0.270990054120144, 1e-13);
    EXPECT_NEAR(s.k0m[i], 0.338748897474954, 1e-13);
    EXPECT_NEAR(s.k0v[i], -(1 - std::sin(rad(35))), 1e-15);
}

TEST_F(CalcolaSuolo, LeavesTheCoefficientsZeroWithoutAMethod) {
    for (double codice : {0.0, 4.0}) {
        dati.metodoSpinte = codice;
        s = {};
        calcola();
        for (int i = 1; i <= nNodi; ++i)
            for (const auto* colonna : {&s.kam, &s.kpm, &s.kav, &s.kpv})
                EXPECT_EQ((*colonna)[i], 0) << i;
        EXPECT_EQ(s.limitiV[nodo(6)].passiva, 0);
        EXPECT_LT(s.k0v[nodo(6)], 0);
    }
}

TEST_F(CalcolaSuolo, KnowsNoCohesionWithBell) {
    dati.metodoSpinte = valore(MetodoSpinte::bell);
    calcola();
    const int i = nodo(6);
    EXPECT_EQ(s.limitiM[i].attiva, s.sigmaVm[i] * s.kam[i]);
    EXPECT_EQ(s.limitiV[i].passiva, s.sigmaVv[i] * s.kpv[i]);
}

TEST_F(CalcolaSuolo, TakesTheModulusDownhillFromTheOtherSide) {
    dati.modoKs = valore(ModoKs::comeMonte);
    dati.metodoKs = valore(MetodoKs::lancellotta);
    dati.coeffM = 500;
    calcola();
    for (int i = 1; i <= nNodi; ++i) EXPECT_EQ(s.Ehv[i], i < nodo(3) ? 0 : s.Ehm[i]) << i;
    EXPECT_NEAR(s.Ehv[nodo(6)], -500 * std::sqrt((1 - std::sin(rad(35))) * 8.6), 1e-10);
}

TEST_F(CalcolaSuolo, FeelsTheReducedOverburdenInTheModulusOfLancellotta) {
    dati.metodoKs = valore(MetodoKs::lancellotta);
    dati.coeffM = 500;
    calcola();
    const double k0 = 1 - std::sin(rad(35));
    EXPECT_NEAR(s.Ehm[nodo(6)], -500 * std::sqrt(k0 * 8.6), 1e-10);
    EXPECT_NEAR(s.Ehv[nodo(6)], -500 * std::sqrt(k0 * 5.0), 1e-10);
}

// A zero modulus is no error here: it makes nodes without a spring.
TEST_F(CalcolaSuolo, HasNoSpringsWithLancellottasCoefficientAtZero) {
    dati.metodoKs = valore(MetodoKs::lancellotta);
    calcola();
    for (int i = 1; i <= nNodi; ++i) {
        EXPECT_EQ(s.Ehm[i], 0) << i;
        EXPECT_EQ(s.Ehv[i], 0) << i;
    }
}

}  // namespace
}  // namespace korven::analysis
