#include "base/name_in_sentence.hpp"

#include <gtest/gtest.h>

#include "base/translated_texts.hpp"

namespace korven::base {
namespace {

TEST(NellaFrase, GivesANameASmallLetterButInGerman) {
    impostaLingua(5);
    EXPECT_EQ(nellaFrase("Net pressure"), "net pressure");
    impostaLingua(2);
    EXPECT_EQ(nellaFrase("Nettodruck"), "Nettodruck");
    impostaLingua(1);
    EXPECT_EQ(nellaFrase("Équilibre"), "équilibre");
}

}  // namespace
}  // namespace korven::base
