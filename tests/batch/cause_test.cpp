// What became of a run, in JSON and in words, for walls that its own message tells too little of.

#include <nlohmann/json.hpp>

#include "analysis/calcolo_paratia.hpp"
#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

using Json = nlohmann::json;
using test::dice;

class CausaDiUnaCorsa : public test::BancoConsole {
 protected:
    void prendi(const std::string& nome) {
        std::filesystem::copy_file(std::string(KORVEN_WALLS) + "/" + nome + ".kvd", progetto,
                                   std::filesystem::copy_options::overwrite_existing);
    }
    [[nodiscard]] test::EsitoProgramma corsa(const std::string& comando,
                                             std::vector<std::string> altri = {}) const {
        altri.insert(altri.begin(), {comando, progetto, "--json"});
        return console(altri);
    }
};

TEST_F(CausaDiUnaCorsa, IsToldAfterTheMessageOfASingularSystemWhichStaysAsItIs) {
    prendi("meccanismo");
    const auto esito = corsa("calcola");
    EXPECT_EQ(esito.codice, 1);
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["causa"], "meccanismo");
    EXPECT_EQ(j["messaggi"], Json::array({analysis::messaggioSingolare}));
    const std::string frase = j["spiegazione"];
    EXPECT_TRUE(
        frase.starts_with("la paratia è un meccanismo nella fase 1: ruota attorno alla "
                          "profondità di "))
        << frase;
    EXPECT_TRUE(dice(esito.errori, std::string("ATTENZIONE! ") + analysis::messaggioSingolare +
                                       "\n" + frase + "\n"))
        << esito.errori;
}

TEST_F(CausaDiUnaCorsa, IsTheIterationAloneOfWallsThatStand) {
    for (const char* nome :
         {"oscilla_1", "oscilla_2", "oscilla_3", "singolare_1", "singolare_2", "singolare_3"}) {
        prendi(nome);
        const auto esito = corsa("relazione", {"--max-iterazioni", "200", "--silenzioso"});
        EXPECT_EQ(esito.codice, 1) << nome;
        const Json j = Json::parse(esito.uscita);
        EXPECT_EQ(j["causa"], "oscilla") << nome;
        EXPECT_TRUE(dice(j["spiegazione"], std::string(nome).starts_with("oscilla")
                                               ? "oscilla soltanto l'iterazione"
                                               : "soltanto l'iterazione si ferma davanti a"))
            << nome;
        EXPECT_TRUE(dice(esito.errori, "\n" + std::string(j["spiegazione"]) + "\n")) << nome;
    }
}

TEST_F(CausaDiUnaCorsa, IsToldByEveryCommandThatComputes) {
    prendi("meccanismo");
    const std::vector<std::string> comandi[] = {
        {"relazione"},
        {"verifica"},
        {"diagramma", "--tipo", "momenti", "--pdf", cartella / "m.pdf"},
        {"tutto", "--uscita", cartella / "tutto"},
    };
    for (const auto& comando : comandi) {
        const auto esito = corsa(comando[0], {comando.begin() + 1, comando.end()});
        EXPECT_EQ(esito.codice, 1) << comando[0];
        EXPECT_EQ(Json::parse(esito.uscita)["causa"], "meccanismo") << comando[0];
        EXPECT_TRUE(dice(esito.errori, "\nla paratia è un meccanismo") ||
                    esito.errori.starts_with("la paratia è un meccanismo"))
            << comando[0];
    }
    const Json sezione = Json::parse(corsa("sezione", {"--dxf", cartella / "s.dxf"}).uscita);
    EXPECT_FALSE(sezione.contains("causa"));
}

TEST_F(CausaDiUnaCorsa, IsEseguitoOfARunAndOfResultsThatAreUpToDate) {
    prendi("acqua_1000");
    for (int volta = 0; volta < 2; ++volta) {
        const Json j = Json::parse(corsa("calcola").uscita);
        EXPECT_EQ(j["causa"], "eseguito");
        EXPECT_TRUE(j["spiegazione"].is_null());
    }
    EXPECT_EQ(Json::parse(corsa("verifica").uscita)["causa"], "eseguito");
}

TEST_F(CausaDiUnaCorsa, IsARefusalWithoutASentenceWhereTheDataAreRefused) {
    auto dati = test::progettoSemplice();
    dati.rigidezzaEJ = 0;
    scrivi(dati);
    for (const char* comando : {"calcola", "verifica"}) {
        const Json j = Json::parse(corsa(comando).uscita);
        EXPECT_EQ(j["causa"], "rifiutato") << comando;
        EXPECT_TRUE(j["spiegazione"].is_null()) << comando;
    }
    dati = test::progettoSemplice();
    dati.inclinazioneMonte = 60;  // beyond the friction angle: the soil of stage 1 has no value
    scrivi(dati);
    EXPECT_EQ(Json::parse(corsa("calcola").uscita)["causa"], "rifiutato");
}

TEST_F(CausaDiUnaCorsa, IsNothingWhereTheProjectCannotBeRead) {
    test::metti(progetto, "due\r\n");
    for (const char* comando : {"calcola", "verifica"}) {
        const Json j = Json::parse(corsa(comando).uscita);
        EXPECT_TRUE(j["causa"].is_null()) << comando;
        EXPECT_TRUE(j["spiegazione"].is_null()) << comando;
    }
}

// A moment that no restraint can take without a displacement beyond all walls.
TEST_F(CausaDiUnaCorsa, IsNoNumberWhereTheWallMovesBeyondAllUse) {
    auto dati = test::progettoSemplice();
    dati.momentoTesta = 1e306;
    dati.rigidezzaEJ = 1e300;
    dati.vincoloTesta = 2;
    dati.vincoloPiede = 3;
    scrivi(dati);
    const auto esito = corsa("calcola", {"--nseg", "10"});
    EXPECT_EQ(esito.codice, 1) << esito.errori;
    EXPECT_EQ(Json::parse(esito.uscita)["causa"], "nessun_numero") << esito.errori;
}

}  // namespace
}  // namespace korven::batch
