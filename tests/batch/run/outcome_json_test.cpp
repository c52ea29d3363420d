#include <cmath>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>

#include "base/number_text.hpp"
#include "batch/batch_bench.hpp"
#include "support/sample_sections.hpp"

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
        EXPECT_NEAR(fase["spostamento_massimo_m"].get<double>() * 1000, spostamento, 0.0005001);
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
    auto d = test::progettoSulNodo();
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

TEST_F(EsitoJson, IsWrittenWhenTheLanguageCannotBeHad) {
    const std::string casa = cartella / "casa";
    std::filesystem::create_directory(casa);
    for (const bool file : {false, true}) {
        std::vector<std::string> argomenti = {"--json", "--cartella", casa};
        if (file)
            test::metti(casa + "/language.cfg", "7\r\n");
        else
            argomenti.insert(argomenti.end(), {"--lingua", "deu"});
        const auto esito = esegui("calcola", argomenti);
        EXPECT_EQ(esito.codice, 3);
        const Json j = Json::parse(esito.uscita);
        EXPECT_EQ(j["codice"], 3);
        EXPECT_TRUE(j["calcolo"].is_null());
        EXPECT_TRUE(dice(j["messaggi"][0], file ? "language.cfg" : "texts01.txt")) << esito.uscita;
    }
}

TEST_F(EsitoJson, HoldsTheChecksOfTheSectionAsTheReportDecidesThem) {
    auto d = progettoSemplice();
    d.sezione = structure::diaframmaSimmetrico();
    scrivi(d);
    ASSERT_EQ(esegui("relazione").codice, 0);
    const std::string relazione = test::contenuto(cartella / "muro.TAB");
    const auto riga = [&](const std::string& etichetta) {
        const auto inizio = relazione.find(etichetta + '\t');
        return inizio == std::string::npos
                   ? std::nan("")
                   : std::atof(relazione.c_str() + inizio + etichetta.size());
    };
    const Json j = Json::parse(esegui("calcola", {"--json"}).uscita)["calcolo"];
    const Json& positivo = j["verifica_flessione"]["positivo"];
    EXPECT_NEAR(positivo["momento_calcolo_kNm"],
                riga("Momento massimo di calcolo applicato (pos) [kN m]"), 0.01);
    EXPECT_NEAR(positivo["momento_resistente_kNm"],
                riga("Momento resistente di calcolo (pos.) [kN m]"), 0.01);
    EXPECT_EQ(positivo["verificata"].get<bool>(),
              dice(relazione, "Condizioni di sicurezza verificate (momento positivo)"));
    const Json& negativo = j["verifica_flessione"]["negativo"];
    ASSERT_FALSE(negativo.is_null());
    EXPECT_NEAR(negativo["momento_resistente_kNm"],
                riga("Momento resistente di calcolo (neg.) [kN m]"), 0.01);
    EXPECT_EQ(negativo["verificata"].get<bool>(),
              dice(relazione, "Condizioni di sicurezza verificate (momento negativo)"));
    EXPECT_TRUE(j["verifica_taglio"].is_null());
    ASSERT_EQ(j["tiranti"].size(), 1u);
    EXPECT_EQ(j["tiranti"][0]["tirante"], 1);
    const std::string profondita = base::testoDecimali(d.profTirante[1], 2);
    const auto tiro =
        relazione.find("\r\n" + profondita + '\t', relazione.find("MASSIME TENSIONI"));
    ASSERT_NE(tiro, std::string::npos);
    EXPECT_NEAR(j["tiranti"][0]["tiro_massimo_kN"],
                std::atof(relazione.c_str() + tiro + 3 + profondita.size()), 0.01);
}

TEST_F(EsitoJson, HoldsTheShearCheckWhenThereAreStirrups) {
    auto d = progettoSemplice();
    d.sezione = structure::paliArmati();
    d.sezione.armDiamStaffe = 0.2;
    d.sezione.armPassoStaffe = 100;
    scrivi(d);
    const auto esito = esegui("relazione", {"--json"});
    ASSERT_EQ(esito.codice, 0) << esito.errori;
    const std::string relazione = test::contenuto(cartella / "muro.TAB");
    const Json j = Json::parse(esito.uscita)["calcolo"];
    const Json& taglio = j["verifica_taglio"];
    for (const auto& [campo, etichetta] :
         {std::pair{"taglio_calcolo_kN", "Taglio massimo di calcolo - Vsd [kN]\t"},
          {"Vrd3_kN", "armatura d'anima - Vrd3 [kN]\t"},
          {"Vrd2_kN", "bielle CLS - Vrd2 [kN]\t"}}) {
        const auto inizio = relazione.find(etichetta);
        ASSERT_NE(inizio, std::string::npos) << etichetta;
        EXPECT_NEAR(taglio[campo],
                    std::atof(relazione.c_str() + inizio + std::string_view(etichetta).size()),
                    0.01);
    }
    EXPECT_EQ(taglio["verificata"].get<bool>(), !dice(relazione, "\r\nRottura "));
    EXPECT_EQ(taglio["rotture"].empty(), taglio["verificata"].get<bool>());
}

TEST_F(EsitoJson, HasNoNullSectionChecksButForASectionAndNoSignOnAZero) {
    const auto esito = esegui("calcola", {"--json"});
    const Json j = Json::parse(esito.uscita);
    EXPECT_TRUE(j["calcolo"]["verifica_flessione"].is_null());
    EXPECT_TRUE(j["calcolo"]["verifica_taglio"].is_null());
    EXPECT_FALSE(dice(esito.uscita, "-0.0\n"));
    EXPECT_FALSE(dice(esito.uscita, "-0.0,"));
}

TEST_F(EsitoJson, KeepsTheOutputFreeOfAnythingElse) {
    const auto esito = esegui("calcola", {"--json", "--silenzioso"});
    EXPECT_TRUE(esito.errori.empty());
    EXPECT_TRUE(Json::accept(esito.uscita));
}

}  // namespace
}  // namespace korven::batch
