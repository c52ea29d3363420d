#include "safety/strength_reduction.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/pressure_coefficients.hpp"
#include "support/wall_builder.hpp"
#include "support/wall_files.hpp"

namespace korven::safety {
namespace {

using project::DatiProgetto;

// A wall of 10 m hinged at its top, dug 4 m deep in dry sand of 1.8 t/m3, Rankine's pressures: it
// fails when the active moment about the hinge reaches the passive one. Node by node on the mesh of
// the program, with half a step at the ends.
double momentoMancante(double phi, int nSeg) {
    const double h = 10.0 / nSeg, seno = std::sin(phi);
    const double ka = (1 - seno) / (1 + seno), kp = (1 + seno) / (1 - seno);
    double momento = 0;
    for (int i = 0; i <= nSeg; ++i) {
        const double z = i * h, peso = i == 0 || i == nSeg ? h / 2 : h;
        const double valle = z >= 4 ? kp * 1.8 * (z - 4) : 0;
        momento += peso * z * (ka * 1.8 * z - valle);
    }
    return momento;
}

DatiProgetto incernierata(double phi) {
    return test::muro()
        .lungo(10)
        .strato({.fondo = 30, .gammaN = 1.8, .phi = phi})
        .fase({.scavo = 4})
        .con(&DatiProgetto::vincoloTesta, 2)
        .con(&DatiProgetto::metodoSpinte, 2)
        .dati();
}

TEST(Riduzione, IsTheFactorAtWhichActiveAndPassiveMomentsAboutAHingeAreEqual) {
    for (const double gradi : {28.0, 34.0, 40.0}) {
        const double phi = gradi * M_PI / 180;
        double sta = 0.1, cade = 10;
        while (cade - sta > 1e-9) {
            const double F = (sta + cade) / 2;
            (momentoMancante(std::atan(std::tan(phi) / F), 50) < 0 ? sta : cade) = F;
        }
        const Riduzione r = riduzione(incernierata(gradi), 50, 1);
        ASSERT_TRUE(r.F) << gradi;
        EXPECT_NEAR(*r.F, sta, passoRiduzione) << gradi;
        EXPECT_LE(*r.F, sta) << gradi;
        ASSERT_TRUE(r.moto);
        EXPECT_FALSE(r.moto->traslazione);
        EXPECT_EQ(r.moto->profondita, 0);
        EXPECT_EQ(r.moto->verso, 1);
    }
}

// The same wall 6 m long does not stand: the factor says how much stronger the soil had to be.
TEST(Riduzione, IsBelowOneForAMechanism) {
    auto dati = incernierata(25);
    dati.lunghezzaParatia = 5;
    const Riduzione r = riduzione(dati, 50, 1);
    ASSERT_TRUE(r.F);
    EXPECT_LT(*r.F, 1);
    EXPECT_GT(*r.F, 0.1);
}

// Clay without friction, held at the top: active gamma z - 2 c / F, not below 0, passive gamma z' +
// 2 c / F. Coulomb's coefficients are 1.
TEST(Riduzione, DividesCohesionToo) {
    const auto dati = test::muro()
                          .lungo(10)
                          .strato({.fondo = 30, .gammaN = 1.8, .phi = 0, .coesione = 5})
                          .fase({.scavo = 4})
                          .con(&DatiProgetto::vincoloTesta, 2)
                          .dati();
    const auto mancante = [](double c) {
        double momento = 0;
        for (int i = 0; i <= 50; ++i) {
            const double z = i * 0.2, peso = i == 0 || i == 50 ? 0.1 : 0.2;
            const double valle = i >= 20 ? 1.8 * (z - 4) + 2 * c : 0;
            momento += peso * z * (std::max(0.0, 1.8 * z - 2 * c) - valle);
        }
        return momento;
    };
    double sta = 0.1, cade = 10;
    while (cade - sta > 1e-9) {
        const double F = (sta + cade) / 2;
        (mancante(5 / F) < 0 ? sta : cade) = F;
    }
    EXPECT_NEAR(riduzione(dati, 50, 1).F.value_or(0), sta, passoRiduzione);
}

// By an independent calculation 2.98, 2.51, 1.64 and 1.74, of the example with its last two stages
// both dug to 10 m, the fourth under 0.5 t/m2.
TEST(Riduzione, IsThatOfAnIndependentCalculation) {
    auto dati = test::leggiMuro(KORVEN_EXAMPLES "/diaframma_due_ordini.kvd");
    dati.profFase[3] = 10;
    dati.faldaFase[3] = 10.5;
    dati.sovraccFase[4] = 0.5;
    const double attesi[] = {2.98, 2.51, 1.64, 1.74};
    for (int k = 1; k <= 4; ++k)
        EXPECT_NEAR(riduzione(dati, 50, k).F.value_or(0), attesi[k - 1], 0.005) << k;
}

TEST(Riduzione, IsBeyondTenWhereARestraintHoldsTheWall) {
    auto dati = incernierata(30);
    dati.vincoloPiede = 2;
    const Riduzione r = riduzione(dati, 50, 1);
    EXPECT_TRUE(r.oltre);
    EXPECT_TRUE(r.senzaTerreno);
    EXPECT_FALSE(r.F);
}

// Free, in untouched ground: the two sides balance each other at any strength that there is.
TEST(Riduzione, BeyondTenTellsGroundThatHoldsTheWallFromSupports) {
    const Riduzione r = riduzione(test::muro().lungo(10).strato({}).fase({}).dati(), 50, 1);
    EXPECT_TRUE(r.oltre);
    EXPECT_FALSE(r.senzaTerreno);
}

// A slope of 20 degrees: tan 34 / tan 20 = 1.853, and no strength beyond has a coefficient.
TEST(Riduzione, EndsWhereTheFrictionAngleReachesTheSlope) {
    auto dati = incernierata(34);
    dati.inclinazioneMonte = 20;
    dati.profFase[1] = 1;
    const Riduzione r = riduzione(dati, 50, 1);
    ASSERT_TRUE(r.F);
    EXPECT_NEAR(*r.F, std::tan(34 * M_PI / 180) / std::tan(20 * M_PI / 180), passoRiduzione);
    EXPECT_TRUE(r.limitePendio);
    EXPECT_FALSE(r.moto);
}

// At F = 0.1 the friction angle of 30 degrees is 80, and with a slope of 15 Coulomb's passive
// coefficient lies beyond its pole, where it is small again: the search must not begin there.
TEST(Riduzione, KeepsAwayFromThePoleOfThePassiveCoefficient) {
    auto dati = incernierata(30);
    dati.metodoSpinte = 1;
    dati.inclinazioneMonte = 15;
    dati.profFase[1] = 7;
    const Riduzione r = riduzione(dati, 50, 1);
    ASSERT_TRUE(r.F);
    EXPECT_LT(*r.F, 1);
    EXPECT_GT(*r.F, std::tan(30 * M_PI / 180) / std::tan(75 * M_PI / 180));
}

TEST(StratiRidotti, LeaveAtRestCoefficientsAndModuliWhole) {
    auto dati = incernierata(34);
    dati.metodoKs = 1;
    const auto interi = analysis::suoloStrati(dati);
    const auto ridotti = stratiRidotti(dati, interi, 2);
    EXPECT_EQ(ridotti[1].k0m, interi[1].k0m);
    EXPECT_EQ(ridotti[1].k0v, interi[1].k0v);
    EXPECT_EQ(ridotti[1].portanza.Nq, interi[1].portanza.Nq);
    EXPECT_EQ(ridotti[1].phi, interi[1].phi);
    EXPECT_GT(ridotti[1].kam, interi[1].kam);
    EXPECT_LT(ridotti[1].kpm, interi[1].kpm);
}

// The reduction of the whole strength changes no bit of the coefficients but by the way over the
// tangent.
TEST(StratiRidotti, AreTheWholeOnesAtOne) {
    const auto dati = incernierata(34);
    const auto interi = analysis::suoloStrati(dati);
    const auto ridotti = stratiRidotti(dati, interi, 1);
    EXPECT_NEAR(ridotti[1].kam, interi[1].kam, 1e-15);
    EXPECT_NEAR(ridotti[1].kpv, interi[1].kpv, 1e-14);
}

}  // namespace
}  // namespace korven::safety
