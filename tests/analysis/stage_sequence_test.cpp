#include "analysis/stage_sequence.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "project/codes.hpp"
#include "support/progress_double.hpp"
#include "support/run_arrays_setup.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

using project::VincoloPiede;
using project::VincoloTesta;
using test::aggiungiTirante;
using test::corsaNuova;
using test::muroElastico;
using test::muroNudo;
using test::ripetiFase;

// Runs the stages one by one; a stage that needs more than a thousand iterations is stopped.
struct Sequenza {
    explicit Sequenza(const project::DatiProgetto& progetto, int nSeg = 20)
        : dati(progetto), corsa(corsaNuova(progetto, nSeg)) {
        avanzamento.adOgniIterazione = [this](const StatoIterazione& stato) {
            ultima = stato.iterazione;
            if (stato.iterazione >= 1000) avanzamento.ferma = true;
        };
    }
    Sequenza(const Sequenza&) = delete;
    Sequenza& operator=(const Sequenza&) = delete;

    EsitoFase fase(int k) {
        ultima = 0;
        return risolviFase(k, dati, *corsa, avanzamento).esito;
    }
    // Force of anchor a as the iteration sees it.
    [[nodiscard]] double forza(int a, int nodo) const {
        return dati.pretTirante[a] + dati.rigTirante[a] * (corsa->yNodo[nodo] - corsa->yTirante[a]);
    }

    project::DatiProgetto dati;
    std::unique_ptr<ArraysCorsa> corsa;
    test::AvanzamentoFinto avanzamento;
    int ultima = 0;
};

TEST(RisolviFase, SolvesAWallWithoutLoadToZeroInOneIteration) {
    Sequenza s(muroElastico(1000));
    ASSERT_EQ(s.fase(1), EsitoFase::convergente);
    EXPECT_EQ(s.ultima, 1);
    for (int i = 1; i <= 21; ++i) EXPECT_EQ(s.corsa->yNodo[i], 0) << i;
}

TEST(RisolviFase, NeedsASecondIterationToSeeThatALoadedElasticWallStandsStill) {
    auto dati = muroElastico(1000);
    dati.forzaTesta = 2;
    Sequenza s(dati);
    ASSERT_EQ(s.fase(1), EsitoFase::convergente);
    EXPECT_EQ(s.ultima, 2);
}

TEST(RisolviFase, ForgetsTheDisplacementsItComparesWithAtEachStage) {
    auto dati = muroElastico(1000);
    dati.forzaTesta = 2;
    ripetiFase(dati, 0);  // the same stage once more
    Sequenza s(dati);
    ASSERT_EQ(s.fase(1), EsitoFase::convergente);
    ASSERT_EQ(s.fase(2), EsitoFase::convergente);
    EXPECT_EQ(s.ultima, 2);
}

TEST(RisolviFase, FindsAWallWithoutAnySpringSingularInTheFirstIteration) {
    auto dati = test::progettoSemplice();
    dati.ksStrato[1] = dati.ksStrato[2] = 0;
    Sequenza s(dati);
    EXPECT_EQ(s.fase(1), EsitoFase::singolare);
    EXPECT_EQ(s.avanzamento.iterazioni, 0);
}

TEST(RisolviFase, FindsAnExcavationDeeperThanTheWallSingularUnlessSomethingHoldsTheWall) {
    auto dati = test::progettoSemplice();
    dati.nFasi = 1;
    dati.profFase[1] = 30;
    EXPECT_EQ(Sequenza(dati).fase(1), EsitoFase::singolare);

    auto cerniere = dati;
    cerniere.vincoloTesta = valore(VincoloTesta::cerniera);
    cerniere.vincoloPiede = valore(VincoloPiede::cerniera);
    EXPECT_EQ(Sequenza(cerniere).fase(1), EsitoFase::convergente);

    auto incastro = dati;
    incastro.vincoloPiede = valore(VincoloPiede::incastro);
    EXPECT_EQ(Sequenza(incastro).fase(1), EsitoFase::convergente);

    auto tiranti = dati;
    aggiungiTirante(tiranti, 9, 2000, 0, 0);
    tiranti.tirantiFase[1] = 2;
    EXPECT_EQ(Sequenza(tiranti).fase(1), EsitoFase::convergente);
}

TEST(RisolviFase, RefusesAStageWhoseSoilHasNoValues) {
    auto dati = test::progettoSemplice();
    dati.inclinazioneMonte = 32;
    Sequenza s(dati);
    EXPECT_EQ(s.fase(1), EsitoFase::rifiutata);
    EXPECT_EQ(s.avanzamento.iterazioni, 0);
}

TEST(RisolviFase, SetsTheDownhillWaterTableOfTheProject) {
    auto dati = muroElastico(1000);
    dati.faldaFase[1] = 7.5;
    dati.faldaValle = -1;
    Sequenza s(dati);
    ASSERT_EQ(s.fase(1), EsitoFase::convergente);
    EXPECT_EQ(s.dati.faldaValle, 7.5);
}

