#include "base/xml_text.hpp"

#include <gtest/gtest.h>

namespace korven::base {
namespace {

TEST(TestoXml, WritesWhatMarksUpAsEntitiesAndTheRestAsItIs) {
    EXPECT_EQ(inXml("a<b & \"c\" > d'"), "a&lt;b &amp; &quot;c&quot; &gt; d'");
    EXPECT_EQ(inXml("sabbia più fine"), "sabbia più fine");
}

TEST(TestoXml, MarksTheCharactersThatXmlCannotHold) {
    EXPECT_EQ(inXml(std::string_view("a\0b\x1F\x7F", 5)), "a\uFFFDb\uFFFD\uFFFD");
}

TEST(TestoXml, WritesAnAttribute) { EXPECT_EQ(attributoXml("fill", "none"), " fill=\"none\""); }

}  // namespace
}  // namespace korven::base
