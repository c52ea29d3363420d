// The schema of the answers (data/json) against the answers themselves.

#include "support/json_schema.hpp"

#include <cmath>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "base/files.hpp"
#include "batch/batch_bench.hpp"
#include "live/wall.hpp"
#include "support/wall_files.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

const test::SchemaJson& schema() {
    static const test::SchemaJson suo(
        Json::parse(base::leggiFile(KORVEN_DATA "/json/korven32c.schema.json")));
    return suo;
}

class SchemaRisposte : public test::BancoConsole {
 protected:
    void prendi(const std::string& file) {
        fs::copy_file(file, progetto, fs::copy_options::overwrite_existing);
    }
    Json risposta(std::vector<std::string> argomenti) {
        argomenti.insert(argomenti.begin() + 1, progetto);
        argomenti.emplace_back("--json");
        argomenti.emplace_back("--silenzioso");
        return Json::parse(console(argomenti, base::discoDiSistema()).uscita);
    }
    void inOrdine(const std::vector<std::string>& argomenti) {
        for (const auto& errore : schema().errori(risposta(argomenti)))
            ADD_FAILURE() << argomenti.front() << ' ' << errore;
    }
};

TEST(SchemaJsonTest, FindsWhatIsMissingOfAnotherTypeOrNotNamed) {
    const test::SchemaJson suo(Json::parse(
        R"({"type":"object","required":["a"],"properties":{"a":{"$ref":"#/$defs/n"},
            "b":{"type":"array","items":{"oneOf":[{"const":1},{"type":"null"}]}},
            "c":{"enum":["x"]}},"$defs":{"n":{"type":"integer","minimum":1}}})"));
    const auto errori = [&](const char* testo) { return suo.errori(Json::parse(testo)); };
    using Errori = std::vector<std::string>;
    EXPECT_EQ(errori(R"({"a":1,"b":[1,null],"c":"x"})"), Errori{});
    EXPECT_EQ(errori("[]"), Errori{": type"});
    EXPECT_EQ(errori("{}"), Errori{"/a: required"});
    EXPECT_EQ(errori(R"({"a":1.5})"), Errori{"/a: type"});
    EXPECT_EQ(errori(R"({"a":0})"), Errori{"/a: minimum"});
    EXPECT_EQ(errori(R"({"a":1,"b":[1,2]})"), Errori{"/b/1: const"});
    EXPECT_EQ(errori(R"({"a":1,"c":"y"})"), Errori{"/c: enum"});
    EXPECT_EQ(errori(R"({"a":1,"d":0})"), Errori{"/d: name"});
    EXPECT_EQ(test::SchemaJson(Json::parse(R"({"pattern":"x"})")).errori(Json("x")),
              Errori{": keyword pattern"});
}

TEST_F(SchemaRisposte, HoldForEveryExampleAndForWallsOfWhichARunTellsLess) {
    auto muri = test::muriIn(KORVEN_EXAMPLES);
    for (const char* nome : {"meccanismo", "oscilla_1", "singolare_1"})
        muri.push_back(std::string(KORVEN_WALLS) + "/" + nome + ".kvd");
    for (const std::string& file : muri) {
        SCOPED_TRACE(file);
        prendi(file);
        inOrdine({"calcola", "--nseg", "12", "--max-iterazioni", "60", "--traccia"});
        inOrdine({"equilibrio", "--nseg", "12"});
        inOrdine({"sicurezza", "--nseg", "12"});
        for (const char* norma : {"en1997-da1", "en1997-da2", "ntc2018"})
            inOrdine({"combinazioni", "--nseg", "12", "--norma", norma});
        inOrdine({"tabelle", "--nseg", "12", "--xlsx", cartella / "t.xlsx"});
    }
    inOrdine({"verifica"});
}

TEST_F(SchemaRisposte, HoldForWhatIsRefusedOrCannotBeRead) {
    auto dati = test::progettoSemplice();
    dati.nFasi = 0;
    scrivi(dati);
    for (const char* comando :
         {"calcola", "equilibrio", "sicurezza", "tabelle", "verifica", "relazione"})
        inOrdine({comando});
    inOrdine({"combinazioni", "--norma", "ntc2018"});
    inOrdine({"combinazioni", "--norma", "nessuna"});
    fs::remove(progetto);
    inOrdine({"combinazioni", "--norma", "ntc2018"});
    for (const char* comando :
         {"calcola", "equilibrio", "sicurezza", "tabelle", "verifica", "relazione"})
        inOrdine({comando});
}

// Once it has rows a study answers with them alone.
TEST_F(SchemaRisposte, HoldForAStudyThatIsRefused) {
    inOrdine({"serie"});
    inOrdine({"serie", "--griglia", "phiStrato[1]=8:27"});
    inOrdine({"serie", "--piano", cartella / "manca.csv"});
    inOrdine({"serie", "--griglia", "phiStrato[1]=8:27:1", "--nseg", "2"});
    fs::remove(progetto);
    inOrdine({"serie", "--griglia", "phiStrato[1]=8:27:1"});
}

