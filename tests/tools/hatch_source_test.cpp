#include "tools/hatch_source.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"

namespace korven::tools {
namespace {

const std::string names = "it: Uno\nde: Eins\nfr: Un\nes: Uno\nen: One\npt: Um\n";
const std::string head = "@campitura 1 0.005\n" + names;

long lineOfFault(const std::string& content) {
    try {
        (void)readHatchSource("campiture.txt", content);
    } catch (const base::ErroreFile& error) {
        return error.riga();
    }
    return -1;
}

TEST(HatchSource, ReadsNumberUnitNamesAndCommands) {
    const auto source = readHatchSource(
        "campiture.txt", "# comment\n\n" + head + "punto 1 -2\n\n@campitura 7 0.01\r\n" + names +
                             "griglia 2 4 50\n  pieno cerchio 0 0 5 8\n  punto 0 0\nfine\n");
    ASSERT_EQ(source.patterns.size(), 2u);
    EXPECT_EQ(source.patterns[0].number, 1);
    EXPECT_EQ(source.patterns[0].unit, 0.005);
    EXPECT_EQ(source.patterns[0].name[4], "One");
    EXPECT_EQ(source.patterns[0].line, 3);
    EXPECT_EQ(source.patterns[0].commands.at(0).values, (std::vector<int>{1, -2}));
    EXPECT_EQ(source.patterns[1].number, 7);
    const auto& grid = source.patterns[1].commands.at(0);
    EXPECT_EQ(grid.word, "griglia");
    ASSERT_EQ(grid.body.size(), 2u);
    EXPECT_TRUE(grid.body[0].full);
    EXPECT_FALSE(grid.body[1].full);
}

TEST(HatchSource, ReadsFiguresThatPatternsPlace) {
    const auto source = readHatchSource(
        "campiture.txt", "@figura croce\nlinea -5 0 5 0\n" + head + "metti croce 10 20 45 150\n");
    EXPECT_EQ(source.figures.at("croce").size(), 1u);
    EXPECT_EQ(source.patterns[0].commands[0].figure, "croce");
    EXPECT_EQ(source.patterns[0].commands[0].values, (std::vector<int>{10, 20, 45, 150}));
}

TEST(HatchSource, RefusesHeadsThatAreNoneWithTheLine) {
    EXPECT_EQ(lineOfFault("punto 0 0\n"), 1);                // nothing begun
    EXPECT_EQ(lineOfFault("@campitura 1\n" + names), 1);     // no unit
    EXPECT_EQ(lineOfFault("@campitura 0 0.005\n"), 1);       // row 0
    EXPECT_EQ(lineOfFault("@campitura 101 0.005\n"), 1);     // row 101
    EXPECT_EQ(lineOfFault("@campitura 1 0\n"), 1);           // no size
    EXPECT_EQ(lineOfFault("@campitura 1 0,005\n"), 1);       // decimal comma
    EXPECT_EQ(lineOfFault(head + "punto 0 0\n" + head), 9);  // number twice
    EXPECT_EQ(lineOfFault(head), 7);                         // nothing drawn
    EXPECT_EQ(lineOfFault("@figura a\npunto 0 0\n@figura a\n"), 3);
    EXPECT_EQ(lineOfFault("@figura a b\n"), 1);
}

TEST(HatchSource, RefusesNamesThatLackALanguageOrACharacter) {
    EXPECT_EQ(lineOfFault("@campitura 1 0.005\nit: Uno\nfr: Un\n"), 3);
    EXPECT_EQ(lineOfFault("@campitura 1 0.005\nit: Uno\n"), 2);  // cut short
    EXPECT_EQ(lineOfFault("@campitura 1 0.005\nit: Uno \n"), 2);
    EXPECT_EQ(lineOfFault("@campitura 1 0.005\nit: \n"), 2);
    EXPECT_EQ(lineOfFault("@campitura 1 0.005\nit: Uno →\n"), 2);
}

TEST(HatchSource, RefusesCommandsThatAreNoneWithTheLine) {
    for (const auto* line :
         {"riga 0 0", "pieno", "pieno linea 0 0 1 1", "linea 0 0 1", "linea 0 0 1 1 1",
          "spezzata 0 0 1 1 2", "poligono 0 0 1 1", "punto 0 0.5", "punto 0 x", "punto 0 201",
          "cerchio 0 0 5 0", "onda 0 5 2 0", "mattoni 0 2", "mattoni 2 0", "griglia 2 0",
          "metti nulla 0 0", "metti", "fine", "ripeti 1 1 0"})
        EXPECT_EQ(lineOfFault(head + line + "\n"), 8) << line;
}

TEST(HatchSource, RefusesBlocksThatAreOpenOrEmpty) {
    EXPECT_EQ(lineOfFault(head + "griglia 2 2\npunto 0 0\n"), 9);
    EXPECT_EQ(lineOfFault(head + "griglia 2 2\nfine\n"), 9);
    EXPECT_EQ(lineOfFault(head + "griglia 2 2\npunto 0 0\nfine 1\n"), 10);
}

TEST(HatchSource, RefusesAFigureInsideItself) {
    EXPECT_EQ(lineOfFault("@figura a\npunto 0 0\nmetti a 0 0\n"), 3);
}

}  // namespace
}  // namespace korven::tools
