#include "analysis/watch/run_control.hpp"

#include <gtest/gtest.h>

#include "analysis/watch/run_end.hpp"
#include "support/progress_double.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::analysis {
namespace {

constexpr StatiNodo elastico;
constexpr StatiNodo passivo{StatoLato::elastico, StatoLato::passivo};

class Controllo : public ::testing::Test {
 protected:
    // One iteration of a wall of one node that flips at every second one.
    static void passo(ControlloCorsa& controllo, int fase, int iterazione, bool convergente) {
        const std::vector<StatiNodo> stati = {iterazione % 2 == 0 ? passivo : elastico};
        StatoIterazione stato;
        stato.fase = fase;
        stato.iterazione = iterazione;
        stato.convergente = convergente;
        stato.passoNodi = 1;
        stato.stati = stati;
        controllo.iterazione(stato);
    }

    test::AvanzamentoFinto vista;
    volatile std::sig_atomic_t interruzione = 0;
};

TEST_F(Controllo, HandsTheProgressOnAndKeepsTheIterationsOfEachStage) {
    ControlloCorsa controllo(vista, 100, interruzione);
    EXPECT_FALSE(controllo.calcolato());
    controllo.apri();
    EXPECT_TRUE(controllo.calcolato());
    passo(controllo, 1, 1, false);
    passo(controllo, 1, 2, true);
    passo(controllo, 2, 1, true);
    controllo.chiudi();
    EXPECT_EQ(vista.aperture, 1);
    EXPECT_EQ(vista.iterazioni, 3);
    EXPECT_EQ(vista.chiusure, 1);
    ASSERT_EQ(controllo.fasi().size(), 2u);
    EXPECT_EQ(controllo.fasi()[0].fase, 1);
    EXPECT_EQ(controllo.fasi()[0].iterazioni, 2);
    EXPECT_EQ(controllo.fasi()[1].iterazioni, 1);
    EXPECT_TRUE(controllo.fasi()[0].traccia.empty());
    EXPECT_FALSE(controllo.fermata());
}

TEST_F(Controllo, TellsHowTheRunEndedAndInWhichStage) {
    const auto caduta = [this](EsitoFase esito, bool oltreLimite = false) {
        ControlloCorsa controllo(vista, 1, interruzione);
        controllo.apri();
        if (oltreLimite) passo(controllo, 2, 1, false);
        FaseCalcolata fase;
        fase.fase = 2;
        fase.esito = esito;
        controllo.caduta(fase);
        EXPECT_EQ(controllo.comeFinita().fase, 2);
        return controllo.comeFinita().modo;
    };
    EXPECT_EQ(caduta(EsitoFase::singolare), ModoFine::singolare);
    EXPECT_EQ(caduta(EsitoFase::rifiutata), ModoFine::rifiutata);
    EXPECT_EQ(caduta(EsitoFase::fermata), ModoFine::fermata);
    EXPECT_EQ(caduta(EsitoFase::fermata, true), ModoFine::oltreLimite);
    EXPECT_EQ(vista.cadute, 4);
    ControlloCorsa controllo(vista, 1, interruzione);
    controllo.apri();
    EXPECT_EQ(controllo.comeFinita().modo, ModoFine::compiuta);
    EXPECT_EQ(controllo.comeFinita().fase, 0);
}

TEST_F(Controllo, HandsTheWaitingOnAndEndsItOnAnInterrupt) {
    ControlloCorsa controllo(vista, 100, interruzione);
    controllo.attendi("un altro calcolo");
    EXPECT_FALSE(controllo.fermata());
    interruzione = 1;
    controllo.attendi("un altro calcolo");
    EXPECT_TRUE(controllo.fermata());
    controllo.fineAttesa();
    EXPECT_EQ(vista.attese, std::vector<std::string>(2, "un altro calcolo"));
    EXPECT_EQ(vista.fineAttese, 1);
}

TEST_F(Controllo, RecordsAStageOfMoreThanTwentyIterationsOnly) {
    for (const int quante : {20, 21}) {
        ControlloCorsa controllo(vista, 0, interruzione);
        controllo.apri();
        for (int i = 1; i <= quante; ++i) passo(controllo, 1, i, i == quante);
        ASSERT_EQ(controllo.fasi().size(), 1u);
        EXPECT_EQ(controllo.fasi()[0].traccia.empty(), quante == 20);
    }
}

TEST_F(Controllo, StopsAStageAtTheLimitAndTellsWhatStillFlips) {
    ControlloCorsa controllo(vista, 30, interruzione);
    controllo.apri();
    for (int i = 1; i <= 29; ++i) passo(controllo, 2, i, false);
    EXPECT_FALSE(controllo.fermata());
    EXPECT_FALSE(controllo.oltreLimite());
    passo(controllo, 2, 30, false);
    EXPECT_TRUE(controllo.fermata());
    EXPECT_TRUE(controllo.oltreLimite());
    EXPECT_EQ(controllo.motivo(),
              (std::vector<std::string>{
                  "Calcolo interrotto: nessuna convergenza (fase 2, 30 iterazioni). Nelle ultime "
                  "iterazioni cambiano stato:",
                  "nodo 1 (0 m), lato valle: elastico -> passivo, cambi: 29, ultimo all'iterazione "
                  "30"}));
    EXPECT_TRUE(controllo.fasi().empty());
}

TEST_F(Controllo, LetsAStageThatConvergesAtTheLimitPass) {
    ControlloCorsa controllo(vista, 3, interruzione);
    controllo.apri();
    for (int i = 1; i <= 3; ++i) passo(controllo, 1, i, i == 3);
    EXPECT_FALSE(controllo.fermata());
    EXPECT_EQ(controllo.fasi().size(), 1u);
}

TEST_F(Controllo, KnowsNoLimitWhenItIsZero) {
    ControlloCorsa controllo(vista, 0, interruzione);
    controllo.apri();
    for (int i = 1; i <= 20000; ++i) passo(controllo, 1, i, false);
    EXPECT_FALSE(controllo.fermata());
}

TEST_F(Controllo, StopsOnAnInterruptWithoutAReasonOfItsOwn) {
    ControlloCorsa controllo(vista, 0, interruzione);
    controllo.apri();
    passo(controllo, 1, 1, false);
    EXPECT_FALSE(controllo.fermata());
    interruzione = 1;
    passo(controllo, 1, 2, false);
    EXPECT_TRUE(controllo.fermata());
    EXPECT_FALSE(controllo.oltreLimite());
    EXPECT_TRUE(controllo.motivo().empty());
}

TEST_F(Controllo, ForgetsTheRunBeforeWhenANewOneOpens) {
    ControlloCorsa controllo(vista, 1, interruzione);
    controllo.apri();
    passo(controllo, 1, 1, false);
    EXPECT_TRUE(controllo.oltreLimite());
    controllo.apri();
    EXPECT_FALSE(controllo.oltreLimite());
    EXPECT_TRUE(controllo.motivo().empty());
    EXPECT_TRUE(controllo.fasi().empty());
}

TEST_F(Controllo, RemovesTheResultFileOfARunThatItStops) {
    test::Banco banco(test::progettoSemplice(), 20);
    ControlloCorsa controllo(vista, 1, interruzione);
    analysis::CalcoloParatia(analysis::relazione, {banco.dialogo, controllo, banco.uscita});
    EXPECT_TRUE(analysis::erroreCalcolo);
    EXPECT_TRUE(controllo.oltreLimite());
    EXPECT_FALSE(banco.haRisultati());
    EXPECT_TRUE(banco.dialogo.messaggi.empty());  // the reason is told by the control
}

TEST_F(Controllo, SaysThatNothingWasComputedWhenTheResultsAreUpToDate) {
    test::Banco banco(test::progettoSemplice(), 20);
    banco.calcola();
    ControlloCorsa controllo(vista, 0, interruzione);
    analysis::CalcoloParatia(analysis::relazione, {banco.dialogo, controllo, banco.uscita});
    EXPECT_FALSE(controllo.calcolato());
    EXPECT_TRUE(controllo.fasi().empty());
}

TEST(FineCorsa, IsThatOfTheStageWithoutRest) {
    FaseCalcolata fase;
    fase.fase = 3;
    fase.iterazioni = 7;
    const auto modo = [&](EsitoFase esito, bool oltreLimite = false) {
        fase.esito = esito;
        return fineCorsa(fase, oltreLimite).modo;
    };
    EXPECT_EQ(modo(EsitoFase::convergente), ModoFine::compiuta);
    EXPECT_EQ(modo(EsitoFase::singolare), ModoFine::singolare);
    EXPECT_EQ(modo(EsitoFase::rifiutata), ModoFine::rifiutata);
    EXPECT_EQ(modo(EsitoFase::fermata), ModoFine::fermata);
    EXPECT_EQ(modo(EsitoFase::fermata, true), ModoFine::oltreLimite);
    EXPECT_EQ(fineCorsa(fase, true).fase, 3);
    EXPECT_EQ(fineCorsa(fase, true).iterazioni, 7);
}

}  // namespace
}  // namespace korven::analysis
