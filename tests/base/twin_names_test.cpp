#include "base/twin_names.hpp"

#include <gtest/gtest.h>

#include "base/translated_texts.hpp"

namespace korven::base {
namespace {

constexpr Gemelli momenti{"momenti", "moments"};

TEST(Gemelli, ShowTheItalianNameInItalianAndTheEnglishOneInEveryOtherLanguage) {
    EXPECT_EQ(momenti.mostrato(), "momenti");
    EXPECT_EQ(momenti.taciuto(), "moments");
    for (int lingua = 2; lingua <= 6; ++lingua) {
        impostaLingua(lingua);
        EXPECT_EQ(momenti.mostrato(), "moments") << lingua;
        EXPECT_EQ(momenti.taciuto(), "momenti") << lingua;
    }
    impostaLingua(1);
}

TEST(Gemelli, AreUnderstoodByEitherNameAndByNoOther) {
    EXPECT_TRUE(momenti.comprende("momenti"));
    EXPECT_TRUE(momenti.comprende("moments"));
    for (const char* altro : {"", "moment", "Momenti", "momenti "})
        EXPECT_FALSE(momenti.comprende(altro)) << altro;
}

TEST(Gemelli, MayBeOneName) {
    EXPECT_EQ(uguali("--dxf").mostrato(), "--dxf");
    EXPECT_EQ(uguali("--dxf").taciuto(), "--dxf");
    EXPECT_TRUE(uguali("--dxf").comprende("--dxf"));
}

}  // namespace
}  // namespace korven::base
