// What verifica would list is told by the commands that compute, too.

#include <nlohmann/json.hpp>

#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

using Json = nlohmann::json;
using test::dice;

class Rilievi : public test::BancoConsole {
 protected:
    // A length with a decimal comma, which computes as 8.
    void virgola() {
        auto testo = test::contenuto(progetto);
        const std::string lunghezza = "\r\n12\r\n12000\r\n";
        const auto posto = testo.find(lunghezza);
        ASSERT_NE(posto, std::string::npos);
        test::metti(progetto, testo.replace(posto, 6, "\r\n8,5\r\n"));
    }
    static std::vector<std::string> elencati(const std::string& testo) {
        std::vector<std::string> tutti;
        for (std::size_t da = testo.find("pericolo: "); da != std::string::npos;
             da = testo.find("pericolo: ", da + 1))
            tutti.push_back(testo.substr(da, testo.find('\n', da) - da));
        return tutti;
    }
};

const std::string letto = "lunghezza della paratia = 8: il resto della riga non conta";

TEST_F(Rilievi, AreWrittenByEveryCommandThatComputesAsVerificaListsThem) {
    virgola();
    const auto attesi = elencati(esegui("verifica").uscita);
    ASSERT_FALSE(attesi.empty());
    const std::vector<std::pair<const char*, std::vector<std::string>>> comandi = {
        {"calcola", {}},
        {"calcola", {"--silenzioso"}},
        {"relazione", {}},
        {"diagramma", {"--tipo", "momenti", "--dxf", cartella / "m.dxf"}},
        {"tutto", {"--uscita", cartella / "tutto", "--formati", "dxf"}}};
    for (const auto& [comando, altri] : comandi) {
        const auto esito = esegui(comando, altri);
        EXPECT_EQ(esito.codice, 0) << comando << esito.errori;
        EXPECT_EQ(elencati(esito.errori), attesi) << comando;
        EXPECT_TRUE(dice(esito.errori, letto)) << esito.errori;
    }
}

TEST_F(Rilievi, AreInTheJsonOfEveryCommandThatComputes) {
    virgola();
    const Json attesi = Json::parse(esegui("verifica", {"--calcola", "--json"}).uscita)["rilievi"];
    EXPECT_GT(attesi.size(), Json::parse(esegui("verifica", {"--json"}).uscita)["rilievi"].size());
    for (const char* comando : {"calcola", "relazione"}) {
        const Json j = Json::parse(esegui(comando, {"--json"}).uscita);
        EXPECT_EQ(j["rilievi"], attesi) << comando;
        EXPECT_TRUE(j["messaggi"].empty());
    }
}

TEST_F(Rilievi, AreNoneForASoundProject) {
    // In ten segments its mesh is too coarse, which is told.
    const std::vector<std::string> calcola = {"calcola", progetto, "--nseg", "50"};
    auto silenzioso = calcola, json = calcola;
    silenzioso.emplace_back("--silenzioso");
    json.emplace_back("--json");
    EXPECT_EQ(console(silenzioso).errori, "");
    EXPECT_EQ(Json::parse(console(json).uscita)["rilievi"], Json::array());
}

TEST_F(Rilievi, NameAllThatPreventsARunAndNotItsFirstReasonAlone) {
    auto d = test::progettoSemplice();
    d.lunghezzaParatia = 0;
    d.nFasi = 0;
    scrivi(d);
    const auto esito = esegui("relazione", {"--json"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori, "impedisce il calcolo: Non sono ancora state definite le fasi"));
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["messaggi"].size(), 1u);
    EXPECT_GE(j["rilievi"].size(), 2u);
}

TEST_F(Rilievi, TellAWallTooShortAsTheRunDoes) {
    auto d = test::progettoSemplice();
    d.nTiranti = 0;
    d.nFasi = 1;
    d.profFase[1] = 11.9;
    scrivi(d);
    const auto verifica = esegui("verifica");
    EXPECT_EQ(verifica.codice, 1);
    EXPECT_TRUE(
        dice(verifica.uscita, "impedisce il calcolo: fase 1: La geometria assegnata al diaframma"));
    EXPECT_EQ(esegui("relazione").codice, 1);
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(Rilievi, TellAValueThatNoReportCouldShowAsTheReportDoes) {
    auto d = test::progettoSemplice();
    d.sforzoNormale = 1e308;  // is in no report
    scrivi(d);
    EXPECT_EQ(esegui("verifica").codice, 1);
    const auto esito = esegui("relazione");
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori, "i dati portano a un valore troppo grande")) << esito.errori;
}

