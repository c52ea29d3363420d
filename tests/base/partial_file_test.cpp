#include "base/partial_file.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "base/file_error.hpp"
#include "base/folders/leftovers.hpp"
#include "support/failing_disk.hpp"
#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

namespace fs = std::filesystem;
using test::contenuto;

class Parziale : public ::testing::Test {
 protected:
    test::CartellaProvvisoria cartella;
    const std::string nome = cartella / "studio.csv";
    const std::string parziale = nome + ".parziale";
};

TEST_F(Parziale, BearsItsOwnNameUntilItIsDone) {
    test::metti(nome, "vecchio");
    {
        FileParziale file(nome);
        file.scrivi("a\r\n");
        EXPECT_EQ(contenuto(nome), "vecchio");
        EXPECT_EQ(contenuto(parziale), "a\r\n");
        file.scrivi("b\r\n");
        file.concludi();
    }
    EXPECT_EQ(contenuto(nome), "a\r\nb\r\n");
    EXPECT_FALSE(fs::exists(parziale));
}

TEST_F(Parziale, ComesToTheDiskBeforeItTakesTheName) {
    const test::DiscoContato disco;
    FileParziale file(nome, disco);
    file.scrivi("a\r\n");
    file.concludi();
    const std::vector<std::string> ordine = {"apri", "scrivi", "versa", "rinomina", "chiudi"};
    EXPECT_EQ(disco.chiamate, ordine);
}

TEST_F(Parziale, SaysThatWhatWasNotReadCannotBeCutOff) {
    test::DiscoGuasto disco;
    disco.taglio = true;
    FileParziale file(nome, disco);
    file.scrivi("a\r\nb");
    EXPECT_THROW(file.tieni(3), ErroreScrittura);
}

TEST_F(Parziale, LeavesTheOldFileWholeWhicheverCallFails) {
    for (std::size_t quale = 1; quale <= 4; ++quale) {
        test::metti(nome, "vecchio");
        const test::DiscoContato disco(quale);
        EXPECT_THROW(
            {
                FileParziale file(nome, disco);
                file.scrivi("a\r\n");
                file.concludi();
            },
            ErroreScrittura)
            << quale;
        EXPECT_EQ(contenuto(nome), "vecchio") << quale;
        fs::remove(parziale);
    }
}

TEST_F(Parziale, StaysWhereAStudyEndsEarlyAndNoCleaningTakesIt) {
    FileParziale(nome).scrivi("a\r\n");
    togliProvvisori(cartella.percorso());
    EXPECT_EQ(contenuto(parziale), "a\r\n");
    EXPECT_FALSE(fs::exists(nome));
}

TEST_F(Parziale, GivesItsWholeLinesBackAndDropsTheOneThatWasCut) {
    test::metti(parziale, "a,1\r\nb,2\r\nc,");
    FileParziale file(nome);
    std::vector<std::string> righe;
    const auto byte = file.leggi("\r\n", [&](std::string_view riga) {
        righe.emplace_back(riga);
        return true;
    });
    EXPECT_EQ(righe, (std::vector<std::string>{"a,1", "b,2"}));
    EXPECT_EQ(byte, 10u);
    file.tieni(byte);
    file.scrivi("d,4\r\n");
    EXPECT_EQ(contenuto(parziale), "a,1\r\nb,2\r\nd,4\r\n");
}

TEST_F(Parziale, EndsItsReadingWhereALineIsNotTaken) {
    test::metti(parziale, "uno\nuno\naltro\nuno\n");
    const FileParziale file(nome);
    EXPECT_EQ(file.leggi("\n", [](std::string_view riga) { return riga == "uno"; }), 8u);
    // Half of a line's end is none.
    test::metti(parziale, "a\r\nb\nc\r\n");
    EXPECT_EQ(file.leggi("\r\n", [](std::string_view) { return true; }), 3u);
}

TEST_F(Parziale, IsOneStudysAtATime) {
    const FileParziale primo(nome);
    EXPECT_THROW(FileParziale secondo(nome), ErroreScrittura);
}

TEST_F(Parziale, TellsOfADiskThatIsFull) {
    const test::DiscoPieno disco(4);
    FileParziale file(nome, disco);
    file.scrivi("abc\n");
    EXPECT_THROW(file.scrivi("def\n"), ErroreScrittura);
    EXPECT_EQ(contenuto(parziale).substr(0, 4), "abc\n");
}

TEST_F(Parziale, LiesBesideTheFileThatALinkLeadsTo) {
    fs::create_directory(cartella / "dati");
    test::metti(cartella / "dati/vero.csv", "vecchio");
    fs::create_symlink("dati/vero.csv", nome);
    FileParziale file(nome);
    file.scrivi("nuovo");
    file.concludi();
    EXPECT_TRUE(fs::is_symlink(nome));
    EXPECT_EQ(contenuto(cartella / "dati/vero.csv"), "nuovo");
}

}  // namespace
}  // namespace korven::base
