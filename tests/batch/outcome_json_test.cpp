#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>

#include "batch_bench.hpp"

namespace korven::batch {
namespace {

using Json = nlohmann::json;
using test::dice;
using test::progettoSemplice;

using EsitoJson = test::BancoConsole;

TEST_F(EsitoJson, HoldsWhatTheTextSays) {
    const auto testo = esegui("relazione", {"--txt", "--uscita", cartella / "a"});
    const auto esito = esegui("relazione", {"--txt", "--json", "--uscita", cartella / "b"});
    EXPECT_EQ(esito.codice, 0);
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["programma"], "KORVEN 32");
    EXPECT_EQ(j["comando"], "relazione");
    EXPECT_EQ(j["codice"], 0);
    EXPECT_EQ(j["messaggi"], Json::array());
    EXPECT_EQ(j["calcolo"]["segmenti"], 10);
    EXPECT_EQ(j["calcolo"]["gia_aggiornato"], false);
    EXPECT_EQ(j["calcolo"]["fattore_azioni"], 1.4);
    EXPECT_EQ(j["file"]["risultati"], cartella / "b/muro.OUT");
    EXPECT_EQ(j["file"]["relazione"], cartella / "b/muro.TAB");
    EXPECT_EQ(j["file"]["testo"], cartella / "b/muro.txt");
    ASSERT_EQ(j["calcolo"]["fasi"].size(), 2u);

    std::istringstream tabella(testo.uscita);
    std::string riga;
    std::getline(tabella, riga);
    for (const auto& fase : j["calcolo"]["fasi"]) {
        int numero = 0, iterazioni = 0;
        double scavo = 0, spostamento = 0, massimo = 0, minimo = 0;
        tabella >> numero >> iterazioni >> scavo >> spostamento >> massimo >> minimo;
        EXPECT_EQ(fase["fase"], numero);
        EXPECT_EQ(fase["iterazioni"], iterazioni);
        EXPECT_NEAR(fase["scavo_m"].get<double>(), scavo, 0.005);
        EXPECT_NEAR(fase["spostamento_massimo_m"].get<double>() * 100, spostamento, 0.00005001);
        EXPECT_NEAR(fase["momento_massimo_kNm"].get<double>(), massimo, 0.005001);
        EXPECT_NEAR(fase["momento_minimo_kNm"].get<double>(), minimo, 0.005001);
    }
}

TEST_F(EsitoJson, HasNoIterationsForStagesThatWereNotComputedNow) {
    ASSERT_EQ(esegui("calcola").codice, 0);
    const Json j = Json::parse(esegui("calcola", {"--json"}).uscita);
    EXPECT_EQ(j["calcolo"]["gia_aggiornato"], true);
    EXPECT_TRUE(j["calcolo"]["fasi"][0]["iterazioni"].is_null());
    EXPECT_TRUE(j["file"]["relazione"].is_null());
}

TEST_F(EsitoJson, TellsARefusalWithItsMessages) {
    auto d = progettoSemplice();
    d.rigidezzaEJ = 0;
    scrivi(d);
    const auto esito = esegui("calcola", {"--json"});
    EXPECT_EQ(esito.codice, 1);
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["codice"], 1);
    EXPECT_EQ(j["messaggi"], Json::array({"Il valore di EJ non è ancora stato definito."}));
    EXPECT_TRUE(j["calcolo"].is_null());
    EXPECT_TRUE(j["file"]["risultati"].is_null());
}

TEST_F(EsitoJson, TellsBrokenInputWithFileAndLine) {
    test::metti(progetto, "due\r\n");
    const auto esito = esegui("verifica", {"--json"});
    EXPECT_EQ(esito.codice, 3);
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["codice"], 3);
    EXPECT_EQ(j["calcolabile"], false);
    EXPECT_TRUE(dice(j["messaggi"][0], "muro.kvd, riga 1: ")) << esito.uscita;
}

TEST_F(EsitoJson, ListsWhatAReviewFound) {
    auto d = progettoSemplice();
    d.rigidezzaEJ = 0;
    d.vincoloTesta = 0;
    scrivi(d);
    const Json j = Json::parse(esegui("verifica", {"--json"}).uscita);
    EXPECT_EQ(j["calcolabile"], false);
    ASSERT_EQ(j["rilievi"].size(), 2u);
    EXPECT_EQ(j["rilievi"][0]["impedisce"], true);
    EXPECT_EQ(j["rilievi"][1]["impedisce"], false);
    EXPECT_EQ(j["rilievi"][1]["testo"],
              "vincolo in testa = 0: codice non previsto: la testa conta come libera (1)");
}

TEST_F(EsitoJson, StaysReadableForAPathThatIsNoUtf8) {
    const std::string strano = cartella / "muro\xE0.kvd";
    std::filesystem::copy(progetto, strano);
    const auto esito = console({"calcola", strano, "--nseg", "10", "--json"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_FALSE(Json::parse(esito.uscita)["calcolo"].is_null());
    EXPECT_TRUE(std::filesystem::exists(cartella / "muro\xE0.OUT"));
}

TEST_F(EsitoJson, KeepsTheOutputFreeOfAnythingElse) {
    const auto esito = esegui("calcola", {"--json", "--silenzioso"});
    EXPECT_TRUE(esito.errori.empty());
    EXPECT_TRUE(Json::accept(esito.uscita));
}

}  // namespace
}  // namespace korven::batch
