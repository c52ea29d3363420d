// Whole runs at the limits that statics knows: soil so soft that it only loads the wall, soil so
// stiff that it clamps it, and a long wall on springs.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "project/codes.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

using project::VincoloPiede;
using project::VincoloTesta;
using test::aggiungiStrato;
using test::aggiungiTirante;
using test::fasiDi;
using test::muroElastico;
using test::muroNudo;

constexpr double L = 10;

// Dug free to the toe and almost without springs: the wall carries the pressure at rest
// K0 gamma z = (1 - sin 30) 2 z = z, a triangle of 10 t/m2 at the toe.
project::DatiProgetto muroSottoTriangolo() {
    return test::muro().strato({.gammaN = 2, .gammaSat = 2, .ks = 1e-6}).fase({.scavo = 11}).dati();
}

TEST(SuoloMolle, LoadsAWallBetweenTwoHingesWithItsPressureAtRest) {
    auto d = muroSottoTriangolo();
    d.vincoloTesta = valore(VincoloTesta::cerniera);
    d.vincoloPiede = valore(VincoloPiede::cerniera);
    const auto fasi = fasiDi(d, 50);
    ASSERT_EQ(fasi.size(), 1u);
    // Simply supported beam under a triangle: M(z) = q L z / 6 - q z^3 / (6 L), at most
    // q L^2 / (9 sqrt 3). Lumping a linear load at the nodes leaves the moments exact.
    double massimo = 0;
    for (int i = 1; i <= 51; ++i) {
        const double z = (i - 1) * L / 50;
        EXPECT_NEAR(fasi[0].momentoNodo[i], L * L * z / 6 - z * z * z / 6, 1e-4) << z;
        massimo = std::max(massimo, fasi[0].momentoNodo[i]);
    }
    EXPECT_NEAR(massimo, 10 * L * L / (9 * std::sqrt(3.0)), 0.02);
    // Shears q L / 6 - q z^2 / (2 L), between the reactions q L / 6 and -q L / 3; the lumped loads
    // lack h^2 / 6 of it.
    const double h = L / 50;
    for (int j = 2; j <= 50; ++j) {
        const double z = (j - 1) * h;
        EXPECT_NEAR(fasi[0].taglioNodo[j], L * L / 6 - z * z / 2 - h * h / 6, 1e-4) << z;
    }
}

TEST(SuoloMolle, LeavesAnAnchoredWallOnAHingedToeToStatics) {
    for (const double rigidezza : {200.0, 5000.0})
        for (const double d0 : {1.0, 2.0, 4.0}) {
            auto d = muroSottoTriangolo();
            d.vincoloPiede = valore(VincoloPiede::cerniera);
            aggiungiTirante(d, d0, rigidezza, 3, 0);
            d.tirantiFase[1] = 1;
            const int nSeg = 50;
            const auto fasi = fasiDi(d, nSeg);
            ASSERT_EQ(fasi.size(), 1u);
            const double h = L / nSeg;
            // Loads lumped at the nodes: their moment about depth z is (z^3 - z h^2) / 6, and
            // about the toe the anchor balances it whatever its stiffness.
            const auto carico = [h](double z) { return (z * z * z - z * h * h) / 6; };
            const double A = carico(L) / (L - d0);
            EXPECT_NEAR(A, L * L * L / 6 / (L - d0), 0.02);  // the continuous load
            for (int i = 1; i <= nSeg + 1; ++i) {
                const double z = (i - 1) * h;
                EXPECT_NEAR(fasi[0].momentoNodo[i], A * std::max(0.0, z - d0) - carico(z), 2e-4)
                    << z;
            }
            const int m = 1 + static_cast<int>(d0 / h + 0.5);
            EXPECT_NEAR(3 + rigidezza * fasi[0].yNodo[m], A, 1e-3);
        }
}

