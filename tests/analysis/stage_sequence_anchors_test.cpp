// Anchors through the stages: when they come, what they remember, when they leave.

#include <gtest/gtest.h>

#include "analysis/stage_sequence.hpp"
#include "project/codes.hpp"
#include "support/progress_double.hpp"
#include "support/run_arrays_setup.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

using project::TipoTirante;
using test::aggiungiTirante;
using test::corsaNuova;
using test::muroElastico;
using test::ripetiFase;

constexpr int nodo = 5;  // at 2 m: nodes every 0.5 m

// An elastic wall pushed by water, with one anchor at 2 m; a test sets what it is about.
class TirantiNelleFasi : public ::testing::Test {
 protected:
    TirantiNelleFasi() {
        avanzamento.adOgniIterazione = [this](const StatoIterazione& stato) {
            avanzamento.ferma = stato.iterazione >= 1000;  // a failure, not a test without end
        };
        dati.faldaMonte = 1;
        dati.faldaFase[1] = 4;  // pushes towards the excavation
        aggiungiTirante(dati, 2, 800, 10, 0);
    }
    void calcola() {
        corsa = corsaNuova(dati, 20);
        dopo.clear();
        for (int k = 1; k <= dati.nFasi; ++k) {
            ASSERT_EQ(risolviFase(k, dati, *corsa, avanzamento).esito, EsitoFase::convergente) << k;
            dopo.push_back(
                {corsa->yNodo[nodo], corsa->yTirante[1], corsa->nTirantiAttivi, corsa->yNodo[1]});
        }
    }
    struct Stato {
        double y, yTirante;
        int attivi;
        double yTesta;
    };
    // Horizontal force that the wall takes from its loads and anchors; the soil balances it.
    [[nodiscard]] double sommaMolle() const {
        double somma = 0;
        for (int i = 1; i <= 21; ++i) {
            const double w = i == 1 || i == 21 ? 1 : 2;
            somma += (corsa->suolo.Ehm[i] + corsa->suolo.Ehv[i]) * corsa->yNodo[i] * w * 0.25;
        }
        return somma;
    }
    [[nodiscard]] double sommaAcqua() const {
        double somma = 0;
        for (int i = 1; i <= 21; ++i)
            somma += corsa->suolo.acquaNetta[i] * (i == 1 || i == 21 ? 1 : 2) * 0.25;
        return somma;
    }

    project::DatiProgetto dati = muroElastico(500);
    std::unique_ptr<ArraysCorsa> corsa;
    test::AvanzamentoFinto avanzamento;
    std::vector<Stato> dopo;
};

TEST_F(TirantiNelleFasi, OfTheFirstStageStartFromZeroAndPullAtOnce) {
    dati.tirantiFase[1] = 1;
    calcola();
    EXPECT_EQ(dopo[0].yTirante, 0);
    const double F = 10 + 800 * dopo[0].y;
    EXPECT_NEAR(sommaMolle() + sommaAcqua(), F, 1e-4);
}

TEST_F(TirantiNelleFasi, AreLaidOnTheWallAsItIsAtTheEndOfTheStageBefore) {
    ripetiFase(dati, 1);
    calcola();
    EXPECT_EQ(dopo[0].attivi, 0);
    EXPECT_GT(dopo[0].y, 1e-3);
    EXPECT_EQ(dopo[1].yTirante, dopo[0].y);
    // It acts at once with its whole prestress, less what the wall gives way.
    const double F = 10 + 800 * (dopo[1].y - dopo[0].y);
    EXPECT_LT(dopo[1].y, dopo[0].y);
    EXPECT_GT(F, 0);
    EXPECT_NEAR(sommaMolle() + sommaAcqua(), F, 1e-4);
}

TEST_F(TirantiNelleFasi, KeepTheirReferenceInTheStagesAfter) {
    ripetiFase(dati, 1);
    const int k = ripetiFase(dati, 1);
    dati.faldaFase[k] = 8;
    calcola();
    EXPECT_EQ(dopo[2].yTirante, dopo[0].y);
    EXPECT_NE(dopo[2].y, dopo[1].y);
}

