// The command `allegato` from outside.

#include <filesystem>
#include <nlohmann/json.hpp>

#include "batch/batch_bench.hpp"
#include "support/failing_disk.hpp"
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

TEST_F(AllegatoDaFuori, HasAChapterOnTheCodeThatIsAskedFor) {
    esempio("diaframma_due_ordini");
    const std::string testo = cartella / "a.txt";
    const std::vector<std::string> opzioni = {"--txt",          testo,       "--data",
                                              "2026-11-22",     "--norma",   "en1997-da1",
                                              "--sovraccarico", "permanente"};
    const auto esito = comando(opzioni);
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    const std::string scritto = test::contenuto(testo);
    EXPECT_TRUE(dice(scritto, "10. COMBINAZIONI DELLA NORMA EN 1997-1:2004, DA1")) << esito.errori;
    // The way to make it again says what the loads are, all of them.
    EXPECT_TRUE(dice(scritto, "--norma en1997-da1"));
    EXPECT_TRUE(dice(scritto, "--sovraccarico permanente"));
    EXPECT_TRUE(dice(scritto, "--sovraccarico-scavo variabile"));
    EXPECT_TRUE(dice(scritto, "--carichi-testa variabile"));
    // What becomes of each combination is told at once.
    EXPECT_TRUE(dice(esito.uscita, "DA1-1 NON verificata; DA1-2 ")) << esito.uscita;
    const auto json =
        nlohmann::json::parse(comando({"--txt", testo, "--norma", "en1997-da1", "--json"}).uscita);
    EXPECT_EQ(json["combinazioni"]["combinazioni"][0]["verificata"], false);
    EXPECT_TRUE(json["allegato"]["fasi"].is_array());
}