TEST_F(Rilievi, OfResultsAreToldAfterARunAndListedByVerificaWhenAskedFor) {
    auto d = test::progettoSemplice();
    d.lunghezzaParatia = 7.5;
    scrivi(d);
    const std::string detto = "pericolo: fase 2: Prof. [m] = 5: riduzione della resistenza F = ";
    EXPECT_FALSE(dice(esegui("verifica").uscita, detto));
    EXPECT_TRUE(dice(esegui("verifica", {"--calcola"}).uscita, detto));
    const auto esito = esegui("calcola", {"--silenzioso"});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_TRUE(dice(esito.errori, detto)) << esito.errori;
    EXPECT_EQ(esegui("calcola", {"--severo"}).codice, 1);
}

class Severo : public Rilievi {};

TEST_F(Severo, EndsWith1ForADangerWithAllFilesWrittenAndTheTableShown) {
    virgola();
    const auto atteso = esegui("relazione", {"--txt", "--uscita", cartella / "a"});
    ASSERT_EQ(atteso.codice, 0);
    const auto esito = esegui("relazione", {"--txt", "--severo", "--uscita", cartella / "a"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.uscita, "Spostamento max. [mm]")) << esito.uscita;
    EXPECT_TRUE(dice(esito.uscita, "File scritto: " + cartella / "a/muro.txt"));
    EXPECT_TRUE(
        dice(esito.errori, "1 pericolo: con --severo il comando finisce con il codice 1\n"));
    EXPECT_FALSE(dice(esito.errori, "File di un calcolo precedente"));
}

TEST_F(Severo, SaysWhyInTheJsonThatHoldsTheResultsAllTheSame) {
    virgola();
    const auto esito = esegui("calcola", {"--severo", "--json"});
    EXPECT_EQ(esito.codice, 1);
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["codice"], 1);
    EXPECT_EQ(j["messaggi"],
              Json::array({"1 pericolo: con --severo il comando finisce con il codice 1"}));
    EXPECT_EQ(j["calcolo"]["fasi"].size(), 2u);
    EXPECT_EQ(j["osservazioni"][0]["codice"], "resto-della-riga");
    EXPECT_EQ(j["osservazioni"][0]["peso"], "pericolo");
}

TEST_F(Severo, EndsVerificaWith1ForAProjectThatCanBeComputedAllTheSame) {
    virgola();
    EXPECT_EQ(esegui("verifica").codice, 0);
    const auto esito = esegui("verifica", {"--severo"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.uscita, "Il progetto può essere calcolato.")) << esito.uscita;
    const auto json = esegui("verifica", {"--severo", "--json"});
    EXPECT_EQ(Json::parse(json.uscita)["calcolabile"], true);
}

TEST_F(Severo, ChangesNothingForAProjectWithoutDanger) {
    EXPECT_EQ(esegui("calcola", {"--severo", "--silenzioso"}).codice, 0);
}

TEST_F(Rilievi, ToBeLookedAtAreCountedByTheCommandsThatComputeAndListedByVerifica) {
    auto d = test::progettoSemplice();
    d.profStrato[d.nStrati] = 250;
    scrivi(d);
    const auto verifica = esegui("verifica");
    ASSERT_TRUE(dice(verifica.uscita, "da vedere: strato ")) << verifica.uscita;
    const auto esito = esegui("calcola");
    EXPECT_FALSE(dice(esito.errori, "da vedere: strato ")) << esito.errori;
    EXPECT_TRUE(dice(esito.errori, " da vedere: korven32c verifica --calcola --nseg 10 "))
        << esito.errori;
    EXPECT_TRUE(esegui("calcola", {"--silenzioso"}).errori.empty());
}

}  // namespace
}  // namespace korven::batch
