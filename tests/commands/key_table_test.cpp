#include "commands/key_table.hpp"

#include <gtest/gtest.h>

#include <set>

#include "commands/menu_tree.hpp"

namespace korven::commands {
namespace {

TEST(TastiProgramma, BeginWithThoseOfTheMenu) {
    const auto tutti = tastiProgramma();
    ASSERT_FALSE(tutti.empty());
    EXPECT_EQ(tutti[0].finestra, "Finestra principale");
    std::size_t i = 0;
    for (const auto& voce : albero()) {
        if (voce.tasti.empty()) continue;
        ASSERT_LT(i, tutti[0].righe.size());
        EXPECT_EQ(tutti[0].righe[i].tasti, voce.tasti);
        EXPECT_EQ(tutti[0].righe[i].effetto.find('&'), std::string::npos);
        ++i;
    }
    EXPECT_EQ(tutti[0].righe[0].effetto, "Apri");
    EXPECT_GT(i, 5u);
}

TEST(TastiProgramma, NameEachWindowOnceAndNoKeyTwiceInOne) {
    std::set<std::string> finestre;
    for (const auto& [finestra, righe] : tastiProgramma()) {
        EXPECT_TRUE(finestre.insert(finestra).second) << finestra;
        EXPECT_FALSE(righe.empty()) << finestra;
        std::set<std::string> tasti;
        for (const auto& riga : righe) {
            EXPECT_TRUE(tasti.insert(riga.tasti).second) << finestra << ": " << riga.tasti;
            EXPECT_FALSE(riga.effetto.empty()) << riga.tasti;
        }
    }
    EXPECT_GE(finestre.size(), 9u);
}

}  // namespace
}  // namespace korven::commands
