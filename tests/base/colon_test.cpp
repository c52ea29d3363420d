#include "base/colon.hpp"

#include <gtest/gtest.h>

#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

TEST(DuePunti, StandAtTheWordAndInFrenchApartFromIt) {
    EXPECT_EQ(conDuePunti("massimi", "5 mm"), "massimi: 5 mm");
    EXPECT_EQ(duePunti() + puntoEVirgola(), ": ; ");
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "comuni.txt", "");
    test::metti(cartella / "testi.txt",
                "%1: %2\r\n%1: %2\r\n%1 : %2\r\n%1: %2\r\n%1: %2\r\n%1: %2\r\n"
                "\r\n%1; %2\r\n%1; %2\r\n%1 ; %2\r\n%1; %2\r\n%1; %2\r\n%1; %2\r\n");
    caricaTesti(cartella / "comuni.txt", cartella / "testi.txt");
    impostaLingua(3);
    EXPECT_EQ(conDuePunti("maximums", "5 mm"), "maximums : 5 mm");
    EXPECT_EQ("maximums" + duePunti() + "5 mm", "maximums : 5 mm");
    EXPECT_EQ("5 mm" + puntoEVirgola() + "3 mm", "5 mm ; 3 mm");
    impostaLingua(4);
    EXPECT_EQ(conDuePunti("100 %1", "%2"), "100 %1: %2");
    impostaLingua(1);
    caricaTesti(cartella / "comuni.txt", cartella / "comuni.txt");
}

}  // namespace
}  // namespace korven::base
