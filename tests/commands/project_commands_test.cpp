#include "commands/project_commands.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "support/hand_written_results.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

namespace fs = std::filesystem;
using project::fileCorrente;
using project::Progetto;
using test::CartellaProvvisoria;

class Apri : public ::testing::Test {
 protected:
    void SetUp() override {
        test::metti(progetto, project::testoProgetto(test::progettoSemplice()));
    }
    void TearDown() override {
        project::azzeraProgetto();
        fileCorrente.clear();
    }

    CartellaProvvisoria cartella;
    std::string progetto = cartella / "muro.kvd";
};

TEST_F(Apri, ReadsTheProjectAndWritesResultsBesideIt) {
    Progetto.sforzoNormale = 99;
    apriProgetto(progetto, "");
    EXPECT_EQ(fileCorrente, progetto);
    EXPECT_EQ(Progetto.lunghezzaParatia, 12);
    EXPECT_EQ(Progetto.sforzoNormale, 0);
}

TEST_F(Apri, FillsTheBlocksThatAnOldFileLacksFromTheDefaults) {
    const std::string testo = project::testoProgetto(test::progettoSemplice());
    std::size_t fine = testo.size();
    for (int i = 0; i < 16; ++i) fine = testo.rfind("\r\n", fine - 1);
    test::metti(progetto, testo.substr(0, fine + 2));
    Progetto.sforzoNormale = 99;
    Progetto.sezione.armNumLong = 12;
    Progetto.sezione.tipoPalancola = true;
    apriProgetto(progetto, "");
    EXPECT_EQ(Progetto.sforzoNormale, 0);
    EXPECT_EQ(Progetto.sezione.armNumLong, 0);
    EXPECT_FALSE(Progetto.sezione.tipoPalancola);
}

TEST_F(Apri, MakesARelativePathAbsoluteBeforeAnyRuleForNames) {
    const fs::path prima = fs::current_path();
    fs::create_directory(cartella / "sotto");
    fs::current_path(cartella / "sotto");
    apriProgetto("../muro.kvd", "");
    fs::current_path(prima);
    // A path with ".." would be cut at its first point.
    EXPECT_EQ(fileCorrente, fs::weakly_canonical(progetto).string());
    EXPECT_EQ(base::nomeRelazione(fileCorrente), fs::weakly_canonical(cartella / "muro.TAB"));
}

TEST_F(Apri, MakesTheFolderForTheResultsAndKeepsTheName) {
    apriProgetto(progetto, cartella / "uscita/profonda/");
    EXPECT_TRUE(fs::is_directory(cartella / "uscita/profonda"));
    EXPECT_EQ(fileCorrente, cartella / "uscita/profonda/muro.kvd");
    EXPECT_FALSE(fs::exists(fileCorrente));
}

TEST_F(Apri, MakesNothingForABrokenProject) {
    test::metti(progetto, "1\r\n2\r\n");
    EXPECT_THROW(apriProgetto(progetto, cartella / "uscita"), base::ErroreFile);
    EXPECT_THROW(apriProgetto(cartella / "altro.kvd", cartella / "uscita"), base::ErroreFile);
    EXPECT_FALSE(fs::exists(cartella / "uscita"));
}

TEST_F(Apri, TellsAFolderThatCannotBeMade) {
    test::metti(cartella / "occupato", "file");
    try {
        apriProgetto(progetto, cartella / "occupato");
        ADD_FAILURE();
    } catch (const base::ErroreFile& errore) {
        EXPECT_EQ(errore.percorso(), cartella / "occupato");
    }
}

TEST(LeggiEsito, TellsTheExtremesOfEachStageAndChangesNothingInMemory) {
    test::RisultatiAMano file(3);
    auto d = test::progettoSemplice();
    d.metodoSpinte = 2;
    file.scrivi(
        d,
        {test::faseScritta(
             {{"0.001", "0", "0"}, {"-.02", "1.5", "0"}, {"0.003", "-2.25", "0"}, {"0", "0", "0"}}),
         test::faseScritta(
             {{"0.05", "-.5", "0"}, {"0", "-1", "0"}, {"0", "-3", "0"}, {"0", "-.25", "0"}})},
        "8\r\n-9\r\n1.5\r\n-3\r\n1.4\r\n");
    Progetto = d;
    fileCorrente = file.cartella / "muro.kvd";
    const auto esito = leggiEsito();
    EXPECT_EQ(Progetto, d);
    EXPECT_EQ(esito.nSeg, 3);
    EXPECT_EQ(esito.fileRisultati, file.percorso());
    ASSERT_EQ(esito.fasi.size(), 2u);
    EXPECT_EQ(esito.fasi[0].fase, 1);
    EXPECT_EQ(esito.fasi[0].profFase, 2);
    EXPECT_EQ(esito.fasi[0].spostamentoMax, 0.02);  // the largest in size
    EXPECT_EQ(esito.fasi[0].momentoMax, 1.5);
    EXPECT_EQ(esito.fasi[0].momentoMin, -2.25);
    EXPECT_EQ(esito.fasi[1].momentoMax, -0.25);  // signed: there is no positive one
    EXPECT_EQ(esito.fasi[1].momentoMin, -3);
    EXPECT_EQ(esito.chiusura.mrd1, -9);
}

TEST(LeggiEsito, RefusesAFileOfAnotherMesh) {
    test::RisultatiAMano file(3);
    const auto d = test::progettoSemplice();
    file.scrivi(d, {test::faseFerma(4), test::faseFerma(4)});
    Progetto = d;
    fileCorrente = file.cartella / "muro.kvd";
    analysis::contenutoNSeg = "4";
    EXPECT_THROW((void)leggiEsito(), base::ErroreFile);
    analysis::contenutoNSeg = "niente";
    EXPECT_THROW((void)leggiEsito(), base::ErroreFile);
}

TEST(UscitaRelazione, WritesTheReportAfterARunAndRemembersItsName) {
    test::Banco banco(test::progettoSemplice(), 20);
    UscitaRelazione uscita(true);
    EXPECT_TRUE(uscita.relazione().empty());
    analysis::CalcoloParatia(0, {banco.dialogo, banco.avanzamento, uscita});
    EXPECT_EQ(uscita.relazione(), banco.cartella / "muro.TAB");
    EXPECT_TRUE(fs::exists(uscita.relazione()));
}

TEST(UscitaRelazione, WritesNothingWhenOnlyTheRunIsWanted) {
    test::Banco banco(test::progettoSemplice(), 20);
    UscitaRelazione uscita(false);
    analysis::CalcoloParatia(0, {banco.dialogo, banco.avanzamento, uscita});
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

TEST(ScriviTesto, NeedsTheMarkUp) {
    CartellaProvvisoria cartella;
    EXPECT_THROW(scriviTesto(cartella / "muro.TAB"), base::ErroreFile);
}

}  // namespace
}  // namespace korven::commands
