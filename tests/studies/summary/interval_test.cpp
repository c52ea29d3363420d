#include "studies/summary/interval.hpp"

#include <gtest/gtest.h>

namespace korven::studies {
namespace {

// Newcombe (1998), Two-sided confidence intervals for the single proportion: comparison of seven
// methods, Statistics in Medicine 17, 857-872, table I, score method without continuity correction.
TEST(IntervalloWilson, IsThatOfPublishedTables) {
    struct Caso {
        std::uint64_t volte, prove;
        double da, a;
    };
    for (const auto& [volte, prove, da, a] :
         {Caso{81, 263, 0.2553, 0.3662}, Caso{15, 148, 0.0624, 0.1605}, Caso{0, 20, 0.0000, 0.1611},
          Caso{1, 29, 0.0061, 0.1718}}) {
        const auto trovato = intervalloWilson(volte, prove);
        EXPECT_NEAR(trovato.da, da, 0.00005) << volte;
        EXPECT_NEAR(trovato.a, a, 0.00005) << volte;
    }
}

TEST(IntervalloWilson, TurnsRoundWithWhatIsCounted) {
    const auto uno = intervalloWilson(3, 50), altro = intervalloWilson(47, 50);
    EXPECT_NEAR(uno.da, 1 - altro.a, 1e-15);
    EXPECT_NEAR(uno.a, 1 - altro.da, 1e-15);
}

TEST(IntervalloWilson, HasItsEndAtNoneAndAtAll) {
    EXPECT_EQ(intervalloWilson(0, 10).da, 0);
    EXPECT_EQ(intervalloWilson(10, 10).a, 1);
    EXPECT_EQ(intervalloWilson(0, 0).da, 0);
    EXPECT_EQ(intervalloWilson(0, 0).a, 1);
}

}  // namespace
}  // namespace korven::studies
