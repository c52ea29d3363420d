#include "report/annex/chosen_rows.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace korven::report {
namespace {

using Righe = std::vector<std::size_t>;

TEST(RigheScelteTest, AreAllWhereThereIsRoom) {
    EXPECT_EQ(righeScelte(5, 51, {2}), (Righe{0, 1, 2, 3, 4}));
    EXPECT_EQ(righeScelte(5, 5, {2}), (Righe{0, 1, 2, 3, 4}));
    EXPECT_TRUE(righeScelte(0, 2, {}).empty());
    EXPECT_EQ(righeScelte(1, 2, {0}), Righe{0});
}

TEST(RigheScelteTest, AreSpreadEvenlyWithTheLastAndThePeaks) {
    EXPECT_EQ(righeScelte(11, 6, {}), (Righe{0, 2, 4, 6, 8, 10}));
    // Six of these and the peak were seven; five lie at every 2.5: 0 3 5 8 10.
    EXPECT_EQ(righeScelte(11, 6, {7, 7}), (Righe{0, 3, 5, 7, 8, 10}));
}

TEST(RigheScelteTest, UseTheRoomThatThereIsWhateverTheNumberOfNodes) {
    EXPECT_EQ(righeScelte(52, 51, {}).size(), 51U);
    for (std::size_t nodi = 52; nodi <= 250; ++nodi) {
        const Righe scelte = righeScelte(nodi, 51, {nodi / 3, nodi / 2, nodi - 7});
        EXPECT_LE(scelte.size(), 51U) << nodi;
        // A peak more or less among the even ones: no more than the three peaks are given up.
        EXPECT_GE(scelte.size(), 48U) << nodi;
        for (const std::size_t picco : {nodi / 3, nodi / 2, nodi - 7, nodi - 1})
            EXPECT_TRUE(std::binary_search(scelte.begin(), scelte.end(), picco)) << nodi;
        for (std::size_t i = 1; i < scelte.size(); ++i)
            EXPECT_LE(scelte[i] - scelte[i - 1], (nodi - 1) / 47 + 1) << nodi;
    }
}

TEST(RigheScelteTest, AreTheEndsAndThePeaksWhereNothingElseHasRoom) {
    EXPECT_EQ(righeScelte(250, 2, {30, 200, 30, 400}), (Righe{0, 30, 200, 249}));
}

TEST(RigheScelteTest, KeepTheirCellsAndSayHowManyTheyAre) {
    tables::Prospetto p;
    for (int i = 0; i < 9; ++i) p.righe.push_back({tables::cella(i)});
    sfoltisci(p, 3, {});
    ASSERT_EQ(p.righe.size(), 3U);
    EXPECT_EQ(p.righe[1][0].testo, "4");
    ASSERT_EQ(p.note.size(), 1U);
    EXPECT_EQ(p.note[0],
              "3 nodi di 9, distribuiti il più regolarmente possibile, con il primo, l'ultimo e "
              "quelli dei valori "
              "massimi e minimi.");
    tables::Prospetto poche{.righe = {{tables::cella(1)}}};
    sfoltisci(poche, 3, {});
    EXPECT_TRUE(poche.note.empty());
}

}  // namespace
}  // namespace korven::report
