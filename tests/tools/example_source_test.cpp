#include "tools/example_source.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/text_lines.hpp"
#include "project/project_file.hpp"

namespace korven::tools {
namespace {

const std::string source =
    "# comment\n\n@progetto muro\nfr: mur\nes: muro_es\nen: wall\n\n"
    "@testo\nit: Sabbia limosa.\nfr: Sable limoneux.\nes: Arena limosa.\nen: Silty sand.\n";

long lineOfFault(const std::string& content) {
    try {
        (void)readExampleSource("lingue.txt", content);
    } catch (const base::ErroreFile& error) {
        return error.riga();
    }
    return -1;
}

TEST(ExampleSource, ReadsProjectsWithTheirNamesAndTexts) {
    const auto read = readExampleSource("lingue.txt", source);
    ASSERT_EQ(read.projects.size(), 1u);
    EXPECT_EQ(read.projects[0].italian, "muro");
    EXPECT_EQ(read.projects[0].names[2], "wall");
    ASSERT_EQ(read.texts.size(), 1u);
    EXPECT_EQ(read.texts[0].texts[0], "Sable limoneux.");
}

TEST(ExampleSource, RefusesFaultsWithTheirLine) {
    EXPECT_EQ(lineOfFault("@altro\n"), 1);
    EXPECT_EQ(lineOfFault("@testo\nit: a\nfr: b\nen: c\n"), 4);  // Spanish is missing
    EXPECT_EQ(lineOfFault("@testo\nit: a\nfr: b\n"), 3);
}

TEST(TranslatedExample, KeepsNumbersAndHatchCodesAndReplacesWords) {
    const auto read = readExampleSource("lingue.txt", source);
    EXPECT_EQ(translatedExample(read, "muro.kvd", "1\r\n4.5\r\n-103C3 Sabbia limosa.\r\n\r\n", 2),
              "1\r\n4.5\r\n-103C3 Silty sand.\r\n\r\n");
    EXPECT_EQ(translatedExample(read, "muro.kvd", "Sabbia limosa.\r\n", 1), "Arena limosa.\r\n");
}

TEST(TranslatedExample, RefusesATextWithoutTranslation) {
    const auto read = readExampleSource("lingue.txt", source);
    try {
        (void)translatedExample(read, "muro.kvd", "1\r\n105 Ghiaia.\r\n", 0);
        FAIL();
    } catch (const base::ErroreFile& error) {
        EXPECT_EQ(error.riga(), 2);
    }
}

project::DatiProgetto read(const std::string& path) {
    project::DatiProgetto data;
    project::azzera(data);
    auto file = base::LettoreRighe::apri(path);
    project::leggiDati(file, data);
    return data;
}

TEST(DeliveredExamples, OfOtherLanguagesHaveTheNumbersOfTheItalianOnesAndOtherWords) {
    const std::string folder = KORVEN_DATA_FOLDER "/examples/";
    const auto all = readExampleSource("lingue.txt", base::leggiFile(folder + "lingue.txt"));
    ASSERT_GE(all.projects.size(), 3u);
    for (const auto& project : all.projects)
        for (std::size_t i = 0; i < exampleTags.size(); ++i) {
            const std::string path = std::string(KORVEN_PROGRAM_FOLDER "/data/")
                                         .append(exampleTags[i])
                                         .append("/" + project.names[i] + ".kvd");
            SCOPED_TRACE(path);
            auto italian = read(folder + project.italian + ".kvd");
            const auto other = read(path);
            EXPECT_NE(other.titoli[1], italian.titoli[1]);
            for (int line = 1; line <= 6; ++line) {
                EXPECT_LE(base::numeroCaratteri(other.titoli[line]), 80u);
                italian.titoli[line] = other.titoli[line];
            }
            for (int layer = 1; layer <= italian.nStrati; ++layer) {
                EXPECT_NE(other.descrStrato[layer], italian.descrStrato[layer]);
                italian.descrStrato[layer] = other.descrStrato[layer];
            }
            EXPECT_EQ(other, italian);
        }
}

}  // namespace
}  // namespace korven::tools
