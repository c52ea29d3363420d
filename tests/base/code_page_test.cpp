#include "base/code_page.hpp"

#include <gtest/gtest.h>

#include <random>

namespace korven::base {
namespace {

std::string tuttiIByte() {
    std::string s;
    for (int b = 0; b < 256; ++b) s += static_cast<char>(b);
    return s;
}

TEST(CodePage, EveryByteSurvivesTheWayThereAndBack) {
    const std::string byte = tuttiIByte();
    EXPECT_EQ(inCp1252(daCp1252(byte)), byte);
    EXPECT_EQ(numeroCaratteri(daCp1252(byte)), 256u);
}

TEST(CodePage, ReadsTheCharactersOfThePublishedTable) {
    // Microsoft's table of code page 1252: byte and Unicode character.
    const std::pair<const char*, const char*> tavola[] = {
        {"\x80", "€"}, {"\x82", "‚"}, {"\x83", "ƒ"},      {"\x84", "„"}, {"\x85", "…"},
        {"\x86", "†"}, {"\x87", "‡"}, {"\x88", "ˆ"},      {"\x89", "‰"}, {"\x8A", "Š"},
        {"\x8B", "‹"}, {"\x8C", "Œ"}, {"\x8E", "Ž"},      {"\x91", "‘"}, {"\x92", "’"},
        {"\x93", "“"}, {"\x94", "”"}, {"\x95", "•"},      {"\x96", "–"}, {"\x97", "—"},
        {"\x98", "˜"}, {"\x99", "™"}, {"\x9A", "š"},      {"\x9B", "›"}, {"\x9C", "œ"},
        {"\x9E", "ž"}, {"\x9F", "Ÿ"}, {"\xA0", "\u00A0"}, {"\xB0", "°"}, {"\xB2", "²"},
        {"\xB3", "³"}, {"\xE0", "à"}, {"\xFF", "ÿ"},      {"A", "A"}};
    for (const auto& [byte, utf8] : tavola) {
        EXPECT_EQ(daCp1252(byte), utf8);
        EXPECT_EQ(inCp1252(utf8), byte);
        EXPECT_TRUE(rappresentabile(utf8)) << utf8;
    }
}

TEST(CodePage, BytesWithoutACharacterBecomeTheControlOfTheSameNumber) {
    EXPECT_EQ(daCp1252("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
    EXPECT_EQ(inCp1252("\u0081\u008D\u008F\u0090\u009D"), "\x81\x8D\x8F\x90\x9D");
}

TEST(CodePage, WhatHasNoPlaceBecomesAQuestionMark) {
    EXPECT_EQ(inCp1252("a→b"), "a?b");
    EXPECT_EQ(inCp1252("Δ\u0080😀"), "???");  // U+0080 is no character of the page: 80 is the euro
    EXPECT_FALSE(rappresentabile("a→b"));
}

TEST(ComeNeiFile, IsTheTextThatAFileGivesBack) {
    EXPECT_EQ(comeNeiFile("φ = 30° — è"), "? = 30° — è");
    EXPECT_EQ(comeNeiFile(""), "");
}

TEST(CodePage, EachByteOfAMalformedTextBecomesAQuestionMark) {
    EXPECT_EQ(inCp1252("a\xFF"
                       "b"),
              "a?b");
    EXPECT_EQ(inCp1252("\xE2\x82"), "??");  // cut short
    EXPECT_EQ(inCp1252("\xC3"
                       "A"),
              "?A");                                  // no continuation
    EXPECT_EQ(inCp1252("\xC0\x80"), "??");            // overlong
    EXPECT_EQ(inCp1252("\xE0\x80\x80"), "???");       // overlong
    EXPECT_EQ(inCp1252("\xED\xA0\x80"), "???");       // surrogate
    EXPECT_EQ(inCp1252("\xF4\x90\x80\x80"), "????");  // beyond the last character
    EXPECT_FALSE(rappresentabile("\xFF"));
}

TEST(CodePage, UpperCaseMapsAccentedLettersOneToOne) {
    EXPECT_EQ(maiuscolo("è già più così, à ö ü ç ñ õ þ"), "È GIÀ PIÙ COSÌ, À Ö Ü Ç Ñ Õ Þ");
    EXPECT_EQ(maiuscolo("š œ ž ÿ"), "Š Œ Ž Ÿ");
    EXPECT_EQ(minuscolo("ŠŒŽŸ ÀÖÞ"), "šœžÿ àöþ");
}

TEST(CodePage, SharpSAndSignsAreLeftAloneByBothCases) {
    for (const char* s : {"ß", "×", "÷", "µ", "ƒ", "ª", "1.5 [kN/m²]", "→"}) {
        EXPECT_EQ(minuscolo(s), s == std::string("1.5 [kN/m²]") ? "1.5 [kn/m²]" : s);
    }
    for (const char* s : {"ß", "×", "÷", "µ", "ƒ", "ª", "→"}) EXPECT_EQ(maiuscolo(s), s);
}

TEST(CodePage, LowerCaseUndoesUpperCaseForEveryLetter) {
    const std::string tutti = daCp1252(tuttiIByte());
    EXPECT_EQ(minuscolo(maiuscolo(tutti)), minuscolo(tutti));
    EXPECT_EQ(maiuscolo(minuscolo(tutti)), maiuscolo(tutti));
    EXPECT_EQ(numeroCaratteri(maiuscolo(tutti)), 256u);
}

TEST(CodePage, AnyBytesPassThroughWithoutHarm) {
    std::mt19937 caso(7);
    std::uniform_int_distribution<int> byte(0, 255);
    for (int i = 0; i < 2000; ++i) {
        std::string s;
        for (int n = byte(caso) % 12; n > 0; --n) s += static_cast<char>(byte(caso));
        EXPECT_EQ(inCp1252(s).size(), numeroCaratteri(s));
        EXPECT_EQ(numeroCaratteri(maiuscolo(s)), numeroCaratteri(s));
    }
}

TEST(CodePage, CountsCharactersNotBytes) {
    EXPECT_EQ(numeroCaratteri(""), 0u);
    EXPECT_EQ(numeroCaratteri("Profondità [m²]"), 15u);
    EXPECT_EQ(lunghezzaPrimoCarattere("à"), 2u);
    EXPECT_EQ(lunghezzaPrimoCarattere("€"), 3u);
    EXPECT_EQ(lunghezzaPrimoCarattere("\xFF"), 1u);
}

TEST(CodePage, TrimTakesBlanksOnly) {
    EXPECT_EQ(senzaSpaziEsterni("  a b  "), "a b");
    EXPECT_EQ(senzaSpaziEsterni(" \ta\t "), "\ta\t");
    EXPECT_EQ(senzaSpaziEsterni("   "), "");
    EXPECT_EQ(senzaSpaziEsterni(""), "");
}

TEST(ConMaiuscola, BeginsASentence) {
    EXPECT_EQ(conMaiuscola("la paratia"), "La paratia");
    EXPECT_EQ(conMaiuscola("\u00E8 un meccanismo"), "\u00C8 un meccanismo");
    EXPECT_EQ(conMaiuscola("F = 1"), "F = 1");
    EXPECT_EQ(conMaiuscola(""), "");
    EXPECT_EQ(conMinuscola("Resultierender Druck"), "resultierender Druck");
    EXPECT_EQ(conMinuscola("\u00C8 un Meccanismo"), "\u00E8 un Meccanismo");
    EXPECT_EQ(conMinuscola(""), "");
}

}  // namespace
}  // namespace korven::base
