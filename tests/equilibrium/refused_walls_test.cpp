// Walls that the specified run refuses, or does not bring to rest, and that stand nevertheless.

#include "support/refused_walls.hpp"

#include <gtest/gtest.h>

#include "equilibrium/staged_equilibrium.hpp"
#include "support/nodal_balance.hpp"

namespace korven::equilibrium {
namespace {

constexpr int nSeg = 20;

// The verdict on the stage that ended the specified run; an equilibrium has to balance, with every
// stage before it.
EsitoFase esito(const test::MuriRifiutati::Muro& muro) {
    EquilibrioParete parete(muro.dati, nSeg);
    for (int k = 1; k <= muro.fase; ++k) {
        const EsitoFase esito = parete.calcola(k).esito;
        if (esito != EsitoFase::equilibrio) return esito;
        EXPECT_LE(test::sbilancio(parete.problema(), parete.spostamenti()), 1) << "fase " << k;
    }
    return EsitoFase::equilibrio;
}

// bench/refused_walls counts many more.
TEST(MuriRifiutati, StandWhereOnlyTheIterationFlips) {
    test::MuriRifiutati rifiutati(7, nSeg, 100);
    int stanno = 0, meccanismi = 0;
    for (int m = 0; m < 60; ++m) {
        SCOPED_TRACE(m);
        const EsitoFase verdetto = esito(rifiutati.prossimo());
        stanno += verdetto == EsitoFase::equilibrio ? 1 : 0;
        meccanismi += verdetto == EsitoFase::meccanismo ? 1 : 0;
        EXPECT_NE(verdetto, EsitoFase::nessunNumero);
    }
    EXPECT_GT(stanno, 0);
    EXPECT_GT(meccanismi, 40);
}

}  // namespace
}  // namespace korven::equilibrium