TEST(RisolviFase, TellsEachIterationOfAStageFromOne) {
    auto dati = test::progettoSemplice();
    Sequenza s(dati);
    std::vector<StatoIterazione> detti;
    s.avanzamento.adOgniIterazione = [&](const StatoIterazione& stato) { detti.push_back(stato); };
    ASSERT_EQ(s.fase(1), EsitoFase::convergente);
    const auto prima = detti.size();
    ASSERT_EQ(s.fase(2), EsitoFase::convergente);
    ASSERT_GT(detti.size(), prima);
    for (std::size_t j = 0; j < detti.size(); ++j) {
        const bool seconda = j >= prima;
        EXPECT_EQ(detti[j].fase, seconda ? 2 : 1);
        EXPECT_EQ(detti[j].iterazione, static_cast<int>(seconda ? j - prima + 1 : j + 1));
        EXPECT_EQ(detti[j].convergente, j + 1 == prima || j + 1 == detti.size());
        EXPECT_EQ(detti[j].profFase, seconda ? 5 : 2);
    }
}

TEST(RisolviFase, EndsAfterTheIterationInWhichItIsStopped) {
    auto dati = test::progettoSemplice();
    Sequenza s(dati);
    s.avanzamento.adOgniIterazione = [&s](const StatoIterazione& stato) {
        s.avanzamento.ferma = stato.iterazione == 2;
    };
    EXPECT_EQ(s.fase(1), EsitoFase::fermata);
    EXPECT_EQ(s.avanzamento.iterazioni, 2);
}

TEST(RisolviFase, EndsTheRunAlsoWhenTheStopComesWithConvergence) {
    Sequenza s(muroElastico(1000));
    s.avanzamento.adOgniIterazione = [&s](const StatoIterazione& stato) {
        EXPECT_TRUE(stato.convergente);
        s.avanzamento.ferma = true;
    };
    EXPECT_EQ(s.fase(1), EsitoFase::fermata);
}

// Equal soil on both sides and two soft two-way springs at the ends. While all nodes are plastic in
// one direction, equilibrium lies far out in the other: the wall jumps from side to side for ever.
TEST(RisolviFase, GoesOnWithoutLimitWhileTheNodesFlipUntilItIsStopped) {
    const auto dati = test::muro()
                          .strato({.gammaN = 2, .gammaSat = 2, .ks = 5000})
                          .con(&project::DatiProgetto::modoSpinte, 2)
                          .con(&project::DatiProgetto::modoKs, 2)
                          .tirante(0, 1, 0, 1)
                          .tirante(10, 1, 0, 1)
                          .fase({.tiranti = 2})
                          .dati();
    Sequenza s(dati, 12);
    for (int i = 1; i <= 13; ++i) s.corsa->yNodo[i] = 1;  // far out, as a stage before may leave it
    double prima = 1;
    s.avanzamento.adOgniIterazione = [&](const StatoIterazione& stato) {
        EXPECT_FALSE(stato.convergente);
        const double y = (*stato.yNodo)[7];
        EXPECT_LT(y * prima, 0) << stato.iterazione;
        prima = y;
        if (stato.iterazione == 3000) s.avanzamento.ferma = true;
    };
    EXPECT_EQ(s.fase(1), EsitoFase::fermata);
    EXPECT_EQ(s.avanzamento.iterazioni, 3000);
}

// 10 t on two springs of `rigidezza`: the wall goes 5 / rigidezza metres.
project::DatiProgetto muroSuMolle(double rigidezza) {
    auto dati = muroNudo();
    dati.pressioneOrizz = 1;
    aggiungiTirante(dati, 0, rigidezza, 0, 1);
    aggiungiTirante(dati, 10, rigidezza, 0, 1);
    dati.tirantiFase[1] = 2;
    return dati;
}

TEST(RisolviFase, TakesADisplacementBeyondAThousandWallLengthsForASingularSystem) {
    EXPECT_EQ(Sequenza(muroSuMolle(5.0 / 9900)).fase(1), EsitoFase::convergente);
    EXPECT_EQ(Sequenza(muroSuMolle(5.0 / 10100)).fase(1), EsitoFase::singolare);
}

TEST(RisolviFase, DoesNotJudgeTheDisplacementsOfIterationsOnTheWay) {
    auto dati = muroSuMolle(5.0 / 20000);
    // Slack at first (prestress below 0): they close after the wall has moved.
    aggiungiTirante(dati, 0, 1000, -1, 0);
    aggiungiTirante(dati, 10, 1000, -1, 0);
    dati.tirantiFase[1] = 4;
    Sequenza s(dati);
    double massimo = 0;
    s.avanzamento.adOgniIterazione = [&](const StatoIterazione& stato) {
        massimo = std::max(massimo, stato.yMax);
    };
    ASSERT_EQ(s.fase(1), EsitoFase::convergente);
    EXPECT_GT(massimo, 10000);
    EXPECT_NEAR(s.corsa->yNodo[1], 6.0 / 1000, 1e-6);  // 5 t and the gap of 1 t
}

