// The command `tabelle` from outside.

#include <nlohmann/json.hpp>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "batch/batch_bench.hpp"
#include "batch/run/sheet_files.hpp"
#include "support/wall_files.hpp"
#include "support/xlsx_reader.hpp"
#include "workbook/sheets.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::dice;
using test::leggiXlsx;

class Tabelle : public test::BancoConsole {
 protected:
    [[nodiscard]] test::EsitoProgramma comando(std::vector<std::string> altri = {},
                                               const test::Ambiente& ambiente = {}) {
        return esegui("tabelle", std::move(altri), ambiente);
    }
    [[nodiscard]] std::string scritto(const std::string& nome) const {
        return base::leggiFile(cartella / nome);
    }
    const std::vector<std::string> tabelle = {
        "muro-progetto.csv",  "muro-dati.csv",      "muro-fasi.csv",
        "muro-nodi.csv",      "muro-inviluppo.csv", "muro-tiranti.csv",
        "muro-verifiche.csv", "muro-maglia.csv",    "muro-osservazioni.csv"};
};

TEST_F(Tabelle, WriteTheWorkbookBesideTheProjectWithoutANameForIt) {
    const auto esito = comando();
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "File scritto: ")) << esito.uscita;
    EXPECT_EQ(nomi(), "muro-tabelle.xlsx muro.kvd ");
    EXPECT_EQ(leggiXlsx(scritto("muro-tabelle.xlsx")).size(), 10u);
}

