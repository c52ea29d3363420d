#include "plot/dxf/writer.hpp"

#include <gtest/gtest.h>

#include "plot/dxf/tables.hpp"

namespace korven::plot {
namespace {

constexpr double sentinella = ScrittoreDxf::sentinella;
constexpr Riquadro foglio{0, 0, 19, 27};
constexpr Colore verdePieno = daRgb(0, 255, 0);
constexpr Colore arancio = daRgb(255, 128, 0);

// The lines that a writer has put after the start of its file, parted by '|'.
std::string scritto(const ScrittoreDxf& dxf) {
    std::string testo = dxf.contenuto().substr(inizioDxf(foglio, "MONOTXT").size());
    for (std::size_t fine; (fine = testo.find("\r\n")) != std::string::npos;)
        testo.replace(fine, 2, "|");
    return testo;
}

class Dxf : public testing::Test {
 protected:
    ScrittoreDxf dxf{foglio, "MONOTXT"};

    std::string linea(double x1, double y1, double x2, double y2) {
        dxf.muovi(x1, y1, 3);
        dxf.muovi(x2, y2, 2);
        return scritto(dxf);
    }
    std::string livelloDopo(int penna) {
        dxf.muovi(sentinella, 0, penna);
        const std::string prima = scritto(dxf);
        dxf.muovi(1, 0, 2);
        const std::string linea = scritto(dxf).substr(prima.size());
        const std::size_t da = linea.find("| 8|") + 4;
        return linea.substr(da, linea.find('|', da) - da);
    }
};

TEST_F(Dxf, LineHasItsLayerAndItsEndsWithThreeDecimals) {
    dxf.colore(verdePieno);
    EXPECT_EQ(linea(12.5, 0, -0.5, 12345.6),
              " 0|LINE| 8|10|10|  12.500|20|   0.000|11|   -.500|21|12345.60|");
}

TEST_F(Dxf, PenUpWritesNothing) {
    dxf.muovi(1, 1, 3);
    dxf.muovi(2, 2, 3);
    EXPECT_EQ(scritto(dxf), "");
}

TEST_F(Dxf, LayerIsZeroBeforeTheFirstColour) {
    dxf.colore(arancio);
    EXPECT_EQ(linea(1, 1, 2, 2).substr(0, 14), " 0|LINE| 8|0|1");
    dxf.testo(1, 1, 0.3, "a", 0, 1);
    EXPECT_NE(scritto(dxf).find(" 0|TEXT| 8|0|10|"), std::string::npos);
}

TEST_F(Dxf, ColourOutsideThePaletteLeavesLinesAndTextsOnTheLayerBefore) {
    dxf.colore(verdePieno);
    dxf.colore(arancio);
    dxf.muovi(1, 1, 2);
    dxf.testo(1, 1, 0.3, "a", 0, 1);
    EXPECT_NE(scritto(dxf).find("LINE| 8|10|"), std::string::npos);
    EXPECT_NE(scritto(dxf).find("TEXT| 8|10|"), std::string::npos);
}

TEST_F(Dxf, PensBeyondFifteenBeginAgainAtLayerTwo) {
    EXPECT_EQ(livelloDopo(1), "1");
    EXPECT_EQ(livelloDopo(9), "9");
    EXPECT_EQ(livelloDopo(15), "15");
    EXPECT_EQ(livelloDopo(16), "2");
    EXPECT_EQ(livelloDopo(29), "15");
    EXPECT_EQ(livelloDopo(30), "2");  // 30 - 14 = 16, and once more
}

TEST_F(Dxf, LayerOfTextsIsReducedTheSameWay) {
    dxf.testo(0, 0, sentinella, "16", 0, 0);
    dxf.testo(1, 1, 0.3, "a", 0, 1);
    EXPECT_TRUE(scritto(dxf).starts_with(" 0|TEXT| 8|2|"));
}

TEST_F(Dxf, LayerOfLinesIsSetAloneByTheSentinel) {
    dxf.muovi(3, 3, 3);
    dxf.muovi(sentinella, 99, 12);
    dxf.muovi(4, 3, 2);
    EXPECT_EQ(scritto(dxf), " 0|LINE| 8|12|10|   3.000|20|   3.000|11|   4.000|21|   3.000|");
    dxf.testo(1, 1, 0.3, "a", 0, 1);
    EXPECT_NE(scritto(dxf).find("TEXT| 8|0|"), std::string::npos);  // the layer of texts is another
}

TEST_F(Dxf, TextHasPositionHeightAndStyle) {
    dxf.colore(daRgb(255, 0, 0));
    dxf.testo(1.236, 2, 0.25, "c' [kN/m²]", 0, 10);
    EXPECT_EQ(scritto(dxf),
              " 0|TEXT| 8|12|10|   1.24|20|   2.00|40| 0.25| 1|c' [kN/m²]|    7|MONOTXT|");
}

TEST_F(Dxf, TurnedTextHasItsAngle) {
    dxf.testo(1, 2, 0.3, "a", 90, 1);
    dxf.testo(1, 2, 0.3, "b", -30.5, 1);
    EXPECT_EQ(scritto(dxf),
              " 0|TEXT| 8|0|10|   1.00|20|   2.00|40| 0.30| 1|a|50|   90.00|    7|MONOTXT|"
              " 0|TEXT| 8|0|10|   1.00|20|   2.00|40| 0.30| 1|b|50|  -30.50|    7|MONOTXT|");
}

TEST_F(Dxf, CentredTextStartsBackByHeightTimesItsCharacters) {
    // Six characters, not the seven bytes of "città": 6 x 0.5 = 3.
    dxf.testo(10, 20, 0.5, "città²", 0, -2);
    EXPECT_EQ(scritto(dxf),
              " 0|TEXT| 8|0|10|   7.00|20|  20.00|40| 0.50| 1|città²| 72|     1|11|  10.00"
              "|21|  20.00|    7|MONOTXT|");
}

TEST_F(Dxf, CentredTextMovesBackAlongItsDirection) {
    dxf.testo(10, 20, 0.5, "abcd", 90, -2);
    EXPECT_EQ(scritto(dxf),
              " 0|TEXT| 8|0|10|  10.00|20|  18.00|40| 0.50| 1|abcd| 72|     1|11|  10.00"
              "|21|  20.00|50|   90.00|    7|MONOTXT|");
    ScrittoreDxf inclinato(foglio, "MONOTXT");
    inclinato.testo(10, 20, 0.5, "abcd", 30, -2);  // 2 cos 30 = 1.73, 2 sin 30 = 1
    EXPECT_NE(scritto(inclinato).find("10|   8.27|20|  19.00|"), std::string::npos);
}

TEST_F(Dxf, TextKeepsItsBlanksAndCannotBreakTheFile) {
    dxf.testo(1, 2, 0.3, "  a\tb\r\nc  ", 0, 1);
    EXPECT_NE(scritto(dxf).find("| 1|  a b  c  |    7|"), std::string::npos);
}

TEST_F(Dxf, TextHasPlainBlanksForThoseThatAStrokeFontLacks) {
    dxf.testo(1, 1, 0.3, "12005\u00a0: motif\u00a0!", 0, 1);
    EXPECT_NE(scritto(dxf).find("|12005 : motif !|"), std::string::npos) << scritto(dxf);
}

TEST_F(Dxf, MinusThreeMovesTheOriginOfLinesAndTexts) {
    dxf.muovi(10, 20, -3);
    dxf.muovi(1, 1, 2);
    dxf.testo(1, 2, 0.3, "a", 0, 1);
    dxf.muovi(5, 5, -3);
    dxf.testo(0, 0, 0.3, "b", 0, 1);
    EXPECT_EQ(scritto(dxf),
              " 0|LINE| 8|0|10|  10.000|20|  20.000|11|  11.000|21|  21.000|"
              " 0|TEXT| 8|0|10|  11.00|20|  22.00|40| 0.30| 1|a|    7|MONOTXT|"
              " 0|TEXT| 8|0|10|  15.00|20|  25.00|40| 0.30| 1|b|    7|MONOTXT|");
}

TEST_F(Dxf, MinusTwoDrawsToTheNewOrigin) {
    dxf.muovi(1, 0, 3);
    dxf.muovi(3, 0, -2);
    dxf.muovi(0, 2, 2);
    EXPECT_EQ(scritto(dxf),
              " 0|LINE| 8|0|10|   1.000|20|   0.000|11|   3.000|21|   0.000|"
              " 0|LINE| 8|0|10|   3.000|20|   0.000|11|   3.000|21|   2.000|");
}

TEST_F(Dxf, OriginOfTextsIsSetAndTakenBackBySentinels) {
    dxf.testo(10, 20, 0, "", sentinella, 0);
    dxf.testo(1, 1, 0.3, "a", 0, 1);
    dxf.testo(sentinella, 5, 0, "", 0, 0);
    dxf.testo(1, 1, 0.3, "b", 0, 1);
    EXPECT_EQ(scritto(dxf),
              " 0|TEXT| 8|0|10|  11.00|20|  21.00|40| 0.30| 1|a|    7|MONOTXT|"
              " 0|TEXT| 8|0|10|   1.00|20|   1.00|40| 0.30| 1|b|    7|MONOTXT|");
}

TEST_F(Dxf, SwappedAxesExchangeXAndYAndShiftTheFirst) {
    dxf.scambiaAssi(true, 4);
    EXPECT_EQ(linea(1, 10, 2, 20), " 0|LINE| 8|0|10|   6.000|20|   1.000|11|  16.000|21|   2.000|");
}

TEST_F(Dxf, Code999EndsTheFile) {
    dxf.muovi(0, 0, 999);
    EXPECT_EQ(scritto(dxf), " 0|ENDSEC| 0|EOF|");
}

}  // namespace
}  // namespace korven::plot
