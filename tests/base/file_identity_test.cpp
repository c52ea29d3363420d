#include "base/file_identity.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

namespace fs = std::filesystem;
using test::CartellaProvvisoria;
using test::metti;

TEST(StessoFile, SeesThroughLinksAndOtherWaysToAFolder) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "x");
    metti(cartella / "g", "x");
    fs::create_symlink(cartella / "f", cartella / "simbolico");
    fs::create_hard_link(cartella / "f", cartella / "rigido");
    fs::create_directory_symlink(cartella.percorso(), cartella / "via");
    for (const char* nome : {"f", "simbolico", "rigido", "via/f", "./f"})
        EXPECT_TRUE(stessoFile(cartella / "f", cartella / nome)) << nome;
    EXPECT_FALSE(stessoFile(cartella / "f", cartella / "g"));
    EXPECT_FALSE(stessoFile(cartella / "f", cartella / "manca"));
    EXPECT_TRUE(stessoFile(cartella / "manca", cartella / "manca"));
}

TEST(StessoFile, KnowsNamesThatWillBecomeOneFile) {
    const CartellaProvvisoria cartella;
    fs::create_directories(cartella / "sotto");
    fs::create_directory_symlink(cartella.percorso(), cartella / "via");
    fs::create_symlink("q", cartella / "futuro");  // leads to what is not there yet
    fs::create_symlink(cartella / "futuro", cartella / "passaggio");  // over another link
    for (const char* nome : {"./q", "via/q", "sotto/../q", "via/./via/q", "futuro", "passaggio"})
        EXPECT_TRUE(stessoFile(cartella / "q", cartella / nome)) << nome;
    for (const char* nome : {"sotto/q", "qq", "manca/q", ""})
        EXPECT_FALSE(stessoFile(cartella / "q", cartella / nome)) << nome;
    EXPECT_TRUE(stessoFile(cartella / "manca/q", cartella / "via/manca/q"));
    EXPECT_TRUE(stessoFile("q", "./q"));
}

TEST(StessoFile, GivesLinksInACircleToNobody) {
    const CartellaProvvisoria cartella;
    fs::create_symlink("b", cartella / "a");
    fs::create_symlink("a", cartella / "b");
    EXPECT_FALSE(destinazione(cartella / "a"));
    EXPECT_FALSE(stessoFile(cartella / "a", cartella / "b"));
}

// What the file system says of names in capitals is asked of the file system.
TEST(StessoFile, TellsTheCaseOfLettersApartAsTheFileSystemDoes) {
    const CartellaProvvisoria cartella;
    metti(cartella / "spia", "x");
    const bool uguali = fs::exists(cartella / "SPIA");
    EXPECT_EQ(senzaMaiuscole(cartella.percorso()), uguali);
    EXPECT_EQ(stessoFile(cartella / "muro.OUT", cartella / "Muro.out"), uguali);
    EXPECT_EQ(stessoFile(cartella / "caff\u00E8.OUT", cartella / "caff\u00C8.OUT"), uguali);
    EXPECT_FALSE(senzaMaiuscole(cartella / "manca"));
    EXPECT_EQ(std::distance(fs::directory_iterator(cartella.percorso()), {}), 1);
}

TEST(FileProprio, IsAPlainFileAndNoLink) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "x");
    fs::create_symlink("f", cartella / "simbolico");
    fs::create_directory(cartella / "sotto");
    EXPECT_TRUE(fileProprio(cartella / "f"));
    for (const char* nome : {"simbolico", "sotto", "manca"})
        EXPECT_FALSE(fileProprio(cartella / nome)) << nome;
}

TEST(QuandoScritto, IsTheTimeThatTheSystemHolds) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "x");
    const timespec volta[] = {{1000000000, 0}, {1000000000, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (cartella / "f").c_str(), volta, 0), 0);
    EXPECT_EQ(quandoScritto(cartella / "f"), 1000000000);
    EXPECT_EQ(quandoScritto(cartella / "manca"), std::nullopt);
}

}  // namespace
}  // namespace korven::base