TEST(SuoloMolle, AddsTheWaterToThePressureAtRest) {
    auto d = muroSottoTriangolo();
    d.vincoloTesta = valore(VincoloTesta::cerniera);
    d.vincoloPiede = valore(VincoloPiede::cerniera);
    d.faldaMonte = 0;  // effective weight 1, so K0 1 z and the water 1 z on the one side
    const auto fasi = fasiDi(d, 50);
    ASSERT_EQ(fasi.size(), 1u);
    for (int i = 1; i <= 51; ++i) {
        const double z = (i - 1) * L / 50;
        EXPECT_NEAR(fasi[0].momentoNodo[i], 1.5 * (L * L * z - z * z * z) / 6, 1e-4) << z;
    }
}

TEST(SuoloMolle, LeavesACantileverToItsFixedToe) {
    auto d = muroSottoTriangolo();
    d.vincoloPiede = valore(VincoloPiede::incastro);
    d.forzaTesta = 2;
    const auto fasi = fasiDi(d, 50);
    ASSERT_EQ(fasi.size(), 1u);
    const double h = L / 50;
    for (int i = 1; i <= 50; ++i) {  // above the toe, whose moment is shown one iteration late
        const double z = (i - 1) * h;
        EXPECT_NEAR(fasi[0].momentoNodo[i], -2 * z - (z * z * z - z * h * h) / 6, 1e-4) << z;
    }
    const double piede = 2 * L + (L * L * L - L * h * h) / 6;
    EXPECT_NEAR(fasi[0].momentoNodo[51], -piede, 0.02 * piede);
}

// The fixed toe holds the toe and the node below it. Summing the curvature M h^2 / EJ up from there
// gives y(1) = H L^3 / (3 EJ) (1 + 1/N) (1 + 1/(2N)) for N segments. The two springs of 1e11 t/m3
// give way a little: the lower one takes -H L / h over h / 2, the toe the rest over h.
TEST(MensolaIncastrata, GivesTheCantileverItsDisplacementToFirstOrderInTheStep) {
    constexpr double H = 6;
    double erroreGrosso = 0;
    for (const int N : {12, 24, 48}) {
        auto d = muroNudo();
        d.vincoloPiede = valore(VincoloPiede::incastro);
        d.forzaTesta = H;
        const auto fasi = fasiDi(d, N);
        ASSERT_EQ(fasi.size(), 1u);
        const double h = L / N;
        const double piede = (H + H * L / h) / (1e11 * h);
        const double sotto = -(H * L / h) / (1e11 * h / 2);
        const double continuo = H * L * L * L / (3 * d.rigidezzaEJ);
        EXPECT_NEAR(fasi[0].yNodo[1],
                    continuo * (1 + 1.0 / N) * (1 + 0.5 / N) + piede + (piede - sotto) * N, 1e-7)
            << N;
        const double errore = fasi[0].yNodo[1] / continuo - 1;
        if (N > 12) {
            EXPECT_NEAR(erroreGrosso / errore, 2, 0.05) << N;
        }
        erroreGrosso = errore;
    }
}

// Soil of 1e12 t/m3 from 4 m downwards, nothing above: a cantilever of 4 m, with the discrete sum
// as above. y(1) = H d^3 / (3 EJ) but for the step.
TEST(SuoloRigido, ClampsAWallWhereItBegins) {
    for (const int nSeg : {20, 40, 80}) {
        auto d = muroElastico(0);
        d.profStrato[1] = 4;
        aggiungiStrato(d, {.gammaN = 0, .gammaSat = 0, .coesione = 1e6, .ks = 1e12});
        d.forzaTesta = 15;
        const auto fasi = fasiDi(d, nSeg);
        ASSERT_EQ(fasi.size(), 1u);
        const int N = nSeg * 4 / 10;
        const double continuo = 15 * 4.0 * 4 * 4 / (3 * d.rigidezzaEJ);
        EXPECT_NEAR(fasi[0].yNodo[1], continuo * (1 + 1.0 / N) * (1 + 0.5 / N), 2e-7) << nSeg;
        EXPECT_NEAR(fasi[0].momentoNodo[N + 1], -15 * 4, 0.05) << nSeg;
        for (int i = N + 2; i <= nSeg + 1; ++i) EXPECT_NEAR(fasi[0].yNodo[i], 0, 1e-7);
    }
}

