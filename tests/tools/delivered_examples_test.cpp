// The example projects as the build has laid them into the program folder, one folder a language.

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <sstream>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/text_lines.hpp"
#include "commands/start/example_folders.hpp"
#include "drawings/log/layer_description.hpp"
#include "project/project_file.hpp"
#include "tools/example_source.hpp"

namespace korven {
namespace {

constexpr std::size_t languages = 6;

std::vector<tools::ExampleSource> source() {
    const std::string path = KORVEN_DATA_FOLDER "/esempi.txt";
    return tools::readExampleSource(path, base::leggiFile(path));
}

std::string delivered(const tools::ExampleSource& example, std::size_t language) {
    return std::string(KORVEN_PROGRAM_FOLDER "/data/")
        .append(base::siglaLingua(static_cast<int>(language) + 1))
        .append("/" + example.name[language] + ".kvd");
}

std::unique_ptr<project::DatiProgetto> read(const std::string& path) {
    auto dati = std::make_unique<project::DatiProgetto>();
    project::azzera(*dati);
    auto file = base::LettoreRighe::apri(path);
    project::leggiDati(file, *dati);
    return dati;
}

std::vector<std::string> lines(const std::string& bytes) {
    std::vector<std::string> all;
    std::istringstream stream(bytes);
    for (std::string line; std::getline(stream, line);) all.push_back(line);
    return all;
}

// Lines of the project file that hold text, from 0: the description ends each layer's eight lines
// after the count; the six headings are together.
std::set<std::size_t> textLines(const project::DatiProgetto& dati) {
    std::set<std::size_t> all;
    const auto layers = static_cast<std::size_t>(dati.nStrati);
    for (std::size_t j = 1; j <= layers; ++j) all.insert(8 * j);
    const std::size_t wall = 20;  // codes, wall, ground, then the count of the anchors
    const std::size_t titles = 1 + 8 * layers + wall + 4 * static_cast<std::size_t>(dati.nTiranti) +
                               1 + 4 * static_cast<std::size_t>(dati.nFasi);
    for (std::size_t i = 0; i < 6; ++i) all.insert(titles + i);
    return all;
}

template <typename Check>
void forEachTranslation(Check check) {
    int seen = 0;
    for (const auto& example : source())
        for (std::size_t language = 1; language < languages; ++language) {
            SCOPED_TRACE(delivered(example, language));
            check(example, language);
            ++seen;
        }
    EXPECT_GE(seen, 35) << "seven projects in five languages";
}

TEST(DeliveredExamples, AreTheItalianOnesByteForByteButForTheirTexts) {
    forEachTranslation([](const auto& example, std::size_t language) {
        const auto italian = lines(base::leggiFile(delivered(example, 0)));
        const auto translated = lines(base::leggiFile(delivered(example, language)));
        ASSERT_EQ(translated.size(), italian.size());
        const auto texts = textLines(*read(delivered(example, 0)));
        for (std::size_t i = 0; i < italian.size(); ++i) {
            const bool translates = texts.contains(i) && italian[i] != "\r";
            EXPECT_EQ(translated[i] != italian[i], translates) << "line " << i + 1;
            EXPECT_TRUE(translated[i].ends_with('\r')) << "line " << i + 1;
        }
    });
}

TEST(DeliveredExamples, KeepGraphicCodesAndLeaders) {
    forEachTranslation([](const auto& example, std::size_t language) {
        const auto italian = read(delivered(example, 0));
        const auto translated = read(delivered(example, language));
        for (int j = 1; j <= italian->nStrati; ++j) {
            const std::string& before = italian->descrStrato[j];
            const std::string& after = translated->descrStrato[j];
            EXPECT_EQ(after.substr(0, after.find(' ')), before.substr(0, before.find(' ')));
            EXPECT_EQ(drawings::leggiDescrizione(after).richiamo,
                      drawings::leggiDescrizione(before).richiamo);
        }
    });
}

TEST(DeliveredExamples, SayTheirTextsInTheirLanguage) {
    forEachTranslation([](const auto& example, std::size_t language) {
        std::set<std::string> expected;
        for (const auto& text : example.texts) expected.insert(text.text[language]);
        std::set<std::string> found;
        for (const auto& text : tools::exampleTexts(*read(delivered(example, language))))
            found.insert(text);
        EXPECT_EQ(found, expected);
    });
}

TEST(DeliveredExamples, ReadAndWriteBackToTheSameBytes) {
    forEachTranslation([](const auto& example, std::size_t language) {
        const std::string path = delivered(example, language);
        EXPECT_EQ(base::inCp1252(project::testoProgetto(*read(path))), base::leggiFile(path));
    });
}

// Longer ones would not fit between the edges of the log; the longest Italian one has 62.
TEST(DeliveredExamples, HaveHeadingsThatFitIntoTheLog) {
    forEachTranslation([](const auto& example, std::size_t language) {
        const auto translated = read(delivered(example, language));
        for (int i = 1; i <= 6; ++i)
            EXPECT_LE(base::numeroCaratteri(translated->titoli[i]), 62u) << translated->titoli[i];
    });
}

TEST(DeliveredExamples, LieWhereTheFirstStartLooksForThemInEveryLanguage) {
    base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
    for (const auto& example : source())
        for (std::size_t language = 0; language < languages; ++language) {
            const auto tag = base::siglaLingua(static_cast<int>(language) + 1);
            const std::string path =
                commands::cartellaEsempi(tag) + "/" + example.name[language] + ".kvd";
            EXPECT_TRUE(base::esisteFile(path)) << path;
        }
    base::impostaCartellaProgramma("");
}

}  // namespace
}  // namespace korven
