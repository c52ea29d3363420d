#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "batch/batch_bench.hpp"
#include "support/sample_sections.hpp"

namespace korven::batch {
namespace {

using test::dice;
using test::progettoSemplice;

using EsitoTesto = test::BancoConsole;

std::vector<std::string> righe(const std::string& testo) {
    std::vector<std::string> tutte;
    std::istringstream flusso(testo);
    for (std::string riga; std::getline(flusso, riga);) tutte.push_back(riga);
    return tutte;
}

TEST_F(EsitoTesto, ShowsALineAStageAndTheFilesThatWereWritten) {
    const auto esito = esegui("relazione", {"--txt"});
    EXPECT_EQ(esito.codice, 0);
    const auto tutte = righe(esito.uscita);
    ASSERT_EQ(tutte.size(), 7u) << esito.uscita;
    EXPECT_EQ(tutte[0],
              "Fase  Iterazioni  Scavo [m]  Spostamento max. [mm]  Momento max. [kN m/m]  "
              "Momento min. [kN m/m]");
    EXPECT_TRUE(tutte[1].starts_with("   1  ")) << tutte[1];
    EXPECT_TRUE(dice(tutte[2], "  5.00  ")) << tutte[2];
    EXPECT_EQ(tutte[1].size(), tutte[0].size());
    EXPECT_EQ(tutte[3], "Calcolo eseguito.");
    EXPECT_EQ(tutte[4], "File scritto: " + cartella / "muro.OUT");
    EXPECT_EQ(tutte[5], "File scritto: " + cartella / "muro.TAB");
    EXPECT_EQ(tutte[6], "File scritto: " + cartella / "muro.txt");
}

// What JSON tells of a stage stands in its line, and no other stage's.
TEST_F(EsitoTesto, HasTheIterationsOfEachStageInItsLine) {
    auto d = progettoSemplice();
    d.profFase[1] = 0.2;  // next to no excavation: fewer iterations
    scrivi(d);
    const auto stampate = righe(esegui("calcola").uscita);
    std::filesystem::remove(cartella / "muro.OUT");
    const auto j = nlohmann::json::parse(esegui("calcola", {"--json"}).uscita);
    const auto& fasi = j.at("calcolo").at("fasi");
    ASSERT_EQ(fasi.size(), 2u);
    EXPECT_NE(fasi[0]["iterazioni"], fasi[1]["iterazioni"]);
    for (std::size_t k = 0; k < fasi.size(); ++k) {
        std::istringstream riga(stampate.at(k + 1));
        int fase = 0, iterazioni = 0;
        riga >> fase >> iterazioni;
        EXPECT_EQ(fase, fasi[k]["fase"]);
        EXPECT_EQ(iterazioni, fasi[k]["iterazioni"]);
    }
}

TEST_F(EsitoTesto, SaysThatTheResultFileWasUpToDateAndWritesItNoMore) {
    const std::vector<std::string> calcola = {"calcola", progetto, "--nseg", "50"};
    ASSERT_EQ(console(calcola).codice, 0);
    const auto esito = console(calcola);
    EXPECT_EQ(esito.codice, 0);
    EXPECT_TRUE(esito.errori.empty());  // no progress
    const auto tutte = righe(esito.uscita);
    ASSERT_EQ(tutte.size(), 4u) << esito.uscita;
    EXPECT_TRUE(tutte[1].starts_with("   1           -  ")) << tutte[1];
    EXPECT_EQ(tutte[3], "Il file dei risultati era già aggiornato: nessun calcolo eseguito.");
}

TEST_F(EsitoTesto, RunsAgainAfterAChangeOfASingleNumber) {
    ASSERT_EQ(esegui("calcola").codice, 0);
    auto d = progettoSemplice();
    d.phiStrato[1] = 30.5;
    scrivi(d);
    EXPECT_TRUE(dice(esegui("calcola").uscita, "Calcolo eseguito."));
}

TEST_F(EsitoTesto, TellsASectionCheckThatFailsAndEndsWellAllTheSame) {
    auto d = progettoSemplice();
    d.sezione = structure::diaframmaSimmetrico();
    d.sezione.diametroMonte = d.sezione.diametroValle = 0.1;  // hardly any steel
    scrivi(d);
    const std::string detto = "\nCONDIZIONI DI SICUREZZA NON VERIFICATE (momento ";
    const auto esito = esegui("relazione");
    EXPECT_EQ(esito.codice, 0);
    const auto tabella = esito.uscita.find("Calcolo eseguito.\n");
    ASSERT_NE(tabella, std::string::npos);
    EXPECT_TRUE(dice(esito.uscita.substr(tabella), detto)) << esito.uscita;
    EXPECT_TRUE(dice(test::contenuto(cartella / "muro.TAB"), detto));
    d.sezione = {};
    scrivi(d);
    EXPECT_FALSE(dice(esegui("relazione").uscita, "SICUREZZA"));
}

TEST_F(EsitoTesto, TellsWhatAReviewFound) {
    scrivi(test::progettoSulNodo());
    auto esito = esegui("verifica");
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.uscita, "Il progetto può essere calcolato.\n");
    auto d = test::progettoSulNodo();
    d.rigidezzaEJ = 0;
    d.vincoloTesta = 0;
    scrivi(d);
    esito = esegui("verifica");
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(
        esito.uscita,
        "impedisce il calcolo: Il valore di EJ non è ancora stato definito.\n"
        "pericolo: vincolo in testa = 0: codice non previsto: la testa conta come libera (1)\n"
        "Il progetto non può essere calcolato.\n");
    EXPECT_EQ(nomi(), "muro.kvd ");  // nothing is computed or written
}

}  // namespace
}  // namespace korven::batch
