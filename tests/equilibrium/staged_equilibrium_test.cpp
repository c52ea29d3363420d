#include "equilibrium/staged_equilibrium.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "analysis/staged_run.hpp"
#include "support/nodal_balance.hpp"
#include "support/random_walls.hpp"
#include "support/refused_walls.hpp"
#include "support/sample_projects.hpp"

namespace korven::equilibrium {
namespace {

using project::DatiProgetto;

using test::massimoAssoluto;

#ifdef __SANITIZE_ADDRESS__
constexpr int quantiMuri = 150;
#else
constexpr int quantiMuri = 3000;
#endif

// The largest difference of the displacements of a stage in units of the run's own tolerance.
double distanza(const analysis::FaseCalcolata& corsa, const FaseEquilibrio& fase) {
    double peggiore = 0;
    for (std::size_t i = 0; i < fase.y.size(); ++i) {
        const double y = corsa.risultati.yNodo[static_cast<long>(i) + 1];
        peggiore = std::max(peggiore, std::fabs(fase.y[i] - y) / (1e-8 + 1e-9 * std::fabs(y)));
    }
    return peggiore;
}

// Two roads to one equilibrium: wherever the specified run comes to rest and the data are convex,
// the certain method finds the same displacements within the run's own tolerance. A fixed toe is
// the exception: there the run lets cells of one solve into the next, which costs it up to 1E-7 of
// the largest displacement (the certain method's residual is at rounding all the same).
TEST(CalcolaEquilibrio, FindsWhereTheSpecifiedRunComesToRest) {
    test::MuriCasuali muri(7);
    const auto arrays = std::make_unique<analysis::ArraysCorsa>();
    int confrontati = 0, nonConvessi = 0, rifiutatiChestanno = 0;
    for (int m = 0; m < quantiMuri; ++m) {
        const DatiProgetto dati = muri.prossimo();
        test::LimiteIterazioni limite(200);
        const auto corsa = analysis::calcolaFasi(dati, 50, limite, *arrays);
        const auto fasi = calcolaEquilibrio(dati, 50);
        const bool sta = fasi.back().esito == EsitoFase::equilibrio;
        ASSERT_NE(fasi.back().esito, EsitoFase::nessunNumero) << m;
        if (!corsa.finita()) {
            rifiutatiChestanno += sta ? 1 : 0;
            continue;
        }
        if (fasi.back().esito == EsitoFase::nonDefinito) {
            ++nonConvessi;
            continue;
        }
        ASSERT_TRUE(sta) << m;
        ++confrontati;
        for (std::size_t k = 0; k < fasi.size(); ++k) {
            const double tolleranza =
                analysis::vincoli(dati).incastroPiede ? 1 + 10 * massimoAssoluto(fasi[k].y) : 1;
            EXPECT_LE(distanza(corsa.fasi[k], fasi[k]), tolleranza) << m << " fase " << k + 1;
        }
    }
    EXPECT_GT(confrontati, 95 * quantiMuri / 100);
    EXPECT_LT(nonConvessi, quantiMuri / 50);
    EXPECT_EQ(rifiutatiChestanno > 0, quantiMuri > 1000);
}

void controllaResidui(const DatiProgetto& dati, int nSeg, const std::string& quale) {
    EquilibrioParete parete(dati, nSeg);
    for (int k = 1; k <= dati.nFasi; ++k) {
        if (parete.calcola(k).esito != EsitoFase::equilibrio) return;
        EXPECT_LE(test::sbilancio(parete.problema(), parete.spostamenti()), 1)
            << quale << " fase " << k;
    }
}

TEST(CalcolaEquilibrio, LeavesNoForceWithoutBalanceAtAnyMesh) {
    test::MuriCasuali muri(23);
    for (int m = 0; m < 60; ++m) {
        const DatiProgetto dati = muri.prossimo();
        for (const int nSeg : {3, 20, 50, 248, 1000})
            controllaResidui(dati, nSeg, std::to_string(m) + "/" + std::to_string(nSeg));
    }
}

// The moments of the balance are those of the bent wall, and the last one is that of a free toe.
TEST(CalcolaEquilibrio, BringsTheMomentsDownToAFreeToe) {
    const DatiProgetto dati = test::progettoSemplice();
    const int nSeg = 60;
    const double h = dati.lunghezzaParatia / nSeg;
    for (const FaseEquilibrio& fase : calcolaEquilibrio(dati, nSeg)) {
        const double grande = massimoAssoluto(fase.momento);
        for (std::size_t i = 1; i + 1 < fase.y.size(); ++i) {
            const double piega = fase.y[i - 1] - 2 * fase.y[i] + fase.y[i + 1];
            EXPECT_NEAR(fase.momento[i], -dati.rigidezzaEJ / (h * h) * piega, 1e-8 * grande);
        }
        EXPECT_NEAR(fase.momento.back(), 0, 1e-9 * grande);
        EXPECT_NEAR(fase.taglio.back(), 0, 1e-9 * grande);
        EXPECT_EQ(fase.momento.front(), -dati.momentoTesta);
    }
}

TEST(CalcolaEquilibrio, GivesAnchorForcesFromTheDisplacementItself) {
    auto dati = test::progettoSemplice();
    const auto fasi = calcolaEquilibrio(dati, 48);
    ASSERT_EQ(fasi.size(), 2u);
    EXPECT_TRUE(fasi[0].tiri.empty());
    ASSERT_EQ(fasi[1].tiri.size(), 1u);
    const std::size_t nodo = 6;  // 1.5 m of 12 m in 48 parts
    EXPECT_DOUBLE_EQ(fasi[1].tiri[0], 5 + 500 * (fasi[1].y[nodo] - fasi[0].y[nodo]));
}

// An anchor pulls its force out of the shear at its node; the value kept is the larger one.
TEST(CalcolaEquilibrio, StepsTheShearAtAnAnchor) {
    const auto dati = test::progettoSemplice();
    const auto fase = calcolaEquilibrio(dati, 48).back();
    const double h = 0.25;
    const auto pressione = [&](std::size_t i) {
        return fase.monte[i] + fase.valle[i] + fase.acqua[i] + fase.costante;
    };
    double sopra = 0;  // from the pressures above alone
    for (std::size_t i = 1; i <= 6; ++i) sopra -= (pressione(i - 1) + pressione(i)) * h / 2;
    const double sotto = sopra + fase.tiri[0];
    EXPECT_NEAR(fase.taglio[6], std::fabs(sotto) > std::fabs(sopra) ? sotto : sopra, 1e-9);
}

TEST(CalcolaEquilibrio, StartsTheShearWithTheForceAtTheTop) {
    auto dati = test::progettoSemplice();
    dati.forzaTesta = 1.5;
    EXPECT_DOUBLE_EQ(calcolaEquilibrio(dati, 48).front().taglio.front(), -1.5);
}

TEST(CalcolaEquilibrio, SaysWhyTheSoilHasNoValue) {
    auto dati = test::progettoSemplice();
    dati.inclinazioneMonte = 40;
    const auto fasi = calcolaEquilibrio(dati, 50);
    ASSERT_EQ(fasi.size(), 1u);
    EXPECT_EQ(fasi[0].esito, EsitoFase::nonDefinito);
    ASSERT_TRUE(fasi[0].rifiuto);
    EXPECT_EQ(fasi[0].rifiuto->motivo, analysis::Indefinito::radiceNegativa);
}

TEST(CalcolaEquilibrio, EndsAtTheStageThatIsAMechanism) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 11.5;
    dati.tirantiFase[2] = 0;
    const auto fasi = calcolaEquilibrio(dati, 50);
    ASSERT_EQ(fasi.size(), 2u);
    EXPECT_EQ(fasi[1].esito, EsitoFase::meccanismo);
    ASSERT_TRUE(fasi[1].moto);
    EXPECT_GT(fasi[1].moto->mancante, 0);
}

TEST(CalcolaEquilibrio, CallsAnAnchorOfNegativeStiffnessNoStableData) {
    auto dati = test::progettoSemplice();
    dati.rigTirante[1] = -5;
    const auto fasi = calcolaEquilibrio(dati, 50);
    EXPECT_EQ(fasi.back().esito, EsitoFase::nonDefinito);
    EXPECT_EQ(fasi.back().instabile.che, Instabile::tirante);
}

// Between two hinges the moments overflow, of a free wall the sums of the verdict.
TEST(CalcolaEquilibrio, SaysThatItHasNoNumberForLoadsBeyondAll) {
    for (const double vincolo : {2.0, 1.0}) {
        auto dati = test::muroNudo();
        dati.vincoloTesta = dati.vincoloPiede = vincolo;
        dati.pressioneOrizz = 1e308;
        const auto fasi = calcolaEquilibrio(dati, 50);
        ASSERT_EQ(fasi.size(), 1u);
        EXPECT_EQ(fasi[0].esito, EsitoFase::nessunNumero) << vincolo;
        EXPECT_FALSE(fasi[0].moto) << vincolo;
    }
}

TEST(EquilibrioParete, RepeatsItsDigitsInASecondObject) {
    test::MuriCasuali muri(5);
    for (int m = 0; m < 20; ++m) {
        const DatiProgetto dati = muri.prossimo();
        const auto prima = calcolaEquilibrio(dati, 40);
        const auto dopo = calcolaEquilibrio(dati, 40);
        for (std::size_t k = 0; k < prima.size(); ++k) {
            EXPECT_EQ(prima[k].y, dopo[k].y);
            EXPECT_EQ(prima[k].momento, dopo[k].momento);
        }
    }
}

}  // namespace
}  // namespace korven::equilibrium
