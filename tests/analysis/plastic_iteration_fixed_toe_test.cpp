// What a fixed toe adds to the iteration: a node more in the system, cells that nobody clears, and
// a moment at the toe that is one iteration late.

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/plastic_iteration.hpp"
#include "analysis/solver/linear_system.hpp"
#include "analysis/wall_mesh.hpp"
#include "project/codes.hpp"
#include "support/run_arrays_setup.hpp"
#include "support/sample_projects.hpp"

namespace korven::analysis {
namespace {

using project::VincoloPiede;
using test::corsaNuova;
using test::muroElastico;

constexpr int nSeg = 12;
constexpr int nNodi = nSeg + 1;
constexpr int n = nNodi + 1;      // of the system
constexpr int ultima = 2 * n;     // last equation and last unknown
constexpr int forze = 2 * n - 1;  // balance of forces; the balance of moments is the last

class PiedeIncastrato : public ::testing::Test {
 protected:
    PiedeIncastrato() {
        dati.vincoloPiede = valore(VincoloPiede::incastro);
        dati.forzaTesta = 5;
        dati.pressioneOrizz = 0.5;
        corsa = corsaNuova(dati, nSeg);
        EXPECT_FALSE(calcolaSuolo(dati, 1, nNodi, corsa->passoNodi, corsa->suolo));
    }
    void itera(ArraysCorsa& c) const {
        classificaNodi(dati, c);
        ASSERT_TRUE(risolviIterazione(dati, c));
    }
    [[nodiscard]] Parete parete(const ArraysCorsa& c) const {
        return {n, c.passoNodi, &c.EJNodo, &c.pNodo, &c.kNodo, dati.forzaTesta, dati.momentoTesta};
    }
    // Sum of all horizontal forces on the system's nodes; 0 in equilibrium.
    [[nodiscard]] double sommaForze(const ArraysCorsa& c) const {
        double somma = dati.forzaTesta;
        for (int i = 1; i <= n; ++i) {
            const double w = i == 1 || i == n ? 1 : 2;
            somma += (c.pNodo[i] + c.kNodo[i] * c.yNodo[i]) * w * c.passoNodi / 2;
        }
        return somma;
    }

