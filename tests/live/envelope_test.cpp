#include "live/envelope.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "analysis/wall_mesh.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"

namespace korven::live {
namespace {

TEST(InviluppoVivo, HoldsTheExtremesOfAllStages) {
    const PareteViva p = calcola(test::progettoSemplice(), 40);
    const Inviluppo e = inviluppo(p);
    ASSERT_EQ(e.momento.minimo.size(), 41U);
    double massimo = 0;
    for (std::size_t i = 0; i < 41; ++i) {
        const double a = p.fase(1)->momento[i];
        const double b = p.fase(2)->momento[i];
        EXPECT_EQ(e.momento.minimo[i], a < b ? a : b);
        EXPECT_EQ(e.momento.massimo[i], a < b ? b : a);
        massimo = std::max(massimo, e.momento.massimo[i]);
    }
    EXPECT_EQ(massimo, p.estremi.momentoMassimo.valore);
    EXPECT_EQ(e.tiri, p.fase(2)->tiri);  // the first stage has no anchor
}

// What pushes the wall is what its shear is made of: without a restraint and with slack anchors the
// pressures of all nodes, times their length, add up to nothing.
TEST(InviluppoVivo, NetPressuresBalanceAWallWithoutAnchors) {
    auto dati = test::progettoSemplice();
    dati.nFasi = 1;
    const PareteViva p = calcola(dati, 40);
    ASSERT_TRUE(p.sta());
    double somma = 0;
    double grandezza = 0;
    for (std::size_t i = 0; i <= 40; ++i) {
        const double area = i == 0 || i == 40 ? p.h / 2 : p.h;
        somma += area * pressioneNetta(p.fasi[0], i);
        grandezza += area * std::fabs(p.fasi[0].monte[i]);
    }
    EXPECT_NEAR(somma / grandezza, 0, 1e-12);
}

// Below an anchor the wall carries its force too; an envelope holds what acts on either side.
TEST(InviluppoVivo, StepsByTheForceOfEachAnchorAndCountsBothSides) {
    int gradini = 0;
    for (const char* cartella : {KORVEN_EXAMPLES, KORVEN_WALLS})
        for (const std::string& file : test::muriIn(cartella)) {
            SCOPED_TRACE(file);
            const PareteViva p = calcola(test::leggiMuro(file));
            const Inviluppo e = inviluppo(p);
            for (int k = 1; k <= p.fasiInEquilibrio(); ++k) {
                const auto& f = *p.fase(k);
                std::vector<double> salti(f.y.size());
                for (std::size_t t = 0; t < f.tiri.size(); ++t) {
                    const int nodo =
                        analysis::nodoTirante(p.dati.profTirante[static_cast<int>(t) + 1], p.h);
                    // The ends have one side each.
                    if (nodo < 2 || nodo > p.nSeg) continue;
                    salti[static_cast<std::size_t>(nodo) - 1] += f.tiri[t];
                    ++gradini;
                }
                for (std::size_t i = 0; i < salti.size(); ++i) {
                    const double sopra = f.taglioSopra[i], sotto = f.taglioSotto[i];
                    EXPECT_NEAR(sotto - sopra, salti[i], 1e-9 * std::max(1.0, salti[i])) << i;
                    EXPECT_LE(e.taglio.minimo[i], std::min(sopra, sotto));
                    EXPECT_GE(e.taglio.massimo[i], std::max(sopra, sotto));
                    EXPECT_LE(std::fabs(sopra), std::fabs(p.estremi.taglio.valore));
                    EXPECT_LE(std::fabs(sotto), std::fabs(p.estremi.taglio.valore));
                }
            }
            for (std::size_t i = 0; i < e.taglio.minimo.size(); ++i) {
                double minimo = 1e30, massimo = -1e30;
                for (int k = 1; k <= p.fasiInEquilibrio(); ++k)
                    for (const double T : {p.fase(k)->taglioSopra[i], p.fase(k)->taglioSotto[i]}) {
                        minimo = std::min(minimo, T);
                        massimo = std::max(massimo, T);
                    }
                EXPECT_EQ(e.taglio.minimo[i], minimo);
                EXPECT_EQ(e.taglio.massimo[i], massimo);
            }
        }
    EXPECT_GT(gradini, 20);
}

TEST(InviluppoVivo, IsEmptyWithoutAStageThatStands) {
    EXPECT_TRUE(inviluppo(PareteViva{}).y.minimo.empty());
}

}  // namespace
}  // namespace korven::live
