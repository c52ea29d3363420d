#include "analysis/wall_mesh.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <memory>
#include <random>
#include <utility>

#include "analysis/plastic_iteration.hpp"
#include "support/sample_projects.hpp"

namespace korven::analysis {
namespace {

// The equations of the wall, row by row as they are written on paper. A cell that is named twice,
// or a right-hand side, would show.
struct Sistema {
    std::map<std::pair<int, int>, double> celle;
    std::map<int, double> noti;

    void cella(int riga, int colonna, double valore) {
        EXPECT_TRUE(celle.try_emplace({riga, colonna}, valore).second) << riga << ' ' << colonna;
    }
    void noto(int riga, double valore) { EXPECT_TRUE(noti.try_emplace(riga, valore).second); }
};

Sistema sullaCarta(int n, double h, const VettoreNodi& E, const VettoreNodi& p,
                   const VettoreNodi& k, double H, double M) {
    const int N = n - 1;
    Sistema s;
    for (int j = 1; j <= N; ++j) {
        s.cella(j, j, -1);
        s.cella(j, j + 1, +1);
        s.cella(j, n + j, k[j] * h / 2);
        s.cella(j, n + j + 1, k[j + 1] * h / 2);
        const double carico = -p[j] * h / 2 - p[j + 1] * h / 2;
        s.noto(j, j == 1 ? carico + H : carico);
    }

    s.cella(N + 1, 1, -h);
    s.cella(N + 1, n + 1, -E[1] / (h * h) + (k[1] * h / 2) * h);
    s.cella(N + 1, n + 2, 2 * E[1] / (h * h));
    s.cella(N + 1, n + 3, -E[1] / (h * h));
    s.noto(N + 1, -(p[1] * h / 2) * h - M + H * h);

    for (int j = 2; j <= N - 1; ++j) {
        s.cella(N + j, j, -h);
        s.cella(N + j, n + j - 1, E[j] / (h * h));
        s.cella(N + j, n + j, -3 * E[j] / (h * h) + (k[j] * h / 2) * h);
        s.cella(N + j, n + j + 1, 3 * E[j] / (h * h));
        s.cella(N + j, n + j + 2, -E[j] / (h * h));
        s.noto(N + j, -(p[j] * h / 2) * h);
    }

    s.cella(N + N, N, -h);
    s.cella(N + N, n + N - 1, E[N] / (h * h));
    s.cella(N + N, n + N, -2 * E[N] / (h * h) + (k[N] * h / 2) * h);
    s.cella(N + N, n + N + 1, E[N] / (h * h));
    s.noto(N + N, -(p[N] * h / 2) * h);

    double forze = 0, momenti = 0;
    for (int i = 1; i <= n; ++i) {
        const double w = (i == 1 || i == n) ? 1 : 2;
        s.cella(2 * N + 1, n + i, k[i] * w * h / 2);
        s.cella(2 * N + 2, n + i, (k[i] * w * h / 2) * (-(i - 1) * h));
        forze += -p[i] * w * h / 2;
        momenti += (p[i] * w * h / 2) * (i - 1) * h;
    }
    s.noto(2 * N + 1, forze - H);
    s.noto(2 * N + 2, momenti - M);
    return s;
}

class Assembla : public testing::Test {
 protected:
    void nodi(int quanti) {
        n = quanti;
        h = uno(caso) + 0.05;
        H = 10 * uno(caso) - 5;
        M = 10 * uno(caso) - 5;
        for (int i = 1; i <= n; ++i) {
            E[i] = 1000 * (1 + uno(caso));
            p[i] = 20 * uno(caso) - 10;
            k[i] = -5000 * uno(caso);
        }
    }

    void assemblaParete() { assembla({n, h, &E, &p, &k, H, M}, A, b); }

