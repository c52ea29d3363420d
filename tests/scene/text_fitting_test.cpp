#include "scene/text_fitting.hpp"

#include <gtest/gtest.h>

namespace korven::scene {
namespace {

// Every character is as wide as the font is large.
class UnoPerUno : public MisuraTesti {
 public:
    [[nodiscard]] double larghezza(std::string_view testo, double corpo, bool) const override {
        double n = 0;
        for (const char c : testo) n += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1 : 0;
        return n * corpo;
    }
};

std::string accorciato(std::string_view testo, int caratteri) {
    return scene::accorciato(testo, caratteri, 1, false, UnoPerUno());
}

TEST(Accorciato, LeavesATextThatFits) { EXPECT_EQ(accorciato("Sabbia", 6), "Sabbia"); }

TEST(Accorciato, EndsAtAWordWhereThatKeepsHalfOfTheRoom) {
    EXPECT_EQ(accorciato("Sabbia limosa fine", 16), "Sabbia limosa…");
    EXPECT_EQ(accorciato("Il calcare", 6), "Il ca…");
}

TEST(Accorciato, CountsCharactersAndLeavesNoStopBeforeTheDots) {
    EXPECT_EQ(accorciato("Così è, forse", 8), "Così è…");
}

TEST(Accorciato, GivesNothingWhereNothingFits) {
    EXPECT_EQ(accorciato("Sabbia", 2), "");
    EXPECT_EQ(accorciato("Sabbia", 0), "");
}

TEST(InRighe, BreaksAtBlanksAndShortensTheLastLine) {
    const auto righe = [](std::string_view t, int largo, int massimo) {
        return inRighe(t, largo, 1, massimo, UnoPerUno());
    };
    using Righe = std::vector<std::string>;
    EXPECT_EQ(righe("uno due tre", 7, 3), (Righe{"uno due", "tre"}));
    EXPECT_EQ(righe("uno due tre", 30, 3), (Righe{"uno due tre"}));
    EXPECT_EQ(righe("uno due tre quattro", 7, 2), (Righe{"uno due", "tre…"}));
    EXPECT_EQ(righe("lunghissima parola", 4, 2), (Righe{"lunghissima", "par…"}));
    EXPECT_EQ(righe("", 4, 2), Righe{});
}

}  // namespace
}  // namespace korven::scene
