#include "analysis/diagrams.hpp"

#include <gtest/gtest.h>

namespace korven::analysis {
namespace {

TEST(Diagrammi, HaveTheNumbersOfTheOutputsAndARowEach) {
    EXPECT_EQ(static_cast<int>(Diagramma::pressioni), 1);
    EXPECT_EQ(static_cast<int>(Diagramma::spostamenti), 2);
    EXPECT_EQ(static_cast<int>(Diagramma::momenti), 3);
    EXPECT_EQ(static_cast<int>(Diagramma::taglio), 4);
    EXPECT_EQ(diagrammi.size(), 4u);
    for (const auto& riga : diagrammi) EXPECT_EQ(&nomi(riga.diagramma), &riga);
    EXPECT_EQ(nomi(Diagramma::taglio).nome, "taglio");
}

}  // namespace
}  // namespace korven::analysis
