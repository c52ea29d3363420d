#include "analysis/vertical_stress.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

using project::DatiProgetto;

// Layer from 2 m to 6 m, gamma 1.8, saturated 2.1.
double peso(double z, double w) { return pesoStrato(z, 2, 6, w, 1.8, 2.1); }

TEST(PesoStrato, CountsTheWholeLayerForADepthBelowIt) {
    EXPECT_DOUBLE_EQ(peso(8, 7), 1.8 * 4);
    EXPECT_DOUBLE_EQ(peso(8, 3), 1.8 * 1 + 2.1 * 3);
    EXPECT_DOUBLE_EQ(peso(8, 6), 1.8 * 4);  // water table at the bottom
    EXPECT_DOUBLE_EQ(peso(8, 2), 2.1 * 4);
    EXPECT_DOUBLE_EQ(peso(8, -1), 2.1 * 4);
}

TEST(PesoStrato, CountsTheLayerDownToADepthInIt) {
    EXPECT_DOUBLE_EQ(peso(5, 5.5), 1.8 * 3);
    EXPECT_DOUBLE_EQ(peso(5, 3), 1.8 * 1 + 2.1 * 2);
    EXPECT_DOUBLE_EQ(peso(5, 5), 1.8 * 3);
    EXPECT_DOUBLE_EQ(peso(5, 2), 2.1 * 3);
    EXPECT_DOUBLE_EQ(peso(6, 9), 1.8 * 4);
    EXPECT_EQ(peso(2, 9), 0);
    EXPECT_EQ(peso(2, 0), 0);
}

TEST(PesoStrato, CountsNothingForADepthAboveTheLayer) { EXPECT_EQ(peso(1.9, 0), 0); }

TEST(PesoStrato, IsNothingForALayerWithoutThickness) {
    for (double z : {2.0, 3.0, 4.0})
        for (double w : {1.0, 3.0, 5.0}) EXPECT_EQ(pesoStrato(z, 3, 3, w, 1.8, 2.1), 0);
}

TEST(PressioneAcquaNetta, GrowsFromTheUphillTableAndStaysBelowBoth) {
    EXPECT_EQ(pressioneAcquaNetta(1, 2, 5, 1), 0);
    EXPECT_EQ(pressioneAcquaNetta(2, 2, 5, 1), 0);
    EXPECT_DOUBLE_EQ(pressioneAcquaNetta(4, 2, 5, 1.025), 2 * 1.025);
    EXPECT_DOUBLE_EQ(pressioneAcquaNetta(8, 2, 5, 1), 3);
    EXPECT_DOUBLE_EQ(pressioneAcquaNetta(20, 2, 5, 1), 3);
}

TEST(PressioneAcquaNetta, CountsTheFullHeadOfWaterAboveTheGround) {
    EXPECT_DOUBLE_EQ(pressioneAcquaNetta(0, -1.5, 5, 1), 1.5);
    EXPECT_DOUBLE_EQ(pressioneAcquaNetta(3, -1.5, 5, 1), 4.5);
}

TEST(PressioneAcquaNetta, IsNegativeWhereTheDownhillTableIsTheHigherOne) {
    EXPECT_DOUBLE_EQ(pressioneAcquaNetta(4, 5, 1, 1), -3);
}

// Three layers to 3, 5 and 9 m.
DatiProgetto treStrati() {
    return test::muro()
        .strato({.fondo = 3, .gammaN = 1.7, .gammaSat = 2.0})
        .strato({.fondo = 5, .gammaN = 1.8, .gammaSat = 2.1})
        .strato({.fondo = 9, .gammaN = 1.9, .gammaSat = 2.2})
        .falda(4)
        .con(&DatiProgetto::faldaValle, 6)
        .dati();
}

TEST(TensioneMonte, SumsSurchargeLayersAndWater) {
    DatiProgetto dati = treStrati();
    dati.sovraccMonte = 2;
    const auto sopra = tensioneMonte(dati, 2);
    EXPECT_EQ(sopra.strato, 1);
    EXPECT_DOUBLE_EQ(sopra.totale, 2 + 1.7 * 2);
    EXPECT_EQ(sopra.efficace, sopra.totale);
    const auto sotto = tensioneMonte(dati, 7);
    EXPECT_EQ(sotto.strato, 3);
    const double totale = 2 + 1.7 * 3 + 1.8 * 1 + 2.1 * 1 + 2.2 * 2;
    EXPECT_DOUBLE_EQ(sotto.totale, totale);
    EXPECT_DOUBLE_EQ(sotto.efficace, totale - 3);
}

TEST(TensioneMonte, TakesTheWeightOfWaterFromTheProject) {
    DatiProgetto dati = treStrati();
    dati.gammaAcqua = 1.03;
    const auto nodo = tensioneMonte(dati, 7);
    EXPECT_DOUBLE_EQ(nodo.totale - nodo.efficace, 3 * 1.03);
}

