#include "analysis/solver/system_matrix.hpp"

#include <gtest/gtest.h>

namespace korven::analysis {
namespace {

TEST(MatriceSistema, StartsAtZeroToItsLastCell) {
    const MatriceSistema A;
    for (int i = 1; i <= capacitaSistema; ++i)
        for (int j = 1; j <= capacitaSistema; ++j) ASSERT_EQ(A(i, j), 0.0) << i << ' ' << j;
}

TEST(MatriceSistema, ClearsTheRowsAndColumnsAskedForAndNoOther) {
    MatriceSistema A;
    for (int i = 1; i <= 5; ++i)
        for (int j = 1; j <= 5; ++j) A(i, j) = 10.0 * i + j;
    A.azzera(3);
    for (int i = 1; i <= 5; ++i)
        for (int j = 1; j <= 5; ++j)
            EXPECT_EQ(A(i, j), i <= 3 && j <= 3 ? 0.0 : 10.0 * i + j) << i << ' ' << j;
    A.azzera(0);
    EXPECT_EQ(A(4, 4), 44.0);
}

TEST(MatriceSistema, RefusesAnIndexBeyondItsCapacityInEveryBuild) {
    MatriceSistema A;
    EXPECT_THROW(A(0, 1) = 1.0, base::ErroreIndice);
    EXPECT_THROW(A(1, 0) = 1.0, base::ErroreIndice);
    EXPECT_THROW(A(501, 1) = 1.0, base::ErroreIndice);
    EXPECT_THROW(A(1, 501) = 1.0, base::ErroreIndice);
    EXPECT_THROW(A.azzera(501), base::ErroreIndice);
    EXPECT_NO_THROW(A(500, 500) = 1.0);
}

}  // namespace
}  // namespace korven::analysis
