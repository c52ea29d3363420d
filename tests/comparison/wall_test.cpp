#include "comparison/wall.hpp"

#include <gtest/gtest.h>

#include "comparison/walls.hpp"
#include "results/report_data.hpp"
#include "support/run_harness.hpp"

namespace korven::comparison {
namespace {

using korven::test::Banco;
using korven::test::progettoSemplice;

Muro daRisultati(const Banco& banco) {
    const auto testa = results::leggiTestaRisultati(banco.risultati());
    EXPECT_TRUE(testa);
    return muroDaRisultati(banco.risultati(), *testa);
}

TEST(MuroConfrontato, OfAResultFileHasWhatTheFileHolds) {
    Banco banco(progettoSemplice(), 10);
    banco.calcola();
    const Muro muro = daRisultati(banco);
    const auto fasi = banco.leggi();
    const auto& parete = muro.fascicolo.parete;
    EXPECT_EQ(muro.origine, Origine::fileRisultati);
    EXPECT_EQ(parete.nSeg, 10);
    EXPECT_TRUE(parete.sta());
    ASSERT_EQ(parete.fasi.size(), 2U);
    for (std::size_t k = 0; k < 2; ++k)
        for (std::size_t i = 0; i < 11; ++i) {
            EXPECT_EQ(parete.fasi[k].y[i], fasi[k].yNodo[static_cast<int>(i) + 1]);
            EXPECT_EQ(parete.fasi[k].momento[i], fasi[k].momentoNodo[static_cast<int>(i) + 1]);
        }
    EXPECT_EQ(parete.estremi.momentoMassimo.valore, banco.chiusura.mMaxTotale);
    EXPECT_EQ(muro.fascicolo.scritti.titoli[1], "Muro di prova");
    EXPECT_FALSE(muro.fascicolo.margine);
    EXPECT_EQ(verdetto(muro), "calcolo per fasi concluso, fasi: 2");
}

// The file of one run against that of another, of another mesh and another method.
TEST(MuroConfrontato, OfAResultFileIsComparedWithThatOfAnotherRun) {
    Banco uno(progettoSemplice(), 10);
    uno.calcola();
    Muro prima = daRisultati(uno);
    Banco altro(progettoSemplice(), 20);
    project::Progetto.metodoSpinte = 2;
    altro.calcola();
    const Confronto c = confronta(std::move(prima), daRisultati(altro));
    ASSERT_EQ(c.campi.size(), 1U);
    EXPECT_EQ(project::nomeStabile(*c.campi[0].campo, c.campi[0].riga), "metodoSpinte");
    const auto& M = test::risultato(c, "momento_massimo");
    EXPECT_EQ(*M.prima.numero, 10 * c.prima.fascicolo.parete.estremi.momentoMassimo.valore);
    EXPECT_NE(*M.prima.numero, *M.dopo.numero);
    EXPECT_FALSE(test::ha(c, "riduzione"));
    EXPECT_FALSE(test::ha(c, "fasi_in_equilibrio"));
    EXPECT_TRUE(c.nuove.empty() && c.sparite.empty());
}

TEST(MuroConfrontato, SaysOfAWallThatStandsThatItDoes) {
    EXPECT_EQ(verdetto(test::muro(progettoSemplice())),
              "in equilibrio in tutte le fasi, che sono 2");
}

}  // namespace
}  // namespace korven::comparison
