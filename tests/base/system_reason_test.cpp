#include "base/system_reason.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

TEST(MotivoSistema, TellsAReasonInTheLanguageOfTheProgram) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "comuni.txt", "");
    test::metti(cartella / "testi.txt",
                "permesso negato\r\nkein Zugriff\r\nacc\xE8s refus\xE9\r\npermiso denegado\r\n"
                "permission denied\r\nacesso negado\r\n");
    caricaTesti(cartella / "comuni.txt", cartella / "testi.txt");
    EXPECT_EQ(motivoSistema(EACCES), "permesso negato");
    impostaLingua(2);
    EXPECT_EQ(motivoSistema(EACCES), "kein Zugriff");
    impostaLingua(1);
    caricaTesti(cartella / "comuni.txt", cartella / "comuni.txt");
}

TEST(MotivoSistema, LeavesAnUnusualReasonToTheSystem) {
    EXPECT_EQ(motivoSistema(EILSEQ), std::generic_category().message(EILSEQ));
}

TEST(MotivoSistema, IsToldInTheErrorOfAFile) {
    try {
        static_cast<void>(leggiFile("/manca/muro.kvd"));
        FAIL() << "no error";
    } catch (const ErroreFile& errore) {
        EXPECT_NE(std::string(errore.what()).find("(il file o la cartella non esiste)"),
                  std::string::npos)
            << errore.what();
    }
}

}  // namespace
}  // namespace korven::base
