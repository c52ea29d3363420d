// The command `allegato` from outside.

#include <filesystem>
#include <nlohmann/json.hpp>

#include "batch/batch_bench.hpp"
#include "support/sample_projects.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::dice;

class AllegatoDaFuori : public test::BancoConsole {
 protected:
    void prendi(const std::string& percorso) {
        fs::copy_file(percorso, progetto, fs::copy_options::overwrite_existing);
    }
    void esempio(const std::string& nome) {
        prendi(std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd");
    }
    [[nodiscard]] test::EsitoProgramma comando(std::vector<std::string> altri = {}) const {
        altri.insert(altri.begin(), {"allegato", progetto});
        return console(altri);
    }
    [[nodiscard]] std::string accanto(const std::string& coda) const {
        return progetto.substr(0, progetto.size() - 4) + coda;
    }
};

TEST_F(AllegatoDaFuori, GoesBesideTheProjectWithoutAName) {
    esempio("palancola_mensola");
    const auto esito = comando({"--silenzioso"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(test::contenuto(accanto("-allegato.pdf")).starts_with("%PDF-"));
    EXPECT_FALSE(fs::exists(accanto(".OUT")));
}

TEST_F(AllegatoDaFuori, GoesIntoTheFolderForResultsWhichIsMade) {
    esempio("palancola_mensola");
    EXPECT_EQ(comando({"--uscita", cartella / "nuova"}).codice, 0);
    const std::string nome = fs::path(accanto("-allegato.pdf")).filename().string();
    EXPECT_TRUE(fs::exists(cartella / ("nuova/" + nome)));
}

TEST_F(AllegatoDaFuori, CanBeMadeAgainByteByByte) {
    esempio("diaframma_due_ordini");
    const std::string pdf = cartella / "a.pdf";
    const std::vector<std::string> opzioni = {"--pdf", pdf, "--data", "2026-11-22"};
    ASSERT_EQ(comando(opzioni).codice, 0);
    const std::string primo = test::contenuto(pdf);
    fs::remove(pdf);
    ASSERT_EQ(comando(opzioni).codice, 0);
    EXPECT_TRUE(primo == test::contenuto(pdf));
}

TEST_F(AllegatoDaFuori, IsWrittenAsTextAndForWordProcessorsToo) {
    esempio("pali_armati_staffe");
    const std::string txt = cartella / "a.txt", doc = cartella / "a.doc";
    const auto esito = comando({"--txt", txt, "--doc", doc, "--metodo-spinte", "rankine"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(test::contenuto(txt), "Metodo delle spinte usato\tRankine"));
    EXPECT_TRUE(dice(test::contenuto(txt), "--metodo-spinte rankine"));
    EXPECT_TRUE(test::contenuto(doc).starts_with("PK"));
    EXPECT_FALSE(fs::exists(accanto("-allegato.pdf")));
}

TEST_F(AllegatoDaFuori, OfAWallThatFallsSaysSoAndEndsWith1) {
    prendi(std::string(KORVEN_WALLS) + "/meccanismo.kvd");
    const std::string txt = cartella / "a.txt";
    const auto esito = comando({"--txt", txt, "--json"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(test::contenuto(txt), "Equilibrio di tutte le fasi\tnon verificato"));
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["causa"], "meccanismo");
    EXPECT_EQ(j["file"]["scritti"].size(), 1U);
}

TEST_F(AllegatoDaFuori, TakesTheMethodsOfTheCommandLineForItsOwnRepetition) {
    esempio("palancola_mensola");
    const std::string txt = cartella / "a.txt";
    ASSERT_EQ(
        comando({"--txt", txt, "--nseg", "60", "--righe", "11", "--data", "2026-01-02"}).codice, 0);
    for (const char* opzione : {"--nseg 60", "--righe 11", "--data 2026-01-02", "--lingua ita"})
        EXPECT_TRUE(dice(test::contenuto(txt), opzione)) << opzione;
}

TEST_F(AllegatoDaFuori, RefusesADateThatIsNoneAndNamesOfOtherFiles) {
    esempio("palancola_mensola");
    const std::string prima = test::contenuto(progetto);
    EXPECT_EQ(comando({"--data", "2026-02-30"}).codice, 2);
    EXPECT_EQ(comando({"--righe", "1"}).codice, 2);
    EXPECT_EQ(comando({"--pdf", progetto}).codice, 3);
    EXPECT_EQ(comando({"--pdf", cartella / "a", "--txt", cartella / "a"}).codice, 2);
    EXPECT_TRUE(prima == test::contenuto(progetto));
}

}  // namespace
}  // namespace korven::batch
