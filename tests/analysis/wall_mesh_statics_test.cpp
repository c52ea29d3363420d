// The equations of the wall against walls whose statics are known in closed form.

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/solver/linear_system.hpp"
#include "analysis/wall_mesh.hpp"

namespace korven::analysis {
namespace {

constexpr double EJ = 5000;

// Fills the wall before a solve as one iteration does: springs, loads, restraints, system.
class Muro : public testing::Test {
 protected:
    void taglia(double lunghezza, int segmenti) {
        n = segmenti + 1;
        h = lunghezza / segmenti;
        for (int i = 1; i <= capacitaNodi; ++i) E[i] = EJ, p[i] = k[i] = 0;
    }
    void carico(double q) {
        for (int i = 1; i <= n; ++i) p[i] = q;
    }
    void molle(double modulo) {
        for (int i = 1; i <= n; ++i) k[i] = -modulo;
    }
    // One node more, below the toe, for the solve.
    void incastra() {
        k[n] = k[n + 1] = kVincolo;
        ++n;
    }
    void risolvi() {
        A.azzera(2 * n);
        VettoreSistema x;
        assembla({n, h, &E, &p, &k, H, M}, A, b);
        ASSERT_EQ(RisolviSistema(2 * n, A, b, x, 0), EsitoSistema::risolto);
        for (int i = 1; i <= n; ++i) {
            T[i] = x[i];
            y[i] = x[n + i];
        }
    }
    double z(int i) const { return (i - 1) * h; }
    double momento(int i) const { return -EJ / (h * h) * (y[i - 1] + y[i + 1] - 2 * y[i]); }
    // Force of the net pressure on a node of the system.
    double forza(int i) const { return (p[i] + k[i] * y[i]) * (i == 1 || i == n ? h / 2 : h); }

