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

TEST(TestoAiuto, SaysHowTheProgramIsCalledAndWhatItAnswers) {
    const std::string testo = testoAiuto("prova FILE");
    EXPECT_TRUE(testo.starts_with("KORVEN 32 " + std::string(versione) + " - "));
    for (const char* parte : {"Uso: prova FILE\n", "--help, --aiuto", "--version, --versione"})
        EXPECT_NE(testo.find(parte), std::string::npos) << parte;
}

}  // namespace
}  // namespace korven::base
