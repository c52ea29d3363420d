#include <signal.h>

#include <chrono>
#include <nlohmann/json.hpp>
#include <thread>

#include "batch_bench.hpp"

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
        EXPECT_EQ(esito.errori, "Calcolo interrotto dall'utente.\n");
        EXPECT_TRUE(esito.uscita.empty());
        EXPECT_EQ(nomi(), "muro.kvd ");
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
