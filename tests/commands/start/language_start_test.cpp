#include "commands/start/language_start.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "commands/start/example_folders.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/failing_disk.hpp"

namespace korven::commands {
namespace {

using test::contenuto;

class Lingua : public ::testing::Test {
 protected:
    Lingua() {
        for (const char* sigla : {"ita", "deu", "eng"})
            metti(std::string("module06") + sigla + ".CFG");
        test::metti(ambiente.programma / "texts01.txt",
                    "Sì\r\nJa\r\nOui\r\nSí\r\nYes\r\nSim\r\n\r\n");
        test::metti(ambiente.programma / "texts06.txt",
                    "fase\r\nBauzustand\r\n@\r\n@\r\nstage\r\n@\r\n\r\n");
    }
    void metti(const std::string& nome) { test::metti(ambiente.programma / nome, "x"); }
    bool parti(int scelta = 0) {
        return iniziaLingua({.dialogo = dialogo,
                             .scegli =
                                 [&, scelta](const std::vector<int>& codici) {
                                     ++domande;
                                     offerte = codici;
                                     return scelta;
                                 },
                             .radice = radice.percorso(),
                             .disco = disco});
    }
    std::string nelProgramma(const char* nome) { return ambiente.programma / nome; }

    test::AmbienteDocumento ambiente;
    test::CartellaProvvisoria radice;
    test::DialogoFinto dialogo;
    test::DiscoGuasto disco;
    int domande = 0;
    std::vector<int> offerte;
};

TEST_F(Lingua, IsAskedForAtTheFirstStartAndWrittenDown) {
    EXPECT_TRUE(parti(2));
    EXPECT_EQ(domande, 1);
    EXPECT_EQ(offerte, (std::vector<int>{5, 2, 1}));  // English, German, Italian have their files
    EXPECT_EQ(contenuto(nelProgramma("language.cfg")), "2\r\n");
    EXPECT_EQ(base::traduttore("fase"), "Bauzustand");
}

TEST_F(Lingua, IsTheOneChosenBefore) {
    test::metti(nelProgramma("language.cfg"), "5\r\n");
    EXPECT_TRUE(parti());
    EXPECT_EQ(domande, 0);
    EXPECT_EQ(base::traduttore("fase"), "stage");
}

TEST_F(Lingua, LeavesTheProgramUnstartedWhenNoneIsChosen) {
    EXPECT_FALSE(parti(0));
    EXPECT_FALSE(std::filesystem::exists(nelProgramma("language.cfg")));
}

TEST_F(Lingua, OutsideOneToSixEndsTheProgramNamingTheFile) {
    for (const char* codice : {"0\r\n", "7\r\n", "-1\r\n", "x\r\n"}) {
        test::metti(nelProgramma("language.cfg"), codice);
        try {
            (void)parti();
            ADD_FAILURE() << codice;
        } catch (const base::ErroreFile& errore) {
            EXPECT_EQ(errore.percorso(), nelProgramma("language.cfg"));
            // Who wrote it may read no Italian.
            EXPECT_NE(std::string(errore.what()).find("language code"), std::string::npos)
                << errore.what();
        }
    }
}

TEST_F(Lingua, WithoutATextFileEndsTheProgram) {
    std::filesystem::remove(nelProgramma("texts01.txt"));
    EXPECT_THROW((void)parti(1), base::ErroreFile);
}

TEST_F(Lingua, IsAskedForAgainInTheTestModeWhichTellsOfMissingTexts) {
    test::metti(nelProgramma("language.cfg"), "5\r\n");
    test::metti(radice / "testmode.tra", "");
    EXPECT_TRUE(parti(5));
    EXPECT_EQ(domande, 1);
    EXPECT_EQ(base::traduttore("mai visto"), "mai visto");
    ASSERT_FALSE(dialogo.messaggi.empty());
    EXPECT_EQ(dialogo.messaggi[0].testo, "mai visto");
    EXPECT_EQ(dialogo.messaggi[0].titolo, "Testo Mancante");
}

TEST_F(Lingua, FindsTheHelpFileOfALanguageThatStandsIn) {
    metti("module06eng.hlp");
    EXPECT_TRUE(parti(2));
    EXPECT_EQ(fileGuida, nelProgramma("module06eng.hlp"));
    metti("module06deu.hlp");
    EXPECT_TRUE(parti(2));
    EXPECT_EQ(fileGuida, nelProgramma("module06deu.hlp"));
}

TEST_F(Lingua, PutsTheExamplesIntoTheirFoldersAtTheFirstStart) {
    for (const char* nome : {"Esem1.kvd", "exam1.kvd", "exem1.kvd", "EJEM1.KVD", "altro.kvd"})
        metti(nome);
    EXPECT_TRUE(parti(5));
    for (const char* nome :
         {"data/ita/Esem1.kvd", "data/eng/exam1.kvd", "data/fra/exem1.kvd", "data/esp/EJEM1.KVD"})
        EXPECT_TRUE(std::filesystem::exists(nelProgramma(nome))) << nome;
    EXPECT_FALSE(std::filesystem::exists(nelProgramma("Esem1.kvd")));
    EXPECT_TRUE(std::filesystem::exists(nelProgramma("altro.kvd")));
    EXPECT_EQ(contenuto(nelProgramma("path")), nelProgramma("data/eng") + "\r\n");
}

TEST_F(Lingua, LeavesAUsedProgramFolderAsItIs) {
    test::metti(nelProgramma("path"), "/lavori\r\n");
    metti("esem1.kvd");
    EXPECT_TRUE(parti(1));
    EXPECT_TRUE(std::filesystem::exists(nelProgramma("esem1.kvd")));
    EXPECT_EQ(contenuto(nelProgramma("path")), "/lavori\r\n");
}

TEST_F(Lingua, ThatCannotBeWrittenDownEndsTheProgram) {
    disco.spazio = 0;
    EXPECT_THROW(parti(2), base::ErroreScrittura);
    EXPECT_FALSE(std::filesystem::exists(nelProgramma("language.cfg")));
}

TEST_F(Lingua, LosesNoExampleThatFindsNoRoomInItsFolder) {
    test::metti(nelProgramma("esem1.kvd"), "esempio");
    disco.spazio = 5;  // language.cfg fits
    EXPECT_THROW(parti(1), base::ErroreScrittura);
    EXPECT_EQ(contenuto(nelProgramma("esem1.kvd")), "esempio");
    EXPECT_FALSE(std::filesystem::exists(nelProgramma("data/ita/esem1.kvd")));
}

TEST_F(Lingua, NeedsNoNoteOfTheLastFolder) {
    disco.spazio = 3;
    EXPECT_TRUE(parti(1));
    EXPECT_FALSE(std::filesystem::exists(nelProgramma("path")));
}

}  // namespace
}  // namespace korven::commands
