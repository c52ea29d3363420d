#include "batch/run/interruption.hpp"

#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <nlohmann/json.hpp>
#include <thread>

#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

using test::dice;
using test::ProgrammaInCorso;

class SenzaPace : public test::BancoConsole {
 protected:
    void SetUp() override { scrivi(test::progettoSenzaPace()); }

    // Until the run has begun its result file.
    [[nodiscard]] bool corre() const {
        for (int i = 0; i < 1000; ++i) {
            if (std::filesystem::exists(cartella / "muro.OUT")) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return false;
    }
};

TEST_F(SenzaPace, AnInterruptStopsARunAsTheStopButtonDoes) {
    for (const int segnale : {SIGINT, SIGTERM}) {
        ProgrammaInCorso corsa(KORVEN_CONSOLE,
                               {"calcola", progetto, "--nseg", "10", "--max-iterazioni", "0"});
        ASSERT_TRUE(corre());
        corsa.segnale(segnale);
        const auto esito = corsa.attendi();
        EXPECT_EQ(esito.codice, 1);
        // On a line of its own, after what is dangerous about the project.
        EXPECT_TRUE(("\n" + esito.errori).ends_with("\nCalcolo interrotto dall'utente.\n"))
            << esito.errori;
        EXPECT_TRUE(esito.uscita.empty());
        EXPECT_EQ(nomi(), "muro.kvd ");
    }
}

TEST_F(SenzaPace, AnInterruptIsTheCauseAndNeedsNoSentenceOfTheEquilibrium) {
    ProgrammaInCorso corsa(KORVEN_CONSOLE, {"calcola", progetto, "--nseg", "10", "--max-iterazioni",
                                            "0", "--json", "--silenzioso"});
    ASSERT_TRUE(corre());
    corsa.segnale(SIGINT);
    const auto esito = corsa.attendi();
    EXPECT_EQ(esito.codice, 1);
    const auto j = nlohmann::json::parse(esito.uscita);
    EXPECT_EQ(j["causa"], "fermato");
    EXPECT_TRUE(j["spiegazione"].is_null());
    EXPECT_FALSE(dice(esito.errori, "oscilla soltanto")) << esito.errori;
}

// The annex computes in memory, and takes long enough with so many nodes.
TEST_F(SenzaPace, AnInterruptIsTheCauseOfAnAnnexThatIsNotMade) {
    ProgrammaInCorso corsa(KORVEN_CONSOLE, {"allegato", progetto, "--nseg", "249", "--pdf",
                                            cartella / "a.pdf", "--json", "--silenzioso"});
    ASSERT_TRUE(corsa.aspettaSegnale(SIGINT));
    corsa.segnale(SIGINT);
    const auto esito = corsa.attendi();
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(nlohmann::json::parse(esito.uscita)["causa"], "fermato") << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(SenzaPace, AnIgnoredInterruptStaysIgnored) {
    ProgrammaInCorso corsa(
        "/bin/sh", {"-c", "trap '' INT; exec \"$0\" \"$@\"", KORVEN_CONSOLE, "calcola", progetto,
                    "--nseg", "10", "--max-iterazioni", "0"});
    ASSERT_TRUE(corre());
    corsa.segnale(SIGINT);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    EXPECT_EQ(nomi(), ".korven-muro.OUT.lock muro.OUT muro.kvd ");
    corsa.segnale(SIGTERM);
    EXPECT_EQ(corsa.attendi().codice, 1);
}

// A run that answers no more ends with the second signal, as every program does.
TEST(Interruzioni, TakeTheFirstSignalAndLetTheSecondEndTheProgram) {
    for (const int segnale : {SIGINT, SIGTERM, SIGHUP}) {
        EXPECT_EXIT(
            {
                const Interruzioni interruzioni;
                ::raise(segnale);
                if (Interruzioni::chiesta() == 0) ::_exit(8);
                ::raise(segnale);  // as `timeout` does: one request, and no second one
                std::this_thread::sleep_for(std::chrono::milliseconds(250));
                ::raise(segnale);
                ::_exit(9);
            },
            ::testing::KilledBySignal(segnale), "");
    }
}

TEST(Interruzioni, GiveTheSignalsBackAtTheirEnd) {
    struct sigaction prima {
    }, dopo{};
    ::sigaction(SIGTERM, nullptr, &prima);
    { const Interruzioni interruzioni; }
    ::sigaction(SIGTERM, nullptr, &dopo);
    EXPECT_EQ(dopo.sa_handler, prima.sa_handler);
}

using Interruzione = test::BancoConsole;

// The first layer reaches 490 m, the last 1 cm: a hatch of ten kilometres of paper.
TEST_F(Interruzione, EndsADrawingThatNobodyWouldWaitForWithoutATrace) {
    auto dati = test::progettoSemplice();
    dati.profStrato[1] = 490;
    dati.profStrato[2] = 0.01;
    dati.descrStrato[1] = "103 sabbia";
    scrivi(dati);
    const test::CartellaProvvisoria provvisoria;
    for (const int segnale : {SIGINT, SIGTERM, SIGHUP}) {
        ProgrammaInCorso corsa(KORVEN_CONSOLE,
                               {"stratigrafia", progetto, "--dxf", cartella / "l.dxf"},
                               {.variabili = {{"TMPDIR", provvisoria.percorso()}}});
        ASSERT_TRUE(corsa.aspettaSegnale(segnale));
        std::this_thread::sleep_for(std::chrono::milliseconds(50));  // any moment will do
        corsa.segnale(segnale);
        const auto esito = corsa.attendi();
        EXPECT_EQ(esito.codice, 1);
        EXPECT_EQ(esito.errori, "korven32c: Disegno interrotto dall'utente.\n");
        EXPECT_EQ(nomi(), "muro.kvd ");
        EXPECT_TRUE(std::filesystem::is_empty(provvisoria.percorso()));
    }
}

// Whenever the interrupt comes, what is left is whole, and the exit code tells it.
TEST_F(Interruzione, LeavesWholeFilesAndIsNeverSwallowedAtAnyMoment) {
    const std::vector<std::string> comando = {"relazione", progetto, "--txt"};
    ASSERT_EQ(console(comando).codice, 0);
    const auto interi = file();
    ASSERT_EQ(interi.size(), 4u);
    for (int i = 0; i < 60; ++i) {
        for (const char* nome : {"muro.OUT", "muro.TAB", "muro.txt"})
            std::filesystem::remove(cartella / nome);
        ProgrammaInCorso corsa(KORVEN_CONSOLE, comando);
        std::this_thread::sleep_for(std::chrono::microseconds(700 * i));
        corsa.segnale(SIGINT);
        const auto esito = corsa.attendi();
        for (const auto& [nome, byte] : file()) {
            ASSERT_TRUE(interi.contains(nome)) << nome;
            EXPECT_EQ(byte, interi.at(nome)) << nome;
        }
        // -1: before or after the run, where the signal ends the program as always.
        EXPECT_LE(esito.codice, 1) << esito.errori;
        EXPECT_TRUE(esito.codice != 0 || file() == interi);
        EXPECT_TRUE(esito.codice != 1 || dice(esito.errori, "dell'utente") ||
                    dice(esito.errori, "dall'utente"))
            << esito.errori;
    }
}

TEST_F(SenzaPace, TheLimitStopsTheRunAndNamesTheNodesThatFlip) {
    const auto esito = esegui("calcola", {"--max-iterazioni", "200"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori,
                     "Calcolo interrotto: nessuna convergenza (fase 1, 200 iterazioni). Nelle "
                     "ultime iterazioni cambiano stato:\n"))
        << esito.errori;
    EXPECT_TRUE(dice(esito.errori, "\nnodi 1-3 (0-2 m), lato monte: ")) << esito.errori;
    EXPECT_TRUE(dice(esito.errori, "ultimo all'iterazione 200\n")) << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(SenzaPace, TheLimitIsFiveThousandWithoutTheOption) {
    const auto esito = esegui("relazione", {"--json"});
    EXPECT_EQ(esito.codice, 1);
    const auto j = nlohmann::json::parse(esito.uscita);
    EXPECT_TRUE(dice(j["messaggi"][0], "(fase 1, 5000 iterazioni)")) << esito.uscita;
    EXPECT_GT(j["messaggi"].size(), 1u);
    EXPECT_EQ(nomi(), "muro.kvd ");
}

}  // namespace
}  // namespace korven::batch