TEST(TensioneMonte, LosesOnlyTheDepthWhenWaterStandsAboveTheGround) {
    DatiProgetto dati = treStrati();
    dati.faldaMonte = -2;
    const auto nodo = tensioneMonte(dati, 4);
    EXPECT_DOUBLE_EQ(nodo.totale, 2.0 * 3 + 2.1 * 1);  // the pond itself weighs nothing
    EXPECT_DOUBLE_EQ(nodo.efficace, nodo.totale - 4);
    EXPECT_DOUBLE_EQ(pressioneAcquaNetta(4, -2, 10, 1), 6);
}

TEST(TensioneMonte, GivesANodeOnABoundaryToTheLowerLayer) {
    const DatiProgetto dati = treStrati();
    EXPECT_EQ(tensioneMonte(dati, 0).strato, 1);
    EXPECT_EQ(tensioneMonte(dati, 3).strato, 2);
    EXPECT_EQ(tensioneMonte(dati, 5).strato, 3);
}

TEST(TensioneMonte, GoesOnInTheLastLayerBelowTheSoilColumn) {
    const DatiProgetto dati = treStrati();
    const auto nodo = tensioneMonte(dati, 15);
    EXPECT_EQ(nodo.strato, 3);
    EXPECT_DOUBLE_EQ(nodo.totale, 1.7 * 3 + 1.8 + 2.1 + 2.2 * 10);
    EXPECT_EQ(tensioneMonte(dati, 109).strato, 3);
    EXPECT_EQ(tensioneMonte(dati, 109.1).strato, 0);
}

TEST(FondoStrato, IsAHundredMetresDeeperForTheLastLayerOnly) {
    const DatiProgetto dati = treStrati();
    EXPECT_EQ(fondoStrato(dati, 1), 3);
    EXPECT_EQ(fondoStrato(dati, 2), 5);
    EXPECT_EQ(fondoStrato(dati, 3), 109);
}

TEST(TensioneMonte, SkipsALayerWithoutThickness) {
    DatiProgetto dati = treStrati();
    dati.profStrato[2] = 3;
    EXPECT_EQ(tensioneMonte(dati, 3).strato, 3);
    EXPECT_DOUBLE_EQ(tensioneMonte(dati, 6).totale, 1.7 * 3 + 1.9 * 1 + 2.2 * 2);
}

TEST(TensioneValle, WeighsOnlyWhatLiesBelowTheExcavation) {
    const DatiProgetto dati = treStrati();
    const auto fondo = tensioneValle(dati, 4, 4, 1.5);
    EXPECT_EQ(fondo.strato, 2);
    EXPECT_EQ(fondo.totale, 1.5);
    EXPECT_EQ(fondo.efficace, 1.5);
    const auto nodo = tensioneValle(dati, 7, 4, 1.5);
    EXPECT_EQ(nodo.strato, 3);
    EXPECT_DOUBLE_EQ(nodo.totale, 1.5 + 1.8 * 1 + 1.9 * 1 + 2.2 * 1);
    EXPECT_DOUBLE_EQ(nodo.efficace, nodo.totale - 1);
}

TEST(TensioneValle, CountsThePoresFromTheExcavationWhenWaterStandsAboveIt) {
    DatiProgetto dati = treStrati();
    dati.faldaValle = 1;
    const auto nodo = tensioneValle(dati, 7, 4, 0);
    EXPECT_DOUBLE_EQ(nodo.totale, 2.1 * 1 + 2.2 * 2);
    EXPECT_DOUBLE_EQ(nodo.efficace, nodo.totale - 3);
    EXPECT_DOUBLE_EQ(pressioneAcquaNetta(7, 10, 1, 1), -6);
}

TEST(TensioneValle, BeginsInTheLowerLayerWhenTheExcavationReachesABoundary) {
    const DatiProgetto dati = treStrati();
    EXPECT_EQ(tensioneValle(dati, 3, 3, 0).strato, 2);
    EXPECT_DOUBLE_EQ(tensioneValle(dati, 4, 3, 0).totale, 1.8);
}

TEST(TensioneValle, GoesOnInTheLastLayerBelowTheSoilColumn) {
    const DatiProgetto dati = treStrati();
    const auto nodo = tensioneValle(dati, 14, 11, 0);  // the excavation itself is below it
    EXPECT_EQ(nodo.strato, 3);
    EXPECT_DOUBLE_EQ(nodo.totale, 2.2 * 3);
}

// Random columns of 1 to 6 layers, some without thickness, water anywhere from 3 m above ground.
DatiProgetto colonna(std::mt19937& caso) {
    std::uniform_real_distribution<double> spessore(0, 5), peso(1.5, 2), falda(-3, 15);
    DatiProgetto dati = test::progettoVuoto();
    const int quanti = std::uniform_int_distribution(1, 6)(caso);
    for (double fondo = 0; dati.nStrati < quanti;) {
        fondo += caso() % 5 == 0 ? 0 : spessore(caso);
        const double gamma = peso(caso);
        test::aggiungiStrato(dati, {.fondo = fondo, .gammaN = gamma, .gammaSat = gamma + 0.3});
    }
    dati.sovraccMonte = peso(caso);
    dati.faldaMonte = falda(caso);
    dati.faldaValle = falda(caso);
    return dati;
}

