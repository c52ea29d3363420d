#include "exchange/import_rows.hpp"

#include <gtest/gtest.h>

namespace korven::exchange {
namespace {

using Frasi = std::vector<std::string>;

const RigheStrati presenti{{"2", "18", "19", "28", "0", "5000", "195 Riporto"},
                           {"6", "19", "20", "28.0", "10", "7000", "105 Argilla"},
                           {"9", "20", "21", "34", "", "9000", "103 Sabbia"}};

StratiLetti foro(const RigheStrati& righe) {
    StratiLetti letti;
    letti.righe = righe;
    letti.assenti = std::bitset<numeroColonne>("0111110");
    letti.descrizioniConCodice = false;
    return letti;
}

RigaStrato riga(const std::string& prof, const std::string& testo) {
    return {prof, "", "", "", "", "", testo};
}

TEST(PreparaRighe, LeavesTheValuesEmptyAndCountsThem) {
    const auto importo =
        preparaRighe(foro({riga("3", "105 Clay"), riga("8", "103 Sand")}), presenti, {});
    EXPECT_EQ(importo.righe, (RigheStrati{riga("3", "105 Clay"), riga("8", "103 Sand")}));
    EXPECT_EQ(importo.avvertenze, Frasi{"celle da compilare: 10. Una cella lasciata vuota vale 0"});
}

TEST(PreparaRighe, KeepsValuesWhereTheTableHasOneAtThatDepth) {
    const auto importo =
        preparaRighe(foro({riga("1.5", "1 a"), riga("6", "1 b"), riga("12", "1 c")}), presenti,
                     {.tieniValori = true});
    EXPECT_EQ(importo.righe,
              // 1.5 to 6 lies in two layers: they have the same friction angle alone
              (RigheStrati{{"1.5", "18", "19", "28", "0", "5000", "1 a"},
                           {"6", "", "", "28", "", "", "1 b"},
                           {"12", "20", "21", "34", "", "9000", "1 c"}}));
    EXPECT_EQ(importo.avvertenze, Frasi{"celle da compilare: 5. Una cella lasciata vuota vale 0"});
}

TEST(PreparaRighe, KeepsTheValuesOfTheLastLayerBelowItsFoot) {
    const auto importo =
        preparaRighe(foro({riga("9", "1 a"), riga("20", "1 b")}), presenti, {.tieniValori = true});
    EXPECT_EQ(importo.righe[1], (RigaStrato{"20", "20", "21", "34", "", "9000", "1 b"}));
}

TEST(PreparaRighe, SortsTheTableThatIsStillBeingTyped) {
    const RigheStrati rovesciati(presenti.rbegin(), presenti.rend());
    const auto letti = foro({riga("1.5", "1 a"), riga("6", "1 b"), riga("12", "1 c")});
    EXPECT_EQ(preparaRighe(letti, rovesciati, {.tieniValori = true}).righe,
              preparaRighe(letti, presenti, {.tieniValori = true}).righe);
    EXPECT_EQ(preparaRighe(letti, {}, {.tieniValori = true}).righe, letti.righe);
}

TEST(PreparaRighe, KeepsNothingInColumnsThatTheFileHas) {
    StratiLetti letti = foro({riga("1", "1 a")});
    letti.assenti.reset();
    EXPECT_EQ(preparaRighe(letti, presenti, {.tieniValori = true}).righe, letti.righe);
}

TEST(PreparaRighe, PutsACodeBeforeDescriptionsThatHaveNone) {
    const auto letti = foro({riga("1", "Firm CLAY"), riga("2", "105 Clay"), riga("3", "")});
    EXPECT_TRUE(mancanoCodici(letti.righe));
    const auto con = preparaRighe(letti, {}, {.mettiCodice = true});
    EXPECT_EQ(con.righe,
              (RigheStrati{riga("1", "0 Firm CLAY"), riga("2", "105 Clay"), riga("3", "")}));
    EXPECT_FALSE(mancanoCodici(con.righe));
    const auto senza = preparaRighe(letti, {}, {});
    EXPECT_EQ(senza.righe, letti.righe);
    EXPECT_EQ(senza.avvertenze.front(),
              "alcune descrizioni cominciano senza codice di campitura: la loro prima parola vale "
              "come codice e non viene stampata");
}

TEST(PreparaRighe, CountsAnEmptyKsOnlyWhereTheSubgradeModulusComesFromIt) {
    auto letti = foro({riga("1", "105 Clay"), riga("2", "103 Sand")});
    for (RigaStrato& una : letti.righe)
        for (std::size_t c = gammaN; c <= ks; ++c) una[c].clear();
    const std::string inizio = "celle da compilare: ";
    EXPECT_TRUE(preparaRighe(letti, {}, {}).avvertenze.front().starts_with(inizio + "10."));
    EXPECT_TRUE(
        preparaRighe(letti, {}, {.serveKs = false}).avvertenze.front().starts_with(inizio + "8."));
}

}  // namespace
}  // namespace korven::exchange
