#include "base/language.hpp"

#include <gtest/gtest.h>

#include <set>

namespace korven::base {
namespace {

TEST(SiglaLingua, CodesOneToSixHaveTheirTagsAndNoOtherHasOne) {
    const char* attese[] = {"", "ita", "deu", "fra", "esp", "eng", "por", ""};
    for (int codice = 0; codice <= 7; ++codice) EXPECT_EQ(siglaLingua(codice), attese[codice]);
    EXPECT_EQ(siglaLingua(-1), "");
    for (int codice = 1; codice <= 6; ++codice) EXPECT_EQ(codiceLingua(attese[codice]), codice);
    EXPECT_EQ(codiceLingua("ENG"), 0);
    EXPECT_EQ(codiceLingua(""), 0);
}

TEST(SiglaIso, CodesOneToSixHaveTheTagsThatDocumentsKnow) {
    const char* attese[] = {"", "it", "de", "fr", "es", "en", "pt", ""};
    for (int codice = 0; codice <= 7; ++codice) EXPECT_EQ(siglaIso(codice), attese[codice]);
}

std::string scelta(std::string_view sigla, const std::set<std::string, std::less<>>& esistenti) {
    return siglaDisponibile(sigla, [&](std::string_view s) { return esistenti.contains(s); });
}

TEST(SiglaDisponibile, TagWithAFileStays) {
    for (const char* s : {"ita", "deu", "fra", "esp", "eng", "por"}) EXPECT_EQ(scelta(s, {s}), s);
}

TEST(SiglaDisponibile, FallsBackStepByStepEachTestingTheResultOfTheOneBefore) {
    EXPECT_EQ(scelta("deu", {"ita", "eng"}), "eng");
    EXPECT_EQ(scelta("deu", {"ita", "fra"}), "fra");
    EXPECT_EQ(scelta("deu", {"ita", "esp"}), "esp");
    EXPECT_EQ(scelta("deu", {"ita"}), "ita");
    EXPECT_EQ(scelta("fra", {"ita", "eng"}), "ita");  // the step to English comes after it
    EXPECT_EQ(scelta("por", {"ita", "esp"}), "esp");
    EXPECT_EQ(scelta("por", {"ita", "eng"}), "ita");
    EXPECT_EQ(scelta("esp", {"eng"}), "ita");
}

TEST(SiglaDisponibile, NobodyStandsInForItalianOrForAnUnknownTag) {
    EXPECT_EQ(scelta("ita", {"eng"}), "ita");
    EXPECT_EQ(scelta("", {"ita", "eng"}), "");
}

}  // namespace
}  // namespace korven::base
