#include "report/annex/chosen_rows.hpp"

#include <gtest/gtest.h>

namespace korven::report {
namespace {

using Righe = std::vector<std::size_t>;

TEST(RigheScelteTest, AreAllWhereThereIsRoom) {
    EXPECT_EQ(righeScelte(5, 51, {2}).quali, (Righe{0, 1, 2, 3, 4}));
    EXPECT_EQ(righeScelte(5, 5, {2}).passo, 1);
    EXPECT_TRUE(righeScelte(0, 2, {}).quali.empty());
    EXPECT_EQ(righeScelte(1, 2, {0}).quali, Righe{0});
}

TEST(RigheScelteTest, LieAtEqualDistancesWithTheLastAndThePeaks) {
    // 11 rows, one in three: 0 3 6 9, the last and a peak: six.
    const auto scelte = righeScelte(11, 6, {7, 7});
    EXPECT_EQ(scelte.passo, 3);
    EXPECT_EQ(scelte.quali, (Righe{0, 3, 6, 7, 9, 10}));
    // A peak less, and one in two has room: 0 2 4 6 8 10.
    EXPECT_EQ(righeScelte(11, 6, {}).quali, (Righe{0, 2, 4, 6, 8, 10}));
}

TEST(RigheScelteTest, AreTheEndsAndThePeaksWhereNothingElseHasRoom) {
    EXPECT_EQ(righeScelte(250, 2, {30, 200, 30, 400}).quali, (Righe{0, 30, 200, 249}));
}

TEST(RigheScelteTest, KeepTheirCellsAndSayHowManyTheyAre) {
    tables::Prospetto p;
    for (int i = 0; i < 9; ++i) p.righe.push_back({tables::cella(i)});
    sfoltisci(p, 3, {});
    ASSERT_EQ(p.righe.size(), 3U);
    EXPECT_EQ(p.righe[1][0].testo, "4");
    ASSERT_EQ(p.note.size(), 1U);
    EXPECT_EQ(p.note[0],
              "Un nodo ogni 4, con il primo, l'ultimo e quelli dei valori massimi e minimi: 3 di "
              "9.");
    tables::Prospetto poche{.righe = {{tables::cella(1)}}};
    sfoltisci(poche, 3, {});
    EXPECT_TRUE(poche.note.empty());
}

}  // namespace
}  // namespace korven::report
