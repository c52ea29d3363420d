#include "scene/stage_groups.hpp"

#include <gtest/gtest.h>

namespace korven::scene {
namespace {

std::vector<std::string> nomi(const std::vector<SegniFase>& segni) {
    std::vector<std::string> tutti;
    for (const GruppoFasi& g : gruppiFasi(segni, 10)) tutti.push_back(nomeFasi(g.fasi));
    return tutti;
}

TEST(GruppiFasi, HaveTheStagesWhoseMarksLieTogether) {
    const Tinta tinta{Ruolo::testo};
    EXPECT_EQ(nomi({{1, {{0, 50}}, tinta},
                    {2, {{0, 20}}, tinta},
                    {3, {{0, 28}}, tinta},
                    {4, {{0, 22}}, tinta}}),
              (std::vector<std::string>{"fasi 2–4", "fase 1"}));
    // A row of marks, each near the next, is no heap.
    EXPECT_EQ(nomi({{1, {{0, 0}}, tinta}, {2, {{0, 8}}, tinta}, {3, {{0, 16}}, tinta}}),
              (std::vector<std::string>{"fasi 1, 2", "fase 3"}));
}

TEST(GruppiFasi, PartWhatHasAnotherColourOrLiesApartAtItsOtherEnd) {
    const Tinta una{Ruolo::testo}, altra{Ruolo::meccanismo};
    EXPECT_EQ(nomi({{1, {{0, 0}}, una}, {2, {{0, 0}}, altra}}).size(), 2U);
    EXPECT_EQ(nomi({{1, {{0, 0}, {0, 90}}, una}, {2, {{0, 1}, {0, 40}}, una}}).size(), 2U);
}

TEST(GruppiFasi, LieInTheMiddleOfTheirMarks) {
    const auto gruppi = gruppiFasi({{1, {{4, 10}}, {}}, {2, {{8, 14}}, {}}}, 10);
    ASSERT_EQ(gruppi.size(), 1U);
    EXPECT_EQ(gruppi[0].punti.at(0).x, 6);
    EXPECT_EQ(gruppi[0].punti.at(0).y, 12);
}

// Both ends of a stage may lie in one heap.
TEST(GruppiFasi, NameAStageOnce) {
    EXPECT_EQ(nomi({{1, {{0, 0}}, {}}, {1, {{0, 2}}, {}}}), std::vector<std::string>{"fase 1"});
}

TEST(NomeFasi, JoinsRuns) {
    EXPECT_EQ(nomeFasi({7}), "fase 7");
    EXPECT_EQ(nomeFasi({1, 2}), "fasi 1, 2");
    EXPECT_EQ(nomeFasi({1, 3, 4, 5, 9, 10}), "fasi 1, 3–5, 9, 10");
}

}  // namespace
}  // namespace korven::scene
