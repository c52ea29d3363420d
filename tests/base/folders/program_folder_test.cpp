#include "base/folders/program_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

TEST(CartellaProgramma, IsTheFolderOfTheExecutableUnlessNamed) {
    EXPECT_FALSE(cartellaProgramma().empty());
    impostaCartellaProgramma("/una/cartella");
    EXPECT_EQ(cartellaProgramma(), "/una/cartella");
    impostaCartellaProgramma({});
    EXPECT_NE(cartellaProgramma(), "/una/cartella");
}

TEST(CartellaAltriProgrammi, StaysWhereverTheProgramFolderIs) {
    impostaCartellaProgramma("/una/cartella");
    EXPECT_TRUE(std::filesystem::exists(cartellaAltriProgrammi() + "/base_test"));
    EXPECT_EQ(cartellaDati(), "/una/cartella");
    impostaCartellaProgramma({});
    EXPECT_TRUE(std::filesystem::exists(cartellaDati() + "/base_test"));
}

TEST(CartellaUtente, TakesWhatTheProgramIsToldAndGoesBeforeTheDeliveredFiles) {
    const test::CartellaProvvisoria utente;
    impostaCartellaUtente(utente.percorso());
    EXPECT_EQ(cartellaProgramma(), utente.percorso());
    EXPECT_EQ(fileProgramma("nseg.txt"), utente / "nseg.txt");
    // This program's file stands for one that is delivered.
    EXPECT_EQ(fileProgramma("base_test"), cartellaDati() + "/base_test");
    test::metti(utente / "base_test", "");
    EXPECT_EQ(fileProgramma("base_test"), utente / "base_test");
    impostaCartellaProgramma("/una/cartella");
    EXPECT_EQ(cartellaProgramma(), "/una/cartella");
    impostaCartellaProgramma({});
    impostaCartellaUtente({});
    EXPECT_EQ(cartellaProgramma(), cartellaDati());
}

TEST(FileProgramma, IsFoundWhateverTheCaseOfItsName) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "NSEG.TXT", "50");
    test::metti(cartella / "texts01.txt", "");
    impostaCartellaProgramma(cartella.percorso());
    EXPECT_EQ(fileProgramma("nseg.txt"), cartella / "NSEG.TXT");
    EXPECT_EQ(fileProgramma("texts01.txt"), cartella / "texts01.txt");
    EXPECT_EQ(fileProgramma("manca.cfg"), cartella / "manca.cfg");
    impostaCartellaProgramma({});
}

TEST(FileProgramma, IsWhereItWouldBeWhenTheFolderCannotBeListed) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "file", "");
    for (const std::string chiusa : {"/nessuna/cartella", "/proc/1/fd/0/x"}) {
        impostaCartellaProgramma(chiusa);
        EXPECT_EQ(fileProgramma("nseg.txt"), chiusa + "/nseg.txt");
    }
    impostaCartellaProgramma(cartella / "file");
    EXPECT_EQ(fileProgramma("nseg.txt"), cartella / "file/nseg.txt");
    impostaCartellaProgramma({});
}

TEST(FileDocumento, LiesWhereTheLinkBesideTheProgramLeads) {
    const test::CartellaProvvisoria sorgenti, programma;
    test::metti(sorgenti / "README.md", "");
    std::filesystem::create_directory(sorgenti / "docs");
    test::metti(sorgenti / "docs/theory.md", "");
    impostaCartellaProgramma(programma.percorso());
    EXPECT_EQ(fileDocumento("README"), "");
    std::filesystem::create_symlink(sorgenti / "README.md", programma / "documenti.md");
    EXPECT_EQ(fileDocumento("README"), sorgenti / "README.md");
    EXPECT_EQ(fileDocumento("docs/theory"), sorgenti / "docs/theory.md");
    EXPECT_EQ(fileDocumento("docs/manca"), "");
    impostaCartellaProgramma({});
}

}  // namespace
}  // namespace korven::base