TEST_F(SchemaRisposte, HoldForTheVerification) {
    const Json risposta = Json::parse(console({"autoverifica", "--json"}).uscita);
    for (const auto& errore : schema().errori(risposta)) ADD_FAILURE() << errore;
}

TEST_F(SchemaRisposte, HoldForComparisons) {
    const auto inRegola = [](const std::string& prima, const std::string& dopo) {
        const Json risposta =
            Json::parse(console({"confronta", prima, dopo, "--nseg", "12", "--json"}).uscita);
        for (const auto& errore : schema().errori(risposta))
            ADD_FAILURE() << prima << ' ' << dopo << ": " << errore;
    };
    const auto muri = test::muriIn(KORVEN_EXAMPLES);
    for (std::size_t i = 1; i < muri.size(); ++i) inRegola(muri[i - 1], muri[i]);
    inRegola(muri[0], std::string(KORVEN_WALLS) + "/meccanismo.kvd");
    inRegola(muri[0], progetto + "x");
}

TEST_F(SchemaRisposte, HoldForFieldsAndTheirAssignments) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        prendi(file);
        inOrdine({"campi"});
        inOrdine({"imposta", "--uscita", cartella / "nuovo.kvd", "sovraccMonte=12.5",
                  "vincoloPiede=incastro", "sezione.tipoDiaframma=1", "sezione.tipoPali=0",
                  "sezione.tipoPalancola=0", "sezione.tipoPaliArmati=0"});
    }
    inOrdine({"imposta", "--uscita", cartella / "nuovo.kvd", "sovraccMonte=12,5"});
    fs::remove(progetto);
    inOrdine({"campi"});
    inOrdine({"imposta", "--uscita", cartella / "nuovo.kvd", "sovraccMonte=12.5"});
}

TEST_F(SchemaRisposte, HoldForTheQuestionsOfDesigners) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        prendi(file);
        inOrdine({"lunghezza", "--nseg", "12", "--passo", "2", "--sicurezza-min", "1.2",
                  "--spostamento-max", "0.05"});
        inOrdine({"lunghezza", "--nseg", "12", "--passo", "2", "--resistenza"});
        for (const char* forza : {"0.01", "100", "90000"})
            inOrdine({"bloccaggio", "--nseg", "12", "--tirante", "1", "--forza", forza});
    }
}

// The rounding of a force in kN, and of a displacement in the result file.
TEST_F(SchemaRisposte, HaveTheNodesOfTheRunAndOfTheEquilibriumBesideOneAnother) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        prendi(file);
        const Json corsa = risposta({"calcola"})["calcolo"]["fasi"];
        const Json certe = risposta({"equilibrio"})["equilibrio"]["fasi"];
        const auto parete = live::calcola(test::leggiMuro(file), 50);
        ASSERT_EQ(corsa.size(), parete.fasi.size());
        ASSERT_EQ(certe.size(), corsa.size());
        for (std::size_t k = 0; k < parete.fasi.size(); ++k) {
            const auto& fase = parete.fasi[k];
            const Json &n = certe[k]["nodi"], &r = corsa[k]["nodi"];
            ASSERT_EQ(n["z_m"].size(), 51U);
            EXPECT_EQ(n["z_m"], r["z_m"]);
            EXPECT_EQ(n["acqua_kPa"], r["acqua_kPa"]);
            for (std::size_t i = 0; i < 51; ++i) {
                EXPECT_EQ(n["spostamento_m"][i], fase.y[i]);
                EXPECT_NEAR(n["momento_kNm"][i], 10 * fase.momento[i], 1e-6);
                EXPECT_NEAR(n["taglio_kN"][i], 10 * fase.taglio[i], 1e-6);
                EXPECT_NEAR(n["pressione_monte_kPa"][i], 10 * fase.monte[i], 1e-6);
                EXPECT_NEAR(n["pressione_valle_kPa"][i], 10 * fase.valle[i], 1e-6);
                EXPECT_NEAR(r["spostamento_m"][i], fase.y[i], 1e-7);
                EXPECT_NEAR(r["pressione_monte_kPa"][i], 10 * fase.monte[i], 0.05);
                EXPECT_NEAR(r["pressione_valle_kPa"][i], 10 * fase.valle[i], 0.05);
            }
            ASSERT_EQ(corsa[k]["tiranti"].size(), fase.tiri.size());
            for (std::size_t t = 0; t < fase.tiri.size(); ++t)
                EXPECT_NEAR(corsa[k]["tiranti"][t]["tiro_kN"], 10 * fase.tiri[t], 0.01);
        }
    }
}

TEST(SchemaDocumento, NamesEachFieldOfTheSchemaInTheDocument) {
    const std::string testo = base::leggiFile(KORVEN_DOCS "/json.md");
    const auto nominato = [&](const std::string& come) {
        return testo.find(come) != std::string::npos;
    };
    for (const std::string& nome : schema().nomi())
        EXPECT_TRUE(nominato('`' + nome + '`') || nominato('.' + nome + '`') ||
                    nominato('`' + nome + '.'))
            << nome;
}

}  // namespace
}  // namespace korven::batch
