// Files on a disk that takes no more, or forgets.

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "support/failing_disk.hpp"
#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

using test::CartellaProvvisoria;
using test::contenuto;
using test::metti;
using test::voci;

// What a write tells that fails; empty if it tells nothing.
template <class Scrittura>
std::string detto(const Scrittura& scrittura) {
    try {
        scrittura();
    } catch (const ErroreScrittura& errore) {
        return errore.what();
    }
    return {};
}

std::string nonScritto(const std::string& percorso, const char* motivo) {
    return percorso + ": impossibile scrivere il file (" + motivo + ")";
}

// A disk on which the file that was made never is the one that bears its name.
class DiscoSmemorato : public test::DiscoGuasto {
 public:
    int creaProvvisorio(std::string& modello) const override {
        const int file = DiscoGuasto::creaProvvisorio(modello);
        std::filesystem::remove(modello);
        metti(modello, "");
        ++creati;
        return file;
    }
    mutable int creati = 0;
};

TEST(ScriviFile, TellsThatTheDiskTakesNoMoreAndLeavesTheOldFileAlone) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "prima");
    const test::DiscoPieno disco(4096);
    EXPECT_EQ(detto([&] { scriviFile(cartella / "f", std::string(10000, 'x'), disco); }),
              nonScritto(cartella / "f", test::nonCeSpazio));
    EXPECT_EQ(contenuto(cartella / "f"), "prima");
    EXPECT_EQ(voci(cartella), 1u);
    disco.spazio = 10000;  // room again
    scriviFile(cartella / "f", std::string(10000, 'x'), disco);
    EXPECT_EQ(contenuto(cartella / "f").size(), 10000u);
}

TEST(ScriviFile, LeavesNothingOfANewFileWhicheverCallFails) {
    const CartellaProvvisoria cartella;
    test::DiscoGuasto chiuso, versa, nome;
    chiuso.apertura = versa.versamento = nome.nome = true;
    chiuso.motivo = EROFS;
    versa.motivo = EIO;
    const test::DiscoPieno pieno(2);
    const std::pair<const Disco*, const char*> casi[] = {{&chiuso, "il disco è di sola lettura"},
                                                         {&pieno, test::nonCeSpazio},
                                                         {&versa, "errore del disco"},
                                                         {&nome, test::nonCeSpazio}};
    for (const auto& [disco, motivo] : casi) {
        EXPECT_EQ(detto([&, d = disco] { scriviFile(cartella / "f", "dopo", *d); }),
                  nonScritto(cartella / "f", motivo));
        EXPECT_EQ(voci(cartella), 0u) << motivo;
    }
}

TEST(ScriviFile, BringsTheBytesToTheDiskBeforeTheName) {
    const CartellaProvvisoria cartella;
    const test::DiscoContato disco;
    scriviFile(cartella / "f", "dopo", disco);
    const std::vector<std::string> ordine = {"crea",     "scrivi",        "versa",
                                             "rinomina", "apri cartella", "versa cartella"};
    EXPECT_EQ(disco.chiamate, ordine);
}

TEST(ScriviFileNuovo, BringsTheBytesAndThenTheNameToTheDisk) {
    const CartellaProvvisoria cartella;
    const test::DiscoContato disco;
    scriviFileNuovo(cartella / "f", "dopo", disco);
    const std::vector<std::string> ordine = {"apri",   "scrivi",        "versa",
                                             "chiudi", "apri cartella", "versa cartella"};
    EXPECT_EQ(disco.chiamate, ordine);
}

TEST(ScriviFile, GivesUpOnADiskThatForgetsItsFilesAndLeavesNone) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "prima");
    const DiscoSmemorato disco;
    EXPECT_EQ(detto([&] { scriviFile(cartella / "f", "dopo", disco); }),
              nonScritto(cartella / "f", "errore del disco"));
    EXPECT_EQ(disco.creati, 20);
    EXPECT_EQ(contenuto(cartella / "f"), "prima");
    EXPECT_EQ(voci(cartella), 1u);
}

TEST(ScriviFileNuovo, LeavesNothingOfAFileThatCannotBeWrittenToItsEnd) {
    const CartellaProvvisoria cartella;
    test::DiscoGuasto versa, chiude;
    versa.versamento = chiude.chiusura = true;
    const test::DiscoPieno pieno(2);
    for (const Disco* disco : {static_cast<const Disco*>(&pieno), static_cast<const Disco*>(&versa),
                               static_cast<const Disco*>(&chiude)}) {
        EXPECT_EQ(detto([&] { scriviFileNuovo(cartella / "f", "testo", *disco); }),
                  nonScritto(cartella / "f", test::nonCeSpazio));
        EXPECT_EQ(voci(cartella), 0u);
    }
}

// The first bytes still fit; they must not stay.
TEST(AccodaFile, TellsThatTheDiskTakesNoMoreAndCutsTheFileBack) {
    const CartellaProvvisoria cartella;
    const std::string prima(3000, 'p');
    metti(cartella / "f", prima);
    const test::DiscoPieno disco(1096);
    EXPECT_EQ(detto([&] { accodaFile(cartella / "f", std::string(5000, 'x'), disco); }),
              nonScritto(cartella / "f", test::nonCeSpazio));
    EXPECT_EQ(contenuto(cartella / "f"), prima);
    EXPECT_EQ(voci(cartella), 1u);
}

TEST(AccodaFile, RemovesAFileThatCannotBeCutBack) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "prima");
    test::DiscoPieno disco(2);
    disco.taglio = true;
    EXPECT_THROW(accodaFile(cartella / "f", "dopo", disco), ErroreScrittura);
    EXPECT_EQ(voci(cartella), 0u) << "half a file would be taken for a whole one";
}

TEST(AccodaFile, TellsOfADiskThatFailsOnlyAtTheEnd) {
    const CartellaProvvisoria cartella;
    metti(cartella / "f", "prima");
    test::DiscoGuasto disco;
    disco.chiusura = true;
    disco.motivo = EIO;
    EXPECT_EQ(detto([&] { accodaFile(cartella / "f", "dopo", disco); }),
              nonScritto(cartella / "f", "errore del disco"));
}

TEST(ScrittoreFile, IsGivenUpAtTheFirstFailure) {
    const test::CartellaProvvisoria cartella;
    const test::DiscoPieno disco(5);
    ScrittoreFile file(cartella / "a", disco);
    file.scrivi("uno ");
    EXPECT_THROW(file.scrivi("due"), ErroreScrittura);
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

}  // namespace
}  // namespace korven::base
