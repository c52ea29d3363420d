#include "analysis/plastic_iteration.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "project/codes.hpp"
#include "support/run_arrays_setup.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

using project::VincoloPiede;
using project::VincoloTesta;
using test::aggiungiTirante;
using test::corsaNuova;
using test::muroElastico;
using test::muroNudo;

// One node whose elastic line is 5 - 128 y between 3 and 20 uphill, -4 - 64 y between -16 and -2
// downhill. All numbers are exact in binary.
class NodoDiProva : public ::testing::Test {
 protected:
    NodoDiProva() {
        auto& s = corsa->suolo;
        s.sigmaVm[1] = 10;
        s.k0m[1] = 0.5;
        s.Ehm[1] = -128;
        s.limitiM[1] = {3, 20};
        s.sigmaVv[1] = 8;
        s.k0v[1] = -0.5;
        s.Ehv[1] = -64;
        s.limitiV[1] = {-2, -16};
    }
    StatiNodo classifica(double y) {
        corsa->yNodo[1] = y;
        classificaNodi(dati, *corsa);
        return corsa->stati[0];
    }
    void soloMonte() {
        corsa->suolo.sigmaVv[1] = corsa->suolo.k0v[1] = corsa->suolo.Ehv[1] = 0;
        corsa->suolo.limitiV[1] = {};
    }
    void soloValle() {
        corsa->suolo.sigmaVm[1] = corsa->suolo.k0m[1] = corsa->suolo.Ehm[1] = 0;
        corsa->suolo.limitiM[1] = {};
    }

    project::DatiProgetto dati = muroNudo();
    std::unique_ptr<ArraysCorsa> corsa = corsaNuova(dati, 10);
};

struct Caso {
    double y;
    StatoLato stato;
    double p, k;
};

TEST_F(NodoDiProva, HoldsTheUphillPressureBetweenItsLimits) {
    soloMonte();
    const Caso casi[] = {
        {0, StatoLato::elastico, 5, -128},          // at rest
        {0.0078125, StatoLato::elastico, 5, -128},  // 4
        {0.03125, StatoLato::attivo, 3, 0},         // 1, below the active limit
        {-0.0625, StatoLato::elastico, 5, -128},    // 13
        {-0.125, StatoLato::passivo, 20, 0},        // 21, beyond the passive limit
    };
    for (const auto& c : casi) {
        EXPECT_EQ(classifica(c.y).monte, c.stato) << c.y;
        EXPECT_EQ(corsa->pNodo[1], c.p) << c.y;
        EXPECT_EQ(corsa->kNodo[1], c.k) << c.y;
    }
}

TEST_F(NodoDiProva, HoldsTheDownhillPressureBetweenItsLimits) {
    soloValle();
    const Caso casi[] = {
        {0, StatoLato::elastico, -4, -64},         {0.125, StatoLato::elastico, -4, -64},  // -12
        {0.25, StatoLato::passivo, -16, 0},                                                // -20
        {-0.015625, StatoLato::elastico, -4, -64},                                         // -3
        {-0.0625, StatoLato::attivo, -2, 0},                                               // 0
    };
    for (const auto& c : casi) {
        EXPECT_EQ(classifica(c.y).valle, c.stato) << c.y;
        EXPECT_EQ(corsa->pNodo[1], c.p) << c.y;
        EXPECT_EQ(corsa->kNodo[1], c.k) << c.y;
    }
}

TEST_F(NodoDiProva, CountsATrialPressureExactlyAtALimitAsElasticOnBothSides) {
    EXPECT_EQ(classifica(0.015625).monte, StatoLato::elastico);    // 5 - 2 = 3
    EXPECT_EQ(classifica(-0.1171875).monte, StatoLato::elastico);  // 5 + 15 = 20
    EXPECT_EQ(classifica(0.1875).valle, StatoLato::elastico);      // -4 - 12 = -16
    EXPECT_EQ(classifica(-0.03125).valle, StatoLato::elastico);    // -4 + 2 = -2
}

TEST_F(NodoDiProva, AddsTheTwoSidesTheWaterAndTheConstantPressure) {
    corsa->suolo.acquaNetta[1] = 1.5;
    dati.pressioneOrizz = 0.25;
    classifica(0);
    EXPECT_EQ(corsa->pNodo[1], 1.5 + 0.25 + 5 - 4);
    EXPECT_EQ(corsa->kNodo[1], -128 - 64);
    classifica(0.25);  // active uphill, passive downhill: no spring is left
    EXPECT_EQ(corsa->pNodo[1], 1.5 + 0.25 + 3 - 16);
    EXPECT_EQ(corsa->kNodo[1], 0);
}

TEST_F(NodoDiProva, AddsNothingFromADownhillSideThatIsAllZero) {
    soloMonte();  // as above the excavation
    for (const double y : {-1.0, -0.001, 0.0, 0.001, 1.0}) {
        EXPECT_EQ(classifica(y).valle, StatoLato::elastico);
        const double p = corsa->pNodo[1];
        EXPECT_TRUE(p == 5 || p == 3 || p == 20) << p;
    }
}

