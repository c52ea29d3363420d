#include "base/file_custody.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_error.hpp"
#include "support/failing_disk.hpp"
#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

namespace fs = std::filesystem;
using test::contenuto;

TEST(InCustodia, IsAFileThatNobodyElseTakesUntilItIsLet) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "f", "com'era");
    InCustodia nostro, altrui;
    ASSERT_TRUE(nostro.prendiFile(cartella / "f"));
    EXPECT_EQ(contenuto(cartella / "f"), "com'era");
    EXPECT_FALSE(altrui.prendiFile(cartella / "f"));
    nostro.riscrivi("più lungo di prima");
    nostro.riscrivi("corto");
    EXPECT_EQ(contenuto(cartella / "f"), "corto");
    nostro.riscrivi("");
    EXPECT_EQ(contenuto(cartella / "f"), "");
    nostro.lascia();
    EXPECT_TRUE(altrui.prendiFile(cartella / "f"));
    EXPECT_TRUE(altrui.portaIlNome());
    EXPECT_FALSE(nostro.portaIlNome());
}

TEST(InCustodia, LosesAFileThatCannotBeRewritten) {
    const test::CartellaProvvisoria cartella;
    const test::DiscoPieno disco(2);
    InCustodia file;
    ASSERT_TRUE(file.prendiFile(cartella / "f"));
    try {
        file.riscrivi("troppo", disco);
        ADD_FAILURE() << "a full disk passed";
    } catch (const ErroreScrittura& errore) {
        EXPECT_EQ(errore.atteso(), "impossibile scrivere il file (non c'è più spazio sul disco)");
    }
    EXPECT_FALSE(file.portaIlNome());
    EXPECT_TRUE(fs::is_empty(cartella.percorso()));
}

TEST(InCustodia, MovesWithItsLock) {
    const test::CartellaProvvisoria cartella;
    InCustodia primo;
    ASSERT_TRUE(primo.prendiFile(cartella / "f"));
    InCustodia secondo = std::move(primo);
    EXPECT_TRUE(secondo.portaIlNome());
    InCustodia terzo;
    EXPECT_FALSE(terzo.prendiFile(cartella / "f"));
}

TEST(InCustodia, TakesThePlaceOfAnotherWithItsLock) {
    const test::CartellaProvvisoria cartella;
    InCustodia file;
    ASSERT_TRUE(file.prendiFile(cartella / "f"));
    {
        InCustodia altro;
        ASSERT_TRUE(altro.prendiFile(cartella / "g"));
        file = std::move(altro);
    }
    // What it held before has ended with the other.
    InCustodia terzo, quarto;
    EXPECT_TRUE(terzo.prendiFile(cartella / "f"));
    EXPECT_FALSE(quarto.prendiFile(cartella / "g"));
}

TEST(InCustodia, IsNoFileOfALinkAndNoneThatLostItsName) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "vero", "");
    fs::create_symlink("vero", cartella / "link");
    InCustodia file;
    EXPECT_FALSE(file.prendiFile(cartella / "link"));
    ASSERT_TRUE(file.prendiFile(cartella / "vero"));
    fs::rename(cartella / "vero", cartella / "altrove");
    EXPECT_FALSE(file.portaIlNome());
    EXPECT_THROW((void)file.prendiFile(cartella / "manca/f"), ErroreScrittura);
}

TEST(InCustodia, IsAFolderTooUntilSomebodyRemovesIt) {
    const test::CartellaProvvisoria cartella;
    fs::create_directory(cartella / "c");
    InCustodia nostra, altrui;
    ASSERT_TRUE(nostra.prendiCartella(cartella / "c"));
    EXPECT_FALSE(altrui.prendiCartella(cartella / "c"));
    fs::remove(cartella / "c");
    EXPECT_FALSE(altrui.prendiCartella(cartella / "c"));
}

}  // namespace
}  // namespace korven::base