TEST_F(AllegatoDaFuori, RefusesACodeThatThereIsNotAndLoadsWithoutACode) {
    esempio("diaframma_due_ordini");
    const auto ignota = comando({"--norma", "boh"});
    EXPECT_EQ(ignota.codice, 2);
    EXPECT_TRUE(dice(ignota.errori, "«boh»")) << ignota.errori;
    EXPECT_TRUE(dice(ignota.errori, "ntc2018"));
    const auto senza = comando({"--sovraccarico", "permanente"});
    EXPECT_EQ(senza.codice, 2);
    EXPECT_TRUE(dice(senza.errori, "--norma")) << senza.errori;
    EXPECT_FALSE(fs::exists(accanto("-allegato.pdf")));
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
    EXPECT_TRUE(dice(test::contenuto(txt), "Equilibrio di tutte le fasi\tNON verificato"));
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

TEST_F(AllegatoDaFuori, FindsAPlaceThatCannotBeWrittenBeforeItComputes) {
    esempio("palancola_mensola");
    const std::string prima = nomi(), buono = cartella / "a.pdf";
    for (const std::string& doc : {cartella / "manca/a.doc", cartella.percorso()}) {
        const auto esito = comando({"--pdf", buono, "--doc", doc, "--json"});
        EXPECT_EQ(esito.codice, 3) << esito.errori;
        const Json j = Json::parse(esito.uscita);
        EXPECT_TRUE(j["allegato"].is_null());
        EXPECT_TRUE(j["file"]["scritti"].empty());
    }
    EXPECT_EQ(nomi(), prima);
}

TEST_F(AllegatoDaFuori, NamesWhatItHasWrittenBeforeTheDiskWasFull) {
    const std::string pdf = cartella / "a.pdf", txt = cartella / "a.txt";
    const std::vector<std::string> opzioni = {"--pdf",  pdf,          "--txt", txt,
                                              "--data", "2026-11-22", "--json"};
    ASSERT_EQ(esegui("allegato", opzioni).codice, 0);
    const auto byte = fs::file_size(pdf);
    fs::remove(pdf);
    fs::remove(txt);
    const auto esito = esegui("allegato", test::DiscoPieno(byte + 100), opzioni);
    EXPECT_EQ(esito.codice, 3);
    EXPECT_EQ(Json::parse(esito.uscita)["file"]["scritti"], Json({pdf}));
    EXPECT_TRUE(fs::exists(pdf) && !fs::exists(txt));
}

class AllegatoDiTutto : public AllegatoDaFuori {
 protected:
    [[nodiscard]] test::EsitoProgramma tutto(std::vector<std::string> altri = {}) const {
        altri.insert(altri.begin(), {"tutto", progetto, "--uscita", cartella / "o", "--formati",
                                     "dxf", "--max-iterazioni", "200"});
        return console(altri);
    }
    [[nodiscard]] test::EsitoProgramma tutto(const base::Disco& disco) const {
        return console({"tutto", progetto, "--uscita", cartella / "o", "--formati", "dxf"}, disco);
    }
    [[nodiscard]] std::string scritto(const std::string& fine) const {
        return cartella / ("o/muro-allegato." + fine);
    }
};

TEST_F(AllegatoDiTutto, IsWrittenWhereTheStagedRunFindsNoRestToo) {
    for (const char* nome : {"oscilla_1", "singolare_1", "meccanismo"}) {
        SCOPED_TRACE(nome);
        fs::remove_all(cartella / "o");
        prendi(std::string(KORVEN_WALLS) + "/" + nome + ".kvd");
        const auto esito = tutto({"--json"});
        EXPECT_EQ(esito.codice, 1);
        const Json j = Json::parse(esito.uscita);
        EXPECT_EQ(j["file"]["scritti"], Json({scritto("pdf"), scritto("doc"), scritto("txt")}));
        EXPECT_TRUE(test::contenuto(scritto("pdf")).starts_with("%PDF-"));
        EXPECT_TRUE(
            dice(test::contenuto(scritto("txt")),
                 std::string("Equilibrio di tutte le fasi\t") +
                     (std::string(nome) == "meccanismo" ? "NON verificato" : "verificato")));
    }
}

TEST_F(AllegatoDiTutto, IsThatOfTheCommandThatItPrints) {
    prendi(std::string(KORVEN_WALLS) + "/oscilla_1.kvd");
    ASSERT_EQ(tutto({"--data", "2026-11-22", "--righe", "11"}).codice, 1);
    const std::string pdf = test::contenuto(scritto("pdf")), txt = test::contenuto(scritto("txt"));
    EXPECT_TRUE(dice(txt, "--righe 11"));
    ASSERT_EQ(comando({"--pdf", scritto("pdf"), "--doc", scritto("doc"), "--txt", scritto("txt"),
                       "--data", "2026-11-22", "--righe", "11"})
                  .codice,
              0);
    EXPECT_TRUE(pdf == test::contenuto(scritto("pdf")));
    EXPECT_TRUE(txt == test::contenuto(scritto("txt")));
}

TEST_F(AllegatoDiTutto, OfAnEarlierRunIsNamedWhenThisOneIsRefused) {
    ASSERT_EQ(tutto().codice, 0);
    auto dati = test::progettoSemplice();
    dati.rigidezzaEJ = 0;
    scrivi(dati);
    const auto esito = tutto();
    EXPECT_EQ(esito.codice, 1);
    for (const char* fine : {"pdf", "doc", "txt"})
        EXPECT_TRUE(dice(esito.errori, "non aggiornato da questo: " + scritto(fine)))
            << esito.errori;
}

TEST_F(AllegatoDiTutto, DoesNotStandBesideDrawingsOfAnEarlierRunThatNobodyNames) {
    ASSERT_EQ(tutto().codice, 0);
    prendi(std::string(KORVEN_WALLS) + "/oscilla_1.kvd");
    const auto esito = tutto();
    EXPECT_EQ(esito.codice, 1);
    const std::string inizio = scritto("pdf").substr(0, scritto("pdf").rfind("allegato"));
    for (const char* nome :
         {"pressioni", "spostamenti", "momenti", "taglio", "sezione", "stratigrafia"})
        for (const char* fine : {".pdf", ".dxf"})
            EXPECT_EQ(dice(esito.errori, "non aggiornato da questo: " + inizio + nome + fine),
                      fs::exists(inizio + nome + fine))
                << esito.errori;
    EXPECT_TRUE(dice(esito.errori, inizio + "momenti.dxf\n")) << esito.errori;
    EXPECT_FALSE(dice(esito.errori, "non aggiornato da questo: " + scritto("pdf")));
}

// Whatever ends it: here the disk is full.
TEST_F(AllegatoDiTutto, NamesTheOldDrawingsOfARunThatAnErrorEnds) {
    ASSERT_EQ(tutto().codice, 0);
    const std::string inizio = scritto("pdf").substr(0, scritto("pdf").rfind("allegato"));
    const std::string avviso = "non aggiornato da questo: ";
    auto dati = test::progettoSemplice();
    dati.lunghezzaParatia += 1;
    scrivi(dati);
    const auto pieno = tutto(test::DiscoPieno(100));
    EXPECT_EQ(pieno.codice, 3);
    for (const char* nome : {"pressioni", "momenti", "stratigrafia"})
        EXPECT_TRUE(dice(pieno.errori, avviso + inizio + nome + ".dxf\n")) << pieno.errori;
}

}  // namespace
}  // namespace korven::batch
