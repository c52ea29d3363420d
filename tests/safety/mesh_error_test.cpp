#include "safety/mesh_error.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "structure/bending_resistance.hpp"
#include "structure/partial_factors.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::safety {
namespace {

using equilibrium::calcolaEquilibrio;
using project::DatiProgetto;

// A beam on two hinges under the uniform pressure q: by finite differences the moment at mid span
// is q L^2 / 8 at every even mesh, and the displacement 5 q L^4 / (384 EJ) (1 + 0.8 (h/L)^2): with
// h = L / 10, L / 20 and L / 40 the errors against the finest are (0.8 / 100)(1 - 1/16) and a
// quarter of what is left.
TEST(ErroreMaglia, IsThatOfFiniteDifferencesForABeam) {
    auto dati = test::muroNudo();
    dati.vincoloTesta = dati.vincoloPiede = 2;
    dati.pressioneOrizz = 100;
    const auto estremi = equilibrium::estremi(calcolaEquilibrio(dati, 10), 1);
    EXPECT_NEAR(estremi.momento().valore, 1250, 1e-6);
    const auto errore = erroreMaglia(dati, 10, estremi);
    ASSERT_TRUE(errore);
    EXPECT_NEAR(errore->momento().quota.value_or(1), 0, 1e-9);
    const double fine = 1 + 0.8 / 1600;
    EXPECT_NEAR(errore->spostamento.quota.value_or(0), (1 + 0.8 / 100) / fine - 1, 1e-6);
    EXPECT_NEAR(errore->spostamento.ordine.value_or(0), 2, 1e-3);
    EXPECT_EQ(errore->spostamento.andamento, Andamento::avvicinano);
    EXPECT_NEAR(errore->spostamento.doppia / errore->spostamento.fine, (1 + 0.8 / 400) / fine,
                1e-6);
    EXPECT_FALSE(errore->tiro.quota);
}

// The moment at mid span is the same at every even mesh: what rounding leaves is no order.
TEST(ErroreMaglia, CallsMeshesEqualThatDifferByRoundingAlone) {
    auto dati = test::muroNudo();
    dati.vincoloTesta = dati.vincoloPiede = 2;
    dati.pressioneOrizz = 1;
    const auto errore =
        erroreMaglia(dati, 10, equilibrium::estremi(calcolaEquilibrio(dati, 10), 1));
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->momento().andamento, Andamento::uguali);
    EXPECT_FALSE(errore->momento().ordine);
}

// An order is there if and only if the second step is smaller and goes the same way.
TEST(ErroreMaglia, HasAnOrderOnlyWhereTheMeshesCloseInFromOneSide) {
    auto dati = test::progettoSemplice();
    int vicine = 0, lontane = 0, altre = 0;
    for (double scavo = 3; scavo < 6; scavo += 0.13) {
        dati.profFase[2] = scavo;
        const auto e = erroreMaglia(
            dati, 40,
            equilibrium::estremi(calcolaEquilibrio(dati, 40), dati.lunghezzaParatia / 40));
        ASSERT_TRUE(e);
        for (const auto* g : {&e->momento(), &e->taglio, &e->spostamento, &e->tiro}) {
            if (g->andamento == Andamento::uguali) continue;
            const double primo = g->valore - g->doppia, secondo = g->doppia - g->fine;
            const double fattore = g == &e->spostamento ? 1000 : 10;  // as they are shown
            EXPECT_EQ(g->andamento == Andamento::vicine, fattore * std::fabs(secondo) < 0.1);
            if (g->andamento == Andamento::vicine) {
                EXPECT_FALSE(g->ordine);
                ++vicine;
                continue;
            }
            const bool minore = std::fabs(secondo) < std::fabs(primo);
            const auto [piccolo, grande] = std::minmax({g->valore, g->doppia, g->fine});
            const bool strette = grande - piccolo < 0.01 * g->fine;
            EXPECT_EQ(g->andamento == Andamento::lontane, !minore && !strette);
            EXPECT_EQ(g->andamento == Andamento::strette, !minore && strette);
            EXPECT_EQ(g->ordine.has_value(), minore && primo * secondo > 0);
            (g->andamento == Andamento::lontane ? lontane : altre) += 1;
        }
    }
    EXPECT_GT(vicine, 0);
    EXPECT_GT(lontane, 0);
    EXPECT_GT(altre, 0);
}

