#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "equilibrium/staged_equilibrium.hpp"
#include "support/sample_projects.hpp"

namespace korven::equilibrium {
namespace {

using project::DatiProgetto;

// A stiff wall of 20 m in elastic soil, free at its head, where a force acts, and fixed at its toe.
constexpr double EJ = 300000, L = 20, H = 10, ks = 100;

DatiProgetto traveIncastrata() {
    auto dati = test::muroElastico(ks);
    dati.lunghezzaParatia = L;
    dati.rigidezzaEJ = EJ;
    dati.forzaTesta = H;
    dati.vincoloPiede = valore(project::VincoloPiede::incastro);
    return dati;
}

// The moment at the clamp by the functions of Krylov K1 ... K4 of x = lambda L, each the derivative
// of the next and K1' = -4 K4:
//
//     y = y0 K1 + (y0' / lambda) K2 + t K4,   t = H / (EJ lambda^3),   y(L) = y'(L) = 0
//
// (Hetényi, Beams on Elastic Foundation, 1946, chapter on finite beams, whose method this follows;
// the two constants are solved for here.)
double momentoIncastro() {
    const double lambda = std::pow(2 * ks / (4 * EJ), 0.25), x = lambda * L;
    const double K1 = std::cosh(x) * std::cos(x);
    const double K2 = (std::cosh(x) * std::sin(x) + std::sinh(x) * std::cos(x)) / 2;
    const double K3 = std::sinh(x) * std::sin(x) / 2;
    const double K4 = (std::cosh(x) * std::sin(x) - std::sinh(x) * std::cos(x)) / 4;
    const double t = H / (EJ * lambda * lambda * lambda);
    // K1 a + K2 b = -t K4;  -4 K4 a + K1 b = -t K3
    const double det = K1 * K1 + 4 * K2 * K4;
    const double a = (-t * K4 * K1 + t * K3 * K2) / det;
    const double b = (-t * K3 * K1 - 4 * t * K4 * K4) / det;
    return -EJ * lambda * lambda * (-4 * K3 * a - 4 * K4 * b + t * K2);
}

double momentoIncastro(int nSeg, RigiditaVincoli rigidita) {
    const auto fasi = calcolaEquilibrio(traveIncastrata(), nSeg, rigidita);
    return fasi.back().esito == EsitoFase::equilibrio ? fasi.back().momento.back() : NAN;
}

// The slope is held half a step below the toe, so the error falls with the step, and that of 2 c -
// b out of two meshes with its square.
TEST(VincoliRigidi, BringTheMomentAtAClampToThatOfTheBeam) {
    const double esatto = momentoIncastro();
    double b = 0, scarto = 0, scartoEstrapolato = 0;
    for (int nSeg = 50; nSeg <= 1600; nSeg *= 2) {
        const double c = momentoIncastro(nSeg, RigiditaVincoli::rigidi);
        const double e = std::fabs(c - esatto), estrapolato = std::fabs(2 * c - b - esatto);
        EXPECT_LT(e, 2.5 / nSeg * std::fabs(esatto)) << nSeg;
        if (nSeg > 100) {
            EXPECT_NEAR(scarto / e, 2, 0.15) << nSeg;
            EXPECT_NEAR(scartoEstrapolato / estrapolato, 4, 0.2) << nSeg;
        }
        b = c;
        scarto = e;
        scartoEstrapolato = estrapolato;
    }
}

// That of the run holds the rotation less and less: it loses far more than the finer mesh gains.
TEST(VincoliRigidi, AreNotTheSpringsOfTheRun) {
    const double esatto = momentoIncastro();
    const double molle = momentoIncastro(1600, RigiditaVincoli::comeLaCorsa);
    EXPECT_GT(std::fabs(molle - esatto), 0.2 * std::fabs(esatto));
}

// With few segments the two are one.
TEST(VincoliRigidi, AreAsTheSpringsOfTheRunOnACoarseMesh) {
    const double rigido = momentoIncastro(20, RigiditaVincoli::rigidi);
    EXPECT_NEAR(momentoIncastro(20, RigiditaVincoli::comeLaCorsa), rigido,
                1e-5 * std::fabs(rigido));
}

// A wall on two hinges: by finite differences the moment in the middle is exact at every mesh.
TEST(VincoliRigidi, HoldTheHingesOfAWall) {
    auto dati = test::muroNudo();
    dati.vincoloTesta = dati.vincoloPiede = project::valore(project::VincoloPiede::cerniera);
    dati.pressioneOrizz = 1;
    for (const int nSeg : {10, 100, 1000}) {
        const auto fase = calcolaEquilibrio(dati, nSeg, RigiditaVincoli::rigidi).back();
        EXPECT_NEAR(fase.momento[static_cast<std::size_t>(nSeg) / 2], 12.5, 1e-6) << nSeg;
    }
}

}  // namespace
}  // namespace korven::equilibrium