TEST_F(NodoDiProva, IsPlasticAtZeroDisplacementWhereThePressureAtRestLiesBeyondALimit) {
    corsa->suolo.limitiM[1] = {6, 20};
    EXPECT_EQ(classifica(0).monte, StatoLato::attivo);
    corsa->suolo.limitiM[1] = {3, 4};
    EXPECT_EQ(classifica(0).monte, StatoLato::passivo);
    corsa->suolo.limitiV[1] = {-2, -3};
    EXPECT_EQ(classifica(0).valle, StatoLato::passivo);
    corsa->suolo.limitiV[1] = {-5, -16};
    EXPECT_EQ(classifica(0).valle, StatoLato::attivo);
}

TEST_F(NodoDiProva, TestsTheActiveLimitFirstUphillAndThePassiveFirstDownhill) {
    corsa->suolo.limitiM[1] = {6, 4};  // crossed limits: both tests would hold
    EXPECT_EQ(classifica(0).monte, StatoLato::attivo);
    corsa->suolo.limitiV[1] = {-6, -3};
    EXPECT_EQ(classifica(0).valle, StatoLato::passivo);
}

TEST_F(NodoDiProva, RemembersNothingOfAPlasticExcursion) {
    classifica(0.0078125);
    const double p = corsa->pNodo[1], k = corsa->kNodo[1];
    classifica(5);
    classifica(-5);
    classifica(0.0078125);
    EXPECT_EQ(corsa->pNodo[1], p);
    EXPECT_EQ(corsa->kNodo[1], k);
}

TEST(ClassificaNodi, FindsEveryUphillNodeElasticInTheFirstIterationOfTheFirstStage) {
    const auto dati = test::progettoSemplice();
    const auto corsa = corsaNuova(dati, 50);
    ASSERT_FALSE(calcolaSuolo(dati, 1, corsa->nNodi, corsa->passoNodi, corsa->suolo));
    classificaNodi(dati, *corsa);
    for (const auto& stato : corsa->stati) EXPECT_EQ(stato.monte, StatoLato::elastico);
}

TEST(ClassificaNodi, FindsTheUphillNodesActiveFromTheStartUnderASteepSlope) {
    auto dati = test::progettoSemplice();
    dati.inclinazioneMonte =
        25;  // layer 1: k0 = 0.5 / 1.4226 = 0.351, ka = 0.75 / 1.2193^2 = 0.504
    const auto corsa = corsaNuova(dati, 50);
    ASSERT_FALSE(calcolaSuolo(dati, 1, corsa->nNodi, corsa->passoNodi, corsa->suolo));
    EXPECT_NEAR(corsa->suolo.k0m[2], 0.3515, 0.0005);
    EXPECT_NEAR(corsa->suolo.kam[2], 0.5045, 0.0005);
    classificaNodi(dati, *corsa);
    for (int i = 2; corsa->passoNodi * (i - 1) < 4; ++i)
        EXPECT_EQ(corsa->stati[static_cast<std::size_t>(i - 1)].monte, StatoLato::attivo) << i;
}

TEST(ClassificaNodi, FindsEveryNodePassiveWithoutCoefficients) {
    auto dati = test::progettoSemplice();
    dati.metodoSpinte = 7;  // no such method: both coefficients stay 0
    const auto corsa = corsaNuova(dati, 20);
    ASSERT_FALSE(calcolaSuolo(dati, 1, corsa->nNodi, corsa->passoNodi, corsa->suolo));
    classificaNodi(dati, *corsa);
    EXPECT_EQ(corsa->stati.front().monte, StatoLato::passivo);
    EXPECT_EQ(corsa->kNodo[1], 0);
}

TEST(RisolviIterazione, TakesTheMomentAtTheTopFromTheLoadAndZeroAtAFreeToe) {
    auto dati = muroElastico(1000);
    dati.momentoTesta = 3;
    const auto corsa = corsaNuova(dati, 20);
    ASSERT_FALSE(calcolaSuolo(dati, 1, corsa->nNodi, corsa->passoNodi, corsa->suolo));
    classificaNodi(dati, *corsa);
    corsa->momentoNodo[21] = 77;
    ASSERT_TRUE(risolviIterazione(dati, *corsa));
    EXPECT_EQ(corsa->momentoNodo[1], -3);
    EXPECT_EQ(corsa->momentoNodo[21], 0);
    const double h = corsa->passoNodi;
    for (int i = 2; i <= 20; ++i)
        EXPECT_EQ(
            corsa->momentoNodo[i],
            (-10000 / (h * h)) * (corsa->yNodo[i - 1] + corsa->yNodo[i + 1] - 2 * corsa->yNodo[i]));
}

