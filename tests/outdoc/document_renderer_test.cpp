#include "outdoc/document_renderer.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "support/temporary_folder.hpp"
#include "support/unpacked.hpp"

namespace korven::outdoc {
namespace {

using test::unpacked;

using Lines = std::vector<std::string>;

constexpr const char* reset = "#RESET 2,2,2,2,2,2,12,Arial";

std::string markup(const Lines& lines) {
    std::string bytes;
    for (const auto& line : lines) bytes += base::inCp1252(line) + "\r\n";
    return bytes;
}

std::optional<std::string> rendered(const Lines& lines) {
    base::LettoreRighe file("r.TAB", markup(lines));
    DocumentRenderer renderer;
    markup::renderMarkup(file, markup::RendererKind::print, renderer);
    return renderer.bytes();
}

std::string body(const Lines& lines) {
    Lines whole{reset};
    whole.insert(whole.end(), lines.begin(), lines.end());
    whole.emplace_back("#ENDDOCUMENT");
    return unpacked(rendered(whole).value_or(""), "word/document.xml");
}

int count(const std::string& text, std::string_view what) {
    int found = 0;
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++found;
    return found;
}

// The paragraph that holds a text.
std::string paragraphOf(const std::string& words, const std::string& text) {
    const auto at = words.find('>' + text + "</w:t>");
    if (at == std::string::npos) return {};
    const auto start = words.rfind("<w:p>", at);
    return words.substr(start, words.find("</w:p>", at) - start);
}

TEST(IsHeading, IsALineOfCapitals) {
    EXPECT_TRUE(isHeading("RISULTATI FASE 2"));
    EXPECT_TRUE(isHeading("CAPACITÀ"));
    EXPECT_FALSE(isHeading("Condizioni"));
    EXPECT_FALSE(isHeading("CONDIZIONI NON VERIFICATE (momento)"));
    EXPECT_FALSE(isHeading("12.50"));
    EXPECT_FALSE(isHeading(""));
}

TEST(DocumentRenderer, WithoutResetMakesNoFile) {
    EXPECT_EQ(rendered({"text", "#ENDDOCUMENT"}), std::nullopt);
    EXPECT_EQ(rendered({}), std::nullopt);
}

TEST(DocumentRenderer, ShowsTextsWithAllTheirCharacters) {
    const std::string words = body({"Peso γ? no: kN/m³, 30°, Ø8 & <à> “x” €"});
    EXPECT_NE(words.find(">Peso ?? no: kN/m³, 30°, Ø8 &amp; &lt;à&gt; “x” €</w:t>"),
              std::string::npos)
        << words;
}

TEST(DocumentRenderer, UnknownDirectivesNeverAppear) {
    EXPECT_EQ(body({"#1 primo muro", "x"}).find("primo"), std::string::npos);
}

TEST(DocumentRenderer, FollowsFontSizeItalicsAndAlignment) {
    const std::string words =
        body({"#FONT Times", "#FONTSIZE 9", "#FONTITALIC TRUE", "#RIGHT", "one"});
    const std::string one = paragraphOf(words, "one");
    EXPECT_NE(one.find("w:ascii=\"Times\""), std::string::npos);
    EXPECT_NE(one.find("<w:sz w:val=\"18\"/>"), std::string::npos);
    EXPECT_NE(one.find("<w:i/>"), std::string::npos);
    EXPECT_NE(one.find("<w:jc w:val=\"right\"/>"), std::string::npos);
}

TEST(DocumentRenderer, MakesTitleAndHeadingsOfCapitalsAndKeepsThemWithWhatFollows) {
    const std::string words = body(
        {"#CENTER", "TITOLO", "#LEFT", "STRATI", "", "#STARTTABLE", "a", "#ENDTABLE", "", "testo"});
    EXPECT_NE(paragraphOf(words, "TITOLO").find("\"Title\""), std::string::npos);
    EXPECT_NE(paragraphOf(words, "STRATI").find("\"Heading1\""), std::string::npos);
    EXPECT_EQ(paragraphOf(words, "testo").find("<w:pStyle"), std::string::npos);
    EXPECT_EQ(count(words, "<w:keepNext/>"), 1);  // the empty line; the others by their style
}

TEST(WriteDocument, HasTheLevelsOfHeadingsByTheirSize) {
    const test::CartellaProvvisoria folder;
    const std::string path = folder / "d.doc";
    const std::string text = std::string(reset) +
                             "\r\n#FONTSIZE 14\r\nCAPITOLO\r\n#FONTSIZE 11\r\nPARTE\r\n"
                             "#FONTSIZE 9.5\r\nVOCE\r\n#ENDDOCUMENT\r\n";
    const std::vector<double> sizes{14, 11, 9.5};
    writeDocument(path, text, sizes);
    const std::string bytes = test::contenuto(path);
    const std::string words = unpacked(bytes, "word/document.xml");
    EXPECT_NE(paragraphOf(words, "CAPITOLO").find("\"Heading1\""), std::string::npos);
    EXPECT_NE(paragraphOf(words, "PARTE").find("\"Heading2\""), std::string::npos);
    EXPECT_NE(paragraphOf(words, "VOCE").find("\"Heading3\""), std::string::npos);
    const std::string styles = unpacked(bytes, "word/styles.xml");
    EXPECT_EQ(count(styles, "<w:outlineLvl w:val=\"2\"/>"), 1);
}

TEST(DocumentRenderer, PutsHeaderFooterAndPageNumberBesideTheText) {
    const auto bytes =
        rendered({reset, "#HEADER Testa", "#FOOTER Piede", "x", "#ENDDOCUMENT"}).value_or("");
    EXPECT_NE(unpacked(bytes, "word/header1.xml").find(">Testa</w:t>"), std::string::npos);
    const std::string footer = unpacked(bytes, "word/footer1.xml");
    EXPECT_NE(footer.find(">Piede</w:t>"), std::string::npos);
    EXPECT_NE(footer.find("\" PAGE \""), std::string::npos);
    EXPECT_NE(footer.find("\" NUMPAGES \""), std::string::npos);
    EXPECT_EQ(count(footer, "<w:p>"), 1);
}

TEST(DocumentRenderer, GivesThePageNumberItsOwnLineBelowALongFooter) {
    const auto bytes =
        rendered({reset, "#FOOTER " + std::string(70, 'm'), "#ENDDOCUMENT"}).value_or("");
    EXPECT_EQ(count(unpacked(bytes, "word/footer1.xml"), "<w:p>"), 2);
}

TEST(DocumentRenderer, BreaksThePageBeforeTheNextParagraphOrTable) {
    EXPECT_NE(paragraphOf(body({"one", "#NEWPAGE", "two"}), "two").find("<w:pageBreakBefore/>"),
              std::string::npos);
    const std::string words = body({"one", "#NEWPAGE", "#STARTTABLE", "a", "#ENDTABLE"});
    EXPECT_LT(words.find("<w:pageBreakBefore/>"), words.find("<w:tbl>"));
}

// Lines of 10 points are 11.5 points high, rows of tables 13; 1 cm is 28.3 points.
TEST(DocumentRenderer, KeepsTheHeightThatANewParagraphNamesOnOnePage) {
    const std::string lines =
        body({"#FONTSIZE 10", "prima", "#NEWPARAGRAPH 1", "a", "b", "c", "d"});
    for (const char* together : {"a", "b"})
        EXPECT_EQ(count(paragraphOf(lines, together), "<w:keepNext/>"), 1) << together;
    for (const char* apart : {"prima", "c", "d"})
        EXPECT_EQ(count(paragraphOf(lines, apart), "<w:keepNext/>"), 0) << apart;
    const std::string rows = body(
        {"#FONTSIZE 10", "#NEWPARAGRAPH 1", "#STARTTABLE", "a", "b", "c", "d", "#ENDTABLE", "e"});
    EXPECT_EQ(count(rows, "<w:keepNext/>"), 2);  // the rows a and b
}

TEST(DocumentRenderer, KeepsATableWithWhatFollowsWhenTheHeightReachesThatFar) {
    const std::string words = body({"#FONTSIZE 10", "#NEWPARAGRAPH 2", "#STARTTABLE", "a", "b", "c",
                                    "#ENDTABLE", "d", "e", "f"});
    // 56.7 points: three rows and d, of which 6.2 are left for e.
    EXPECT_EQ(count(words, "<w:keepNext/>"), 4);
    EXPECT_EQ(count(paragraphOf(words, "e"), "<w:keepNext/>"), 0);
}

TEST(DocumentRenderer, ForgetsTheHeightAtANewPage) {
    const std::string words =
        body({"#FONTSIZE 10", "#NEWPARAGRAPH 5", "#NEWPAGE", "a", "#NEWPARAGRAPH -3", "b"});
    EXPECT_EQ(count(words, "<w:keepNext/>"), 0);
}

TEST(DocumentRenderer, KeepsTablesApartAndEndsWithAParagraph) {
    const std::string words = body({"#STARTTABLE", "a", "#ENDTABLE", "#ENDTABLE"});
    EXPECT_EQ(count(words, "<w:tbl>"), 2);
    EXPECT_EQ(words.find("</w:tbl>\n<w:tbl>"), std::string::npos);
    EXPECT_EQ(words.find("</w:tbl>\n<w:sectPr>"), std::string::npos);
}

TEST(DocumentRenderer, AnEndBeforeAnyTableMakesNone) {
    EXPECT_EQ(count(body({"x", "#ENDTABLE", "#ENDLIST"}), "<w:tbl>"), 0);
}

TEST(DocumentRenderer, AlignsNumbersAndLeadsThroughLists) {
    const std::string words =
        body({"#STARTTABLE", "1", "2.50", "#ENDTABLE", "#STARTLIST", "a\t1", "b\t2.5", "#ENDLIST"});
    EXPECT_NE(words.find(">1.00</w:t>"), std::string::npos);
    EXPECT_NE(words.find(">a </w:t><w:tab/>"), std::string::npos);
    EXPECT_NE(words.find("> 1.0</w:t>"), std::string::npos);
    EXPECT_EQ(count(words, "w:leader=\"dot\""), 2);
}

TEST(DocumentRenderer, FurtherResetStartsOver) {
    const std::string words = body({"lost", reset, "kept"});
    EXPECT_EQ(words.find("lost"), std::string::npos);
    EXPECT_NE(words.find("kept"), std::string::npos);
}

TEST(ConvertReport, WritesBesideTheMarkupAndReplaces) {
    const test::CartellaProvvisoria folder;
    test::metti(folder / "muro.TAB", markup({reset, "testo", "#ENDDOCUMENT"}));
    test::metti(folder / "muro.doc", "old");
    EXPECT_EQ(convertReport(folder / "muro.TAB").document, folder / "muro.doc");
    EXPECT_TRUE(test::contenuto(folder / "muro.doc").starts_with("PK"));
}

// The report of the example that the README opens; unpacked, its words are ten times as long.
TEST(ConvertReport, MakesADocumentOfLessThan15Kilobytes) {
    const test::CartellaProvvisoria folder;
    std::filesystem::copy(KORVEN_REPORTS "/diaframma_due_ordini.TAB", folder / "muro.TAB");
    const std::string document = convertReport(folder / "muro.TAB").document;
    EXPECT_LT(std::filesystem::file_size(document), 15000u);
    EXPECT_GT(unpacked(test::contenuto(document), "word/document.xml").size(), 100000u);
}

TEST(ConvertReport, RefusesWhatItCantConvertAndLeavesAnOldFileAlone) {
    const test::CartellaProvvisoria folder;
    EXPECT_THROW((void)convertReport(folder / "muro.TAB"), base::ErroreFile);
    test::metti(folder / "muro.doc", "old");
    test::metti(folder / "muro.TAB", "testo\r\n");
    EXPECT_THROW((void)convertReport(folder / "muro.TAB"), base::ErroreFile);
    Lines rows{reset, "#STARTTABLE"};
    for (int row = 0; row <= 510; ++row) rows.emplace_back("a");
    rows.emplace_back("#ENDTABLE");
    test::metti(folder / "muro.TAB", markup(rows));
    EXPECT_THROW((void)convertReport(folder / "muro.TAB"), base::ErroreFile);
    EXPECT_EQ(test::contenuto(folder / "muro.doc"), "old");
    EXPECT_THROW((void)convertReport(folder / "muro.doc"), base::ErroreFile);  // itself
}

}  // namespace
}  // namespace korven::outdoc
