#include "studies/summary/interval.hpp"

#include <gtest/gtest.h>

namespace korven::studies {
namespace {

// Its ends are the two p for which k is just z deviations away, (p - k/n)^2 = z^2 p (1 - p) / n:
// the roots of (1 + z^2/n) p^2 - (2 k/n + z^2/n) p + (k/n)^2 = 0 with z = 1.95996398454005423552,
// solved with fifty digits by the module decimal of Python. The four cases are those that Newcombe,
// Two-sided confidence intervals for the single proportion: comparison of seven methods (1998),
// compares the methods by.
TEST(IntervalloWilson, EndsWhereWhatIsCountedIsJustPossible) {
    struct Caso {
        std::uint64_t volte, prove;
        double da, a;
    };
    for (const auto& [volte, prove, da, a] :
         {Caso{81, 263, 0.255288519878274225, 0.366209576982800070},
          Caso{15, 148, 0.062386399530736279, 0.160487241723308038},
          Caso{0, 20, 0, 0.161125158052819387},
          Caso{1, 29, 0.006113214292762660, 0.171755218793202881}}) {
        const auto trovato = intervalloWilson(volte, prove);
        EXPECT_NEAR(trovato.da, da, 1e-14) << volte;
        EXPECT_NEAR(trovato.a, a, 1e-14) << volte;
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
