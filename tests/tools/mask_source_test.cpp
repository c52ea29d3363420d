#include "tools/mask_source.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"

namespace korven::tools {
namespace {

const std::string head =
    "# comment\n@maschera EDITX.MAV 1\ntitolo: Prova\nguida: 6\nriferimento: 6 EDITX\n"
    "pulsanti: &Conferma|&Annulla\n";
const std::string choice = "@scelta vincoloTesta\naiuto: quale, dei due\n";
const std::string field = "@campo sforzoNormale\ntipo: 0\naiuto: di compressione\n";
const std::string other = "\n@altro §Peso è [kN]\ntipo: 0\nlimiti: -1.5 20\naiuto:\n";

long lineOfFault(const std::string& content) {
    try {
        (void)readMaskSource("maschere.txt", content);
    } catch (const base::ErroreFile& error) {
        return error.riga();
    }
    return -1;
}

TEST(MaskSource, ReadsAMaskWithChoicesAndFields) {
    const auto masks = readMaskSource("maschere.txt", head + choice + other);
    ASSERT_EQ(masks.size(), 1u);
    EXPECT_EQ(masks[0].file, "EDITX.MAV");
    EXPECT_EQ(masks[0].kind, 1);
    EXPECT_EQ(masks[0].context, 6);
    EXPECT_EQ(masks[0].choices, std::vector<std::string>{"libera|cerniera"});
    ASSERT_EQ(masks[0].fields.size(), 2u);
    EXPECT_EQ(masks[0].fields[0].label, "Vincolo della sommità");
    EXPECT_EQ(masks[0].fields[0].least, 1);
    EXPECT_EQ(masks[0].fields[0].most, 2);
    EXPECT_EQ(masks[0].fields[1].label, "§Peso è [kN]");
    EXPECT_EQ(masks[0].fields[1].least, -1.5);
    EXPECT_EQ(masks[0].fields[1].help, "");
}

TEST(MaskSource, TakesCaptionUnitAndLimitsOfAFieldFromTheTableOfFields) {
    const auto masks = readMaskSource("maschere.txt", head + field);
    ASSERT_EQ(masks[0].fields.size(), 1u);
    EXPECT_EQ(masks[0].fields[0].label, "Sforzo normale [kN]");
    EXPECT_EQ(masks[0].fields[0].least, -100000);
    EXPECT_EQ(masks[0].fields[0].most, 100000);
    EXPECT_EQ(masks[0].fields[0].help, "di compressione");
}

TEST(MaskSource, NamesTheCodesOfAColumnAtTheEndOfItsHelp) {
    const auto masks =
        readMaskSource("maschere.txt", head + "@campo tipoTirante\ntipo: ##\naiuto: 0 o 1.\n");
    EXPECT_EQ(masks[0].fields[0].help, "0 o 1.$$$0=Solo traz.,1=Traz./compr.");
}

TEST(MaskSource, MakesAFieldOfEachHeading) {
    const auto masks =
        readMaskSource("maschere.txt", head + "@campo titoli\ntipo: 80\naiuto: riga\n");
    ASSERT_EQ(masks[0].fields.size(), 6u);
    EXPECT_EQ(masks[0].fields[0].label, "Titolo [1]");
    EXPECT_EQ(masks[0].fields[5].label, "Titolo [6]");
    EXPECT_EQ(masks[0].fields[5].type, "80");
    EXPECT_EQ(masks[0].fields[5].most, 0);
}

TEST(MaskSource, WritesTheLinesOfAFieldFormInOrder) {
    const auto masks = readMaskSource("maschere.txt", head + choice + other);
    EXPECT_EQ(maskFileBytes(masks[0]),
              "1\r\nProva\r\n1\r\nlibera|cerniera\r\n1\r\n"
              "Vincolo della sommit\xE0\r\n0\r\n1\r\n2\r\nquale, dei due\r\n"
              "\xA7Peso \xE8 [kN]\r\n0\r\n-1.5\r\n20\r\n\r\n"
              "6 EDITX\r\n2\r\n&Conferma\r\n&Annulla\r\nMN=6\r\n");
}

TEST(MaskSource, LeavesTheNumberOfChoicesOutOfAGrid) {
    const auto masks = readMaskSource(
        "maschere.txt",
        "@maschera G.MAV 4\ntitolo: T\nguida: 0\nriferimento: x\npulsanti: a|b\n" + other);
    EXPECT_TRUE(maskFileBytes(masks[0]).starts_with("4\r\nT\r\n1\r\n\xA7Peso"));
}

TEST(MaskSource, NamesTheTextsThatAreTranslated) {
    const auto masks = readMaskSource("maschere.txt", head + choice + other);
    EXPECT_EQ(maskTexts(masks[0]),
              (std::vector<std::string>{"Prova", "libera|cerniera", "Vincolo della sommità",
                                        "quale, dei due", "Peso è", "&Conferma", "&Annulla"}));
}

TEST(MaskSource, RefusesFaultsWithTheirLine) {
    EXPECT_EQ(lineOfFault("campo\n"), 1);
    EXPECT_EQ(lineOfFault("@campo coeffM\n"), 1);
    EXPECT_EQ(lineOfFault("@maschera X.MAV 5\n"), 1);
    EXPECT_EQ(lineOfFault("@maschera X.MAV 1\nguida: 5\n"), 2);
    EXPECT_EQ(lineOfFault("@maschera X.MAV 1\ntitolo: uno, due\n"), 2);
    EXPECT_EQ(lineOfFault("@maschera X.MAV 1\ntitolo: T\nguida: 201\nriferimento: r\n"), 3);
    EXPECT_EQ(lineOfFault("@maschera X.MAV 1\ntitolo: T\nguida: 1\nriferimento: è\nx\n"), 4);
    EXPECT_EQ(lineOfFault(head + field + choice), 10);
    EXPECT_EQ(lineOfFault(head + "@altro x\ntipo: 0\nlimiti: 2 1\naiuto: x\n"), 9);
    EXPECT_EQ(lineOfFault(head + "@altro x\ntipo: 0\nlimiti: 1\naiuto: x\n"), 9);
    EXPECT_EQ(lineOfFault(head + "@altro \xE2\x82\xAC \xE2\x86\x92\n"), 7);  // an arrow
    EXPECT_EQ(lineOfFault(head + "@campo nessuno\ntipo: 0\naiuto: x\n"), 7);
    EXPECT_EQ(lineOfFault(head + "@scelta coeffM\naiuto: x\n"), 7);  // has no codes
    EXPECT_EQ(lineOfFault(head + choice + field + other), -1);
}

}  // namespace
}  // namespace korven::tools