TEST_F(TirantiNelleFasi, ThatLeaveActNoMoreAndReturnAsNewOnes) {
    ripetiFase(dati, 1);
    ripetiFase(dati, 0);
    const int k = ripetiFase(dati, 1);
    dati.faldaFase[3] = 6;
    dati.faldaFase[k] = 6;
    calcola();
    EXPECT_EQ(dopo[2].attivi, 0);
    const auto conTirante = dopo;
    EXPECT_EQ(dopo[3].yTirante, dopo[2].y);
    EXPECT_NE(dopo[3].yTirante, dopo[1].yTirante);
    for (int fase = 1; fase <= 4; ++fase) dati.tirantiFase[fase] = 0;
    calcola();
    EXPECT_NEAR(conTirante[2].y, dopo[2].y, 1e-8);  // free, as if it had never been there
}

TEST_F(TirantiNelleFasi, AreCountedFromTheFirstRowWhateverTheirDepth) {
    aggiungiTirante(dati, 6, 900, 7, 0);
    dati.tirantiFase[1] = 1;
    ripetiFase(dati, 2);
    calcola();
    EXPECT_EQ(corsa->yTirante[1], 0);
    EXPECT_EQ(dopo[1].yTirante, 0);
    EXPECT_NE(corsa->yTirante[2], 0);
}

TEST_F(TirantiNelleFasi, WithoutStiffnessPullWithTheirPrestressAlone) {
    dati.rigTirante[1] = 0;
    dati.tirantiFase[1] = 1;
    calcola();
    EXPECT_NEAR(sommaMolle() + sommaAcqua(), 10, 1e-4);
}

TEST_F(TirantiNelleFasi, WithoutPrestressHoldOnlyAWallThatGoesTowardsTheExcavation) {
    dati.pretTirante[1] = 0;
    ripetiFase(dati, 1);
    dati.tirantiFase[1] = 1;
    dati.faldaFase[1] = 0.2;  // first stage: pushed back
    dati.faldaFase[2] = 3;    // second: forward
    calcola();
    EXPECT_LT(dopo[0].y, 0);
    EXPECT_GT(dopo[1].y, 0);
    EXPECT_NEAR(sommaMolle() + sommaAcqua(), 800 * dopo[1].y, 1e-4);

    dati.nFasi = 1;
    calcola();
    const double conTirante = dopo[0].y;
    dati.tirantiFase[1] = 0;
    calcola();
    EXPECT_NEAR(dopo[0].y, conTirante, 1e-8);  // slack: as if it weren't there
}

TEST_F(TirantiNelleFasi, OfBothSignsPushAWallThatGoesBack) {
    dati.pretTirante[1] = 0;
    dati.tipoTirante[1] = valore(TipoTirante::trazioneCompressione);
    dati.tirantiFase[1] = 1;
    dati.faldaMonte = 4;
    dati.faldaFase[1] = 1;
    calcola();
    ASSERT_LT(dopo[0].y, 0);
    EXPECT_NEAR(sommaMolle() + sommaAcqua(), 800 * dopo[0].y, 1e-4);
}

TEST_F(TirantiNelleFasi, DeeperThanTheWallChangeNothing) {
    calcola();
    const auto senza = dopo;
    dati.profTirante[1] = 14;
    dati.tirantiFase[1] = 1;
    calcola();
    EXPECT_EQ(dopo[0].y, senza[0].y);
    EXPECT_EQ(dopo[0].yTesta, senza[0].yTesta);
    EXPECT_EQ(corsa->yTirante[1], 0);
}

TEST_F(TirantiNelleFasi, DoNotActFromRowsThatTheTableDoesNotCount) {
    dati.nTiranti = 0;  // the row keeps what it held
    dati.tirantiFase[1] = 1;
    calcola();
    EXPECT_EQ(dopo[0].attivi, 0);
    EXPECT_NEAR(sommaMolle() + sommaAcqua(), 0, 1e-4);
}

TEST_F(TirantiNelleFasi, BeyondTheTablesRowsEndTheRunWithAnError) {
    dati.tirantiFase[1] = 21;
    corsa = corsaNuova(dati, 20);
    EXPECT_THROW(static_cast<void>(risolviFase(1, dati, *corsa, avanzamento)), base::ErroreIndice);
}

}  // namespace
}  // namespace korven::analysis
