#include "analysis/diagrams.hpp"

#include <gtest/gtest.h>

namespace korven::analysis {
namespace {

TEST(Diagramma, HasTheNumbersOfTheOutputs) {
    EXPECT_EQ(static_cast<int>(Diagramma::pressioni), 1);
    EXPECT_EQ(static_cast<int>(Diagramma::spostamenti), 2);
    EXPECT_EQ(static_cast<int>(Diagramma::momenti), 3);
    EXPECT_EQ(static_cast<int>(Diagramma::taglio), 4);
}

}  // namespace
}  // namespace korven::analysis
