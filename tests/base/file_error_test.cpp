#include "base/file_error.hpp"

#include <gtest/gtest.h>

namespace korven::base {
namespace {

TEST(ErroreFile, ReadsAsOneLineWithPathLineAndWhatWasExpected) {
    const ErroreFile errore("/lavori/muro.kvd", 12, "atteso un numero");
    EXPECT_STREQ(errore.what(), "/lavori/muro.kvd, riga 12: atteso un numero");
    EXPECT_EQ(errore.percorso(), "/lavori/muro.kvd");
    EXPECT_EQ(errore.riga(), 12);
    EXPECT_EQ(errore.atteso(), "atteso un numero");
}

TEST(ErroreFile, NamesNoLineWhenTheWholeFileIsMeant) {
    EXPECT_STREQ(ErroreFile("a.txt", 0, "il file non esiste").what(), "a.txt: il file non esiste");
}

}  // namespace
}  // namespace korven::base
