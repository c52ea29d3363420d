#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "project/codes.hpp"
#include "support/chapter_bench.hpp"
#include "support/sample_projects.hpp"

namespace korven::report {
namespace {

using project::DatiProgetto;
using test::contesto;

// Columns of a side.
enum Colonna { z, sigmaV, u, sigma, pa, p0, pp, ks, y, p, stato };

double letto(const std::vector<tables::Cella>& riga, Colonna quale) {
    return std::stod(riga.at(quale).testo);
}

// As a reader does it, with the digits on the page.
void rifai(const std::vector<tables::Cella>& riga, const std::string& di) {
    const double attiva = letto(riga, pa), passiva = letto(riga, pp);
    const double atteso = std::clamp(letto(riga, p0) - letto(riga, ks) * letto(riga, y) / 1000,
                                     std::min(attiva, passiva), std::max(attiva, passiva));
    EXPECT_NEAR(letto(riga, p), atteso, 0.02 + 1e-4 * std::fabs(letto(riga, y))) << di;
    if (riga.at(sigmaV).numero) {
        EXPECT_NEAR(letto(riga, sigmaV) - letto(riga, u), letto(riga, sigma), 0.011) << di;
    }
}

int rifai(const DatiProgetto& dati, const std::string& di) {
    int righe = 0;
    const auto b = test::blocchi(capitoloNodiTerreno, contesto(dati));
    for (const auto& t : test::tutti<document::Tavola>(b))
        for (const auto& riga : t.prospetto.righe) {
            rifai(riga, di + ", " + t.prospetto.titolo + " " + riga[z].testo);
            ++righe;
        }
    return righe;
}

TEST(NodiTerreno, GiveEachPressureAgainFromWhatIsPrinted) {
    DatiProgetto dati = test::progettoSemplice();
    // 41 nodes a stage on the retained side; 34 below 2 m and 24 below 5 m on the other one.
    EXPECT_EQ(rifai(dati, "Coulomb"), 2 * 41 + 34 + 24);
    dati.inclinazioneMonte = 15;
    dati.metodoKs = project::valore(project::MetodoKs::bowles);
    rifai(dati, "pendio, Bowles");
    dati.modoSpinte = project::valore(project::ModoSpinte::comeMonte);
    dati.metodoSpinte = project::valore(project::MetodoSpinte::rankine);
    rifai(dati, "come monte, Rankine");
    dati.vincoloPiede = project::valore(project::VincoloPiede::incastro);
    dati.vincoloTesta = project::valore(project::VincoloTesta::cerniera);
    rifai(dati, "vincoli");
}

TEST(NodiTerreno, AreThinnedAsTheTableOfNodes) {
    const Contesto c = contesto(test::progettoSemplice(), 10);
    const auto nodi = test::tutti<document::Tavola>(test::blocchi(capitoloFasi, c));
    const auto terreno = test::tutti<document::Tavola>(test::blocchi(capitoloNodiTerreno, c));
    ASSERT_FALSE(terreno.empty());
    for (const auto& riga : terreno.front().prospetto.righe) {
        const bool anche = std::any_of(nodi.begin(), nodi.end(), [&](const auto& t) {
            return std::any_of(
                t.prospetto.righe.begin(), t.prospetto.righe.end(),
                [&](const auto& r) { return r.size() > 10 && r[1].testo == riga[z].testo; });
        });
        EXPECT_TRUE(anche) << riga[z].testo;
    }
    EXPECT_LT(terreno.front().prospetto.righe.size(), 20U);
}

TEST(NodiTerreno, HaveTheLimitsOfAStageThatFalls) {
    DatiProgetto cade = test::progettoSemplice();
    cade.nTiranti = 0;
    cade.tirantiFase[1] = cade.tirantiFase[2] = 0;
    cade.lunghezzaParatia = cade.profFase[cade.nFasi] + 0.5;
    const auto b = test::blocchi(capitoloNodiTerreno, contesto(cade));
    EXPECT_NE(test::testo(b).find("non la pressione p"), std::string::npos);
    const auto tavole = test::tutti<document::Tavola>(b);
    ASSERT_FALSE(tavole.empty());
    EXPECT_EQ(tavole.back().prospetto.colonne.size(), 8U);  // neither y nor p nor a state
    EXPECT_FALSE(tavole.back().prospetto.righe.empty());
}

}  // namespace
}  // namespace korven::report
