#include <csignal>
#include <memory>
#include <thread>

#include "base/folders/file_lock.hpp"
#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;

using test::Ambiente;
using test::dice;
using Parallelo = test::BancoConsole;

TEST_F(Parallelo, ManyRunsAtOnceGiveWhatTheyGiveOneAfterTheOther) {
    constexpr int quante = 20;
    const auto variante = [&](const std::string& dove, int i) {
        const std::string dir = cartella / (dove + std::to_string(i));
        fs::create_directory(dir);
        auto d = test::progettoSemplice();
        d.lunghezzaParatia = 10 + 0.25 * i;
        d.phiStrato[1] = 25 + i;
        test::metti(dir + "/muro.kvd", base::inCp1252(project::testoProgetto(d)));
        return dir;
    };
    const auto argomenti = [](const std::string& dir) {
        return std::vector<std::string>{"relazione", dir + "/muro.kvd", "--txt", "--nseg", "30"};
    };
    std::vector<std::unique_ptr<test::ProgrammaInCorso>> corse;
    for (int i = 0; i < quante; ++i)
        corse.push_back(std::make_unique<test::ProgrammaInCorso>(
            KORVEN_CONSOLE, argomenti(variante("insieme", i))));
    for (auto& corsa : corse) EXPECT_EQ(corsa->attendi().codice, 0);
    for (int i = 0; i < quante; ++i) {
        const std::string sola = variante("sola", i);
        EXPECT_EQ(console(argomenti(sola)).codice, 0);
        const std::string insieme = cartella / ("insieme" + std::to_string(i));
        for (const char* nome : {"/muro.OUT", "/muro.TAB", "/muro.txt"}) {
            const std::string atteso = test::contenuto(sola + nome);
            EXPECT_FALSE(atteso.empty());
            EXPECT_EQ(test::contenuto(insieme + nome), atteso) << i << nome;
        }
    }
}

TEST_F(Parallelo, VariantsOfOneProjectRunAtOnceIntoFoldersOfTheirOwn) {
    const auto prima = file();
    const auto dove = [](int n) { return std::string(1, 'n').append(std::to_string(n)); };
    std::vector<std::unique_ptr<test::ProgrammaInCorso>> corse;
    for (int n = 10; n < 20; ++n)
        corse.push_back(std::make_unique<test::ProgrammaInCorso>(
            KORVEN_CONSOLE,
            std::vector<std::string>{"calcola", progetto, "--nseg", std::to_string(n), "--uscita",
                                     cartella / dove(n)}));
    for (auto& corsa : corse) EXPECT_EQ(corsa->attendi().codice, 0);
    EXPECT_EQ(file(), prima);
    for (int n = 10; n < 20; ++n) {
        const std::string out = test::contenuto(cartella / (dove(n) + "/muro.OUT"));
        // The head, for each of two stages the names and the nodes, the closing numbers.
        EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 87 + 2 * (1 + n + 1) + 5) << n;
    }
}

// The lock of another run is held by the test.
class FileOccupato : public Parallelo {
 protected:
    void SetUp() override {
        Parallelo::SetUp();
        ASSERT_EQ(altra.prendi(base::nomeSerratura(cartella / "muro.OUT")),
                  base::Serratura::Esito::presa);
    }
    static constexpr const char* attesa = "Un altro calcolo sta usando il file dei risultati";
    base::Serratura altra;
};

TEST_F(FileOccupato, IsWaitedForUntilTheOtherRunHasEnded) {
    for (const char* comando : {"relazione", "calcola"}) {
        test::ProgrammaInCorso corsa(KORVEN_CONSOLE, {comando, progetto, "--nseg", "10"});
        ASSERT_TRUE(corsa.aspetta(attesa));
        EXPECT_FALSE(fs::exists(cartella / "muro.OUT"));
        altra.lascia();
        const auto esito = corsa.attendi();
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        fs::remove(cartella / "muro.OUT");
        SetUp();
    }
    altra.lascia();
    EXPECT_EQ(nomi(), "muro.TAB muro.kvd ");
}

TEST_F(FileOccupato, IsNotTouchedWhenTheWaitingIsInterrupted) {
    test::ProgrammaInCorso corsa(KORVEN_CONSOLE, {"calcola", progetto, "--nseg", "10"});
    ASSERT_TRUE(corsa.aspetta(attesa));
    corsa.segnale(SIGINT);
    const auto esito = corsa.attendi();
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(esito.errori.ends_with("Calcolo interrotto dall'utente.\n")) << esito.errori;
    altra.lascia();
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(FileOccupato, IsFreeAgainWhenItsHolderWasKilled) {
    altra.lascia();
    scrivi(test::progettoSenzaPace());
    {
        test::ProgrammaInCorso uccisa(
            KORVEN_CONSOLE, {"calcola", progetto, "--nseg", "10", "--max-iterazioni", "0"});
        while (!fs::exists(cartella / "muro.OUT")) std::this_thread::yield();
        uccisa.segnale(SIGKILL);
        EXPECT_EQ(uccisa.attendi().codice, -1);
    }
    EXPECT_EQ(nomi(), ".korven-muro.OUT.lock muro.OUT muro.kvd ");
    const auto esito = esegui("calcola", {"--max-iterazioni", "50"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_FALSE(dice(esito.errori, attesa)) << esito.errori;
    EXPECT_TRUE(dice(esito.errori, "È stato tolto un file dei risultati incompiuto"));
    EXPECT_EQ(nomi(), "muro.kvd ");
}

// The results are up to date and are read; nothing can be made beside them, a lock neither.
TEST_F(FileOccupato, IsNoMatterInAFolderThatCantBeWritten) {
    altra.lascia();
    ASSERT_EQ(esegui("calcola").codice, 0);
    fs::permissions(cartella.percorso(), fs::perms::owner_read | fs::perms::owner_exec);
    const Ambiente nessunDiritto{.senzaPrivilegi = true};
    const auto letti = esegui("calcola", {}, nessunDiritto);
    const auto scritti = esegui("relazione", {}, nessunDiritto);
    fs::permissions(cartella.percorso(), fs::perms::owner_all);
    if (letti.codice == 127) GTEST_SKIP() << "root without the right to give up its rights";
    EXPECT_EQ(letti.codice, 0) << letti.errori;
    EXPECT_EQ(scritti.codice, 3);
    EXPECT_TRUE(dice(scritti.errori, "muro.TAB: impossibile scrivere il file")) << scritti.errori;
}

}  // namespace
}  // namespace korven::batch
