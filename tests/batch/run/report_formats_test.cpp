#include <nlohmann/json.hpp>

#include "batch/batch_bench.hpp"
#include "support/pdf_pages.hpp"

namespace korven::batch {
namespace {

using test::contenuto;
using test::dice;

class FormatiRelazioneTest : public test::BancoConsole {};

TEST_F(FormatiRelazioneTest, ComeInEveryFormAskedFor) {
    const auto esito = esegui("relazione", {"--txt", "--doc", "--pdf", cartella / "r.pdf"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(nomi(), "muro.OUT muro.TAB muro.doc muro.kvd muro.txt r.pdf ");
    EXPECT_GE(test::paginePdf(contenuto(cartella / "r.pdf")), 1);
    EXPECT_TRUE(contenuto(cartella / "muro.doc").starts_with("PK")) << "a ZIP archive";
    for (const char* nome : {"muro.TAB", "muro.txt", "muro.doc", "r.pdf"})
        EXPECT_TRUE(dice(esito.uscita, "File scritto: " + cartella / nome)) << esito.uscita;
}

TEST_F(FormatiRelazioneTest, AreTheMarkupAloneWithoutAnOption) {
    EXPECT_EQ(esegui("relazione").codice, 0);
    EXPECT_EQ(nomi(), "muro.OUT muro.TAB muro.kvd ");
}

TEST_F(FormatiRelazioneTest, ReplaceThoseOfAnEarlierRunWithoutAQuestion) {
    test::metti(cartella / "muro.doc", "di prima");
    test::metti(cartella / "r.pdf", "di prima");
    EXPECT_EQ(esegui("relazione", {"--doc", "--pdf", cartella / "r.pdf"}).codice, 0);
    EXPECT_TRUE(contenuto(cartella / "muro.doc").starts_with("PK"));
    EXPECT_TRUE(contenuto(cartella / "r.pdf").starts_with("%PDF"));
}

TEST_F(FormatiRelazioneTest, AreNamedInTheAnswerForScripts) {
    const auto esito = esegui("relazione", {"--json", "--doc", "--pdf", cartella / "r.pdf"});
    const auto file = nlohmann::json::parse(esito.uscita)["file"];
    EXPECT_EQ(file["documento"], cartella / "muro.doc");
    EXPECT_EQ(file["pdf"], cartella / "r.pdf");
    EXPECT_TRUE(file["testo"].is_null());
    EXPECT_EQ(file["scritti"].size(), 4u);
    const auto senza = nlohmann::json::parse(esegui("relazione", {"--json"}).uscita)["file"];
    EXPECT_TRUE(senza["documento"].is_null());
    EXPECT_TRUE(senza["pdf"].is_null());
}

TEST_F(FormatiRelazioneTest, NeverTakeThePlaceOfTheProjectOrOfEachOther) {
    const std::string prima = contenuto(progetto);
    for (const char* nome : {"muro.kvd", "muro.OUT", "muro.TAB", "muro.txt", "muro.doc"}) {
        const auto esito = esegui("relazione", {"--pdf", cartella / nome});
        EXPECT_EQ(esito.codice, 3) << nome;
        EXPECT_TRUE(dice(esito.errori, cartella / nome)) << esito.errori;
    }
    EXPECT_EQ(nomi(), "muro.kvd ") << "told before anything is computed";
    EXPECT_EQ(contenuto(progetto), prima);
}

TEST_F(FormatiRelazioneTest, NeverMakeADocumentOfAProjectOfThatName) {
    progetto = cartella / "muro.doc";
    scrivi(test::progettoSemplice());
    const std::string prima = contenuto(progetto);
    EXPECT_EQ(esegui("relazione", {"--doc"}).codice, 1);
    EXPECT_EQ(contenuto(progetto), prima);
}

TEST_F(FormatiRelazioneTest, TellOfAPrinterThatIsNotThereBeforeAnythingIsComputed) {
    // No print server at all, whatever this machine has.
    const test::Ambiente solo{.variabili = {{"CUPS_SERVER", cartella / "nessuno.sock"}}};
    const auto esito = esegui("relazione", {"--stampa", "Ufficio"}, solo);
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, "Ufficio: stampante non trovata")) << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
    const auto inglese = esegui("relazione", {"--stampa", "Ufficio", "--lingua", "eng"}, solo);
    EXPECT_TRUE(dice(inglese.errori, "printer not found")) << inglese.errori;
}

TEST_F(FormatiRelazioneTest, ThatCannotBeWrittenAreTold) {
    const auto esito = esegui("relazione", {"--pdf", cartella / "manca/r.pdf"});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, cartella / "manca/r.pdf")) << esito.errori;
}

