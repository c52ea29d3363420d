#include "report/annex/greek_letters.hpp"

#include <gtest/gtest.h>

namespace korven::report {
namespace {

TEST(LettereGreche, StandForTheWordsOfTheTexts) {
    EXPECT_EQ(conLettereGreche("k0 = (1 - sin phi) / (1 + sin beta)."),
              "k0 = (1 - sin φ) / (1 + sin β).");
    EXPECT_EQ(conLettereGreche("ks = 40 (c Nc + gamma Ngamma + sigma' Nq)"),
              "ks = 40 (c Nc + γ Nγ + σ' Nq)");
    EXPECT_EQ(conLettereGreche("cos² alfa, cos alpha"), "cos² α, cos α");
    EXPECT_EQ(conLettereGreche("m sqrt(k0 sigma)"), "m √(k0 σ)");
}

TEST(LettereGreche, LeaveWordsThatHoldTheirNames) {
    EXPECT_EQ(conLettereGreche("alfabeto, betabloccante, phi1, però"),
              "alfabeto, betabloccante, phi1, però");
    EXPECT_EQ(conLettereGreche(""), "");
}

}  // namespace
}  // namespace korven::report
