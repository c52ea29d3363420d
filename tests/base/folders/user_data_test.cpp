#include "base/folders/user_data.hpp"

#include <gtest/gtest.h>
#include <stdlib.h>

#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

namespace fs = std::filesystem;

TEST(CartellaDatiUtente, LiesWhereTheDesktopKeepsTheDataOfPrograms) {
    const char* prima = ::getenv("XDG_DATA_HOME");
    const std::string tenuta = prima != nullptr ? prima : "";
    ::setenv("XDG_DATA_HOME", "/dati", 1);
    EXPECT_EQ(cartellaDatiUtente(), "/dati/korven32");
    ::setenv("XDG_DATA_HOME", "relativa", 1);  // to be passed over
    EXPECT_TRUE(cartellaDatiUtente().ends_with("/.local/share/korven32"));
    if (prima != nullptr)
        ::setenv("XDG_DATA_HOME", tenuta.c_str(), 1);
    else
        ::unsetenv("XDG_DATA_HOME");
}

TEST(AccettaFile, IsTriedOutWithoutTouchingWhatHasAnyKnownName) {
    const test::CartellaProvvisoria installata;
    test::metti(installata / "altrui", "da tenere");
    fs::create_symlink(installata / "altrui", installata / ".korven32_prova");
    EXPECT_TRUE(accettaFile(installata.percorso()));
    EXPECT_EQ(test::contenuto(installata / "altrui"), "da tenere");
    EXPECT_TRUE(fs::is_symlink(installata / ".korven32_prova"));
}

TEST(AccettaFile, LeavesNothingBehind) {
    const test::CartellaProvvisoria installata;
    EXPECT_TRUE(accettaFile(installata.percorso()));
    EXPECT_FALSE(accettaFile("/proc/self"));
    EXPECT_FALSE(accettaFile(installata / "manca"));
    EXPECT_TRUE(fs::is_empty(installata.percorso()));
}

TEST(CartellaUtente, IsOfNoUseWhereAFolderWasNamedOrTheProgramsCanBeWritten) {
    EXPECT_FALSE(cartellaProgrammaNominata());
    EXPECT_FALSE(serveCartellaUtente());  // that of this test
    impostaCartellaProgramma("/proc/self");
    EXPECT_TRUE(cartellaProgrammaNominata());
    EXPECT_FALSE(serveCartellaUtente());
    impostaCartellaProgramma("");
    ::setenv("KORVEN32_HOME", "/proc/self", 1);
    EXPECT_TRUE(cartellaProgrammaNominata());
    EXPECT_FALSE(serveCartellaUtente());
    ::unsetenv("KORVEN32_HOME");
}

}  // namespace
}  // namespace korven::base
