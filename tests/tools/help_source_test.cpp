#include "tools/help_source.hpp"

#include <gtest/gtest.h>

#include "tools/refused_source.hpp"

namespace korven::tools {
namespace {

const HelpStructure onePage = {{"c", "p", 3, {}}};
const HelpStructure oneField = {{"c", "p", 3, {{"3", "Prof. [m]", 0}}}};
const HelpStructure threePages = {{"c", "p", 3, {}}, {"c", "q", 0, {}}, {"d", "r", 0, {}}};
const std::string head = "@capitolo c\ntitolo: C\n";

std::string html(const std::string& body, const HelpStructure& structure = onePage) {
    const auto pages = readHelpSource(
        "g.txt", "# head\n" + head + "@pagina p\ntitolo: T\nparole: w\n\n" + body + "\n",
        structure);
    return pages.front().body.html;
}

std::pair<long, std::string> fault(const std::string& source,
                                   const HelpStructure& structure = onePage) {
    return refusal("g.txt", source, [&structure](const auto& file, const auto& text) {
        return readHelpSource(file, text, structure);
    });
}

// The body begins in line 6.
long faultLine(const std::string& body, const HelpStructure& structure = onePage) {
    return fault(head + "@pagina p\ntitolo: T\nparole: w\n" + body, structure).first;
}

TEST(HelpSource, MakesParagraphsOverSeveralLines) {
    EXPECT_EQ(html("one\ntwo\n\nthree"), "<p>one two</p>\n<p>three</p>\n");
}

TEST(HelpSource, MakesHeadingsListsFormulasAndWarnings) {
    EXPECT_EQ(html("== Head"), "<h2>Head</h2>\n");
    EXPECT_EQ(html("- one\n  more\n- two"), "<ul><li>one more</li><li>two</li></ul>\n");
    EXPECT_EQ(html("= a = b\n= c"), "<p class=\"formula\">a = b<br/>c</p>\n");
    EXPECT_NE(html("! Watch\nout").find("<td>Watch out</td>"), std::string::npos);
}

TEST(HelpSource, KeepsBlanksBetweenTwoFormulasOfALine) {
    EXPECT_EQ(html("= a,   b"), "<p class=\"formula\">a,&#160;&#160; b</p>\n");
}

TEST(HelpSource, GivesAFieldItsPlaceAndItsLabel) {
    EXPECT_EQ(html("@campo 3\n\nText", oneField),
              "<h3><a name=\"campo3\"></a>Prof. [m]</h3>\n<p>Text</p>\n");
}

TEST(HelpSource, MakesTablesWithAHead) {
    const std::string table = html("| A | B |\n| [[p|x]] | |");
    EXPECT_NE(table.find("<tr><th align=\"left\">A</th><th align=\"left\">B</th></tr>"),
              std::string::npos);
    EXPECT_NE(table.find("<tr><td><a href=\"p\">x</a></td><td></td></tr>"), std::string::npos);
}

TEST(HelpSource, MarksWithinALine) {
    EXPECT_EQ(html("**b** `c` k_{0} x^{2} **V_{d}**"),
              "<p><b>b</b> <code>c</code> k<sub>0</sub> x<sup>2</sup> <b>V<sub>d</sub></b></p>\n");
}

TEST(HelpSource, WritesWhatWindows1252LacksAsNumbers) {
    EXPECT_EQ(html("φ ≤ a < b & è"), "<p>&#966; &#8804; a &lt; b &amp; è</p>\n");
}

TEST(HelpSource, SaysInWhichLineItIsBroken) {
    EXPECT_EQ(fault("@pagina p\n").first, 1);
    EXPECT_EQ(fault("@capitolo c\nx\n").first, 2);
    EXPECT_EQ(fault(head + "x\n").first, 3);
    EXPECT_EQ(fault(head + "@pagina p\nT\n").first, 4);
    EXPECT_EQ(fault(head + "@pagina p\ntitolo: φ\n").first, 4);
    EXPECT_EQ(faultLine(""), 3);  // a page without body
    EXPECT_EQ(faultLine("\nfine\n\n**open\n"), 9);
    EXPECT_EQ(faultLine("k_{0\n"), 6);
    EXPECT_EQ(faultLine("[[p]]\n"), 6);
    EXPECT_EQ(faultLine("@capo\n"), 6);
    EXPECT_EQ(faultLine("| a | b |\n| c |\n"), 7);
}

TEST(HelpSource, RefusesAFieldThatTheStructureHasNot) {
    EXPECT_EQ(faultLine("@campo 3\n"), 6);
    EXPECT_EQ(faultLine("@campo\n", oneField), 6);
    EXPECT_EQ(faultLine("@campo 2\n", oneField), 6);
    EXPECT_EQ(faultLine("@campo 3\n\n@campo 3\n", oneField), 8);
    EXPECT_EQ(fault(head + "@pagina p\ntitolo: T\nparole: w\nx\n", oneField).second,
              "atteso il campo 3");
}

TEST(HelpSource, RefusesAPageOutOfTheOrderOfTheStructure) {
    const auto page = [](const std::string& name) {
        return "@pagina " + name + "\ntitolo: T\nparole: w\nx\n";
    };
    using Fault = std::pair<long, std::string>;
    EXPECT_EQ(fault(head + page("q"), threePages), (Fault{3, "attesa la pagina p"}));
    EXPECT_EQ(fault(head + page("p"), threePages), (Fault{6, "attesa la pagina q"}));
    EXPECT_EQ(fault(head + page("p") + page("q") + page("r"), threePages),
              (Fault{11, "atteso il capitolo d"}));
    EXPECT_EQ(fault("@capitolo d\ntitolo: D\n" + page("p"), threePages),
              (Fault{3, "atteso il capitolo c"}));
    EXPECT_EQ(fault(head + page("p") + page("q")),
              (Fault{7, "attese solo le pagine di struttura"}));
}

TEST(HelpSource, RefusesLinksThatLeadNowhere) {
    EXPECT_EQ(faultLine("[[q|x]]\n"), 3);
    EXPECT_EQ(faultLine("[[p#campo1|x]]\n"), 3);
    EXPECT_EQ(html("[[p#campo3|x]]\n\n@campo 3", oneField).substr(0, 27),
              "<p><a href=\"p#campo3\">x</a>");
}

TEST(HelpSource, LetsALinkLeadToADocument) {
    EXPECT_EQ(html("[[documento:docs/theory|x]]"),
              "<p><a href=\"documento:docs/theory\">x</a></p>\n");
}

TEST(HelpSource, BecomesTheFileOfTheProgram) {
    const auto pages =
        readHelpSource("g.txt",
                       head +
                           "@pagina p\ntitolo: T\nparole: w\nè φ\n"
                           "@pagina q\ntitolo: U\nparole: w\ny\n"
                           "@capitolo d\ntitolo: D\n@pagina r\ntitolo: V\nparole: w\nz\n",
                       threePages);
    EXPECT_EQ(helpFileBytes(pages),
              "KORVEN 32 HLP 1\r\n@capitolo C\r\n@pagina 3 p\r\nT\r\nw\r\n<p>\xE8 &#966;</p>\r\n"
              "@pagina 0 q\r\nU\r\nw\r\n<p>y</p>\r\n"
              "@capitolo D\r\n@pagina 0 r\r\nV\r\nw\r\n<p>z</p>\r\n");
}

}  // namespace
}  // namespace korven::tools