    std::mt19937 caso{261};
    std::uniform_real_distribution<double> uno{0, 1};
    int n = 0;
    double h = 0, H = 0, M = 0;
    VettoreNodi E, p, k, b;
    MatriceSistema A;
};

TEST_F(Assembla, WritesTheEquationsAsTheyAreOnPaper) {
    for (int quanti : {4, 5, 6, 11, 51, 52, 250}) {
        nodi(quanti);
        A.azzera(capacitaSistema);
        assemblaParete();
        const Sistema s = sullaCarta(n, h, E, p, k, H, M);
        for (int r = 1; r <= 2 * n; ++r) {
            for (int c = 1; c <= 2 * n; ++c) {
                const auto cella = s.celle.find({r, c});
                ASSERT_EQ(A(r, c), cella == s.celle.end() ? 0 : cella->second)
                    << "n " << n << " row " << r << " column " << c;
            }
            ASSERT_EQ(b[r], s.noti.at(r)) << "n " << n << " row " << r;
        }
    }
}

// What the solver left in a cell that no equation names is read again by the next solve, and what
// it left in one that is named must not add up.
TEST_F(Assembla, AssignsAndNeverAdds) {
    nodi(8);
    for (int r = 1; r <= 2 * n + 2; ++r) {
        for (int c = 1; c <= 2 * n + 2; ++c) A(r, c) = 7000 + r;
        b[r] = 7000;
    }
    assemblaParete();
    assemblaParete();
    const Sistema s = sullaCarta(n, h, E, p, k, H, M);
    for (int r = 1; r <= 2 * n + 2; ++r) {
        for (int c = 1; c <= 2 * n + 2; ++c) {
            const auto cella = s.celle.find({r, c});
            ASSERT_EQ(A(r, c), cella == s.celle.end() ? 7000 + r : cella->second) << r << ' ' << c;
        }
        ASSERT_EQ(b[r], r > 2 * n ? 7000 : s.noti.at(r));
    }
}

TEST_F(Assembla, GivesTheForceAtTheTopNoArmInTheMomentsOfTheWholeWall) {
    nodi(9);
    H = 0;
    assemblaParete();
    const VettoreNodi senza = b;
    H = 3;
    assemblaParete();
    for (int r = 1; r <= 2 * n; ++r) {
        const double atteso = r == 1 ? 3 : r == n ? 3 * h : r == 2 * n - 1 ? -3 : 0;
        EXPECT_NEAR(b[r] - senza[r], atteso, 1e-12) << r;
    }
}

TEST_F(Assembla, LaysTheMomentAtTheTopOnTheFirstSegmentAndOnTheWholeWall) {
    nodi(9);
    M = 0;
    assemblaParete();
    const VettoreNodi senza = b;
    M = 2;
    assemblaParete();
    for (int r = 1; r <= 2 * n; ++r)
        EXPECT_NEAR(b[r] - senza[r], r == n || r == 2 * n ? -2 : 0, 1e-12) << r;
}

TEST_F(Assembla, FillsTheMatrixToItsLastRowButNotBeyond) {
    nodi(250);
    EXPECT_NO_THROW(assemblaParete());
    n = 251;
    EXPECT_THROW(assemblaParete(), base::ErroreIndice);
}

TEST(KVincolo, IsTheStiffSpringOfARestraint) { EXPECT_EQ(kVincolo, -1e11); }

TEST(NodoTirante, IsTheNearestNode) {
    EXPECT_EQ(nodoTirante(1.0, 0.5), 3);
    EXPECT_EQ(nodoTirante(1.2, 0.5), 3);
    EXPECT_EQ(nodoTirante(1.3, 0.5), 4);
}

TEST(NodoTirante, IsTheDeeperOneHalfWay) {
    EXPECT_EQ(nodoTirante(0.25, 0.5), 2);
    EXPECT_EQ(nodoTirante(1.25, 0.5), 4);
}

TEST(NodoTirante, IsTheFirstAtTheTopAndTheLastAtTheToe) {
    EXPECT_EQ(nodoTirante(0, 0.2), 1);
    for (int nSeg : {3, 7, 50, 249}) EXPECT_EQ(nodoTirante(10, 10.0 / nSeg), nSeg + 1) << nSeg;
}

TEST(NodoTirante, LiesBeyondTheWallForADeeperAnchor) {
    EXPECT_EQ(nodoTirante(10.2, 0.2), 52);
    EXPECT_GT(nodoTirante(1e300, 0.2), capacitaNodi);
    EXPECT_LT(nodoTirante(-1e300, 0.2), 1);
    EXPECT_EQ(nodoTirante(1e300, 0.2), 1000000);
    EXPECT_EQ(nodoTirante(-1e300, 0.2), -1);
}

TEST(NodoTirante, LiesBesideTheWallForADepthThatIsNoNumber) {
    EXPECT_EQ(nodoTirante(std::nan(""), 0.2), -1);
    EXPECT_EQ(nodoTirante(0, std::nan("")), -1);
    EXPECT_EQ(nodoTirante(-1e300, 0), -1);
}

// An anchor of 500 t/m and 5 t on a wall of 12 m and 50 segments.
class TiranteSullaParete : public testing::Test {
 protected:
    TiranteSullaParete() {
        corsa->nSeg = 50;
        corsa->nNodi = 51;
        corsa->passoNodi = 12.0 / 50;
        corsa->nTirantiAttivi = 1;
    }

    void applica(double profondita) {
        corsa->pNodo = {};
        corsa->kNodo = {};
        dati.profTirante[1] = profondita;
        applicaTiranti(dati, *corsa);
    }

    project::DatiProgetto dati = test::progettoSemplice();
    std::unique_ptr<ArraysCorsa> corsa = std::make_unique<ArraysCorsa>();
};

TEST_F(TiranteSullaParete, WeighsDoubleAtTheTopAndAtTheToe) {
    applica(0);
    EXPECT_DOUBLE_EQ(corsa->pNodo[1], -5 * 2 / 0.24);
    EXPECT_DOUBLE_EQ(corsa->kNodo[1], -500 * 2 / 0.24);
    applica(12);
    EXPECT_DOUBLE_EQ(corsa->pNodo[51], -5 * 2 / 0.24);
    EXPECT_DOUBLE_EQ(corsa->kNodo[51], -500 * 2 / 0.24);
    applica(1.2);
    EXPECT_DOUBLE_EQ(corsa->pNodo[6], -5 / 0.24);
    EXPECT_DOUBLE_EQ(corsa->kNodo[6], -500 / 0.24);
}

TEST_F(TiranteSullaParete, HasNoEffectBelowTheToe) {
    for (double profondita : {12.24, 20.0, 1e6}) {
        applica(profondita);
        for (int i = 1; i <= corsa->nNodi; ++i) {
            ASSERT_EQ(corsa->pNodo[i], 0) << profondita;
            ASSERT_EQ(corsa->kNodo[i], 0) << profondita;
        }
    }
}

}  // namespace
}  // namespace korven::analysis