TEST(SuoloRigido, HoldsALoadedWallStill) {
    double prima = 1;
    for (const double ks : {1e3, 1e5, 1e7, 1e9}) {
        auto d = muroElastico(ks);
        d.forzaTesta = 5;
        d.momentoTesta = -3;
        d.faldaMonte = 2;
        const auto fasi = fasiDi(d, 40);
        ASSERT_EQ(fasi.size(), 1u);
        double yMax = 0;
        for (int i = 1; i <= 41; ++i) yMax = std::max(yMax, std::fabs(fasi[0].yNodo[i]));
        EXPECT_LT(yMax, prima / 10) << ks;
        prima = yMax;
    }
    EXPECT_LE(prima, 1e-7);
}

TEST(SuoloRigido, MovesByTheLoadOverTheModulusWhereEveryNodeCarriesItsOwnWater) {
    auto d = muroElastico(1e6);  // 2e6 from both sides
    d.faldaMonte = 2;
    d.faldaFase[1] = 4;  // 2 t/m2 from 4 m down
    const auto fasi = fasiDi(d, 40);
    ASSERT_EQ(fasi.size(), 1u);
    EXPECT_NEAR(fasi[0].yNodo[29], 2 / 2e6, 1e-7);  // at 7 m, far from the ends of the load
}

// A long wall on springs, k = 2 ks, pushed at its top by H:
//
//     y(z) = 2 H beta / k exp(-beta z) cos(beta z)
//     M(z) = -H / beta exp(-beta z) sin(beta z),  beta = (k / 4 EJ)^(1/4)
//
// largest at beta z = pi / 4, where it is 0.3224 H / beta. Source: Hetenyi (1946), Beams on Elastic
// Foundation (not looked up). The wall is 10 / beta long: its far end changes less than 1e-4 of it.
class TraveLunga : public ::testing::Test {
 protected:
    static constexpr double H = 1000, k = 2000, EJ = 500;
    const double beta = std::pow(k / (4 * EJ), 0.25);  // 1 / m
    [[nodiscard]] RisultatiFase fase(int nSeg) const {
        auto d = muroElastico(k / 2);
        d.rigidezzaEJ = EJ;
        d.forzaTesta = H;
        const auto fasi = fasiDi(d, nSeg);
        EXPECT_EQ(fasi.size(), 1u);
        return fasi.at(0);
    }
};

TEST_F(TraveLunga, FollowsTheClosedFormWithinTheStep) {
    ASSERT_DOUBLE_EQ(beta, 1);
    const int nSeg = 100;
    const auto r = fase(nSeg);
    EXPECT_NEAR(r.yNodo[1], 2 * H * beta / k, 0.004);
    double minimo = 0;
    for (int i = 1; i <= nSeg + 1; ++i) {
        const double z = (i - 1) * L / nSeg;
        EXPECT_NEAR(r.yNodo[i], 2 * H * beta / k * std::exp(-beta * z) * std::cos(beta * z), 0.004);
        EXPECT_NEAR(r.momentoNodo[i], -H / beta * std::exp(-beta * z) * std::sin(beta * z), 2);
        minimo = std::min(minimo, r.momentoNodo[i]);
    }
    EXPECT_NEAR(minimo, -0.3224 * H / beta, 1.5);
}

TEST_F(TraveLunga, HasAnErrorThatFallsWithTheSquareOfTheStep) {
    const double z = std::numbers::pi / 4;  // of the largest moment; the nodes compared lie at 1 m
    ASSERT_NEAR(std::exp(-z) * std::sin(z), 0.3224, 5e-5);
    double primaY = 0, primaM = 0;
    for (const int nSeg : {20, 40, 80}) {
        const auto r = fase(nSeg);
        const double erroreY = r.yNodo[1] - 2 * H * beta / k;
        const double erroreM =
            r.momentoNodo[1 + nSeg / 10] + H / beta * std::exp(-1.0) * std::sin(1.0);
        if (nSeg > 20) {
            EXPECT_NEAR(primaY / erroreY, 4, 0.5) << nSeg;
            EXPECT_NEAR(primaM / erroreM, 4, 0.5) << nSeg;
        }
        primaY = erroreY;
        primaM = erroreM;
    }
}

}  // namespace
}  // namespace korven::analysis
