// Equilibrium of whole runs, stage by stage, from what is in the result file.

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "analysis/stage_equilibrium.hpp"
#include "support/random_walls.hpp"
#include "support/run_harness.hpp"

namespace korven::analysis {
namespace {

using test::arrotondamento;
using test::EquilibrioFase;
using test::ForzeFase;
using test::Misura;

// What the solver's own rounding may leave in a balance [t], the stiff springs of restraints
// included: a spring of 1e11 t/m3 moves by some 1e-10 m, known to sixteen digits.
constexpr double rumoreSolutore = 1e-8;

struct FaseCalcolata {
    const project::DatiProgetto& d;
    const RisultatiFase& r;
    const ForzeFase& f;
    int n;     // nodes
    double h;  // their distance
};

// Every stage of many random walls, those that fail or do not converge left out.
void perOgniFase(unsigned seme, int muri, const std::function<void(const FaseCalcolata&)>& prova) {
    test::MuriCasuali caso(seme);
    int riusciti = 0;
    for (int muro = 0; muro < muri; ++muro) {
        const auto d = caso.prossimo();
        const int nSeg = caso.intero(12, 50);
        SCOPED_TRACE("wall " + std::to_string(muro));
        const auto fasi = test::fasiDi(d, nSeg);
        if (fasi.empty()) continue;
        ++riusciti;
        EquilibrioFase equilibrio(d, nSeg);
        for (int k = 1; k <= d.nFasi; ++k) {
            SCOPED_TRACE("stage " + std::to_string(k));
            const auto& r = fasi[static_cast<std::size_t>(k - 1)];
            const auto f = equilibrio.forze(k, r);
            prova({d, r, f, equilibrio.nodi(), equilibrio.passo()});
        }
        if (::testing::Test::HasFailure()) return;  // one wall tells enough
    }
    EXPECT_GT(riusciti, muri * 4 / 5);
}

TEST(CorseIntere, BalanceTheHorizontalForcesOfEveryStage) {
    perOgniFase(101, 90, [](const FaseCalcolata& c) {
        Misura somma = c.f.sottoPiede;
        for (const auto& forza : c.f.nodo) somma += forza;
        const double tolleranza = somma.errore + rumoreSolutore;
        EXPECT_NEAR(somma.valore, 0, tolleranza);
        EXPECT_LT(tolleranza, 0.02 * c.f.scala);  // so that the check can fail
    });
}

TEST(CorseIntere, BalanceTheMomentsAboutTheTopOfEveryStage) {
    perOgniFase(102, 90, [](const FaseCalcolata& c) {
        Misura somma{-c.d.momentoTesta, 0};
        for (int i = 1; i <= c.n; ++i)
            somma += (i - 1) * c.h * c.f.nodo[static_cast<std::size_t>(i - 1)];
        somma += c.n * c.h * c.f.sottoPiede;
        const double tolleranza = somma.errore + rumoreSolutore * c.d.lunghezzaParatia;
        EXPECT_NEAR(somma.valore, 0, tolleranza);
        EXPECT_LT(tolleranza, 0.02 * c.f.scala * c.d.lunghezzaParatia);
    });
}

// T(j+1) - T(j) = -(q(j) + q(j+1)) h / 2, the first segment with the force at the top once more.
TEST(CorseIntere, HaveShearsThatFollowThePressures) {
    perOgniFase(103, 60, [](const FaseCalcolata& c) {
        EXPECT_NEAR(c.r.taglioNodo[1], -2 * c.d.forzaTesta, 1e-6 + rumoreSolutore);
        const auto q = [&](int i) {  // pressure times h / 2
            Misura m = c.f.nodo[static_cast<std::size_t>(i - 1)];
            if (i == 1) m.valore -= c.d.forzaTesta;
            return i == 1 || i == c.n ? m : 0.5 * m;
        };
        for (int j = 1; j < c.n; ++j) {
            if (c.f.vincolo[static_cast<std::size_t>(j - 1)] ||
                c.f.vincolo[static_cast<std::size_t>(j)])
                continue;  // there the reaction was taken from the shears themselves
            Misura salto{j == 1 ? c.d.forzaTesta : 0, 2 * arrotondamento};
            salto += -1 * q(j);
            salto += -1 * q(j + 1);
            EXPECT_NEAR(c.r.taglioNodo[j + 1] - c.r.taglioNodo[j], salto.valore,
                        salto.errore + rumoreSolutore)
                << j;
        }
        if (c.d.vincoloPiede != project::VincoloPiede::incastro) {
            EXPECT_NEAR(c.r.taglioNodo[c.n], 0, 1e-6 + rumoreSolutore);
        }
    });
}

// M(j+1) - M(j) = h (T(j) - q(j) h / 2). The toe of a fixed wall is left out: its moment is one
// iteration late.
TEST(CorseIntere, HaveMomentsThatFollowTheShears) {
    perOgniFase(104, 60, [](const FaseCalcolata& c) {
        EXPECT_NEAR(c.r.momentoNodo[1], -c.d.momentoTesta, arrotondamento);
        const int ultimo = c.d.vincoloPiede == project::VincoloPiede::incastro ? c.n - 2 : c.n - 1;
        for (int j = 1; j <= ultimo; ++j) {
            const Misura forza = c.f.nodo[static_cast<std::size_t>(j - 1)];
            // Node 1 is half a node whose shear column holds H twice: what counts is its force.
            Misura salto = j == 1 ? -c.h * forza : (-c.h / 2) * forza;
            if (j > 1) salto += c.h * Misura{c.r.taglioNodo[j], arrotondamento};
            EXPECT_NEAR(c.r.momentoNodo[j + 1] - c.r.momentoNodo[j], salto.valore,
                        salto.errore + 2 * arrotondamento + rumoreSolutore * c.h)
                << j;
        }
    });
}

// M = -EJ y'' by central differences of the stored displacements.
TEST(CorseIntere, HaveMomentsThatFollowTheCurvature) {
    perOgniFase(105, 60, [](const FaseCalcolata& c) {
        const double EJ = c.d.rigidezzaEJ, h2 = c.h * c.h;
        for (int i = 2; i < c.n; ++i) {
            const double curvatura = (c.r.yNodo[i - 1] - 2 * c.r.yNodo[i] + c.r.yNodo[i + 1]) / h2;
            EXPECT_NEAR(c.r.momentoNodo[i], -EJ * curvatura,
                        4 * arrotondamento * EJ / h2 + 2 * arrotondamento)
                << i;
        }
        if (c.d.vincoloPiede != project::VincoloPiede::incastro) {
            EXPECT_EQ(c.r.momentoNodo[c.n], 0);
        }
    });
}

}  // namespace
}  // namespace korven::analysis
