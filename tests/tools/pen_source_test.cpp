#include "tools/pen_source.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/file_error.hpp"

namespace korven::tools {
namespace {

std::string texts(const std::string& name) {
    return "it: " + name + "\nde: " + name + "\nfr: " + name + "\nes: " + name + "\nen: " + name +
           "\npt: " + name + "\n";
}

std::string colours(int count) {
    std::string all;
    for (int i = 1; i <= count; ++i)
        all += "@colore " + std::to_string(i) + " #0102FF\n" + texts("c" + std::to_string(i));
    return all;
}

std::string pens(int count) {
    std::string all;
    for (int i = 1; i <= count; ++i)
        all += "@penna " + std::to_string(i) + " 15 0.25 Courier New\n" +
               texts("p" + std::to_string(i));
    return all;
}

const std::string margins = "@margini 1.5 -0.5\n";

long lineOfFault(const std::string& content) {
    try {
        (void)readPenSource("penne.txt", content);
    } catch (const base::ErroreFile& error) {
        return error.riga();
    }
    return -1;
}

TEST(PenSource, ReadsColoursPensAndMargins) {
    const auto source =
        readPenSource("penne.txt", "# comment\n\n" + colours(15) + "\n" + pens(30) + margins);
    ASSERT_EQ(source.colours.size(), 15u);
    ASSERT_EQ(source.pens.size(), 30u);
    EXPECT_EQ(source.colours[2].name[4], "c3");
    EXPECT_EQ(source.colours[2].value, 1 + 256 * 2 + 65536 * 255);
    EXPECT_EQ(source.pens[29].label[0], "p30");
    EXPECT_EQ(source.pens[29].colour, 15);
    EXPECT_EQ(source.pens[29].width, 0.25);
    EXPECT_EQ(source.pens[29].font, "Courier New");
    EXPECT_EQ(source.left, 1.5);
    EXPECT_EQ(source.top, -0.5);
}

TEST(PenSource, WritesFourLinesAPenTwoAColourAndTheMargins) {
    auto content = colours(15) + pens(30) + margins;
    content.replace(content.find("de: p1\n"), 7, "de: Maß\n");
    const auto bytes = penFileBytes(readPenSource("penne.txt", content), 2);
    EXPECT_TRUE(bytes.starts_with("Ma\xDF\r\n15\r\n0.25\r\nCourier New\r\np2\r\n"));
    EXPECT_TRUE(bytes.ends_with("c15\r\n16712193\r\n1.5\r\n-.5\r\n"));
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 30 * 4 + 15 * 2 + 2);
    EXPECT_EQ(penFileName(2), "module06deu.CFG");
}

TEST(PenSource, RefusesRowsOutOfOrderMissingOrTooMany) {
    EXPECT_EQ(lineOfFault("@colore 2 #010203\n"), 1);
    EXPECT_EQ(lineOfFault(colours(15) + "@colore 16 #010203\n"), 106);
    EXPECT_EQ(lineOfFault(colours(14) + pens(30) + margins), 14 * 7 + 30 * 7 + 1);
    EXPECT_EQ(lineOfFault(colours(15) + pens(29) + margins), 15 * 7 + 29 * 7 + 1);
    EXPECT_EQ(lineOfFault(colours(15) + pens(30)), 45 * 7);
    EXPECT_EQ(lineOfFault(colours(15) + pens(30) + margins + margins), 45 * 7 + 2);
    EXPECT_EQ(lineOfFault("Nero\n"), 1);
}

TEST(PenSource, RefusesValuesOutOfRange) {
    for (const auto* row :
         {"@colore 1 010203", "@colore 1 #01020", "@colore 1 #01020G", "@colore 1 #000000",
          "@colore 1", "@penna 1 16 0.25 Arial", "@penna 1 -1 0.25 Arial", "@penna 1 1 -0.1 Arial",
          "@penna 1 1 nan Arial", "@penna 1 1 0,25 Arial", "@penna 1 1 0.25", "@margini 1",
          "@margini 0 99"})
        EXPECT_EQ(lineOfFault(std::string(row) + "\n"), 1) << row;
}

TEST(PenSource, RefusesMissingLanguagesAndTextsThatOccurTwice) {
    EXPECT_EQ(lineOfFault("@colore 1 #010203\nit: Nero\nfr: Noir\n"), 3);
    EXPECT_EQ(lineOfFault("@colore 1 #010203\n" + texts("a") + "@colore 2 #010204\n" + texts("a")),
              14);
    EXPECT_EQ(
        lineOfFault("@penna 1 1 0.2 Arial\n" + texts("a") + "@penna 2 1 0.2 Arial\n" + texts("a")),
        14);
}

}  // namespace
}  // namespace korven::tools
