#include <memory>

#include "batch_bench.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;

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

}  // namespace
}  // namespace korven::batch