TEST_F(FormatiRelazioneTest, RunNoProgramOfTheFolderThatTheOptionNames) {
    const test::CartellaProvvisoria altra;
    test::metti(altra / "outdoc", "#!/bin/sh\ntouch \"$0.corso\"\n");
    std::filesystem::permissions(altra / "outdoc", std::filesystem::perms::owner_all);
    const auto esito = esegui("relazione", {"--doc", "--cartella", altra.percorso()});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_FALSE(std::filesystem::exists(altra / "outdoc.corso"));
    EXPECT_TRUE(contenuto(cartella / "muro.doc").starts_with("PK"));
}

// The converter is found beside the program alone; here there is none.
TEST_F(FormatiRelazioneTest, EndWithThreeWhenTheDocumentWasNotMade) {
    const std::string solo = cartella / "korven32c";
    std::filesystem::copy(KORVEN_CONSOLE, solo);
    const auto esito =
        test::ProgrammaInCorso(solo, {"relazione", progetto, "--nseg", "10", "--doc", "--cartella",
                                      std::filesystem::path(KORVEN_CONSOLE).parent_path().string()})
            .attendi();
    EXPECT_EQ(esito.codice, 3) << esito.errori;
    EXPECT_TRUE(dice(esito.errori, cartella / "outdoc")) << esito.errori;
    EXPECT_FALSE(std::filesystem::exists(cartella / "muro.doc"));
}

TEST_F(FormatiRelazioneTest, OfARefusedRunAreNotWritten) {
    auto dati = test::progettoSemplice();
    dati.nFasi = 0;
    scrivi(dati);
    EXPECT_EQ(esegui("relazione", {"--doc", "--pdf", cartella / "r.pdf"}).codice, 1);
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(FormatiRelazioneTest, OfAnEarlierRunAreNamedWhenThisOneFails) {
    ASSERT_EQ(esegui("tutto", {"--uscita", cartella.percorso(), "--formati", "dxf"}).codice, 0);
    auto dati = test::progettoSemplice();
    dati.nFasi = 0;
    scrivi(dati);
    const auto esito = esegui("relazione", {"--doc"});
    EXPECT_EQ(esito.codice, 1);
    for (const char* nome : {"muro.TAB", "muro.txt", "muro.doc", "muro-relazione.pdf"})
        EXPECT_TRUE(dice(esito.errori, cartella / nome)) << esito.errori;
}

TEST_F(FormatiRelazioneTest, ComeAllWithTheDrawings) {
    const auto esito = esegui("tutto", {"--json", "--uscita", cartella / "o", "--formati", "dxf"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    const auto file = nlohmann::json::parse(esito.uscita)["file"];
    EXPECT_EQ(file["documento"], cartella / "o/muro.doc");
    EXPECT_EQ(file["pdf"], cartella / "o/muro-relazione.pdf");
    EXPECT_GE(test::paginePdf(contenuto(cartella / "o/muro-relazione.pdf")), 1);
    EXPECT_TRUE(contenuto(cartella / "o/muro.doc").starts_with("PK"));
}

TEST_F(FormatiRelazioneTest, AreWrongUsageWithoutANameForThem) {
    EXPECT_EQ(esegui("relazione", {"--pdf"}).codice, 2);
    EXPECT_EQ(esegui("relazione", {"--stampa", "--json"}).codice, 2);
    EXPECT_EQ(esegui("calcola", {"--pdf", cartella / "r.pdf"}).codice, 2);
    EXPECT_EQ(nomi(), "muro.kvd ");
}

}  // namespace
}  // namespace korven::batch