    int n = 0;
    double h = 0, H = 0, M = 0;
    VettoreNodi E, p, k, b, T, y;
    MatriceSistema A;
};

TEST_F(Muro, MovesAsAWholeOnEvenSpringsUnderAnEvenLoad) {
    taglia(10, 40);
    carico(3);
    molle(600);
    risolvi();
    for (int i = 1; i <= n; ++i) {
        EXPECT_NEAR(y[i], 3.0 / 600, 1e-14) << i;
        EXPECT_NEAR(T[i], 0, 1e-9) << i;
    }
}

TEST_F(Muro, TurnsAsAWholeOnEvenSpringsUnderALoadThatGrowsEvenly) {
    taglia(10, 40);
    molle(600);
    for (int i = 1; i <= n; ++i) p[i] = -1 + 0.4 * z(i);
    risolvi();
    for (int i = 1; i <= n; ++i) EXPECT_NEAR(y[i], (-1 + 0.4 * z(i)) / 600, 1e-13) << i;
}

// Without springs and restraints the two equations of the whole wall are empty.
TEST_F(Muro, IsSingularWithNothingToHoldIt) {
    taglia(10, 20);
    carico(3);
    VettoreSistema x;
    assembla({n, h, &E, &p, &k, 0, 0}, A, b);
    EXPECT_EQ(RisolviSistema(2 * n, A, b, x, 0), EsitoSistema::singolare);
}

// Hinges at both ends, load q: M = q z (L - z) / 2 without any error, since the loads of the nodes
// have the moments of the even load at each node. The displacement is the beam's, 5 q L^4 / 384 EJ
// at half height, plus what the second difference of z^4 adds, (h^2 q / 24 EJ) z (L - z), plus what
// the hinges give way: the pressure at an end node is q L / h for its half segment.
TEST_F(Muro, BendsAsASimplySupportedBeamBetweenTwoHinges) {
    const double L = 8, q = 2;
    double scartoPrima = 0;
    for (int segmenti : {10, 20, 40, 80}) {
        taglia(L, segmenti);
        carico(q);
        k[1] = k[n] = kVincolo;
        risolvi();
        const double cedimento = q * L / h / 1e11;
        EXPECT_NEAR(y[1], cedimento, 1e-6 * cedimento);
        EXPECT_NEAR(y[n], cedimento, 1e-6 * cedimento);
        for (int i = 2; i < n; ++i) {
            const double s = z(i);
            const double trave =
                q * (L * L * L * s - 2 * L * s * s * s + s * s * s * s) / (24 * EJ);
            const double reticolo = h * h * q / (24 * EJ) * s * (L - s);
            EXPECT_NEAR(momento(i), q * s * (L - s) / 2, 1e-6) << segmenti << ' ' << i;
            EXPECT_NEAR(y[i], cedimento + trave + reticolo, 1e-10) << segmenti << ' ' << i;
        }
        const int meta = segmenti / 2 + 1;
        EXPECT_NEAR(momento(meta), q * L * L / 8, 1e-6);
        const double scarto = y[meta] - 5 * q * std::pow(L, 4) / (384 * EJ);
        if (scartoPrima != 0) {
            EXPECT_NEAR(scartoPrima / scarto, 4, 0.01) << segmenti;
        }
        scartoPrima = scarto;
    }
}

// A fixed toe holds the toe and the node below it, so that the slope is 0 half a step below the
// toe: the displacement approaches the cantilever's, q L^4 / 8 EJ, with the first power of the
// step. Up to that it is the beam's, less (h^2 q / 24 EJ) z^2 for the second difference of z^4,
// plus the straight line through what the two stiff springs give way. These hold the couple
// q L^2 / 2 over one step: the lower one, of half a segment, carries q L^2 / h^2, the upper one
// q (L + h/2) / h + q L^2 / 2 h^2 the other way.
TEST_F(Muro, BendsAsACantileverAboveAFixedToe) {
    const double L = 6, q = 2;
    double scartoPrima = 0;
    for (int segmenti : {10, 20, 40}) {
        taglia(L, segmenti);
        carico(q);
        incastra();
        risolvi();
        const double yPiede = (q * (L + h / 2) / h + q * L * L / (2 * h * h)) / 1e11;
        const double ySotto = -q * L * L / (h * h) / 1e11;
        EXPECT_NEAR(y[n - 1], yPiede, 1e-6 * yPiede);
        EXPECT_NEAR(y[n], ySotto, -1e-6 * ySotto);
        const auto parte = [&](double s) {
            const double trave =
                q * (std::pow(s, 4) - 4 * std::pow(L, 3) * s + 3 * std::pow(L, 4)) / (24 * EJ);
            return trave - h * h * q / (24 * EJ) * s * s;
        };
        const double pendenza = (ySotto - yPiede - parte(L + h) + parte(L)) / h;
        for (int i = 1; i < n; ++i) {
            const double s = z(i);
            EXPECT_NEAR(y[i], parte(s) + yPiede - parte(L) + pendenza * (s - L), 1e-10)
                << segmenti << ' ' << i;
        }
        for (int i = 2; i < n; ++i) {
            EXPECT_NEAR(momento(i), -q * z(i) * z(i) / 2, 1e-6) << segmenti << ' ' << i;
        }
        const double scarto = y[1] - q * std::pow(L, 4) / (8 * EJ);
        EXPECT_GT(scarto, 0);
        if (scartoPrima != 0) {
            EXPECT_NEAR(scartoPrima / scarto, 2, 0.1) << segmenti;
        }
        scartoPrima = scarto;
    }
}

// The shear above a fixed toe is -q (L - h/2); below it the couple q L^2 / 2 over one step. The toe
// itself shows the mean of both, so that half of its reaction is in its shear.
TEST_F(Muro, ShowsHalfOfTheReactionInTheShearOfAFixedToe) {
    const double L = 6, q = 2;
    taglia(L, 30);
    carico(q);
    incastra();
    risolvi();
    const int piede = n - 1;
    const double sopra = -q * (L - h / 2), sotto = q * L * L / (2 * h);
    EXPECT_NEAR(T[piede], (sopra + sotto) / 2, 1e-5);
    EXPECT_NEAR(T[piede] - sopra, -forza(piede) / 2, 1e-5);
    for (int i = 2; i < piede; ++i) EXPECT_NEAR(T[i], -q * z(i), 1e-5) << i;
}

// A long wall on even springs k, Hetenyi's semi-infinite beam: with lambda = (k / 4 EJ)^(1/4) the
// top moves by 2 H lambda / k under a force and by 2 M lambda^2 / k under a moment, both towards
// the excavation. lambda L = 6.9 here: the far end adds 1e-6 of that.
TEST_F(Muro, FollowsTheBeamOnElasticSupportUnderLoadsAtItsTop) {
    const double L = 20, modulo = 284, lambda = std::pow(modulo / (4 * EJ), 0.25);
    const struct {
        double H, M, y;
    } casi[] = {{12, 0, 2 * 12 * lambda / modulo}, {0, 7, 2 * 7 * lambda * lambda / modulo}};
    for (const auto& caso : casi) {
        H = caso.H;
        M = caso.M;
        double scartoPrima = 0;
        for (int segmenti : {25, 50, 100}) {
            taglia(L, segmenti);
            molle(modulo);
            risolvi();
            const double scarto = y[1] - caso.y;
            EXPECT_LT(std::fabs(scarto), 0.05 * caso.y) << segmenti;
            if (scartoPrima != 0) {
                EXPECT_NEAR(scartoPrima / scarto, 4, 0.3) << segmenti;
            }
            scartoPrima = scarto;
        }
    }
}

// Row 1 carries the force at the top and the first moment row carries it once more: at node 1 the
// shear shows twice the force, below it the shear is the beam's.
TEST_F(Muro, ShowsMinusTwiceTheForceInTheShearOfTheTop) {
    taglia(10, 50);
    molle(400);
    H = 6;
    risolvi();
    EXPECT_NEAR(T[1], -12, 1e-8);
    double V = -H - forza(1);
    for (int i = 2; i < n; ++i) {
        EXPECT_NEAR(T[i], V - forza(i) / 2, 1e-8) << i;  // the mean of above and below the node
        V -= forza(i);
    }
    EXPECT_NEAR(T[n], 0, 1e-8);
}

TEST_F(Muro, IsInEquilibriumUnderForceMomentAndLoads) {
    taglia(10, 50);
    molle(300);
    for (int i = 1; i <= n; ++i) p[i] = 2 + std::sin(i);
    H = 4;
    M = -9;
    risolvi();
    double forze = H, momenti = M;
    for (int i = 1; i <= n; ++i) {
        forze += forza(i);
        momenti -= forza(i) * z(i);
    }
    EXPECT_NEAR(forze, 0, 1e-9);
    EXPECT_NEAR(momenti, 0, 1e-8);
}

// Soil that is upside down with its load is a wall that is upside down, but for the end loads.
TEST_F(Muro, AnswersAMirroredLoadWithMirroredDisplacements) {
    taglia(10, 50);
    molle(300);
    for (int i = 1; i <= n; ++i) p[i] = 2 + std::sin(i);
    risolvi();
    const VettoreNodi dritto = y;
    for (int i = 1; i <= n; ++i) p[i] = -(2 + std::sin(n + 1 - i));
    risolvi();
    for (int i = 1; i <= n; ++i) EXPECT_NEAR(y[i], -dritto[n + 1 - i], 1e-11) << i;
}

}  // namespace
}  // namespace korven::analysis
