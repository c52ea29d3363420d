#include "drawings/log/layer_name.hpp"

#include <gtest/gtest.h>

namespace korven::drawings {
namespace {

TEST(DescrizioneMostrata, KeepsAFirstWordThatIsNoCode) {
    const auto strato = descrizioneMostrata(" limo argilloso ");
    EXPECT_EQ(strato.testo, "limo argilloso");
    EXPECT_EQ(strato.campitura, 0);
    EXPECT_EQ(strato.colore, 1);
    EXPECT_TRUE(strato.lineaAlPiede);
    EXPECT_EQ(descrizioneMostrata("Sabbia").testo, "Sabbia");
    EXPECT_EQ(descrizioneMostrata("").testo, "");
}

TEST(DescrizioneMostrata, TakesACodeOff) {
    const auto strato = descrizioneMostrata("-103C3 Limo argilloso");
    EXPECT_EQ(strato.testo, "Limo argilloso");
    EXPECT_EQ(strato.campitura, 103);
    EXPECT_EQ(strato.colore, 3);
    EXPECT_FALSE(strato.lineaAlPiede);
    EXPECT_EQ(descrizioneMostrata("C4 _Argilla").testo, "Argilla");
}

}  // namespace
}  // namespace korven::drawings