// The balance of the first segment counts the force at the top a second time, and the shear of
// node 1 makes up for it. So it's twice the true shear just below the top; from node 2 on the
// column is right.
TEST(RisolviIterazione, GivesTheFirstNodeTwiceTheForceAtTheTopAsShear) {
    for (const double testa : {1.0, 2.0})
        for (const double piede : {1.0, 2.0, 3.0})
            for (const double H : {4.0, -2.5}) {
                auto dati = muroElastico(1000);
                dati.vincoloTesta = testa;
                dati.vincoloPiede = piede;
                dati.forzaTesta = H;
                const auto corsa = corsaNuova(dati, 20);
                ASSERT_FALSE(calcolaSuolo(dati, 1, corsa->nNodi, corsa->passoNodi, corsa->suolo));
                classificaNodi(dati, *corsa);
                ASSERT_TRUE(risolviIterazione(dati, *corsa));
                EXPECT_NEAR(corsa->taglioNodo[1], -2 * H, 1e-6) << testa << piede << H;
            }
}

TEST(RisolviIterazione, ReportsASystemWithoutAnySpringAsSingular) {
    auto dati = muroNudo();
    dati.pressioneOrizz = 1;
    const auto corsa = corsaNuova(dati, 20);
    classificaNodi(dati, *corsa);
    EXPECT_FALSE(risolviIterazione(dati, *corsa));
}

TEST(RisolviIterazione, LaysARestraintOverTheSpringButKeepsThePressureOfItsNode) {
    auto dati = muroNudo();
    dati.vincoloTesta = valore(VincoloTesta::cerniera);
    dati.vincoloPiede = valore(VincoloPiede::cerniera);
    dati.pressioneOrizz = 1.5;
    aggiungiTirante(dati, 0, 700, 0, 1);
    const auto corsa = corsaNuova(dati, 20);
    corsa->nTirantiAttivi = 1;
    classificaNodi(dati, *corsa);
    applicaTiranti(dati, *corsa);
    ASSERT_TRUE(risolviIterazione(dati, *corsa));
    EXPECT_EQ(corsa->kNodo[1], -1e11);
    EXPECT_EQ(corsa->kNodo[21], -1e11);
    EXPECT_EQ(corsa->pNodo[1], 1.5);
    EXPECT_EQ(corsa->pNodo[21], 1.5);
}

TEST(EstremiIterazione, FindsTheLargestAbsoluteAndSignedValuesOfTheWallsOwnNodes) {
    const auto corsa = corsaNuova(muroNudo(), 4);
    const double y[] = {0.1, -0.3, 0.2, 0, 0.05, 9};
    const double M[] = {-1, -8, 5, 2, 0, 99};
    for (int i = 1; i <= 6; ++i) {  // the sixth lies beyond the toe
        corsa->yNodo[i] = y[i - 1];
        corsa->momentoNodo[i] = M[i - 1];
    }
    const auto e = estremiIterazione(*corsa);
    EXPECT_EQ(e.yMax, 0.3);
    EXPECT_EQ(e.mMax, 8);
    EXPECT_EQ(e.mMaxFase, 5);
    EXPECT_EQ(e.mMinFase, -8);
}

TEST(EstremiIterazione, LetsTheSignedExtremesHaveTheSameSign) {
    const auto corsa = corsaNuova(muroNudo(), 4);
    for (int i = 1; i <= 5; ++i) corsa->momentoNodo[i] = -i;
    const auto e = estremiIterazione(*corsa);
    EXPECT_EQ(e.mMaxFase, -1);
    EXPECT_EQ(e.mMinFase, -5);
    EXPECT_EQ(e.mMax, 5);
}

TEST(Convergenza, ComparesEachDisplacementInMetresWithTheIterationBefore) {
    const auto corsa = corsaNuova(muroNudo(), 4);
    for (int i = 1; i <= 5; ++i) corsa->yNodo[i] = 1;
    EXPECT_FALSE(convergenza(*corsa));
    EXPECT_TRUE(convergenza(*corsa));  // the values have taken the place of the last ones
    corsa->yNodo[5] += 0.9e-8;
    EXPECT_TRUE(convergenza(*corsa));
    corsa->yNodo[1] -= 1.1e-8;
    EXPECT_FALSE(convergenza(*corsa));
    EXPECT_TRUE(convergenza(*corsa));
}

TEST(Convergenza, LooksAtNothingButTheDisplacementsOfTheWallsOwnNodes) {
    const auto corsa = corsaNuova(muroNudo(), 4);
    ASSERT_TRUE(convergenza(*corsa));
    corsa->yNodo[6] = 1;
    corsa->momentoNodo[3] = 50;
    corsa->taglioNodo[3] = -50;
    corsa->kNodo[2] = -1;
    EXPECT_TRUE(convergenza(*corsa));
}

}  // namespace
}  // namespace korven::analysis
