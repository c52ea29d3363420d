#include "tools/example_source.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "support/wall_builder.hpp"

namespace korven::tools {
namespace {

const std::string names =
    "@nome deu wand\n@nome fra paroi_2\n@nome esp pantalla\n@nome eng wall\n@nome por parede\n";
const std::string head = "# comment\n@esempio muro\n" + names;

std::string block(const std::string& text, const std::string& mark = "") {
    std::string lines = "\n";
    for (const char* language : {"it: ", "de: ", "fr: ", "es: ", "en: ", "pt: "}) {
        const std::string place = std::string(language) == "it: " ? "" : language;
        lines += language + mark + place + text + "\n";
    }
    return lines;
}

std::vector<ExampleSource> read(const std::string& content) {
    return readExampleSource("esempi.txt", content);
}

template <typename Action>
long lineOfFault(Action action) {
    try {
        action();
    } catch (const base::ErroreFile& error) {
        EXPECT_EQ(error.percorso(), "esempi.txt");
        EXPECT_FALSE(error.atteso().empty());
        return error.riga();
    }
    return -1;
}

long lineRefused(const std::string& content) {
    return lineOfFault([&] { (void)read(content); });
}

project::DatiProgetto wall() {
    project::DatiProgetto wall = test::muro()
                                     .titolo(1, "Muro")
                                     .titolo(4, "Sabbia")
                                     .strato({.fondo = 1.25, .descrizione = "-103C3 Sabbia"})
                                     .strato({.fondo = 5, .descrizione = "105  Argilla|molle"})
                                     .strato({.descrizione = "107"})
                                     .dati();
    wall.descrStrato[4] = "102 beyond the count";
    return wall;
}

const std::string wallTexts = head + block("Muro") + block("Sabbia") + block("Argilla|molle");

TEST(ExampleSource, ReadsNamesAndTextsInSixLanguages) {
    const auto sources = read(wallTexts);
    ASSERT_EQ(sources.size(), 1u);
    EXPECT_EQ(sources[0].line, 2);
    EXPECT_EQ(sources[0].name, (std::array<std::string, 6>{"muro", "wand", "paroi_2", "pantalla",
                                                           "wall", "parede"}));
    ASSERT_EQ(sources[0].texts.size(), 3u);
    EXPECT_EQ(sources[0].texts[1].line, 16);
    EXPECT_EQ(sources[0].texts[1].text[0], "Sabbia");
    EXPECT_EQ(sources[0].texts[1].text[5], "pt: Sabbia");
}

TEST(ExampleSource, NamesEachTextOfAProjectOnceWithoutGraphicCodes) {
    EXPECT_EQ(exampleTexts(wall()), (std::vector<std::string>{"Muro", "Sabbia", "Argilla|molle"}));
}

TEST(ExampleSource, ReplacesTheTextsAloneAndKeepsTheGraphicCodes) {
    const auto sources = read(wallTexts);
    const auto german = translatedExample(sources[0], wall(), 1);
    EXPECT_EQ(german.titoli[1], "de: Muro");
    EXPECT_EQ(german.titoli[2], "");
    EXPECT_EQ(german.titoli[4], "de: Sabbia");
    EXPECT_EQ(german.descrStrato[1], "-103C3 de: Sabbia");
    EXPECT_EQ(german.descrStrato[2], "105  de: Argilla|molle");
    EXPECT_EQ(german.descrStrato[3], "107");
    auto restored = german;
    restored.titoli = wall().titoli;
    restored.descrStrato = wall().descrStrato;
    EXPECT_EQ(restored, wall());
}

TEST(ExampleSource, RefusesATextWithoutTranslationAtTheLineOfItsExample) {
    const auto sources = read(head + block("Muro") + block("Sabbia"));
    EXPECT_EQ(lineOfFault([&] { checkExample("esempi.txt", sources[0], wall()); }), 2);
}

TEST(ExampleSource, RefusesATextThatTheProjectLacksAtItsLine) {
    const auto sources = read(wallTexts + block("Argilla"));
    EXPECT_EQ(lineOfFault([&] { checkExample("esempi.txt", sources[0], wall()); }), 30);
}

TEST(ExampleSource, AcceptsABlockThatFitsItsProject) {
    const auto sources = read(wallTexts);
    EXPECT_EQ(lineOfFault([&] { checkExample("esempi.txt", sources[0], wall()); }), -1);
}

TEST(ExampleSource, RefusesABlockWithoutProjectAndAProjectWithoutBlock) {
    const auto sources = read(wallTexts);
    const auto fault = [&](const std::vector<std::string>& projects) {
        return lineOfFault([&] { checkExampleNames("esempi.txt", sources, projects); });
    };
    EXPECT_EQ(fault({"muro"}), -1);
    EXPECT_EQ(fault({"argine"}), 2);
    EXPECT_EQ(fault({"argine", "muro"}), 0);
}

TEST(ExampleSource, RefusesANameThatOccursTwiceInALanguage) {
    const std::string other =
        "@nome deu wand\n@nome fra b\n@nome esp c\n@nome eng d\n@nome por e\n";
    EXPECT_EQ(lineRefused(head + "@esempio muro\n"), 8);
    EXPECT_EQ(lineRefused(head + "@esempio argine\n" + other), 9);
    EXPECT_EQ(lineRefused(head + "@esempio wall\n@nome deu wall\n@nome fra b\n@nome esp c\n"
                                 "@nome eng muro\n@nome por e\n"),
              -1)
        << "each language has a folder of its own";
}

TEST(ExampleSource, RefusesATextThatOccursTwice) {
    EXPECT_EQ(lineRefused(head + block("Muro") + block("Muro")), 16);
}

TEST(ExampleSource, RefusesOtherFaultsWithTheirLine) {
    EXPECT_EQ(lineRefused("it: Muro\n"), 1);
    EXPECT_EQ(lineRefused("@esempio muro due\n"), 1);
    EXPECT_EQ(lineRefused("@esempio muro.kvd\n"), 1);
    EXPECT_EQ(lineRefused("@esempio Muro\n"), 1);
    EXPECT_EQ(lineRefused("@nome deu wand\n"), 1);
    EXPECT_EQ(lineRefused("@esempio muro\n@nome fra paroi\n"), 2);
    EXPECT_EQ(lineRefused("@esempio muro\n@nome deu w\xC3\xA4nde\n"), 2);
    EXPECT_EQ(lineRefused("@esempio muro\n"), 1);
    EXPECT_EQ(lineRefused(head + "\nit: Muro\nfr: Mur\n"), 10);
    EXPECT_EQ(lineRefused(head + "\nit: Muro\nde: Wand\n"), 10);
    EXPECT_EQ(lineRefused(head + "\nit: Muro\n\nde: Wand\n"), 10);
    EXPECT_EQ(lineRefused(head + "\nit: Muro\nde: \n"), 10);
    EXPECT_EQ(lineRefused(head + "\nit: Muro\nde: \xE2\x86\x92\n"), 10);  // an arrow
    EXPECT_EQ(lineRefused(head + "\nit: _Muro\nde: Wand\n"), 10);
    EXPECT_EQ(lineRefused(head + block("Muro") + "it: Sabbia\n"), 15);
    EXPECT_EQ(lineRefused(head + block("Muro", "_")), -1);
}

}  // namespace
}  // namespace korven::tools
