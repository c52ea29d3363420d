#include "base/dos_text.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"

namespace korven::base {
namespace {

TEST(DaDos, ReplacesTheLettersOfTheDosCodePage) {
    EXPECT_EQ(daDos("Profondit\x85 \xF8 \x8A \x97"), "Profondità ° è ù");
    EXPECT_EQ(daDos("\x80\x82\x8E\x90\x99\xA0\xA4\xA5"), "ÇéÄÉÖáñÑ");
}

TEST(DaDos, MakesTheCapitalUWithDiaeresisSmall) { EXPECT_EQ(daDos("\x9A"), "ü"); }

TEST(DaDos, LeavesAllOtherBytesAlone) {
    int sostituiti = 0;
    for (int b = 0; b < 256; ++b) {
        const std::string byte(1, static_cast<char>(b));
        if (daDos(byte) == daCp1252(byte)) continue;
        ++sostituiti;
        EXPECT_GE(b, 128);
    }
    EXPECT_EQ(sostituiti, 34);
}

}  // namespace
}  // namespace korven::base
