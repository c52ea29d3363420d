#include "tools/text_source.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"

namespace korven::tools {
namespace {

const std::string uno = "it: Uno\nde: Eins\nfr: Un\nes: Uno\nen: One\npt: Um\n";
const std::string due =
    "it: Due [m]\nde: Zwei [m]\nfr: À [m]\nes: Dos [m]\nen: Two [m]\npt: Dois [m]\n";

std::vector<TextRecord> checked(const std::string& content) {
    auto records = readTextSource("texts.txt", content);
    checkTextRecords("texts.txt", records);
    return records;
}

long lineOfFault(const std::string& content) {
    try {
        checked(content);
    } catch (const base::ErroreFile& error) {
        return error.riga();
    }
    return -1;
}

TEST(TextSource, ReadsBlocksOfSixLinesWithCommentsAndFileMarks) {
    const auto records = checked("# head\n@file a.txt\n\n" + uno + "\n\n@file b.txt\n# x\n" + due);
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].file, "a.txt");
    EXPECT_EQ(records[0].text[1], "Eins");
    EXPECT_EQ(records[0].line, 4);
    EXPECT_EQ(records[1].file, "b.txt");
    EXPECT_EQ(records[1].text[5], "Dois [m]");
    EXPECT_EQ(textFileNames(records), (std::vector<std::string>{"a.txt", "b.txt"}));
}

TEST(TextSource, WritesSevenCodePageLinesARecord) {
    const auto records = checked("@file a.txt\n" + uno + "\n@file b.txt\n" + due);
    EXPECT_EQ(textFileBytes(records, "b.txt"),
              "Due [m]\r\nZwei [m]\r\n\xC0 [m]\r\nDos [m]\r\nTwo [m]\r\nDois [m]\r\n\r\n");
    EXPECT_EQ(textFileBytes(records, "c.txt"), "");
}

// So that no line of a form begins with a sign; the other languages put no blank there.
TEST(TextSource, JoinsASignToItsFrenchWord) {
    const auto records = checked(
        "@file a.txt\nit: Uno : due\nde: Eins : zwei\nfr: Un : deux ; trois ? :\nes: Uno\nen: One\n"
        "pt: Um\n");
    EXPECT_EQ(records[0].text[2], "Un\u00a0: deux\u00a0; trois\u00a0?\u00a0:");
    EXPECT_EQ(records[0].text[1], "Eins : zwei");
}

TEST(TextSource, AcceptsBothLineEndsAndAMissingLastOne) {
    std::string content = "@file a.txt\n" + uno;
    content.pop_back();
    EXPECT_EQ(checked(content).size(), 1u);
    std::string crLf;
    for (const char c : content) crLf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    EXPECT_EQ(checked(crLf)[0].text, checked(content)[0].text);
}

TEST(TextSource, RefusesBlocksThatAreNoRecordWithTheLine) {
    EXPECT_EQ(lineOfFault(uno), 1);                               // no file named
    EXPECT_EQ(lineOfFault("@file a\nit: Uno\nde: Eins\n\n"), 4);  // cut short
    EXPECT_EQ(lineOfFault("@file a\nit: Uno\nfr: Un\n"), 3);      // order
    EXPECT_EQ(lineOfFault("@file a\nit: Uno\nde: \n"), 3);        // empty
    EXPECT_EQ(lineOfFault("@file a\n" + uno + "it: Due\n"), 8);   // no empty line between
    EXPECT_EQ(lineOfFault("@file a\nUno\n"), 2);                  // no tag
}

TEST(TextSource, RefusesKeysThatDifferOnlyInCase) {
    std::string again = uno;
    again.replace(again.find("Uno"), 3, "UNO");
    EXPECT_EQ(lineOfFault("@file a\n" + uno + "\n" + again), 9);
}

std::string unoWith(const std::string& english) {
    std::string changed = uno;
    return "@file a\n" + changed.replace(changed.find("One"), 3, english);
}

TEST(TextSource, RefusesWhatATranslatorCanGetWrong) {
    EXPECT_EQ(lineOfFault(unoWith("One")), -1);
    EXPECT_EQ(lineOfFault(unoWith("One →")), 2);    // no character of the code page
    EXPECT_EQ(lineOfFault(unoWith("One ")), 2);     // outer blank
    EXPECT_EQ(lineOfFault(unoWith("&One")), 2);     // access key in one language only
    EXPECT_EQ(lineOfFault(unoWith("One [m]")), 2);  // unit in one language only
}

TEST(TextSource, RefusesMoreRecordsThanTheProgramTakes) {
    std::vector<TextRecord> records;
    for (int i = 0; i < 800; ++i) {
        const std::string t = std::to_string(i);
        records.push_back({"a", {t, t, t, t, t, t}, i});
    }
    EXPECT_NO_THROW(checkTextRecords("texts.txt", records));
    records.push_back({"a", {"x", "x", "x", "x", "x", "x"}, 1});
    EXPECT_THROW(checkTextRecords("texts.txt", records), base::ErroreFile);
}

}  // namespace
}  // namespace korven::tools
