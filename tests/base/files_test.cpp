#include "base/files.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "base/file_error.hpp"
#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

using test::CartellaProvvisoria;
using test::contenuto;
using test::metti;
using test::voci;

// What the reason of a refusal is; empty if there was none.
template <class Chiamata>
std::string rifiuto(const Chiamata& chiamata) {
    try {
        chiamata();
    } catch (const ErroreFile& errore) {
        return errore.atteso();
    }
    return {};
}

TEST(ScriviFile, ReplacesTheOldContentAndLeavesNothingElseBehind) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "prima");
    scriviFile(cartella / "f", "dopo");
    EXPECT_EQ(contenuto(cartella / "f"), "dopo");
    EXPECT_EQ(voci(cartella), 1u);
}

TEST(ScriviFile, KeepsThePermissionsOfTheFile) {
    namespace fs = std::filesystem;
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "prima");
    fs::permissions(cartella / "f", fs::perms::owner_read | fs::perms::owner_write);
    scriviFile(cartella / "f", "dopo");
    EXPECT_EQ(fs::status(cartella / "f").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST(ScriviFile, FollowsALinkInsteadOfReplacingIt) {
    const CartellaProvvisoria cartella;
    metti(cartella / "vero", "prima");
    std::filesystem::create_symlink(cartella / "vero", cartella / "nome");
    scriviFile(cartella / "nome", "dopo");
    EXPECT_TRUE(std::filesystem::is_symlink(cartella / "nome"));
    EXPECT_EQ(contenuto(cartella / "vero"), "dopo");
}

TEST(ScriviFile, TakesTheLongestNameThatAFolderTakes) {
    const CartellaProvvisoria cartella;
    const std::string percorso = cartella / (std::string(251, 'm') + ".kvd");
    scriviFile(percorso, "uno");
    scriviFile(percorso, "due");
    EXPECT_EQ(contenuto(percorso), "due");
    EXPECT_EQ(voci(cartella), 1u);
}

TEST(ScriviFile, MakesTheMissingTargetOfALink) {
    namespace fs = std::filesystem;
    const CartellaProvvisoria cartella;
    fs::create_directory(cartella / "sotto");
    fs::create_symlink("sotto/vero", cartella / "secondo");
    fs::create_symlink(cartella / "secondo", cartella / "primo");
    scriviFile(cartella / "primo", "dopo");
    EXPECT_TRUE(fs::is_symlink(cartella / "primo"));
    EXPECT_TRUE(fs::is_symlink(cartella / "secondo"));
    EXPECT_EQ(contenuto(cartella / "sotto/vero"), "dopo");
    EXPECT_EQ(voci(cartella), 3u);
}

TEST(ScriviFile, RefusesALinkIntoAMissingFolderAndOneThatLeadsToItself) {
    namespace fs = std::filesystem;
    const CartellaProvvisoria cartella;
    fs::create_symlink("manca/vero", cartella / "altrove");
    fs::create_symlink("anello", cartella / "anello");
    for (const char* nome : {"altrove", "anello"}) {
        try {
            scriviFile(cartella / nome, "x");
            ADD_FAILURE() << nome;
        } catch (const ErroreFile& errore) {
            EXPECT_EQ(errore.percorso(), cartella / nome);
        }
        EXPECT_TRUE(fs::is_symlink(cartella / nome)) << nome;
    }
    EXPECT_EQ(voci(cartella), 2u);
}

TEST(ScriviFile, LeavesTheOldFileAndNoHalfOneWhenTheFolderIsMissing) {
    const CartellaProvvisoria cartella;
    EXPECT_THROW(scriviFile(cartella / "nessuna/f", "x"), ErroreScrittura);
    EXPECT_EQ(voci(cartella), 0u);
}

TEST(ScriviFileNuovo, WritesUnderAFreeNameAlone) {
    namespace fs = std::filesystem;
    const CartellaProvvisoria cartella;
    scriviFileNuovo(cartella / "nuovo", "testo");
    EXPECT_EQ(contenuto(cartella / "nuovo"), "testo");
    metti(cartella / "vero", "prima");
    fs::create_symlink(cartella / "vero", cartella / "link");
    fs::create_symlink("nessuno", cartella / "nel vuoto");
    fs::create_directory(cartella / "cartella");
    for (const char* nome : {"nuovo", "link", "nel vuoto", "cartella"}) {
        EXPECT_TRUE(esisteNome(cartella / nome)) << nome;
        EXPECT_THROW(scriviFileNuovo(cartella / nome, "altro"), ErroreScrittura) << nome;
    }
    EXPECT_EQ(contenuto(cartella / "nuovo"), "testo");
    EXPECT_EQ(contenuto(cartella / "vero"), "prima");
    EXPECT_FALSE(esisteNome(cartella / "nessuno"));
}

TEST(AccodaFile, AddsAfterWhatIsThere) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "uno ");
    accodaFile(cartella / "f", "due");
    EXPECT_EQ(contenuto(cartella / "f"), "uno due");
    EXPECT_THROW(accodaFile(cartella / "g", "x"), ErroreScrittura);
}

TEST(LeggiFile, SaysWhyAFileCannotBeRead) {
    try {
        static_cast<void>(leggiFile("/nessuna/f"));
        FAIL();
    } catch (const ErroreFile& errore) {
        EXPECT_EQ(errore.percorso(), "/nessuna/f");
        EXPECT_EQ(errore.riga(), 0);
        EXPECT_NE(std::string(errore.what()).find("impossibile leggere"), std::string::npos);
    }
}