TEST_F(Tabelle, MakeTheFolderInWhichAWorkbookWithoutANameIsWanted) {
    const auto esito = comando({"--uscita", cartella / "nuova/qui"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(leggiXlsx(scritto("nuova/qui/muro-tabelle.xlsx")).size(), 10u);

    // A file that is named makes no folders.
    EXPECT_EQ(comando({"--uscita", cartella / "altra", "--xlsx", cartella / "t.xlsx"}).codice, 0);
    EXPECT_FALSE(fs::exists(cartella / "altra"));
}

TEST_F(Tabelle, HoldTheSameTablesInTheFolderAsInTheWorkbook) {
    const auto esito = comando({"--xlsx", cartella / "t.xlsx", "--csv", cartella / "a/b"});
    ASSERT_EQ(esito.codice, 0) << esito.errori;
    const auto fogli = leggiXlsx(scritto("t.xlsx"));
    const auto dati = test::leggiMuro(progetto);
    analysis::OsservatoreCorsa nessuno;
    const auto atteso = workbook::fogli(dossier::fascicolo(
        {.scritti = dati, .usati = dati, .nSeg = 10, .identita = {}, .sulProgetto = {}}, nessuno));
    ASSERT_EQ(atteso.fogli.size(), tabelle.size());
    for (std::size_t i = 1; i + 1 < tabelle.size(); ++i) {  // identity and remarks know the file
        const auto& p = atteso.fogli[i].prospetto;
        EXPECT_EQ(scritto("a/b/" + tabelle[i]), csvFoglio(p));
        EXPECT_EQ(fogli[i].nome, p.titolo);
        EXPECT_EQ(fogli[i].a(1, 0).testo, p.colonne[0].testa());
    }
    EXPECT_TRUE(fs::exists(cartella / ("a/b/" + tabelle[0])));
    EXPECT_TRUE(fs::exists(cartella / ("a/b/" + tabelle[8])));
}

TEST_F(Tabelle, GiveTheSameBytesForTheSameDateInEitherOfItsTwoWays) {
    const test::Ambiente epoca = {.variabili = {{"SOURCE_DATE_EPOCH", "86400"}}};
    ASSERT_EQ(comando({"--xlsx", cartella / "a.xlsx"}, epoca).codice, 0);
    ASSERT_EQ(comando({"--xlsx", cartella / "b.xlsx", "--data", "1970-01-02"}).codice, 0);
    ASSERT_EQ(comando({"--xlsx", cartella / "c.xlsx", "--data", "1970-01-03"}).codice, 0);
    EXPECT_EQ(scritto("a.xlsx"), scritto("b.xlsx"));
    EXPECT_NE(scritto("a.xlsx"), scritto("c.xlsx"));
    EXPECT_EQ(comando({"--data", "1970-02-30"}).codice, 2);
}

// Today's date in its place would go unnoticed.
TEST_F(Tabelle, RefuseAnEpochThatIsNoNumberUnlessTheDateIsGiven) {
    const test::Ambiente epoca = {.variabili = {{"SOURCE_DATE_EPOCH", "abc"}}};
    const auto uscita = comando({"--xlsx", cartella / "a.xlsx"}, epoca);
    EXPECT_EQ(uscita.codice, 2);
    EXPECT_TRUE(dice(uscita.errori, "SOURCE_DATE_EPOCH vale abc: ")) << uscita.errori;
    EXPECT_TRUE(dice(uscita.errori, "--data.\n")) << uscita.errori;
    EXPECT_FALSE(fs::exists(cartella / "a.xlsx"));
    EXPECT_EQ(comando({"--xlsx", cartella / "a.xlsx", "--data", "1970-01-02"}, epoca).codice, 0);
}

TEST_F(Tabelle, TellWhichOptionsOverrideTheProject) {
    ASSERT_EQ(comando({"--csv", cartella / "d", "--metodo-spinte", "rankine"}).codice, 0);
    const std::string testo = scritto("d/muro-progetto.csv");
    for (const char* riga :
         {"Opzione,--metodo-spinte rankine\r\n", "Opzione,--nseg 10\r\n",
          "Metodo delle spinte usato,Rankine\r\n", "Segmenti,10\r\n", "Titolo 1,Muro di prova\r\n"})
        EXPECT_TRUE(dice(testo, riga)) << riga << testo;
    EXPECT_TRUE(dice(scritto("d/muro-dati.csv"), ",Coulomb,Rankine,,metodoSpinte\r\n"));
}

TEST_F(Tabelle, HaveTheirNamesAndWordsInTheLanguageInUse) {
    for (const char* sigla : {"deu", "fra", "esp", "eng", "por"}) {
        SCOPED_TRACE(sigla);
        ASSERT_EQ(comando({"--csv", cartella / sigla, "--xlsx", cartella / "t.xlsx", "--lingua",
                           sigla, "--data", "2026-11-22"})
                      .codice,
                  0);
        EXPECT_TRUE(fs::exists(cartella / (std::string(sigla) + "/muro-nodes.csv")));
        const auto fogli = leggiXlsx(scritto("t.xlsx"));
        ASSERT_EQ(fogli.size(), 10u);
        for (const auto& foglio : fogli) {
            EXPECT_LE(base::numeroCaratteri(foglio.nome), 31u) << foglio.nome;
            EXPECT_EQ(foglio.nome.find_first_of("\\/?*[]:'"), std::string::npos) << foglio.nome;
        }
    }
}

TEST_F(Tabelle, RefuseToReplaceTheProjectItsResultsOrOneAnother) {
    const std::string prima = base::leggiFile(progetto);
    const auto rifiuta = [&](const std::vector<std::string>& opzioni, int codice) {
        const auto esito = comando(opzioni);
        EXPECT_EQ(esito.codice, codice) << opzioni[1] << esito.errori;
        EXPECT_TRUE(dice(esito.errori, "prenderebbe il posto")) << esito.errori;
    };
    rifiuta({"--xlsx", progetto}, 3);
    rifiuta({"--xlsx", cartella / "muro.OUT"}, 3);
    rifiuta({"--xlsx", cartella / "muro.TAB"}, 2);
    rifiuta({"--xlsx", cartella / "muro-nodi.csv", "--csv", cartella.percorso()}, 2);
    rifiuta({"--xlsx", cartella / "a.xlsx", "--csv", cartella / "a.xlsx"}, 2);
    fs::create_hard_link(progetto, cartella / "muro-fasi.csv");
    rifiuta({"--csv", cartella.percorso()}, 3);
    EXPECT_EQ(base::leggiFile(progetto), prima);
    EXPECT_EQ(nomi(), "muro-fasi.csv muro.kvd ");
}

TEST_F(Tabelle, TellOfAPlaceThatCannotBeWritten) {
    EXPECT_EQ(comando({"--xlsx", cartella / "manca/t.xlsx"}).codice, 3);
    EXPECT_EQ(comando({"--csv", progetto}).codice, 3);
    EXPECT_EQ(comando({"--xlsx", ""}).codice, 2);
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(Tabelle, FindAPlaceThatCannotBeWrittenBeforeTheyCompute) {
    const std::string xlsx = cartella / "t.xlsx";
    fs::create_directories(cartella / "d/muro-nodi.csv");
    const auto rifiuta = [&](std::vector<std::string> opzioni, std::string_view perche) {
        opzioni.emplace_back("--json");
        const auto esito = comando(opzioni);
        EXPECT_EQ(esito.codice, 3) << opzioni[1];
        EXPECT_TRUE(dice(esito.errori, perche)) << esito.errori;
        EXPECT_TRUE(Json::parse(esito.uscita)["tabelle"].is_null()) << esito.uscita;
        EXPECT_EQ(nomi(), "muro.kvd ");
    };
    rifiuta({"--xlsx", xlsx, "--csv", progetto},
            "impossibile creare la cartella (una parte del percorso non è una cartella)");
    rifiuta({"--xlsx", xlsx, "--csv", cartella / "d"}, "muro-nodi.csv: impossibile scrivere");
    rifiuta({"--xlsx", cartella.percorso()}, "(è una cartella)");
}

TEST_F(Tabelle, OfAWallThatDoesNotStandSayWhyAndEndWithOne) {
    fs::copy_file(std::string(KORVEN_WALLS) + "/meccanismo.kvd", progetto,
                  fs::copy_options::overwrite_existing);
    const auto esito = console({"tabelle", progetto, "--xlsx", cartella / "t.xlsx"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.uscita, "t.xlsx")) << esito.uscita;
    const auto fogli = leggiXlsx(scritto("t.xlsx"));
    ASSERT_EQ(fogli.size(), 9u) << "no charts";
    EXPECT_TRUE(dice(fogli[3].a(3, 0).testo, "meccanismo")) << fogli[3].a(3, 0).testo;
}

TEST_F(Tabelle, RefuseWhatAReportRefusesAndWriteNothing) {
    auto dati = test::progettoSemplice();
    dati.nFasi = 0;
    scrivi(dati);
    EXPECT_EQ(comando({"--xlsx", cartella / "t.xlsx"}).codice, 1);
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST(CsvFoglio, HasFifteenDigitsQuotesWhatNeedsThemAndLeavesEmptyWhatIsNot) {
    const tables::Prospetto p = {
        .titolo = "Nodi",
        .colonne = {{"z", "m", "", true}, {"Strato", "", "", false}},
        .righe = {{tables::profondita(1.0 / 3), tables::parola("2: Sabbia, \"media\"")},
                  {tables::profondita(27 * 0.12), tables::parola("3")},
                  {tables::senza("perché"), tables::parola("è")}},
        .note = {"Una nota."}};
    EXPECT_EQ(csvFoglio(p),
              "z [m],Strato\r\n0.333333333333333,\"2: Sabbia, \"\"media\"\"\"\r\n3.24,3\r\n,è\r\n");
}

}  // namespace
}  // namespace korven::batch
