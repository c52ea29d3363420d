#include "tables/remark_table.hpp"

#include <gtest/gtest.h>

namespace korven::tables {
namespace {

using review::Peso;

TEST(ProspettoOsservazioni, HasARowForEachWithItsWeightAndItsFields) {
    const Prospetto p = prospettoOsservazioni(
        {{"peso-mancante", Peso::pericolo, "strato 2: peso mancante", {"gammaN[2]", "nStrati"}, ""},
         {"titolo-lungo", Peso::daVedere, "titolo 1: lungo", {}, ""}});
    ASSERT_EQ(p.righe.size(), 2u);
    EXPECT_EQ(p.righe[0][0].testo, "Pericolo");
    EXPECT_EQ(p.righe[0][0].peso, Peso::pericolo);
    EXPECT_EQ(p.righe[0][1].testo, "Strato 2: peso mancante");
    EXPECT_EQ(p.righe[0][2].testo, "gammaN[2], nStrati");
    EXPECT_EQ(p.righe[0][3].testo, "peso-mancante");
    EXPECT_EQ(p.righe[1][0].testo, "Da vedere");
    EXPECT_EQ(p.righe[1][2], Cella{});
    EXPECT_TRUE(p.note.empty());
}

TEST(ProspettoOsservazioni, SaysThatThereIsNone) {
    EXPECT_EQ(prospettoOsservazioni({}).note, std::vector<std::string>{"Nessuna osservazione."});
}

}  // namespace
}  // namespace korven::tables
