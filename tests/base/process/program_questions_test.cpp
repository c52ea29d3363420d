#include "base/process/program_questions.hpp"

#include <gtest/gtest.h>

#include "base/translated_texts.hpp"
#include "base/version.hpp"

namespace korven::base {
namespace {

TEST(RichiestaProgramma, IsAskedInEnglishAndInItalian) {
    EXPECT_EQ(richiesta("--version"), Richiesta::versione);
    EXPECT_EQ(richiesta("--versione"), Richiesta::versione);
    for (const char* aiuto : {"--help", "--aiuto", "-h"})
        EXPECT_EQ(richiesta(aiuto), Richiesta::aiuto) << aiuto;
    for (const char* altro : {"", "-", "--", "help", "--Help", "--helps", "muro.kvd", "-v"})
        EXPECT_EQ(richiesta(altro), Richiesta::nessuna) << altro;
}

TEST(Domanda, LeavesNoNameOutInItalianAndTheItalianOneInEveryOtherLanguage) {
    for (const auto& domanda : domande) {
        EXPECT_EQ(domanda.taciuto(), "");
        impostaLingua(5);
        EXPECT_EQ(domanda.taciuto(), domanda.nome.italiano);
        impostaLingua(1);
    }
}

TEST(TestoAiuto, SaysHowTheProgramIsCalledAndWhatItAnswers) {
    EXPECT_EQ(testoAiuto("prova FILE"), "KORVEN 32 " + std::string(versione) +
                                            " - Dimensionamento di Paratie e Diaframmi\n"
                                            "Uso: prova FILE\n\n"
                                            "  -h, --help, --aiuto    mostra questo aiuto\n"
                                            "  --version, --versione  mostra la versione\n");
}

TEST(TestoAiuto, ShowsTheEnglishNamesAloneInEveryOtherLanguage) {
    for (int lingua = 2; lingua <= 6; ++lingua) {
        impostaLingua(lingua);
        const std::string testo = testoAiuto("prova FILE");
        EXPECT_NE(testo.find("\n  -h, --help  mostra questo aiuto\n"
                             "  --version   mostra la versione\n"),
                  std::string::npos)
            << testo;                                       // no texts are loaded
        EXPECT_EQ(richiesta("--aiuto"), Richiesta::aiuto);  // understood all the same
    }
    impostaLingua(1);
}

}  // namespace
}  // namespace korven::base
