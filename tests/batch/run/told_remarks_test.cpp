#include "batch/run/told_remarks.hpp"

#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

using review::Peso;

Opzioni perProgetto(const std::string& progetto) {
    Opzioni opzioni;
    opzioni.progetto = progetto;
    return opzioni;
}

TEST(ComandoElenco, NamesTheCommandThatListsTheRemarksOfTheSameProject) {
    Opzioni opzioni = perProgetto("muro.kvd");
    EXPECT_EQ(comandoElenco(opzioni), "korven32c verifica --calcola muro.kvd");
    opzioni.nseg = "80";
    opzioni.metodoSpinte = 2;
    EXPECT_EQ(comandoElenco(opzioni),
              "korven32c verifica --calcola --metodo-spinte rankine --nseg 80 muro.kvd");
}

TEST(ComandoElenco, QuotesAPathThatAShellWouldTakeApart) {
    EXPECT_EQ(comandoElenco(perProgetto("/lavori/muro di $casa.kvd")),
              "korven32c verifica --calcola '/lavori/muro di $casa.kvd'");
    EXPECT_EQ(comandoElenco(perProgetto("l'Aquila.kvd")),
              "korven32c verifica --calcola 'l'\\''Aquila.kvd'");
}

Esito con(const std::vector<Peso>& pesi) {
    Esito esito;
    for (const Peso peso : pesi) {
        auto& osservazione = esito.osservazioni.emplace_back();
        osservazione.peso = peso;
        osservazione.testo = "detto di questo peso";
    }
    return esito;
}

std::string raccontoDaVedere(const Opzioni& opzioni, const Esito& esito) {
    const test::UscitaTrattenuta errori(std::cerr);
    raccontaDaVedere(opzioni, esito);
    return errori.testo();
}

TEST(RaccontaDaVedere, CountsThemInOneLineWithTheCommandThatListsThem) {
    const Opzioni opzioni = perProgetto("muro.kvd");
    EXPECT_EQ(raccontoDaVedere(opzioni, con({Peso::pericolo, Peso::daVedere, Peso::daVedere})),
              "2 osservazioni da vedere: korven32c verifica --calcola muro.kvd\n");
    EXPECT_EQ(raccontoDaVedere(opzioni, con({Peso::daVedere})),
              "1 osservazione da vedere: korven32c verifica --calcola muro.kvd\n");
}

TEST(RaccontaDaVedere, SaysNothingWithoutAnyOrInSilence) {
    Opzioni opzioni = perProgetto("muro.kvd");
    EXPECT_EQ(raccontoDaVedere(opzioni, con({Peso::pericolo, Peso::impedisce})), "");
    opzioni.silenzioso = true;
    EXPECT_EQ(raccontoDaVedere(opzioni, con({Peso::daVedere})), "");
}

TEST(RaccontaPericoli, GivesEachALineUnlessTheRunHasToldItAndTheOthersNone) {
    const test::UscitaTrattenuta errori(std::cerr);
    Esito esito = con({Peso::impedisce, Peso::pericolo, Peso::daVedere});
    raccontaPericoli(esito);
    EXPECT_EQ(errori.testo(), "pericolo: detto di questo peso\n");
    esito.spiegazione = "fase 2: detto di questo peso.";
    raccontaPericoli(esito);
    EXPECT_EQ(errori.testo(), "pericolo: detto di questo peso\n");
}

TEST(ConSeverita, EndsACommandThatWasDoneWith1ForADangerAndSaysWhy) {
    Opzioni opzioni;
    opzioni.severo = true;
    Esito esito = con({Peso::pericolo, Peso::pericolo});
    const test::UscitaTrattenuta errori(std::cerr);
    EXPECT_EQ(conSeverita(opzioni, esito, 0), 1);
    EXPECT_TRUE(esito.severo);
    const std::string detto = "2 pericoli: con --severo il comando finisce con il codice 1";
    EXPECT_EQ(errori.testo(), detto + "\n");
    EXPECT_EQ(esito.messaggi, std::vector{detto});
}

TEST(ConSeverita, LeavesTheCodeOfOneThatFailedOrHasNoDangerOrWasNotAsked) {
    Opzioni opzioni;
    Esito pericoloso = con({Peso::pericolo}), innocuo = con({Peso::daVedere});
    EXPECT_EQ(conSeverita(opzioni, pericoloso, 0), 0);
    opzioni.severo = true;
    EXPECT_EQ(conSeverita(opzioni, innocuo, 0), 0);
    EXPECT_EQ(conSeverita(opzioni, pericoloso, 3), 3);
    EXPECT_FALSE(pericoloso.severo);
    EXPECT_FALSE(innocuo.severo);
}

}  // namespace
}  // namespace korven::batch
