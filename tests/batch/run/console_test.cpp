#include <sstream>

#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

using test::dice;

using Console = test::BancoConsole;

TEST_F(Console, WritesOneLineAStageOnTheErrorOutputWhenItIsNoTerminal) {
    const auto esito = console({"calcola", progetto, "--nseg", "50"});
    std::istringstream flusso(esito.errori);
    std::vector<std::string> righe;
    for (std::string riga; std::getline(flusso, riga);) righe.push_back(riga);
    ASSERT_EQ(righe.size(), 2u) << esito.errori;
    for (int fase = 1; fase <= 2; ++fase) {
        const auto& riga = righe[static_cast<std::size_t>(fase - 1)];
        EXPECT_TRUE(riga.starts_with("fase=" + std::to_string(fase) + "   iter.=")) << riga;
        EXPECT_TRUE(dice(riga, "   Ymax=0.")) << riga;
        EXPECT_TRUE(dice(riga, "   Mmax=")) << riga;
        EXPECT_FALSE(dice(riga, "\r")) << riga;
        EXPECT_FALSE(dice(riga, "\x1b")) << riga;
    }
}

TEST_F(Console, RecordsSlowStagesOnRequestAlone) {
    // The sample comes to rest quickly; a stage of few iterations has no record.
    EXPECT_FALSE(dice(esegui("calcola", {"--traccia"}).uscita, "cambi: "));
    scrivi(test::progettoLento());
    const std::vector<std::string> comando = {"calcola", progetto, "--nseg", "30"};
    EXPECT_FALSE(dice(console(comando).uscita, "cambi: "));
    std::filesystem::remove(cartella / "muro.OUT");
    auto conTraccia = comando;
    conTraccia.emplace_back("--traccia");
    const auto esito = console(conTraccia);
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(
        dice(esito.uscita, "Calcolo eseguito.\nFase 1, 22 iterazioni:\n  nodi 1-20 (0-7.6 m), "))
        << esito.uscita;
    EXPECT_TRUE(dice(esito.uscita, " cambi: ")) << esito.uscita;
    // A file that is up to date tells no iterations.
    EXPECT_FALSE(dice(console(conTraccia).uscita, "cambi: "));
}

}  // namespace
}  // namespace korven::batch