    project::DatiProgetto dati = muroElastico(1000);
    std::unique_ptr<ArraysCorsa> corsa;
};

TEST_F(PiedeIncastrato, HoldsTheToeAndTheNodeBelowItInPlaceAndGivesTheNodeBack) {
    itera(*corsa);
    EXPECT_EQ(corsa->nNodi, nNodi);
    EXPECT_NEAR(corsa->yNodo[nNodi], 0, 1e-9);
    EXPECT_NEAR(corsa->yNodo[nNodi + 1], 0, 1e-9);
    EXPECT_GT(corsa->yNodo[1], 1e-4);
    EXPECT_NEAR(sommaForze(*corsa), 0, 1e-6);
}

// Beyond the cells that are cleared before an assembly, the two last rows and columns of the matrix
// hold what the solver left: its inverse.
TEST_F(PiedeIncastrato, LeavesTheInverseInTheTwoLastRowsAndColumns) {
    itera(*corsa);
    MatriceSistema A;
    VettoreSistema b;
    assembla(parete(*corsa), A, b);
    for (int r = forze; r <= ultima; ++r)
        for (int j = 1; j <= ultima; ++j) {
            double riga = 0, colonna = 0, scala = 0;
            for (int k = 1; k <= ultima; ++k) {
                riga += corsa->matriceA(r, k) * A(k, j);
                colonna += A(j, k) * corsa->matriceA(k, r);
                scala += std::fabs(corsa->matriceA(r, k) * A(k, j)) +
                         std::fabs(A(j, k) * corsa->matriceA(k, r));
            }
            const double unita = j == r ? 1 : 0;
            EXPECT_NEAR(riga, unita, 1e-9 * (1 + scala)) << r << ' ' << j;
            EXPECT_NEAR(colonna, unita, 1e-9 * (1 + scala)) << r << ' ' << j;
        }
    EXPECT_NE(corsa->matriceA(forze, 1), 0);
    EXPECT_NE(corsa->matriceA(1, ultima), 0);
}

TEST_F(PiedeIncastrato, SolvesTheNextIterationOverTheCellsThatTheSolverLeft) {
    itera(*corsa);
    MatriceSistema A;  // the next system by hand: the left cells first, then assembly over them
    for (int r = forze; r <= ultima; ++r)
        for (int j = 1; j <= ultima; ++j) {
            A(r, j) = corsa->matriceA(r, j);
            A(j, r) = corsa->matriceA(j, r);
        }
    const double rimasta = corsa->matriceA(forze, 3);
    ASSERT_NE(rimasta, 0);
    itera(*corsa);
    VettoreSistema b, x;
    assembla(parete(*corsa), A, b);
    EXPECT_EQ(A(forze, 3), rimasta);  // assembly writes no shear column into the global balance
    ASSERT_EQ(RisolviSistema(ultima, A, b, x, 2), EsitoSistema::risolto);
    for (int i = 1; i <= ultima; ++i) EXPECT_EQ(corsa->soluzioneX[i], x[i]) << i;
    for (int j = 1; j <= ultima; ++j) {
        EXPECT_EQ(corsa->matriceA(forze, j), A(forze, j));
        EXPECT_EQ(corsa->matriceA(j, ultima), A(j, ultima));
    }
}

// A value planted in a shear column of the force balance stays there and disturbs the balance by
// its product with that shear. (After a real solve the values are so small that it doesn't show.)
TEST_F(PiedeIncastrato, ReadsAPlantedCellOfTheLastRowsAsACoefficient) {
    const double c = 0.01;
    corsa->matriceA(forze, 4) = c;
    itera(*corsa);
    EXPECT_GT(std::fabs(c * corsa->taglioNodo[4]), 1e-3);
    EXPECT_NEAR(sommaForze(*corsa), -c * corsa->taglioNodo[4], 1e-6);
}

TEST_F(PiedeIncastrato, IgnoresCellsThatAreClearedOrWrittenByAssembly) {
    const auto pulita = corsaNuova(dati, nSeg);
    ASSERT_FALSE(calcolaSuolo(dati, 1, nNodi, pulita->passoNodi, pulita->suolo));
    corsa->matriceA(2 * nNodi, 4) = 3;   // cleared
    corsa->matriceA(4, 2 * nNodi) = -3;  // cleared
    corsa->matriceA(forze, n + 3) = 50;  // a displacement column of the global balance: written
    itera(*pulita);
    itera(*corsa);
    for (int i = 1; i <= ultima; ++i) EXPECT_EQ(corsa->soluzioneX[i], pulita->soluzioneX[i]);
}

TEST(PiedeLibero, HasNoCellThatOutlivesTheClearing) {
    auto dati = muroElastico(1000);
    dati.forzaTesta = 5;
    const auto sporca = corsaNuova(dati, nSeg), pulita = corsaNuova(dati, nSeg);
    for (int i = 1; i <= 2 * nNodi + 2; ++i)
        for (int j = 1; j <= 2 * nNodi + 2; ++j) sporca->matriceA(i, j) = i - 2.5 * j;
    for (ArraysCorsa* c : {sporca.get(), pulita.get()}) {
        ASSERT_FALSE(calcolaSuolo(dati, 1, nNodi, c->passoNodi, c->suolo));
        classificaNodi(dati, *c);
        ASSERT_TRUE(risolviIterazione(dati, *c));
    }
    for (int i = 1; i <= 2 * nNodi; ++i) EXPECT_EQ(sporca->soluzioneX[i], pulita->soluzioneX[i]);
}

TEST_F(PiedeIncastrato, ExtrapolatesTheMomentAtTheToeFromTheIterationBefore) {
    corsa->momentoNodo[nNodi - 1] = 7;
    corsa->momentoNodo[nNodi - 2] = 4;
    itera(*corsa);
    EXPECT_EQ(corsa->momentoNodo[nNodi], 10);  // 2 * 7 - 4, though those two are already others
    const double vicino = corsa->momentoNodo[nNodi - 1];
    const double secondo = corsa->momentoNodo[nNodi - 2];
    EXPECT_NE(vicino, 7);
    dati.forzaTesta = 9;
    itera(*corsa);
    EXPECT_EQ(corsa->momentoNodo[nNodi], 2 * vicino - secondo);
    EXPECT_NE(corsa->momentoNodo[nNodi - 1], vicino);
}

// The toe is an inner node of the grown system, and the shear is that at the middle of a node's
// pressure: half of the toe's reaction lies below it.
TEST_F(PiedeIncastrato, HoldsHalfOfTheToesReactionInTheLastShear) {
    itera(*corsa);
    const double h = corsa->passoNodi;
    const auto forza = [&](int i, double larghezza) {
        return (corsa->pNodo[i] + corsa->kNodo[i] * corsa->yNodo[i]) * larghezza;
    };
    const double reazionePiede = forza(nNodi, h);
    const double sotto = forza(nNodi + 1, h / 2);
    EXPECT_GT(std::fabs(reazionePiede), 0.1);
    EXPECT_NEAR(corsa->taglioNodo[nNodi], reazionePiede / 2 + sotto, 1e-6);
}

TEST_F(PiedeIncastrato, AtAHingedToeTheLastShearIsZeroInstead) {
    dati.vincoloPiede = valore(VincoloPiede::cerniera);
    corsa = corsaNuova(dati, nSeg);
    ASSERT_FALSE(calcolaSuolo(dati, 1, nNodi, corsa->passoNodi, corsa->suolo));
    itera(*corsa);
    EXPECT_NEAR(corsa->taglioNodo[nNodi], 0, 1e-6);
    EXPECT_NEAR(corsa->yNodo[nNodi], 0, 1e-9);
}

}  // namespace
}  // namespace korven::analysis