// The same moment at every mesh, 125 kN m: so are its uses, times the factor of the actions and
// over the resistance. No moment of the other sign acts, and a diaphragm has no shear check.
TEST(ErroreMaglia, HasTheUsesOfTheSectionWithEachMesh) {
    auto dati = test::muroNudo();
    dati.vincoloTesta = dati.vincoloPiede = 2;
    dati.pressioneOrizz = 1;
    dati.sezione = structure::diaframmaSimmetrico();
    const auto errore =
        erroreMaglia(dati, 10, equilibrium::estremi(calcolaEquilibrio(dati, 10), 1));
    ASSERT_TRUE(errore);
    ASSERT_EQ(errore->usi.size(), 1U);
    EXPECT_EQ(errore->usi[0].cosa, results::Verifica::momentoPositivo);
    const double MRd = -structure::resistenze(dati.sezione, 0)[1] / 1e6;  // kN m
    for (const auto& uso : errore->usi[0].maglie) {
        ASSERT_TRUE(uso);
        EXPECT_NEAR(uso->progetto, structure::fsAzioniSezione * 125, 1e-6);
        EXPECT_NEAR(*uso->uso(), structure::fsAzioniSezione * 125 / MRd, 1e-9);
    }
    EXPECT_NEAR(errore->momentoPositivo.valore, 12.5, 1e-9);
    EXPECT_EQ(errore->momentoNegativo.valore, 0);
}

TEST(ErroreMaglia, TellsBothSignsOfTheMoment) {
    const DatiProgetto dati = test::progettoSemplice();
    const auto estremi =
        equilibrium::estremi(calcolaEquilibrio(dati, 40), dati.lunghezzaParatia / 40);
    const auto fini =
        equilibrium::estremi(calcolaEquilibrio(dati, 160), dati.lunghezzaParatia / 160);
    const auto e = erroreMaglia(dati, 40, estremi);
    ASSERT_TRUE(e);
    EXPECT_EQ(e->momentoPositivo.valore, estremi.momentoMassimo.valore);
    EXPECT_EQ(e->momentoPositivo.fine, fini.momentoMassimo.valore);
    EXPECT_EQ(e->momentoNegativo.valore, -estremi.momentoMinimo.valore);
    EXPECT_EQ(e->momentoNegativo.fine, -fini.momentoMinimo.valore);
    EXPECT_EQ(e->momento().fine, std::max(e->momentoPositivo.fine, e->momentoNegativo.fine));
    EXPECT_TRUE(e->usi.empty());  // it has no section
}

// A negative moment that is 8 % off is passed over where it is a tenth of the other.
TEST(ErroreMaglia, PassesOverASmallMomentBesideALargeOne) {
    ErroreMaglia e;
    e.momentoPositivo = {.valore = 101, .fine = 100, .quota = 0.01};
    e.momentoNegativo = {.valore = 9.2, .fine = 10, .quota = 0.08};
    EXPECT_EQ(e.peggiore().quota, 0.01);
    e.momentoNegativo = {.valore = 82.8, .fine = 90, .quota = 0.08};
    EXPECT_EQ(e.peggiore().quota, 0.08);
    EXPECT_EQ(e.peggiore().di, Massimo::momentoNegativo);
    EXPECT_EQ(&e.momento(), &e.momentoPositivo);
    e.tiro.quota = 0.1;
    EXPECT_EQ(e.peggiore().quota, 0.1);
    EXPECT_EQ(e.peggiore().di, Massimo::tiro);
}

