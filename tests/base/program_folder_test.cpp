#include "base/program_folder.hpp"

#include <gtest/gtest.h>

#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

TEST(CartellaProgramma, IsTheFolderOfTheExecutableUnlessNamed) {
    EXPECT_FALSE(cartellaProgramma().empty());
    impostaCartellaProgramma("/una/cartella");
    EXPECT_EQ(cartellaProgramma(), "/una/cartella");
    impostaCartellaProgramma({});
    EXPECT_NE(cartellaProgramma(), "/una/cartella");
}

TEST(FileProgramma, IsFoundWhateverTheCaseOfItsName) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "NSEG.TXT", "50");
    test::metti(cartella / "texts01.txt", "");
    impostaCartellaProgramma(cartella.percorso());
    EXPECT_EQ(fileProgramma("nseg.txt"), cartella / "NSEG.TXT");
    EXPECT_EQ(fileProgramma("texts01.txt"), cartella / "texts01.txt");
    EXPECT_EQ(fileProgramma("manca.cfg"), cartella / "manca.cfg");
    impostaCartellaProgramma({});
}

}  // namespace
}  // namespace korven::base
