#include "tools/help_source.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"

namespace korven::tools {
namespace {

std::string html(const std::string& body) {
    const auto pages = readHelpSource(
        "g.txt", "# head\n@capitolo C\n@pagina p 3\ntitolo: T\nparole: w\n\n" + body + "\n");
    return pages.front().body.html;
}

std::pair<long, std::string> fault(const std::string& source) {
    try {
        static_cast<void>(readHelpSource("g.txt", source));
    } catch (const base::ErroreFile& error) {
        return {error.riga(), error.atteso()};
    }
    ADD_FAILURE() << "accepted: " << source;
    return {};
}

long faultLine(const std::string& body) {
    return fault("@capitolo C\n@pagina p\ntitolo: T\nparole: w\n" + body).first;
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

TEST(HelpSource, GivesAFieldItsPlace) {
    EXPECT_EQ(html("@campo 3 Prof. [m]\n\nText"),
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
    EXPECT_EQ(fault("@capitolo C\nx\n").first, 2);
    EXPECT_EQ(fault("@capitolo C\n@pagina p 201\n").first, 2);
    EXPECT_EQ(fault("@capitolo C\n@pagina p\nT\n").first, 3);
    EXPECT_EQ(fault("@capitolo C\n@pagina p\ntitolo: φ\n").first, 3);
    EXPECT_EQ(faultLine(""), 2);  // a page without body
    EXPECT_EQ(faultLine("\nfine\n\n**open\n"), 8);
    EXPECT_EQ(faultLine("k_{0\n"), 5);
    EXPECT_EQ(faultLine("[[p]]\n"), 5);
    EXPECT_EQ(faultLine("@campo\n"), 5);
    EXPECT_EQ(faultLine("@campo 1 A\n\n@campo 1 B\n"), 7);
    EXPECT_EQ(faultLine("@capo\n"), 5);
    EXPECT_EQ(faultLine("| a | b |\n| c |\n"), 6);
}

TEST(HelpSource, RefusesLinksThatLeadNowhere) {
    EXPECT_EQ(faultLine("[[q|x]]\n"), 2);
    EXPECT_EQ(faultLine("[[p#campo1|x]]\n"), 2);
    EXPECT_EQ(html("[[p#campo1|x]]\n\n@campo 1 A").substr(0, 27), "<p><a href=\"p#campo1\">x</a>");
}

TEST(HelpSource, RefusesANameOrAnEntryUsedTwice) {
    const std::string page = "@pagina p 3\ntitolo: T\nparole: w\nx\n";
    EXPECT_EQ(fault("@capitolo C\n" + page + "@pagina q 3\n").first, 6);
    EXPECT_EQ(fault("@capitolo C\n" + page + "@pagina p 4\n").first, 6);
}

TEST(HelpSource, BecomesTheFileOfTheProgram) {
    const auto pages = readHelpSource("g.txt",
                                      "@capitolo C\n@pagina p 3\ntitolo: T\nparole: w\nè φ\n"
                                      "@pagina q\ntitolo: U\nparole: w\ny\n"
                                      "@capitolo D\n@pagina r\ntitolo: V\nparole: w\nz\n");
    EXPECT_EQ(helpFileBytes(pages),
              "KORVEN 32 HLP 1\r\n@capitolo C\r\n@pagina 3 p\r\nT\r\nw\r\n<p>\xE8 &#966;</p>\r\n"
              "@pagina 0 q\r\nU\r\nw\r\n<p>y</p>\r\n"
              "@capitolo D\r\n@pagina 0 r\r\nV\r\nw\r\n<p>z</p>\r\n");
}

}  // namespace
}  // namespace korven::tools
