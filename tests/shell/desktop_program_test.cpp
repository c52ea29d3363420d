// The desktop program from outside, where there is no display.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "support/temporary_folder.hpp"

namespace korven::shell {
namespace {

#ifndef KORVEN_DESKTOP
#define KORVEN_DESKTOP "korven32"  // the build names the program's file; a header alone has none
#endif

struct Risposta {
    int codice;
    std::string uscita, errori;
};

Risposta korven32(const std::string& argomenti) {
    const test::CartellaProvvisoria cartella;
    const int esito =
        std::system(("env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb '" KORVEN_DESKTOP "' " +
                     argomenti + " > " + cartella / "uscita" + " 2> " + cartella / "errori")
                        .c_str());
    return {WEXITSTATUS(esito), test::contenuto(cartella / "uscita"),
            test::contenuto(cartella / "errori")};
}

TEST(ProgrammaDesktop, AnswersWithoutADisplayWhatNeedsNone) {
    const auto versione = korven32("--version");
    EXPECT_EQ(versione.codice, 0);
    EXPECT_TRUE(versione.uscita.starts_with("KORVEN 32 ")) << versione.errori;
    EXPECT_EQ(korven32("--versione").uscita, versione.uscita);
    const auto aiuto = korven32("--help");
    EXPECT_EQ(aiuto.codice, 0);
    EXPECT_NE(aiuto.uscita.find("korven32 [PROGETTO.kvd]"), std::string::npos) << aiuto.uscita;
    EXPECT_EQ(korven32("--aiuto").uscita, aiuto.uscita);
}

TEST(ProgrammaDesktop, EndsWithTwoOnAnOptionThatIsNone) {
    const auto risposta = korven32("--inesistente");
    EXPECT_EQ(risposta.codice, 2);
    EXPECT_NE(risposta.errori.find("--inesistente"), std::string::npos) << risposta.errori;
}

}  // namespace
}  // namespace korven::shell
