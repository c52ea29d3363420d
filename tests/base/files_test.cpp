#include "base/files.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_error.hpp"
#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

using test::CartellaProvvisoria;
using test::contenuto;
using test::metti;

std::size_t voci(const CartellaProvvisoria& cartella) {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(cartella.percorso()), {}));
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

TEST(ScriviFile, LeavesTheOldFileAndNoHalfOneWhenTheFolderIsMissing) {
    const CartellaProvvisoria cartella;
    EXPECT_THROW(scriviFile(cartella / "nessuna/f", "x"), ErroreFile);
    EXPECT_EQ(voci(cartella), 0u);
}

TEST(ScriviFile, TellsAFullDisk) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no /dev/full here";
    EXPECT_THROW(accodaFile("/dev/full", "x"), ErroreFile);
}

TEST(AccodaFile, AddsBehindWhatStands) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "uno ");
    accodaFile(cartella / "f", "due");
    EXPECT_EQ(contenuto(cartella / "f"), "uno due");
    EXPECT_THROW(accodaFile(cartella / "g", "x"), ErroreFile);
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

TEST(CancellaFile, IsSilentAboutAMissingFile) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "x");
    cancellaFile(cartella / "f");
    EXPECT_FALSE(esisteFile(cartella / "f"));
    EXPECT_NO_THROW(cancellaFile(cartella / "f"));
    EXPECT_FALSE(esisteFile(cartella.percorso()));  // a folder is no file
}

}  // namespace
}  // namespace korven::base
