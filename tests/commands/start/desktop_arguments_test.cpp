#include "commands/start/desktop_arguments.hpp"

#include <gtest/gtest.h>

#include "base/translated_texts.hpp"

namespace korven::commands {
namespace {

using base::Richiesta;

ArgomentiDesktop letti(const std::vector<std::string>& argomenti) {
    return leggiArgomenti(argomenti, [](const std::string& nome) { return nome == "--aiuto"; });
}

TEST(ArgomentiDesktop, AskForNothingWhenThereIsAProjectOrNone) {
    for (const std::vector<std::string>& argomenti :
         {std::vector<std::string>{}, {"muro.kvd"}, {"manca.kvd"}, {""}, {"muro.kvd", "--help"}}) {
        const auto trovati = letti(argomenti);
        EXPECT_EQ(trovati.richiesta, Richiesta::nessuna);
        EXPECT_EQ(trovati.sconosciuto, "");
    }
}

TEST(ArgomentiDesktop, KnowTheQuestions) {
    EXPECT_EQ(letti({"--version"}).richiesta, Richiesta::versione);
    EXPECT_EQ(letti({"--versione", "muro.kvd"}).richiesta, Richiesta::versione);
    EXPECT_EQ(letti({"-h"}).richiesta, Richiesta::aiuto);
}

TEST(ArgomentiDesktop, AreAProjectWhereAFileHasTheName) {
    EXPECT_EQ(letti({"--aiuto"}).richiesta, Richiesta::nessuna);
}

TEST(ArgomentiDesktop, NameAnOptionThatIsNone) {
    EXPECT_EQ(letti({"--inesistente"}).sconosciuto, "--inesistente");
    EXPECT_EQ(letti({"-x", "muro.kvd"}).sconosciuto, "-x");
    EXPECT_EQ(letti({"-style", "fusion", "--nulla"}).sconosciuto, "--nulla");
}

TEST(ArgomentiDesktop, LetTheOptionsOfTheWindowSystemPass) {
    for (const std::vector<std::string>& argomenti :
         {std::vector<std::string>{"-platform", "offscreen", "muro.kvd"},
          {"--platform=offscreen"},
          {"-geometry", "-0-0", "muro.kvd"},
          {"-reverse", "muro.kvd"}})
        EXPECT_EQ(letti(argomenti).sconosciuto, "") << argomenti[0];
    EXPECT_EQ(letti({"-platform", "offscreen", "--version"}).richiesta, Richiesta::versione);
    EXPECT_EQ(letti({"-reverse", "--version"}).richiesta, Richiesta::versione);
}

TEST(ArgomentiRiavvio, NameTheOpenProjectInPlaceOfTheFirstOne) {
    using Testi = std::vector<std::string>;
    EXPECT_EQ(argomentiRiavvio({"korven32"}, "", ""), (Testi{"korven32"}));
    EXPECT_EQ(argomentiRiavvio({"korven32"}, "", "/a/muro.kvd"),
              (Testi{"korven32", "/a/muro.kvd"}));
    EXPECT_EQ(argomentiRiavvio({"korven32", "muro.kvd"}, "muro.kvd", "/b/altro.kvd"),
              (Testi{"korven32", "/b/altro.kvd"}));
    EXPECT_EQ(argomentiRiavvio({"korven32", "muro.kvd"}, "muro.kvd", ""), (Testi{"korven32"}));
}

TEST(ArgomentiRiavvio, KeepTheOptionsOfTheWindowSystem) {
    using Testi = std::vector<std::string>;
    EXPECT_EQ(argomentiRiavvio({"./korven32", "-title", "m", "m", "-reverse"}, "m", "/a/m.kvd"),
              (Testi{"./korven32", "-title", "m", "-reverse", "/a/m.kvd"}));
}

TEST(Rispondi, GoesOnWhereNothingIsAskedAndEndsWithTwoOnAWrongOption) {
    EXPECT_EQ(rispondi({}), -1);
    testing::internal::CaptureStderr();
    EXPECT_EQ(rispondi({Richiesta::nessuna, "--inesistente"}), 2);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "korven32: argomento sconosciuto: --inesistente\nPer l'aiuto: korven32 --aiuto\n");
    testing::internal::CaptureStdout();
    EXPECT_EQ(rispondi({Richiesta::versione, ""}), 0);
    EXPECT_TRUE(testing::internal::GetCapturedStdout().starts_with("KORVEN 32 "));
}

std::string aiuto() {
    testing::internal::CaptureStdout();
    EXPECT_EQ(rispondi({Richiesta::aiuto, ""}), 0);
    return testing::internal::GetCapturedStdout();
}

TEST(Rispondi, NamesTheProjectInTheHelpAsTheLanguageDoes) {
    EXPECT_NE(aiuto().find("Uso: korven32 [PROGETTO.kvd]\n"), std::string::npos);
    for (int lingua = 2; lingua <= 6; ++lingua) {
        base::impostaLingua(lingua);
        EXPECT_NE(aiuto().find(": korven32 [PROJECT.kvd]\n"), std::string::npos) << lingua;
    }
    base::impostaLingua(1);
}

}  // namespace
}  // namespace korven::commands
