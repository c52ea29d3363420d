#include "commands/project_opening.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/file_error.hpp"
#include "base/folders/file_names.hpp"
#include "project/output_guard.hpp"
#include "project/project_file.hpp"
#include "support/sample_projects.hpp"
#include "support/temporary_folder.hpp"

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

TEST_F(Apri, SweepsAwayWhatKilledProgramsLeftInBothFolders) {
    fs::create_directory(cartella / "uscita");
    for (const char* resto : {".korven-a1B2c3", "uscita/.korven-muro.OUT.lock"})
        test::metti(cartella / resto, "");
    apriProgetto(progetto, cartella / "uscita");
    EXPECT_FALSE(fs::exists(cartella / ".korven-a1B2c3"));
    EXPECT_TRUE(fs::is_empty(cartella / "uscita"));
    EXPECT_TRUE(fs::exists(progetto));
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

TEST_F(Apri, GoesWhereTheSystemWouldGoThroughALink) {
    fs::create_directories(cartella / "altra/sotto");
    auto altro = test::progettoSemplice();
    altro.lunghezzaParatia = 17;
    test::metti(cartella / "altra/muro.kvd", project::testoProgetto(altro));
    fs::create_directory_symlink(cartella / "altra/sotto", cartella / "via");
    apriProgetto(cartella / "via/../muro.kvd", "");
    EXPECT_EQ(Progetto.lunghezzaParatia, 17);
    EXPECT_EQ(fileCorrente, cartella / "altra/muro.kvd");
}

TEST_F(Apri, KeepsTheNameOfALinkAsItWasTyped) {
    fs::create_symlink(progetto, cartella / "nome.kvd");
    apriProgetto(cartella / "nome.kvd", "");
    EXPECT_EQ(fileCorrente, cartella / "nome.kvd");
}

TEST_F(Apri, NamesTheFolderForTheResultsAndKeepsTheNameButMakesNothing) {
    apriProgetto(progetto, cartella / "uscita/profonda/");
    EXPECT_EQ(fileCorrente, cartella / "uscita/profonda/muro.kvd");
    EXPECT_FALSE(fs::exists(cartella / "uscita"));
}

TEST_F(Apri, KeepsTheProjectSafeFromOutputs) {
    apriProgetto(progetto, cartella / "uscita");
    EXPECT_TRUE(project::prendeIlPostoDelProgetto(progetto));
    apriProgetto(progetto, "");
    EXPECT_TRUE(project::prendeIlPostoDelProgetto(progetto));
}

TEST_F(Apri, TellsAPathThatNamesNothing) {
    EXPECT_THROW(apriProgetto("", ""), base::ErroreFile);
    EXPECT_THROW(apriProgetto(cartella / "altro.kvd", cartella / "uscita"), base::ErroreFile);
}

}  // namespace
}  // namespace korven::commands
