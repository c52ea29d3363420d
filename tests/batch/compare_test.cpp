// The command `confronta` from outside.

#include <nlohmann/json.hpp>

#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

using Json = nlohmann::json;
using test::dice;
using test::progettoSemplice;

class Confronta : public test::BancoConsole {
 protected:
    void scriviDopo(const project::DatiProgetto& dati) const {
        test::metti(dopo, base::inCp1252(project::testoProgetto(dati)));
    }
    [[nodiscard]] test::EsitoProgramma confronta(std::vector<std::string> altri = {}) const {
        altri.insert(altri.begin(), {"confronta", progetto, dopo, "--nseg", "10"});
        return console(altri);
    }
    [[nodiscard]] static const Json& risultato(const Json& risposta, const std::string& nome,
                                               const Json& fase = nullptr) {
        for (const Json& r : risposta["confronta"]["risultati"])
            if (r["risultato"] == nome && r["fase"] == fase) return r;
        throw std::out_of_range(nome);
    }

    std::string dopo = cartella / "dopo.kvd";
};

TEST_F(Confronta, SaysOfEqualProjectsThatNothingDiffers) {
    scriviDopo(progettoSemplice());
    const auto esito = confronta();
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "Nessuna differenza.\n")) << esito.uscita;
    EXPECT_TRUE(dice(esito.uscita, "della soluzione di equilibrio")) << esito.uscita;
    EXPECT_FALSE(dice(esito.uscita, "Campi diversi")) << esito.uscita;
    EXPECT_EQ(nomi(), "dopo.kvd muro.kvd ");
}

TEST_F(Confronta, TellsTheFieldAndTheResultsAsTextAndAsJson) {
    auto dati = progettoSemplice();
    dati.sovraccMonte = 3;
    scriviDopo(dati);
    const auto esito = confronta();
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "sovraccarico")) << esito.uscita;
    EXPECT_TRUE(dice(esito.uscita, "Momento positivo massimo [kN m/m]")) << esito.uscita;
    const auto risposta = confronta({"--json"});
    const Json j = Json::parse(risposta.uscita);
    EXPECT_EQ(j["comando"], "confronta");
    EXPECT_EQ(j["progetto"], progetto);
    const Json& c = j["confronta"];
    EXPECT_EQ(c["origine"], "equilibrio");
    EXPECT_EQ(c["uguali"], false);
    ASSERT_EQ(c["campi"].size(), 1U);
    EXPECT_EQ(c["campi"][0]["campo"], "sovraccMonte");
    EXPECT_EQ(c["campi"][0]["prima"], 10);
    EXPECT_EQ(c["campi"][0]["dopo"], 30);
    // The same numbers as the command that computes them.
    const Json prima = Json::parse(esegui("equilibrio", {"--json"}).uscita)["equilibrio"]["fasi"];
    for (const int fase : {1, 2}) {
        const Json& M = risultato(j, "momento_massimo", fase);
        const auto k = static_cast<std::size_t>(fase) - 1;
        EXPECT_EQ(M["prima"], prima[k]["momento_massimo_kNm"]);
        const double uno = M["prima"], altro = M["dopo"];
        EXPECT_NEAR(M["differenza_percento"], 100 * (altro - uno) / uno, 1e-4);
    }
}

TEST_F(Confronta, EndsWith1WhereAWallFallsOnlyAfter) {
    auto dati = progettoSemplice();
    dati.profFase[1] = 11.9;
    scriviDopo(dati);
    const auto esito = confronta({"--json"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori, "dopo.kvd: la paratia è un meccanismo nella fase 1"))
        << esito.errori;
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["confronta"]["prima"]["in_equilibrio"], true);
    EXPECT_EQ(j["confronta"]["dopo"]["in_equilibrio"], false);
    const Json& M = risultato(j, "momento_massimo");
    EXPECT_TRUE(M["prima"].is_number());
    EXPECT_TRUE(M["dopo"].is_null());
    EXPECT_TRUE(M["parola_dopo"].is_string());
    EXPECT_TRUE(dice(confronta().uscita, "Campi diversi"));
}

