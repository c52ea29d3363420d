#include "commands/report_files.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/file_error.hpp"
#include "project/output_guard.hpp"
#include "support/failing_disk.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

namespace fs = std::filesystem;
using project::fileCorrente;
using project::Progetto;
using test::CartellaProvvisoria;

TEST(UscitaRelazione, NamesTheFilesThatItWillWrite) {
    EXPECT_TRUE(UscitaRelazione(false, true).file(analysis::relazione, "/x/muro.OUT").empty());
    EXPECT_TRUE(
        UscitaRelazione(true, true).file(analysis::Diagramma::momenti, "/x/muro.OUT").empty());
    EXPECT_EQ(UscitaRelazione(true).file(analysis::relazione, "/x/muro.OUT"),
              std::vector<std::string>{"/x/muro.TAB"});
    EXPECT_EQ(UscitaRelazione(true, true).file(analysis::relazione, "/x.y/muro.OUT"),
              (std::vector<std::string>{"/x.TAB", "/x.txt"}));
}

TEST(UscitaRelazione, WritesTheReportAfterARunAndRemembersItsName) {
    test::Banco banco(test::progettoSemplice(), 20);
    UscitaRelazione uscita(true);
    EXPECT_TRUE(uscita.relazione().empty());
    analysis::CalcoloParatia(analysis::relazione, {banco.dialogo, banco.avanzamento, uscita});
    EXPECT_EQ(uscita.relazione(), banco.cartella / "muro.TAB");
    EXPECT_TRUE(fs::exists(uscita.relazione()));
}

TEST(UscitaRelazione, WritesNothingWhenOnlyTheRunIsWanted) {
    test::Banco banco(test::progettoSemplice(), 20);
    UscitaRelazione uscita(false);
    analysis::CalcoloParatia(analysis::relazione, {banco.dialogo, banco.avanzamento, uscita});
    EXPECT_TRUE(banco.haRisultati());
    EXPECT_FALSE(fs::exists(banco.cartella / "muro.TAB"));
}

TEST(ScriviTesto, PutsThePlainTextBesideTheMarkUp) {
    CartellaProvvisoria cartella;
    test::metti(cartella / "muro.TAB",
                "#RESET\r\n#HEADER h\r\nProfondit\xE0\r\n#STARTTABLE\r\n1\t2\r\n#ENDTABLE\r\n"
                "#ENDDOCUMENT\r\n");
    EXPECT_EQ(scriviTesto(cartella / "muro.TAB"), cartella / "muro.txt");
    EXPECT_EQ(test::contenuto(cartella / "muro.txt"), "h\r\nProfondit\xE0\r\n1\t2\r\n\r\n");
}

TEST(ScriviTesto, ReplacesAnEarlierText) {
    CartellaProvvisoria cartella;
    test::metti(cartella / "muro.txt", "vecchio testo");
    test::metti(cartella / "muro.TAB", "#RESET\r\nx\r\n");
    scriviTesto(cartella / "muro.TAB");
    EXPECT_EQ(test::contenuto(cartella / "muro.txt"), "\r\nx\r\n");
}

TEST(ScriviTesto, LeavesAnEarlierTextAloneOnAFullDisk) {
    CartellaProvvisoria cartella;
    test::metti(cartella / "muro.txt", "vecchio testo");
    test::metti(cartella / "muro.TAB", "#RESET\r\nx\r\n");
    const test::DiscoPieno disco(2);
    EXPECT_THROW(scriviTesto(cartella / "muro.TAB", disco), base::ErroreScrittura);
    EXPECT_EQ(test::contenuto(cartella / "muro.txt"), "vecchio testo");
}

TEST(ScriviTesto, NeedsTheMarkUp) {
    CartellaProvvisoria cartella;
    EXPECT_THROW(scriviTesto(cartella / "muro.TAB"), base::ErroreFile);
}

