#include "batch/run/text_table.hpp"

#include <gtest/gtest.h>

namespace korven::batch {
namespace {

TEST(TabellaTesto, IsAsWideAsItsWidestCellsAndRightAligned) {
    TabellaTesto tabella({"Fase", "z"});
    tabella.riga({"1", "12.50"});
    tabella.riga({"2", "-"});
    EXPECT_EQ(tabella.testo(),
              "Fase      z\n"
              "   1  12.50\n"
              "   2      -\n");
}

TEST(TabellaTesto, CountsCharactersAndLeavesALastColumnOfWordsToTheLeft) {
    TabellaTesto tabella({"è", "detto"}, true);
    tabella.riga({"più", "poco"});
    EXPECT_EQ(tabella.testo(),
              "  è  detto\n"
              "più  poco\n");
}

}  // namespace
}  // namespace korven::batch