TEST(RisolviFase, TakesAResultThatIsNotFiniteForASingularSystem) {
    auto dati = muroSuMolle(1000);
    dati.pressioneOrizz = 1e308;  // its sum over the wall overflows
    EXPECT_EQ(Sequenza(dati).fase(1), EsitoFase::singolare);
}

TEST(RisolviFase, ForgetsTheStagesBeforeWhenNoAnchorIsNew) {
    auto dati = test::progettoSemplice();
    dati.nFasi = 0;
    for (const double scavo : {2, 5, 2})  // down to 5 m and filled up again
        test::aggiungiFase(dati, {.scavo = scavo, .tiranti = 1, .falda = 5});
    Sequenza s(dati);
    ASSERT_EQ(s.fase(1), EsitoFase::convergente);
    std::vector<double> prima;
    for (int i = 1; i <= 21; ++i) prima.push_back(s.corsa->yNodo[i]);
    ASSERT_EQ(s.fase(2), EsitoFase::convergente);
    EXPECT_GT(s.corsa->yNodo[11], 2 * prima[10]);
    ASSERT_EQ(s.fase(3), EsitoFase::convergente);
    for (int i = 1; i <= 21; ++i)
        EXPECT_NEAR(s.corsa->yNodo[i], prima[static_cast<std::size_t>(i - 1)], 1e-8) << i;
}

TEST(RisolviFase, SolvesTheSameDepthTwiceWithAnotherWaterLevel) {
    auto dati = muroElastico(1000);
    dati.faldaMonte = 2;
    dati.faldaFase[1] = 2;
    const int k = ripetiFase(dati, 0);
    dati.faldaFase[k] = 4;
    Sequenza s(dati);
    ASSERT_EQ(s.fase(1), EsitoFase::convergente);
    EXPECT_EQ(s.corsa->yNodo[11], 0);
    ASSERT_EQ(s.fase(2), EsitoFase::convergente);
    EXPECT_EQ(s.corsa->suolo.acquaNetta[11], 2);  // at 5 m
    EXPECT_GT(s.corsa->yNodo[11], 1e-4);
}

// A stage that is still in its first iteration leaves the toe's moment as the stage before makes
// it: 2 M(n-1) - M(n-2) of the values found there.
TEST(RisolviFase, ExtrapolatesTheMomentAtAFixedToeFromTheStageBeforeWhenOneIterationIsEnough) {
    auto dati = muroElastico(1000);
    dati.vincoloPiede = valore(VincoloPiede::incastro);
    dati.faldaMonte = 2;
    dati.faldaFase[1] = 6;
    const int k = ripetiFase(dati, 0);
    dati.faldaFase[k] = 2;  // no load is left
    Sequenza s(dati);
    ASSERT_EQ(s.fase(1), EsitoFase::convergente);
    const double atteso = 2 * s.corsa->momentoNodo[20] - s.corsa->momentoNodo[19];
    EXPECT_GT(std::fabs(atteso), 0.1);
    ASSERT_EQ(s.fase(2), EsitoFase::convergente);
    EXPECT_EQ(s.ultima, 1);
    EXPECT_EQ(s.corsa->momentoNodo[21], atteso);
    EXPECT_NEAR(s.corsa->momentoNodo[20], 0, 1e-6);
}

TEST(RisolviFase, KeepsTheUnclearedCellsOfAFixedToeFromOneStageToTheNext) {
    auto dati = muroElastico(1000);
    dati.vincoloPiede = valore(VincoloPiede::incastro);
    dati.forzaTesta = 5;
    ripetiFase(dati, 0);
    const int forze = 2 * 22 - 1;  // balance of forces; column 4 is a shear, never written there
    Sequenza normale(dati), pulita(dati), piantata(dati);
    std::vector<double> primaSoluzione;  // y(1) after the first solve of stage 2
    for (Sequenza* s : {&normale, &pulita, &piantata}) {
        ASSERT_EQ(s->fase(1), EsitoFase::convergente);
        EXPECT_NE(s->corsa->matriceA(forze, 4), 0);
        if (s == &pulita) s->corsa->matriceA = MatriceSistema();
        if (s == &piantata) s->corsa->matriceA(forze, 4) = 0.01;
        s->avanzamento.adOgniIterazione = [&](const StatoIterazione& stato) {
            if (stato.iterazione == 1) primaSoluzione.push_back((*stato.yNodo)[1]);
        };
        ASSERT_EQ(s->fase(2), EsitoFase::convergente);
    }
    // What a real solve leaves is too small to matter; a larger value there shows that it is read.
    EXPECT_NEAR(primaSoluzione[0], primaSoluzione[1], 1e-9);
    EXPECT_GT(std::fabs(primaSoluzione[2] - primaSoluzione[0]), 1e-6);
}

}  // namespace
}  // namespace korven::analysis