TEST(ScriviTesto, RefusesAMarkUpThatOpensNoDocument) {
    CartellaProvvisoria cartella;
    test::metti(cartella / "muro.txt", "vecchio testo");
    test::metti(cartella / "muro.TAB", "una riga\r\n#ENDDOCUMENT\r\n");
    try {
        scriviTesto(cartella / "muro.TAB");
        ADD_FAILURE();
    } catch (const base::ErroreFile& errore) {
        EXPECT_EQ(errore.percorso(), cartella / "muro.TAB");
    }
    EXPECT_EQ(test::contenuto(cartella / "muro.txt"), "vecchio testo");
}

TEST(ScriviTesto, NeverReplacesItsMarkUpOrTheProject) {
    CartellaProvvisoria cartella;
    test::metti(cartella / "muro.TAB", "#RESET\r\nx\r\n");
    fs::create_hard_link(cartella / "muro.TAB", cartella / "muro.txt");
    EXPECT_THROW(scriviTesto(cartella / "muro.TAB"), base::ErroreFile);
    fs::remove(cartella / "muro.txt");
    test::metti(cartella / "muro.txt", "il progetto");
    project::progettiProtetti.letto = cartella / "muro.txt";
    EXPECT_THROW(scriviTesto(cartella / "muro.TAB"), base::ErroreFile);
    project::progettiProtetti = {};
    EXPECT_EQ(test::contenuto(cartella / "muro.txt"), "il progetto");
}

TEST(RelazioniRimaste, AreThoseThatANewReportWouldReplace) {
    CartellaProvvisoria cartella;
    const std::string progetto = cartella / "muro.kvd";
    EXPECT_TRUE(relazioniRimaste(progetto).empty());
    test::metti(cartella / "muro.txt", "x");
    EXPECT_EQ(relazioniRimaste(progetto), std::vector<std::string>{cartella / "muro.txt"});
    test::metti(cartella / "muro.TAB", "x");
    EXPECT_EQ(relazioniRimaste(progetto).size(), 2u);
    std::filesystem::create_directory(cartella / "tubo.TAB");
    ASSERT_EQ(::mkfifo((cartella / "tubo.txt").c_str(), 0600), 0);
    EXPECT_TRUE(relazioniRimaste(cartella / "tubo.kvd").empty());
    test::metti(cartella / "altro.TAB", "x");
    EXPECT_EQ(relazioniRimaste(cartella / "altro.v2.kvd"),
              std::vector<std::string>{cartella / "altro.TAB"});
    std::vector<std::string> pdf;
    for (const char* nome : {"pdf-relazione.pdf", "pdf-report.pdf"}) {  // of either language
        pdf.push_back(cartella / nome);
        test::metti(pdf.back(), "x");
        EXPECT_EQ(relazioniRimaste(cartella / "pdf.kvd"), pdf);
    }
    std::vector<std::string> allegati;
    for (const char* nome : {"a-allegato.pdf", "a-allegato.doc", "a-annex.txt"}) {
        allegati.push_back(cartella / nome);
        test::metti(allegati.back(), "x");
        EXPECT_EQ(relazioniRimaste(cartella / "a.kvd"), allegati);
    }
}

TEST(RelazioneAltrove, IsOneWhosePathIsCutBeforeTheExtension) {
    EXPECT_TRUE(relazioneAltrove("/home/a.b/muro.kvd"));
    EXPECT_TRUE(relazioneAltrove("/home/a/muro.v2.kvd"));
    EXPECT_TRUE(relazioneAltrove("/home/a.b/muro"));
    EXPECT_FALSE(relazioneAltrove("/home/a/muro.kvd"));
    EXPECT_FALSE(relazioneAltrove("/home/a/muro"));
    EXPECT_FALSE(relazioneAltrove("/home/a/.kvd"));
    EXPECT_TRUE(relazioneAltrove("/home/a.b/.kvd"));
    EXPECT_TRUE(relazioneAltrove("/home/a/..kvd"));
}

}  // namespace
}  // namespace korven::commands
