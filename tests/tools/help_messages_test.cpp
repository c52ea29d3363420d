#include "tools/help_messages.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "tools/help_source.hpp"
#include "tools/refused_source.hpp"

namespace korven::tools {
namespace {

const std::vector<TextRecord> records = {
    {"texts32.txt", {"%1 < %2 m", "", "%1 < %2 m en français", "", "", ""}, 1},
    {"texts32.txt", {"Disco pieno", "", "Disque plein", "", "", ""}, 1}};
const HelpStructure onePage = {{"c", "p", 0, {}, {{"g", {}, 3}}}};

long faultLine(const std::string& source) {
    return refusal("m.txt", source, readHelpMessages).first;
}

long fillingFault(const std::string& source, const HelpStructure& structure = onePage) {
    const auto fill = [&structure](const std::string& file, const std::string& text) {
        return withMessages(file, structure, readHelpMessages(file, text), records, 3);
    };
    return refusal("m.txt", source, fill).first;
}

// The body of the one page in French, its messages being those of the two records.
std::string html(const std::string& body, const std::string& messages) {
    const auto structure =
        withMessages("m.txt", onePage, readHelpMessages("m.txt", messages), records, 3);
    return readHelpSource("g.txt",
                          "@capitolo c\ntitolo: C\n@pagina p\ntitolo: T\nparole: w\n" + body,
                          structure)
        .front()
        .body.html;
}

TEST(HelpMessages, AreReadInGroupsWithTheNamesOfThoseThatAreExplained) {
    const auto groups =
        readHelpMessages("m.txt",
                         "# head\n\n@gruppo a\n\n@messaggio full Disco pieno\nTutto bene\n"
                         "@gruppo b\nuno solo\n");
    ASSERT_EQ(groups.size(), 2u);
    EXPECT_EQ(groups[0].name, "a");
    ASSERT_EQ(groups[0].messages.size(), 2u);
    EXPECT_EQ(groups[0].messages[0].name, "full");
    EXPECT_EQ(groups[0].messages[0].text, "Disco pieno");
    EXPECT_EQ(groups[0].messages[0].line, 5);
    EXPECT_EQ(groups[0].messages[1].name, "");
    EXPECT_EQ(groups[0].messages[1].text, "Tutto bene");
    EXPECT_EQ(groups[1].messages.size(), 1u);
}

TEST(HelpMessages, SayInWhichLineTheyAreBroken) {
    EXPECT_EQ(faultLine("uno\n"), 1);
    EXPECT_EQ(faultLine("@gruppo a b\n"), 1);
    EXPECT_EQ(faultLine("@gruppo a\n@gruppo b\nuno\n"), 1) << "nothing in it";
    EXPECT_EQ(faultLine("@gruppo a\nuno\n@gruppo a\ndue\n"), 3);
    EXPECT_EQ(faultLine("@gruppo a\nuno\n@gruppo b\nUNO\n"), 4);
    EXPECT_EQ(faultLine("@gruppo a\n@messaggio n\n"), 2);
    EXPECT_EQ(faultLine("@gruppo a\n@messaggio n uno\n@messaggio n due\n"), 3);
}

TEST(HelpMessages, AreTextsOfTheProgramInGroupsThatAPageLists) {
    EXPECT_EQ(fillingFault("@gruppo g\nDisco vuoto\n"), 2) << "no text";
    EXPECT_EQ(fillingFault("@gruppo g\nDisco pieno\n@gruppo h\n%1 < %2 m\n"), 3) << "no page";
    EXPECT_EQ(fillingFault("@gruppo h\nDisco pieno\n"), 0) << "the group of the page is missing";
}

TEST(HelpMessages, StandOnTheirPageInItsLanguage) {
    EXPECT_EQ(html("@gruppo g", "@gruppo g\n%1 < %2 m\nDisco pieno"),
              "<ul><li>… &lt; … m en français</li><li>Disque plein</li></ul>\n");
    EXPECT_EQ(html("@gruppo g\n| Message | Que faire |\n| full | de la **place** |\n\nfin",
                   "@gruppo g\n%1 < %2 m\n@messaggio full disco pieno"),
              "<table class=\"tabella\" border=\"1\" cellspacing=\"0\" cellpadding=\"4\">"
              "<tr><th align=\"left\">Message</th><th align=\"left\">Que faire</th></tr>"
              "<tr><td>Disque plein</td><td>de la <b>place</b></td></tr></table>\n"
              "<ul><li>… &lt; … m en français</li></ul>\n<p>fin</p>\n");
}

TEST(HelpMessages, SayWhatTheProgramPutsAfterThem) {
    EXPECT_EQ(html("@gruppo g", "@gruppo g\nDisco pieno | ?"), "<ul><li>Disque plein?</li></ul>\n");
    EXPECT_EQ(html("@gruppo g", "@gruppo g\nDisco pieno | …"),
              "<ul><li>Disque plein …</li></ul>\n");
    const auto explained =
        html("@gruppo g\n| a | b |\n| full | x |", "@gruppo g\n@messaggio full Disco pieno | …?");
    EXPECT_NE(explained.find("<td>Disque plein …?</td>"), std::string::npos);
    EXPECT_EQ(faultLine("@gruppo g\nDisco pieno | di carta\n"), 2);
    EXPECT_EQ(faultLine("@gruppo g\nDisco pieno\nDisco pieno | ?\n"), 3);
}

TEST(HelpMessages, AreAllExplainedWhereTheyHaveANameAndOnlyThose) {
    const std::string one = "@gruppo g\n@messaggio full Disco pieno\n";
    const std::string two = one + "@messaggio small %1 < %2 m\n";
    const std::string head = "@gruppo g\n| a | b |\n";
    EXPECT_NO_THROW(html(head + "| full | x |", one));
    EXPECT_THROW(html("text", one), base::ErroreFile);
    EXPECT_THROW(html("@gruppo h\n| a | b |\n| full | x |", one), base::ErroreFile);
    EXPECT_THROW(html(head + "| full | x |\n@gruppo g", one), base::ErroreFile);
    EXPECT_THROW(html("@gruppo g", one), base::ErroreFile);
    EXPECT_THROW(html(head, one), base::ErroreFile);
    EXPECT_THROW(html(head + "| full | x | y |", one), base::ErroreFile);
    EXPECT_THROW(html(head + "| small | x |\n| full | x |", two), base::ErroreFile);
    EXPECT_THROW(html(head + "| full | x |\n| small | x |", one), base::ErroreFile);
}

}  // namespace
}  // namespace korven::tools
