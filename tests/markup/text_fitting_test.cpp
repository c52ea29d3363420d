#include "markup/text_fitting.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/code_page.hpp"
#include "base/table.hpp"

namespace korven::markup {
namespace {

using Righe = std::vector<std::string>;

// Every character is one unit wide.
double caratteriLarga(std::string_view testo) {
    return static_cast<double>(base::numeroCaratteri(testo));
}

Righe adatta(std::string_view testo, double larghezza) {
    return adattaTesto(testo, larghezza, caratteriLarga);
}

TEST(AdattaTesto, LeavesAShortTextInOneLine) {
    EXPECT_EQ(adatta("sabbia limosa", 14), Righe{"sabbia limosa"});
    EXPECT_EQ(adatta("  sabbia", 14), Righe{"sabbia"});
}

TEST(AdattaTesto, OfNothingHasNoLines) {
    EXPECT_TRUE(adatta("", 10).empty());
    EXPECT_TRUE(adatta("   ", 10).empty());
}

TEST(AdattaTesto, AForcedLineEndBetweenTwoWordsGivesTwoLinesWithoutHyphen) {
    EXPECT_EQ(adatta("sabbia|ghiaia", 20), (Righe{"sabbia", "ghiaia"}));
    EXPECT_EQ(adatta("sabbia | ghiaia|", 20), (Righe{"sabbia", "ghiaia"}));
}

TEST(AdattaTesto, TwoForcedLineEndsInARowLeaveALineEmpty) {
    EXPECT_EQ(adatta("sabbia||ghiaia", 20), (Righe{"sabbia", "", "ghiaia"}));
    EXPECT_EQ(adatta("|ghiaia", 20), (Righe{"", "ghiaia"}));
}

TEST(AdattaTesto, AWordWithoutAPlaceToPartOverrunsTheColumn) {
    EXPECT_EQ(adatta("ghiaia", 4), Righe{"ghiaia"});
    EXPECT_EQ(adatta("ghiaia fine", 5), (Righe{"ghiaia", "fine"}));
}

TEST(AdattaTesto, PartsWordsWithAHyphen) {
    EXPECT_EQ(adatta("sabbia", 5), (Righe{"sab-", "bia"}));
    EXPECT_EQ(adatta("argilla", 6), (Righe{"argil-", "la"}));
}

TEST(AdattaTesto, TakesAsManySyllablesAsStayNarrowerThanTheColumn) {
    // 9: "sabbia " has 7, with "li" it would have 9 and be as wide as the column.
    EXPECT_EQ(adatta("sabbia limosa fine", 9), (Righe{"sabbia", "limosa", "fine"}));
    EXPECT_EQ(adatta("sabbia limosa fine", 10), (Righe{"sabbia li-", "mosa fine"}));
}

TEST(AdattaTesto, ATextAsWideAsTheColumnIsCut) {
    EXPECT_EQ(adatta("sabbia", 6), (Righe{"sab-", "bia"}));
    EXPECT_EQ(adatta("sabbia", 6.5), Righe{"sabbia"});
}

TEST(AdattaTesto, ALineEndBehindACutLineIsNoLineOfItsOwn) {
    EXPECT_EQ(adatta("ghiaia|fine", 5), (Righe{"ghiaia", "fine"}));
    EXPECT_EQ(adatta("ghiaia  |fine", 5), (Righe{"ghiaia", "fine"}));
    EXPECT_EQ(adatta("ghiaia||fine", 5), (Righe{"ghiaia", "", "fine"}));
}

TEST(AdattaTesto, ALineEndIsNeverPartOfASyllable) {
    // Without that "ghiaia|sab" would be one, up to the double consonant.
    EXPECT_EQ(adatta("ghiaia|sabbia", 5), (Righe{"ghiaia", "sab-", "bia"}));
}

TEST(AdattaTesto, MeasuresCharactersWithAccentsAsOne) {
    EXPECT_EQ(adatta("città più", 10), Righe{"città più"});
    EXPECT_EQ(adatta("città", 5), (Righe{"cit-", "tà"}));
}

TEST(AdattaTesto, HoldsAHundredLinesAndNoMore) {
    std::string testo;
    for (int i = 0; i < 99; ++i) testo += "a|";
    EXPECT_EQ(adatta(testo + "a", 10).size(), 100u);
    EXPECT_THROW((void)adatta(testo + "a|a", 10), base::ErroreIndice);
}

TEST(AdattaTesto, LosesNoLetterOfAnyText) {
    constexpr std::string_view lettere = "aeioabcrlst |à";
    std::mt19937 caso(54);
    std::uniform_int_distribution<std::size_t> quale(0, lettere.size() - 1), lungo(0, 80);
    std::uniform_real_distribution<double> larghezza(0, 15);
    const auto soloLettere = [](std::string testo) {
        std::erase_if(testo, [](char c) { return c == ' ' || c == '|' || c == '-'; });
        return testo;
    };
    for (int prova = 0; prova < 500; ++prova) {
        std::string testo;
        for (std::size_t n = lungo(caso); n > 0; --n) testo += lettere[quale(caso)];
        std::string righe;
        for (const auto& riga : adatta(testo, larghezza(caso))) righe += riga;
        EXPECT_EQ(soloLettere(righe), soloLettere(testo));
    }
}

}  // namespace
}  // namespace korven::markup
