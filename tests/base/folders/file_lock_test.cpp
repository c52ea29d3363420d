#include "base/folders/file_lock.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

namespace fs = std::filesystem;
using Esito = Serratura::Esito;
using test::CartellaProvvisoria;
using test::metti;

TEST(Serratura, IsHeldByOneAtATimeAndLeavesNoFile) {
    const CartellaProvvisoria cartella;
    const std::string nome = cartella / ".s";
    Serratura prima, seconda;
    EXPECT_EQ(prima.prendi(nome), Esito::presa);
    EXPECT_TRUE(fs::exists(nome));
    EXPECT_EQ(seconda.prendi(nome), Esito::occupata);
    EXPECT_FALSE(seconda.presa());
    prima.lascia();
    EXPECT_FALSE(fs::exists(nome));
    EXPECT_EQ(seconda.prendi(nome), Esito::presa);
    EXPECT_EQ(prima.prendi(nome), Esito::occupata);
    EXPECT_EQ(prima.prendi(cartella / ".altra"), Esito::presa);  // another name is free
    seconda.lascia();
    prima.lascia();
    EXPECT_TRUE(fs::is_empty(cartella.percorso()));
}

// The file that was locked lost its name, and another bears it: its lock is the one that counts.
TEST(Serratura, OfAFileThatLostItsNameCountsNoMore) {
    const CartellaProvvisoria cartella;
    const std::string nome = cartella / ".s";
    Serratura prima, seconda, terza;
    ASSERT_EQ(prima.prendi(nome), Esito::presa);
    fs::remove(nome);
    EXPECT_EQ(seconda.prendi(nome), Esito::presa);
    prima.lascia();  // must not remove the other's
    EXPECT_TRUE(fs::exists(nome));
    EXPECT_EQ(terza.prendi(nome), Esito::occupata);
}

TEST(Serratura, EndsWithItsProcessAndIsTakenOverWithItsFile) {
    const CartellaProvvisoria cartella;
    const std::string nome = cartella / ".s";
    const pid_t figlio = ::fork();
    if (figlio == 0) {
        Serratura sua;
        ::_exit(sua.prendi(nome) == Esito::presa ? 0 : 1);  // without tidying up, like a kill
    }
    int stato = 0;
    ::waitpid(figlio, &stato, 0);
    ASSERT_EQ(stato, 0);
    EXPECT_TRUE(fs::exists(nome));
    {
        Serratura mia;
        EXPECT_EQ(mia.prendi(nome), Esito::presa);
    }
    EXPECT_FALSE(fs::exists(nome));
}

TEST(Serratura, CantBeHadWhereNoFileCanBe) {
    const CartellaProvvisoria cartella;
    metti(cartella / "altrui", "x");
    fs::create_symlink(cartella / "altrui", cartella / ".link");
    Serratura serratura;
    EXPECT_EQ(serratura.prendi(cartella / "manca/.s"), Esito::impossibile);
    EXPECT_EQ(serratura.prendi("/proc/.s"), Esito::impossibile);
}

TEST(Serratura, IsNoLinkFolderOrPipeThatBearsItsName) {
    const CartellaProvvisoria cartella;
    metti(cartella / "altrui", "x");
    fs::create_symlink(cartella / "altrui", cartella / ".link");
    fs::create_directory(cartella / ".cartella");
    ASSERT_EQ(::mkfifo((cartella / ".tubo").c_str(), 0600), 0);
    Serratura serratura;
    for (const char* nome : {".link", ".cartella", ".tubo"})
        EXPECT_EQ(serratura.prendi(cartella / nome), Esito::ingombra) << nome;
    EXPECT_EQ(test::contenuto(cartella / "altrui"), "x");
}

TEST(NomeSerratura, LiesBesideTheFileOrTheTargetOfALink) {
    const CartellaProvvisoria cartella;
    fs::create_symlink("altrove.OUT", cartella / "muro.OUT");
    EXPECT_EQ(nomeSerratura("/d/muro.OUT"), "/d/.korven-muro.OUT.lock");
    EXPECT_EQ(nomeSerratura(cartella / "muro.OUT"), cartella / ".korven-altrove.OUT.lock");
}

TEST(NomeSerratura, FitsAFileSystemHoweverLongTheName) {
    const CartellaProvvisoria cartella;
    const std::string lungo(251, 'm');
    for (const char* fine : {".OUT", ".AUT"}) {
        const std::string nome = nomeSerratura(cartella / (lungo + fine));
        EXPECT_LE(fs::path(nome).filename().string().size(), 255u);
        Serratura serratura;
        EXPECT_EQ(serratura.prendi(nome), Esito::presa);
    }
    EXPECT_NE(nomeSerratura(lungo + ".OUT"), nomeSerratura(lungo + ".AUT"));
}

}  // namespace
}  // namespace korven::base
