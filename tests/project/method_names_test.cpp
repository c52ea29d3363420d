#include "project/method_names.hpp"

#include <gtest/gtest.h>

namespace korven::project {
namespace {

TEST(NomeMetodo, IsThatOfItsCode) {
    EXPECT_EQ(nomeMetodo(1), "coulomb");
    EXPECT_EQ(nomeMetodo(2), "rankine");
    EXPECT_EQ(nomeMetodo(3), "bell");
}

}  // namespace
}  // namespace korven::project