TEST(LeggiFile, RefusesAPipeAndADeviceInsteadOfWaitingForThem) {
    const CartellaProvvisoria cartella;
    ASSERT_EQ(::mkfifo((cartella / "tubo").c_str(), 0600), 0);
    for (const std::string& percorso : {cartella / "tubo", std::string("/dev/zero")})
        EXPECT_EQ(rifiuto([&] { (void)leggiFile(percorso); }), "non è un file normale") << percorso;
    EXPECT_TRUE(esisteFile(cartella / "tubo"));  // so that its reader tells why it can't be used
}

TEST(LeggiFile, RefusesAFileOfMoreThanAGibibyte) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "");
    std::filesystem::resize_file(cartella / "f", massimoByte + 1);  // takes no room on the disk
    EXPECT_EQ(rifiuto([&] { (void)leggiFile(cartella / "f"); }), "il file è troppo grande");
}

TEST(ScriviFile, NeverTakesTheNameOfAPipeOrADevice) {
    const CartellaProvvisoria cartella;
    ASSERT_EQ(::mkfifo((cartella / "tubo").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/null", cartella / "nulla");
    for (const std::string& percorso : {cartella / "tubo", cartella / "nulla"})
        EXPECT_EQ(rifiuto([&] { scriviFile(percorso, "x"); }), "non è un file normale") << percorso;
    EXPECT_EQ(voci(cartella), 2u);
}

TEST(CancellaFile, IsSilentAboutAMissingFile) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "x");
    cancellaFile(cartella / "f");
    EXPECT_FALSE(esisteFile(cartella / "f"));
    EXPECT_NO_THROW(cancellaFile(cartella / "f"));
    EXPECT_FALSE(esisteFile(cartella.percorso()));  // a folder is no file
}

TEST(CancellaFile, LeavesAnEmptyFolderOfThatName) {
    const CartellaProvvisoria cartella;
    std::filesystem::create_directory(cartella / "f");
    cancellaFile(cartella / "f");
    EXPECT_TRUE(std::filesystem::is_directory(cartella / "f"));
}

TEST(ScrittoreFile, GivesTheFileItsNameOnceItIsWhole) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "a", "prima");
    ScrittoreFile file(cartella / "a");
    file.scrivi("uno ");
    file.scrivi("due");
    EXPECT_EQ(test::contenuto(cartella / "a"), "prima");
    file.concludi();
    EXPECT_EQ(test::contenuto(cartella / "a"), "uno due");
}

TEST(ScrittoreFile, LeavesNothingOfAFileThatIsGivenUp) {
    const test::CartellaProvvisoria cartella;
    { ScrittoreFile(cartella / "a").scrivi("uno"); }
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

TEST(CreaCartella, MakesItWithThoseAboveIt) {
    const CartellaProvvisoria cartella;
    creaCartella(cartella / "uscita/profonda/");
    EXPECT_TRUE(std::filesystem::is_directory(cartella / "uscita/profonda"));
    EXPECT_NO_THROW(creaCartella(cartella / "uscita/profonda"));
}

TEST(CreaCartella, TellsAFolderThatCannotBeMade) {
    const CartellaProvvisoria cartella;
    metti(cartella / "occupato", "file");
    std::filesystem::create_symlink("anello", cartella / "anello");
    for (const std::string& nome : {cartella / "occupato", cartella / "occupato/sotto",
                                    cartella / "anello/sotto", cartella / std::string(300, 'x')}) {
        try {
            creaCartella(nome);
            ADD_FAILURE() << nome;
        } catch (const ErroreFile& errore) {
            EXPECT_EQ(errore.percorso(), nome);
        }
    }
}

TEST(CreaCartella, SaysWhyItCannot) {
    const CartellaProvvisoria cartella;
    metti(cartella / "occupato", "file");
    try {
        creaCartella(cartella / "occupato");
        ADD_FAILURE();
    } catch (const ErroreFile& errore) {
        EXPECT_TRUE(errore.atteso().ends_with("(una parte del percorso non è una cartella)"))
            << errore.atteso();
    }
}

TEST(ControllaCartella, RefusesWhatCreaCartellaCouldNotMakeAndMakesNothing) {
    const CartellaProvvisoria cartella;
    metti(cartella / "occupato", "file");
    EXPECT_THROW(controllaCartella(cartella / "occupato"), ErroreFile);
    EXPECT_THROW(controllaCartella(cartella / "occupato/sotto"), ErroreFile);
    EXPECT_NO_THROW(controllaCartella(cartella.percorso()));
    EXPECT_NO_THROW(controllaCartella(cartella / "nuova/e/profonda/"));
    EXPECT_FALSE(std::filesystem::exists(cartella / "nuova"));
}

TEST(ControllaScrivibile, RefusesWhatScriviFileWouldAndLeavesAllAsItWas) {
    const CartellaProvvisoria cartella;
    metti(cartella / "c'è", "uno");
    for (const std::string& nome : {cartella.percorso(), cartella / "manca/a"}) {
        EXPECT_THROW(controllaScrivibile(nome), ErroreFile);
        EXPECT_THROW(scriviFile(nome, "x"), ErroreFile);
    }
    EXPECT_NO_THROW(controllaScrivibile(cartella / "c'è"));
    EXPECT_NO_THROW(controllaScrivibile(cartella / "nuovo"));
    EXPECT_EQ(contenuto(cartella / "c'è"), "uno");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(cartella.percorso()), {}), 1);
}

TEST(ScriviFile, SaysOfAFolderThatItIsOneByWhicheverName) {
    const CartellaProvvisoria cartella;
    for (const std::string& nome : {cartella.percorso(), cartella / ".", cartella / ""}) {
        try {
            scriviFile(nome, "x");
            ADD_FAILURE() << nome;
        } catch (const ErroreFile& errore) {
            EXPECT_TRUE(errore.atteso().ends_with("(è una cartella)")) << errore.atteso();
        }
    }
}

}  // namespace
}  // namespace korven::base