TEST_F(Confronta, TakesTwoResultFiles) {
    ASSERT_EQ(esegui("calcola").codice, 0);
    const std::string altra = cartella / "altra";
    ASSERT_EQ(console({"calcola", progetto, "--nseg", "20", "--uscita", altra}).codice, 0);
    const auto esito = console({"compare", cartella / "muro.OUT", altra + "/muro.OUT", "--json"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["confronta"]["origine"], "file_risultati");
    EXPECT_EQ(j["confronta"]["prima"]["segmenti"], 10);
    EXPECT_EQ(j["confronta"]["dopo"]["segmenti"], 20);
    EXPECT_TRUE(j["confronta"]["campi"].empty());
    const Json corsa = Json::parse(esegui("calcola", {"--json"}).uscita)["calcolo"];
    EXPECT_EQ(risultato(j, "momento_massimo")["prima"], corsa["momento_massimo_kNm"]);
    const auto misto = console({"confronta", cartella / "muro.OUT", progetto});
    EXPECT_EQ(misto.codice, 2);
    EXPECT_TRUE(dice(misto.errori, "è un file di risultati")) << misto.errori;
}

TEST_F(Confronta, RefusesOptionsThatResultFilesCannotFollow) {
    ASSERT_EQ(esegui("calcola").codice, 0);
    const std::string risultati = cartella / "muro.OUT";
    const std::vector<std::string> opzioni[] = {
        {"--nseg", "20"}, {"--metodo-spinte", "bell"}, {"--ej", "ricalcola"}};
    for (const auto& opzione : opzioni) {
        const auto esito = console({"confronta", risultati, risultati, opzione[0], opzione[1]});
        EXPECT_EQ(esito.codice, 2) << opzione[0];
        EXPECT_TRUE(dice(esito.errori, opzione[0] + ' ' + opzione[1] + " vale per progetti"))
            << esito.errori;
    }
}

TEST_F(Confronta, ListsTheOptionsThatOverrideBothProjects) {
    scriviDopo(progettoSemplice());
    const std::vector<std::string> altri = {"--metodo-spinte", "rankine", "--ej", "ricalcola"};
    const std::string frase =
        "Opzioni, per ambedue al posto di ciò che i progetti dicono: --metodo-spinte rankine, --ej "
        "ricalcola, --nseg 10.\n";
    const auto esito = confronta(altri);
    EXPECT_TRUE(dice(esito.uscita, frase)) << esito.uscita;
    auto inJson = altri;
    inJson.emplace_back("--json");
    EXPECT_EQ(Json::parse(confronta(inJson).uscita)["confronta"]["opzioni"],
              (Json{"--metodo-spinte rankine", "--ej ricalcola", "--nseg 10"}));
    const auto senza = console({"confronta", progetto, dopo});
    EXPECT_FALSE(dice(senza.uscita, "Opzioni, per ambedue")) << senza.uscita;
}

TEST_F(Confronta, FindsAPlaceForItsPagesThatCannotBeWrittenBeforeItComputes) {
    scriviDopo(progettoSemplice());
    const auto esito = confronta({"--pdf", cartella.percorso(), "--json"});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(Json::parse(esito.uscita)["confronta"].is_null());
    EXPECT_TRUE(dice(esito.errori, "(è una cartella)")) << esito.errori;
}

TEST_F(Confronta, KeepsTheProjectsOfTwoResultFilesFromItsPages) {
    ASSERT_EQ(esegui("calcola").codice, 0);
    const std::string risultati = cartella / "muro.OUT";
    for (const std::string& file : {progetto, risultati}) {
        const std::string prima = test::contenuto(file);
        EXPECT_EQ(console({"confronta", risultati, risultati, "--pdf", file}).codice, 2) << file;
        EXPECT_TRUE(test::contenuto(file) == prima) << file;
    }
}

TEST_F(Confronta, WritesThePagesOfBothWallsAndKeepsTheProjectsFromThem) {
    auto dati = progettoSemplice();
    dati.sovraccMonte = 3;
    scriviDopo(dati);
    const std::string pdf = cartella / "c.pdf";
    const auto esito = confronta({"--pdf", pdf});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(test::contenuto(pdf).starts_with("%PDF-"));
    EXPECT_TRUE(dice(esito.uscita, "File scritto: " + pdf)) << esito.uscita;
    for (const std::string& file : {progetto, dopo, std::string(cartella / "dopo.OUT")}) {
        const bool ce = std::filesystem::exists(file);
        const std::string prima = ce ? test::contenuto(file) : std::string();
        EXPECT_NE(confronta({"--pdf", file}).codice, 0) << file;
        EXPECT_EQ(std::filesystem::exists(file), ce);
        EXPECT_EQ(ce ? test::contenuto(file) : std::string(), prima);
    }
}

TEST_F(Confronta, TellsWhichFileCannotBeRead) {
    const auto manca = confronta();
    EXPECT_EQ(manca.codice, 3);
    EXPECT_TRUE(dice(manca.errori, "dopo.kvd")) << manca.errori;
    EXPECT_EQ(console({"confronta", progetto}).codice, 2);
    scriviDopo(progettoSemplice());
    EXPECT_EQ(confronta({"--csv", cartella / "x.csv"}).codice, 2);
    // A project that was cut, and a file that is none: what a result file is told helps neither.
    const std::string intero = test::contenuto(progetto);
    for (const std::string& rotto :
         {intero.substr(0, intero.size() / 2), std::string("%PDF-1.7\n%abc\n")}) {
        test::metti(dopo, rotto);
        const auto esito = confronta();
        EXPECT_EQ(esito.codice, 3);
        EXPECT_TRUE(dice(esito.errori, "dopo.kvd")) << esito.errori;
        EXPECT_FALSE(dice(esito.errori, "cancellarlo")) << esito.errori;
        EXPECT_FALSE(dice(esito.errori, "il file dei risultati")) << esito.errori;
    }
}

}  // namespace
}  // namespace korven::batch