double pesoUnita(const DatiProgetto& dati, double z, double falda) {
    int j = 1;
    while (j < dati.nStrati && z > dati.profStrato[j]) ++j;
    return z > falda ? dati.gammaSat[j] : dati.gammaN[j];
}

double integrale(const DatiProgetto& dati, double da, double a, double falda) {
    const int passi = 4000;
    double somma = 0;
    for (int i = 0; i < passi; ++i)
        somma += pesoUnita(dati, da + (i + 0.5) * (a - da) / passi, falda);
    return somma * (a - da) / passi;
}

// Midpoint rule: at most 7 jumps of at most 0.8 t/m3, each off by no more than a cell of 5 mm.
TEST(TensioneMonte, IsTheIntegralOfTheUnitWeight) {
    std::mt19937 caso(241);
    std::uniform_real_distribution<double> profondita(0, 20);
    for (int i = 0; i < 300; ++i) {
        const DatiProgetto dati = colonna(caso);
        const double z = profondita(caso);
        const auto nodo = tensioneMonte(dati, z);
        ASSERT_NEAR(nodo.totale, dati.sovraccMonte + integrale(dati, 0, z, dati.faldaMonte), 0.03);
        const double pori = std::max(0.0, z - std::max(0.0, dati.faldaMonte));
        ASSERT_NEAR(nodo.totale - nodo.efficace, pori, 1e-12);
    }
}

TEST(TensioneValle, IsTheIntegralOfTheUnitWeightFromTheExcavation) {
    std::mt19937 caso(242);
    std::uniform_real_distribution<double> profondita(0, 20);
    for (int i = 0; i < 300; ++i) {
        const DatiProgetto dati = colonna(caso);
        double e = profondita(caso), z = profondita(caso);
        if (e > z) std::swap(e, z);
        const auto nodo = tensioneValle(dati, z, e, 0.7);
        ASSERT_NEAR(nodo.totale, 0.7 + integrale(dati, e, z, dati.faldaValle), 0.03);
        const double pori = std::max(0.0, z - std::max(e, dati.faldaValle));
        ASSERT_NEAR(nodo.totale - nodo.efficace, pori, 1e-12);
    }
}

TEST(TensioneMonte, IsTheSameFromBothSidesOfABoundary) {
    std::mt19937 caso(243);
    for (int i = 0; i < 500; ++i) {
        const DatiProgetto dati = colonna(caso);
        const double e = dati.profStrato[1] / 2;
        for (int j = 1; j <= dati.nStrati; ++j) {
            const double b = dati.profStrato[j], sopra = std::max(e, b - 1e-9);
            ASSERT_NEAR(tensioneMonte(dati, sopra).totale, tensioneMonte(dati, b).totale, 1e-8);
            ASSERT_NEAR(tensioneMonte(dati, b + 1e-9).totale, tensioneMonte(dati, b).totale, 1e-8);
            ASSERT_NEAR(tensioneValle(dati, sopra, e, 0).efficace,
                        tensioneValle(dati, b, e, 0).efficace, 1e-8);
            ASSERT_NEAR(tensioneValle(dati, b + 1e-9, e, 0).efficace,
                        tensioneValle(dati, b, e, 0).efficace, 1e-8);
        }
    }
}

TEST(TensioneValle, NeverExceedsTheOtherSideWithTheSameWaterAndSurcharge) {
    std::mt19937 caso(244);
    std::uniform_real_distribution<double> profondita(0, 20);
    for (int i = 0; i < 2000; ++i) {
        DatiProgetto dati = colonna(caso);
        dati.faldaValle = dati.faldaMonte;
        double e = profondita(caso), z = profondita(caso);
        if (e > z) std::swap(e, z);
        const auto monte = tensioneMonte(dati, z);
        const auto valle = tensioneValle(dati, z, e, dati.sovraccMonte);
        ASSERT_LE(valle.totale, monte.totale + 1e-12);
        ASSERT_LE(valle.efficace, monte.efficace + 1e-12);
        ASSERT_EQ(valle.strato, monte.strato);
    }
}

// Nothing dug and nothing laid on either side: the two sides are one soil.
TEST(TensioneValle, EqualsTheOtherSideBeforeAnythingIsDug) {
    std::mt19937 caso(245);
    std::uniform_real_distribution<double> profondita(0, 20);
    for (int i = 0; i < 1000; ++i) {
        DatiProgetto dati = colonna(caso);
        dati.faldaValle = dati.faldaMonte;
        const double z = profondita(caso);
        const auto monte = tensioneMonte(dati, z);
        const auto valle = tensioneValle(dati, z, 0, dati.sovraccMonte);
        ASSERT_EQ(valle.totale, monte.totale);
        ASSERT_EQ(valle.efficace, monte.efficace);
    }
}

}  // namespace
}  // namespace korven::analysis
