#include "results/node_results.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "analysis/run_closing.hpp"
#include "analysis/staged_run.hpp"
#include "equilibrium/staged_equilibrium.hpp"
#include "project/codes.hpp"
#include "structure/bending_resistance.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"

namespace korven::results {
namespace {

using project::DatiProgetto;

std::vector<NodiFase> nodi(const DatiProgetto& dati, int nSeg) {
    class InSilenzio : public analysis::OsservatoreCorsa {
    } osservatore;
    const auto corsa = analysis::calcolaFasi(dati, nSeg, osservatore);
    EXPECT_TRUE(corsa.finita());
    return nodiFasi(risultatiInMemoria(
        dati, nSeg, corsa,
        analysis::chiusura(structure::resistenze(dati.sezione, dati.sforzoNormale), corsa)));
}

void uguali(const std::vector<double>& a, const std::vector<double>& b, double entro,
            const std::string& dove) {
    ASSERT_EQ(a.size(), b.size()) << dove;
    for (std::size_t i = 0; i < a.size(); ++i)
        EXPECT_NEAR(a[i], b[i], entro) << dove << " nodo " << i + 1;
}

// The result file has seven decimals of each number, of a modulus and of a displacement too: with
// moduli of 1e4 t/m3 pressures come back within some 1e-2 t/m2.
void accanto(const DatiProgetto& dati, int nSeg, const std::string& di) {
    const auto fasi = nodi(dati, nSeg);
    const auto certe = equilibrium::calcolaEquilibrio(dati, nSeg);
    ASSERT_EQ(fasi.size(), certe.size());
    for (std::size_t k = 0; k < fasi.size(); ++k) {
        const std::string dove = di + " fase " + std::to_string(k + 1);
        uguali(fasi[k].y, certe[k].y, 1e-7, dove);
        uguali(fasi[k].monte, certe[k].monte, 5e-3, dove);
        uguali(fasi[k].valle, certe[k].valle, 5e-3, dove);
        uguali(fasi[k].acqua, certe[k].acqua, 1e-12, dove);
        uguali(fasi[k].tiri, certe[k].tiri, 1e-3, dove);
        EXPECT_EQ(fasi[k].costante, certe[k].costante);
    }
}

TEST(NodiFasi, HaveThePressuresAndForcesOfTheEquilibriumInEveryExample) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES))
        accanto(test::leggiMuro(file), 50, file);
}

TEST(NodiFasi, TakeTheMethodOfTheRunThoughTheReportTakesCoulombs) {
    for (const auto metodo : {project::MetodoSpinte::rankine, project::MetodoSpinte::bell}) {
        auto dati = test::progettoSemplice();
        dati.metodoSpinte = valore(metodo);
        dati.inclinazioneMonte = 10;
        accanto(dati, 40, std::to_string(static_cast<int>(metodo)));
    }
}

TEST(NodiFasi, GiveNoForceToASlackAnchorUnlessItTakesCompression) {
    auto dati = test::muroElastico(300);
    dati.forzaTesta = 5;
    test::aggiungiTirante(dati, 1, 100);
    dati.tirantiFase[1] = 1;
    test::ripetiFase(dati, 1);
    // The head pushes towards the excavation: the anchor is stretched.
    EXPECT_GT(nodi(dati, 20)[0].tiri.at(0), 0);
    dati.forzaTesta = -5;
    EXPECT_EQ(nodi(dati, 20)[0].tiri.at(0), 0);
    dati.tipoTirante[1] = valore(project::TipoTirante::trazioneCompressione);
    EXPECT_LT(nodi(dati, 20)[0].tiri.at(0), 0);
    dati.profTirante[1] = 99;  // beside the wall
    EXPECT_EQ(nodi(dati, 20)[0].tiri.at(0), 0);
}

TEST(NodiFasi, HaveAShearThatIsTheSlopeOfTheMomentBetweenForces) {
    const auto dati = test::progettoSemplice();
    const NodiFase f = nodi(dati, 200).at(0);
    const double h = f.z[1];
    double massimo = 0;
    for (const double t : f.taglio) massimo = std::max(massimo, std::fabs(t));
    for (std::size_t i = 1; i + 1 < f.z.size(); ++i)
        EXPECT_NEAR(f.taglio[i], (f.momento[i + 1] - f.momento[i - 1]) / (2 * h), 0.02 * massimo);
}

}  // namespace
}  // namespace korven::results
