#include "masks/grid_cells.hpp"

#include <gtest/gtest.h>

namespace korven::masks {
namespace {

using Testi = std::vector<std::string>;

CelleGriglia conRighe(const std::vector<Testi>& righe, int colonne = 2) {
    CelleGriglia celle(colonne);
    for (std::size_t r = 0; r < righe.size(); ++r)
        for (std::size_t c = 0; c < righe[r].size(); ++c)
            celle.scrivi(static_cast<int>(r) + 1, static_cast<int>(c) + 1, righe[r][c]);
    return celle;
}

TEST(CelleGriglia, PackTheRowsThatHaveData) {
    const auto celle = conRighe({{"1", "a"}, {" ", ""}, {"3", ""}});
    EXPECT_EQ(celle.impacchettate(), (Testi{"2", "1", "a", "3", ""}));
    EXPECT_EQ(CelleGriglia(3).impacchettate(), Testi{"0"});
}

TEST(CelleGriglia, HoldWhatAFileWillGiveBack) {
    const auto celle = conRighe({{"1", "Limo φ′ 28° – ghiaia"}});
    EXPECT_EQ(celle.testo(1, 2), "Limo ?? 28° – ghiaia");
}

TEST(CelleGriglia, SearchTheLastRowWithDataFromTheBottom) {
    const auto celle = conRighe({{"1"}, {""}, {"3"}, {"  "}});
    EXPECT_EQ(celle.ultimaRiga(), 3);
    EXPECT_EQ(celle.ultimaRiga(3), 3);
    EXPECT_EQ(celle.ultimaRiga(4), 0);
}

TEST(CelleGriglia, InsertARowInsideTheData) {
    auto celle = conRighe({{"1", "a"}, {"2", "b"}});
    EXPECT_TRUE(celle.inserisci(2));
    EXPECT_EQ(celle.impacchettate(), (Testi{"2", "1", "a", "2", "b"}));
    EXPECT_FALSE(celle.haDati(2));
    EXPECT_EQ(celle.testo(3, 2), "b");
    EXPECT_FALSE(celle.inserisci(4));  // after the data
}

TEST(CelleGriglia, InsertNoRowWhenTheLastOneIsFull) {
    CelleGriglia celle(1);
    celle.scrivi(1, 1, "x");
    celle.scrivi(500, 1, "y");
    EXPECT_FALSE(celle.inserisci(1));
    EXPECT_EQ(celle.testo(500, 1), "y");
    EXPECT_TRUE(celle.elimina(2));
    EXPECT_EQ(celle.testo(499, 1), "y");
    EXPECT_TRUE(celle.inserisci(1));
}

TEST(CelleGriglia, DeleteARowAndClearTheLastOne) {
    auto celle = conRighe({{"1"}, {"2"}, {"3"}});
    EXPECT_TRUE(celle.elimina(1));
    EXPECT_EQ(celle.impacchettate(), (Testi{"2", "2", "", "3", ""}));
    EXPECT_TRUE(celle.elimina(2));
    EXPECT_EQ(celle.ultimaRiga(), 1);
    EXPECT_FALSE(celle.elimina(2));
}

TEST(CelleGriglia, CopyFromTheFirstRowToTheLastWithDataBelow) {
    const auto celle = conRighe({{"1", "a"}, {"", ""}, {"3", "c"}});
    EXPECT_EQ(celle.copia(1), "1\ta\r\n\t\r\n3\tc");
    EXPECT_EQ(celle.copia(3), "1\ta\r\n\t\r\n3\tc");
}

TEST(CelleGriglia, CopyTheRowsAboveWhenNothingIsBelow) {
    const auto celle = conRighe({{"1", "a"}, {"2", "b"}});
    EXPECT_EQ(celle.copia(4), "1\ta\r\n2\tb\r\n\t");
    EXPECT_EQ(celle.copia(3), "1\ta\r\n2\tb");
    EXPECT_EQ(CelleGriglia(2).copia(1), "");
}

}  // namespace
}  // namespace korven::masks