// Shown with two decimals, a share of less than 1 kN m says nothing.
TEST(ErroreMaglia, HasNoShareOfAValueThatTheDigitsDoNotHold) {
    auto dati = test::muroNudo();
    dati.vincoloTesta = dati.vincoloPiede = 2;
    for (const double q : {0.007, 0.009}) {  // 0.875 and 1.125 kN m
        dati.pressioneOrizz = q;
        const auto e =
            erroreMaglia(dati, 11, equilibrium::estremi(calcolaEquilibrio(dati, 11), 10.0 / 11));
        ASSERT_TRUE(e);
        EXPECT_EQ(e->momentoPositivo.quota.has_value(), q == 0.009);
        EXPECT_FALSE(e->momentoNegativo.quota);
        EXPECT_EQ(e->momentoPositivo.andamento, Andamento::vicine);
        EXPECT_FALSE(e->momentoPositivo.ordine);
    }
}

// Of 100 + 8 h and 100 + 8 h^2 with h = 1, 1/2 and 1/4 the limit is found; slower ones are taken as
// of the first power, faster ones as of the second, and no limit is seen where they turn.
TEST(LimiteMaglie, IsThatOfAnErrorOfTheFirstOrTheSecondPower) {
    EXPECT_NEAR(limiteMaglie(108, 104, 102).value_or(0), 100, 1e-12);
    EXPECT_NEAR(limiteMaglie(108, 102, 100.5).value_or(0), 100, 1e-12);
    EXPECT_NEAR(limiteMaglie(90.2, 94.5, 98.2).value_or(0), 98.2 + 3.7, 1e-12);
    EXPECT_NEAR(limiteMaglie(90, 96, 97).value_or(0), 97 + 1.0 / 3, 1e-12);
    EXPECT_EQ(limiteMaglie(90, 96, 96), 96);
    EXPECT_FALSE(limiteMaglie(90, 96, 95));
    EXPECT_FALSE(limiteMaglie(90, 90, 95));
}

UsoMaglia uso(double a, double b, double c) {
    const auto di = [](double u) { return results::Uso{u, 100, u > 100}; };
    return {results::Verifica::momentoNegativo, {di(a), di(b), di(c)}};
}

TEST(UsoMaglia, IsJudgedByAllMeshesAndByWhatTheyGoTo) {
    EXPECT_EQ(uso(80, 82, 83).esito(), EsitoMaglie::verificata);
    EXPECT_EQ(uso(90.2, 94.5, 98.2).esito(), EsitoMaglie::nonAssestata);
    EXPECT_EQ(uso(99.9, 99, 98).esito(), EsitoMaglie::verificata);
    EXPECT_EQ(uso(98, 99.9, 99.8).esito(), EsitoMaglie::verificata);
    EXPECT_EQ(uso(98, 101, 99.8).esito(), EsitoMaglie::cambia);
    EXPECT_EQ(uso(101, 99, 98).esito(), EsitoMaglie::cambia);
    EXPECT_EQ(uso(101, 102, 103).esito(), EsitoMaglie::fallita);
}

TEST(ErroreMaglia, IsNoneWhereAFinerMeshDoesNotStand) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 11.5;
    dati.tirantiFase[2] = 0;
    EXPECT_FALSE(erroreMaglia(dati, 50, {}));
}

TEST(ErroreMaglia, GoesBeyondTheSegmentsOfTheSpecifiedRun) {
    const DatiProgetto dati = test::progettoSemplice();
    const int nSeg = 249;
    const auto errore = erroreMaglia(
        dati, nSeg,
        equilibrium::estremi(calcolaEquilibrio(dati, nSeg), dati.lunghezzaParatia / nSeg));
    ASSERT_TRUE(errore);
    EXPECT_LT(errore->momento().quota.value_or(1), 0.01);
}

}  // namespace
}  // namespace korven::safety
