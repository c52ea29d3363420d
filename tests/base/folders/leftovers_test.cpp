#include "base/folders/leftovers.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <optional>

#include "base/file_custody.hpp"
#include "base/files.hpp"
#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

namespace fs = std::filesystem;

// What another process would hold.
class Tenuto {
 public:
    Tenuto(const std::string& percorso, int modo)
        : file_(::open(percorso.c_str(), modo | O_CLOEXEC, 0600)) {
        EXPECT_EQ(prendiInCustodia(file_), Custodia::presa);
    }
    Tenuto(const Tenuto&) = delete;
    Tenuto& operator=(const Tenuto&) = delete;
    ~Tenuto() { ::close(file_); }

 private:
    int file_;
};

class Resti : public testing::Test {
 protected:
    Resti() {
        if (const char* prima = std::getenv("TMPDIR")) prima_ = prima;
        ::setenv("TMPDIR", cartella.percorso().c_str(), 1);
    }
    ~Resti() override {
        if (prima_)
            ::setenv("TMPDIR", prima_->c_str(), 1);
        else
            ::unsetenv("TMPDIR");
    }
    [[nodiscard]] bool esiste(const char* nome) const { return esisteNome(cartella / nome); }

    // Does something in another process, which is then killed.
    template <class Lavoro>
    void uccisoDurante(const Lavoro& lavoro) const {
        const pid_t figlio = ::fork();
        if (figlio == 0) {
            lavoro();
            ::kill(::getpid(), SIGKILL);
        }
        ::waitpid(figlio, nullptr, 0);
    }

    const test::CartellaProvvisoria cartella;

 private:
    std::optional<std::string> prima_;
};

TEST_F(Resti, OfAKilledWriterAreSweptAway) {
    uccisoDurante([this] {
        ScrittoreFile file(cartella / "muro.pdf");
        file.scrivi("metà");
        ::kill(::getpid(), SIGKILL);
    });
    ASSERT_FALSE(fs::is_empty(cartella.percorso()));
    togliProvvisori(cartella.percorso());
    EXPECT_TRUE(fs::is_empty(cartella.percorso()));
}

TEST_F(Resti, AreNotWhatSomebodyElseHasNamedSo) {
    const char* altrui[] = {".korven-note", ".korven-a.kvd", ".korven-note12345", ".korven-a b-c.",
                            ".korven-diario.lock"};
    for (const char* nome : altrui) test::metti(cartella / nome, "mio");
    test::metti(cartella / ".korven-muro.OUT.lock", "");
    test::metti(cartella / ".korven-aB3xYz", "metà");
    togliProvvisori(cartella.percorso());
    for (const char* nome : altrui) EXPECT_TRUE(esiste(nome)) << nome;
    EXPECT_FALSE(esiste(".korven-muro.OUT.lock"));
    EXPECT_FALSE(esiste(".korven-aB3xYz"));
}

TEST_F(Resti, OfALivingWriterStay) {
    ScrittoreFile file(cartella / "muro.pdf");
    file.scrivi("tutto");
    togliProvvisori(cartella.percorso());
    file.concludi();
    EXPECT_EQ(test::contenuto(cartella / "muro.pdf"), "tutto");
}

TEST_F(Resti, AreLocksThatNobodyHolds) {
    const Tenuto presa(cartella / ".korven-muro.OUT.lock", O_RDWR | O_CREAT);
    test::metti(cartella / ".korven-altro.OUT.lock", "");
    togliProvvisori(cartella.percorso());
    EXPECT_TRUE(esiste(".korven-muro.OUT.lock"));
    EXPECT_FALSE(esiste(".korven-altro.OUT.lock"));
}

TEST_F(Resti, AreNeitherFoldersNorLinksNorFilesOfOtherNames) {
    fs::create_directory(cartella / ".korven-cartella");
    test::metti(cartella / "muro.kvd", "progetto");
    fs::create_symlink("muro.kvd", cartella / ".korven-link");
    test::metti(cartella / "x.korven-abc", "");
    togliProvvisori(cartella.percorso());
    for (const char* nome : {".korven-cartella", "muro.kvd", ".korven-link", "x.korven-abc"})
        EXPECT_TRUE(esiste(nome)) << nome;
    EXPECT_NO_THROW(togliProvvisori(cartella / "manca"));
}

TEST_F(Resti, OfTheTemporaryFolderAreTheFoldersWithoutAProcess) {
    fs::create_directories(cartella / "korven32-mo1rTo/dentro");
    test::metti(cartella / "korven32-mo1rTo/plttmp1.tmp", "0\r\n");
    fs::create_directory(cartella / "korven32-viV0aA");
    const Tenuto vivo(cartella / "korven32-viV0aA", O_RDONLY | O_DIRECTORY);
    test::metti(cartella / "korven32-fiL3aa", "");
    fs::create_directory(cartella / "altro");
    fs::create_directory(cartella / "korven32-appunti");
    fs::create_directory_symlink("altro", cartella / "korven32-liN4kk");
    togliCartelleProvvisorie();
    EXPECT_FALSE(esiste("korven32-mo1rTo"));
    for (const char* nome :
         {"korven32-viV0aA", "korven32-fiL3aa", "altro", "korven32-liN4kk", "korven32-appunti"})
        EXPECT_TRUE(esiste(nome)) << nome;
}

}  // namespace
}  // namespace korven::base
