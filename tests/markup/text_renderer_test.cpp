#include "markup/text_renderer.hpp"

#include <gtest/gtest.h>

namespace korven::markup {
namespace {

std::optional<std::string> rendered(const std::string& markup) {
    base::LettoreRighe file("r.TAB", markup);
    return renderText(file);
}

TEST(TextRenderer, WritesHeaderTextRowsAndFooterAsTheyAre) {
    EXPECT_EQ(rendered("#RESET 2,2,2,2,2,2,12,Arial\r\n#HEADER Program\r\n#FOOTER Fine\r\n"
                       "#FONTSIZE 16\r\n#CENTER\r\n  TITOLO\r\n#LEFT\r\n\r\n#STARTTABLE\r\n"
                       "Prof. [m]\tPhi [\xB0]\r\n 1.00\t30.00\r\n#ENDTABLE\r\n#STARTLIST\r\n"
                       "Lunghezza\t12.00\r\n#ENDLIST\r\n#ENDDOCUMENT\r\n"),
              "Program\r\nTITOLO\r\n\r\nProf. [m]\tPhi [\xB0]\r\n1.00\t30.00\r\n"
              "Lunghezza\t12.00\r\nFine\r\n");
}

TEST(TextRenderer, OpensNoFileWithoutReset) {
    EXPECT_EQ(rendered("text\r\n#ENDDOCUMENT\r\n"), std::nullopt);
    EXPECT_EQ(rendered(""), std::nullopt);
    EXPECT_EQ(rendered("#RESET\r\n"), "");
}

TEST(TextRenderer, HeaderComesBeforeTheFirstTextLineNotBeforeAnEarlierTable) {
    EXPECT_EQ(rendered("#RESET\r\n#HEADER h\r\n#STARTTABLE\r\na\tb\r\n#ENDTABLE\r\nx\r\ny\r\n"),
              "a\tb\r\nh\r\nx\r\ny\r\n");
}

TEST(TextRenderer, HeaderAndFooterThatWereNeverGivenAreEmptyLines) {
    EXPECT_EQ(rendered("#RESET\r\nx\r\n#ENDDOCUMENT\r\n"), "\r\nx\r\n\r\n");
}

TEST(TextRenderer, FurtherResetStartsTheFileAnewWithItsHeader) {
    EXPECT_EQ(rendered("#RESET\r\n#HEADER h\r\nlost\r\n#RESET\r\nx\r\n#ENDDOCUMENT\r\n"),
              "h\r\nx\r\n\r\n");
}

TEST(TextRenderer, LinesThatLookLikeDirectivesNeverAppear) {
    EXPECT_EQ(rendered("#RESET\r\n#1 primo muro\r\nx\r\n"), "\r\nx\r\n");
}

}  // namespace
}  // namespace korven::markup
