// The command `autoverifica` from outside.

#include <filesystem>
#include <nlohmann/json.hpp>

#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

using Json = nlohmann::json;

constexpr const char* caso =
    "titolo: Mensola\nfonte: Timoshenko\ntolleranza: T\n"
    "[parete]\nsegmenti = 120\nlunghezzaParatia = 6\nprofFase = 6\nvincoloPiede = incastro\n"
    "rigidezzaEJ = 20000\nprofStrato = 100\nforzaTesta = 40\n"
    "[attesi]\nspostamento z 0 = VALORE mm entro 1.3 %\n";

class Autoverifica : public test::BancoConsole {
 protected:
    // A folder with one case of that value.
    [[nodiscard]] std::string casi(const std::string& valore) const {
        std::string testo = caso;
        testo.replace(testo.find("VALORE"), 6, valore);
        const std::string dove = cartella / "casi";
        std::filesystem::create_directories(dove);
        test::metti(dove + "/mensola.txt", testo);
        return dove;
    }
};

TEST_F(Autoverifica, PassesWithTheCasesOfTheProgram) {
    const auto esito = console({"autoverifica"});
    EXPECT_EQ(esito.codice, 0) << esito.uscita << esito.errori;
    EXPECT_TRUE(esito.uscita.find("falliti: 0;") != std::string::npos);
    EXPECT_TRUE(esito.uscita.find("hetenyi_forza_mezzeria") != std::string::npos);
}

TEST_F(Autoverifica, EndsWith1ForACaseThatIsNotMet) {
    const auto bene = console({"autoverifica", "--casi", casi("144.0")});
    EXPECT_EQ(bene.codice, 0) << bene.uscita << bene.errori;
    const auto male = console({"autoverifica", "--casi", casi("150.0")});
    EXPECT_EQ(male.codice, 1);
    EXPECT_TRUE(male.uscita.find("falliti: 1;") != std::string::npos) << male.uscita;
}

TEST_F(Autoverifica, AnswersInJson) {
    const auto esito = console({"selfcheck", "--cases", casi("150.0"), "--json"});
    EXPECT_EQ(esito.codice, 1);
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["autoverifica"]["falliti"], 1);
    const Json& c = j["autoverifica"]["gruppi"][0]["casi"][0];
    EXPECT_EQ(c["caso"], "mensola");
    EXPECT_EQ(c["verdetto"], "fallito");
    EXPECT_EQ(c["righe"].size(), 2U);
    EXPECT_EQ(c["righe"][0]["calcolo"], "relazione");
    EXPECT_EQ(c["righe"][0]["atteso"], 150.0);
    EXPECT_NEAR(c["righe"][0]["ottenuto"].get<double>(), 145.8, 0.1);
}

TEST_F(Autoverifica, WritesADocument) {
    const std::string pdf = cartella / "v.pdf";
    const auto esito = console({"autoverifica", "--casi", casi("144.0"), "--pdf", pdf});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(test::contenuto(pdf).starts_with("%PDF-"));
}

// Each process has a random order of its own for what Qt numbers by a hash table.
TEST_F(Autoverifica, WritesTheSameBytesInEachProcess) {
    const std::string pdf = cartella / "v.pdf", dove = casi("144.0");
    test::Ambiente ambiente;
    ambiente.variabili.emplace_back("SOURCE_DATE_EPOCH", "1700000000");
    std::string prima;
    for (int i = 0; i < 6; ++i) {
        const auto esito =
            console({"autoverifica", "--casi", dove, "--pdf", pdf, "--silenzioso"}, ambiente);
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        if (i == 0) prima = test::contenuto(pdf);
        EXPECT_TRUE(test::contenuto(pdf) == prima) << i;
    }
}

TEST_F(Autoverifica, KeepsItsCasesFromTheDocument) {
    const std::string dove = casi("144.0");
    const auto esito = console({"autoverifica", "--casi", dove, "--pdf", dove + "/mensola.txt"});
    EXPECT_EQ(esito.codice, 2) << esito.uscita;
    EXPECT_TRUE(test::contenuto(dove + "/mensola.txt").starts_with("titolo:"));
}

TEST_F(Autoverifica, KeepsTheProjectsThatCasesBeginWithFromTheDocument) {
    const auto programmi = std::filesystem::path(KORVEN_CONSOLE).parent_path();
    const std::string base = (programmi / "data" / "ita" / "palancola_mensola.kvd").string();
    const std::string prima = test::contenuto(base);
    ASSERT_FALSE(prima.empty());
    EXPECT_EQ(console({"autoverifica", "--casi", casi("144.0"), "--pdf", base}).codice, 2);
    EXPECT_TRUE(test::contenuto(base) == prima);
    test::metti(base, prima);
}

TEST_F(Autoverifica, TellsTheLineOfABrokenCase) {
    const auto esito = console({"autoverifica", "--casi", casi("tanto")});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(esito.errori.find("un numero, non «tanto»") != std::string::npos) << esito.errori;
    EXPECT_TRUE(esito.errori.find("riga 13") != std::string::npos) << esito.errori;
    EXPECT_EQ(console({"autoverifica", "--casi", cartella / "nessuna"}).codice, 3);
}

TEST_F(Autoverifica, FindsAPlaceForItsDocumentThatCannotBeWrittenBeforeItComputes) {
    const auto esito = console(
        {"autoverifica", "--casi", casi("144.0"), "--pdf", cartella / "manca/v.pdf", "--json"});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(Json::parse(esito.uscita)["autoverifica"].is_null());
}

TEST_F(Autoverifica, SaysThatAFolderOfCasesWasExpected) {
    const auto esito = console({"autoverifica", "--casi", cartella / "manca"});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(test::dice(esito.errori, "manca: atteso: una cartella di casi di verifica"))
        << esito.errori;
}

TEST_F(Autoverifica, IsStoppedByAnInterruptAndWritesNoDocument) {
    const std::string dove = casi("144.0"), pdf = cartella / "v.pdf";
    const std::string testo = test::contenuto(dove + "/mensola.txt");
    for (int i = 0; i < 2000; ++i) test::metti(dove + "/c" + std::to_string(i) + ".txt", testo);
    test::ProgrammaInCorso corsa(KORVEN_CONSOLE, {"autoverifica", "--casi", dove, "--pdf", pdf});
    ASSERT_TRUE(corsa.aspettaSegnale(SIGINT));
    corsa.segnale(SIGINT);
    const auto esito = corsa.attendi();
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.errori, "Calcolo interrotto dall'utente.\n");
    EXPECT_TRUE(esito.uscita.empty()) << esito.uscita;
    EXPECT_FALSE(std::filesystem::exists(pdf));
}

}  // namespace
}  // namespace korven::batch
