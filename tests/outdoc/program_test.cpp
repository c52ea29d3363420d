// The converter from outside, and the file that it makes in a word processor.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "support/temporary_folder.hpp"

namespace korven::outdoc {
namespace {

int run(const std::string& command) { return std::system(command.c_str()); }

TEST(Outdoc, ConvertsTheReportThatItIsGiven) {
    const test::CartellaProvvisoria folder;
    std::filesystem::copy(KORVEN_REPORTS "/palancola_mensola.TAB", folder / "muro.TAB");
    EXPECT_EQ(run(std::string(KORVEN_OUTDOC) + " " + folder / "muro.TAB"), 0);
    EXPECT_TRUE(std::filesystem::exists(folder / "muro.doc"));
}

TEST(Outdoc, TellsByItsExitCodeThatItFailed) {
    const test::CartellaProvvisoria folder;
    EXPECT_EQ(WEXITSTATUS(run(std::string(KORVEN_OUTDOC) + " " + folder / "no.TAB 2> /dev/null")),
              3);
    EXPECT_EQ(WEXITSTATUS(run(std::string(KORVEN_OUTDOC) + " 2> /dev/null")), 2);
}

TEST(Outdoc, AnswersForItselfInEitherLanguage) {
    const test::CartellaProvvisoria folder;
    const auto said = [&](const std::string& arguments) {
        EXPECT_EQ(run(std::string(KORVEN_OUTDOC) + " " + arguments + " > " + folder / "detto"), 0);
        return test::contenuto(folder / "detto");
    };
    EXPECT_TRUE(said("--version").starts_with("KORVEN 32 "));
    EXPECT_EQ(said("--versione"), said("--version"));
    EXPECT_NE(said("--help").find("Uso: outdoc FILE.TAB\n"), std::string::npos);
    EXPECT_EQ(said("--aiuto"), said("--help"));
    EXPECT_EQ(WEXITSTATUS(run(std::string(KORVEN_OUTDOC) + " --inesistente 2> /dev/null")), 2);
}

TEST(Outdoc, TellsWhereItKeptADocumentThatItDidNotWrite) {
    const test::CartellaProvvisoria folder;
    std::filesystem::copy(KORVEN_REPORTS "/palancola_mensola.TAB", folder / "muro.TAB");
    test::metti(folder / "muro.doc", "lettera");
    EXPECT_EQ(run(std::string(KORVEN_OUTDOC) + " " + folder / "muro.TAB 2> " + folder / "detto"),
              0);
    EXPECT_EQ(test::contenuto(folder / "detto"),
              "outdoc: Il documento che c'era è conservato in: " + folder / "muro.doc.bak\n");
}

// Needs LibreOffice Writer and Poppler; KORVEN_SOFFICE names the program, for example "soffice".
TEST(Outdoc, IsReadByAWordProcessorWithItsHeadsRepeated) {
    const char* soffice = std::getenv("KORVEN_SOFFICE");
    if (soffice == nullptr) GTEST_SKIP() << "KORVEN_SOFFICE is not set";
    const test::CartellaProvvisoria folder;
    std::filesystem::copy(KORVEN_REPORTS "/pali_armati_staffe.TAB", folder / "muro.TAB");
    ASSERT_EQ(run(std::string(KORVEN_OUTDOC) + " " + folder / "muro.TAB"), 0);
    ASSERT_EQ(run(std::string(soffice) + " -env:UserInstallation=file://" + folder / "profile" +
                  " --headless --convert-to pdf --outdir " + folder.percorso() + " " +
                  folder / "muro.doc > /dev/null 2>&1"),
              0);
    ASSERT_EQ(run("pdftotext -layout " + folder / "muro.pdf " + folder / "muro.txt"), 0);
    const std::string text = test::contenuto(folder / "muro.txt");
    // Three stages over pages that break inside two of their tables.
    const std::string head = "Spostamento [cm]";
    int heads = 0;
    for (auto at = text.find(head); at != std::string::npos; at = text.find(head, at + 1)) ++heads;
    EXPECT_EQ(heads, 5);
    std::string close = text;  // the file's spacing is guessed from the page
    std::erase(close, ' ');
    EXPECT_NE(close.find("pali_armati_staffe.kvd–Coulomb"), std::string::npos) << text;
    EXPECT_NE(close.find("1/4"), std::string::npos) << text;
    EXPECT_NE(text.find("Pali Ø800 ogni 1.20 m"), std::string::npos);
    EXPECT_NE(text.find("kN/m³"), std::string::npos);
}

}  // namespace
}  // namespace korven::outdoc
