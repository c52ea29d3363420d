#include "studies/summary/chosen_rows.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace korven::studies {
namespace {

// Variants whose values are their number and its double.
void prendi(RigheScelte& scelte, std::uint64_t i) {
    const auto x = static_cast<double>(i);
    scelte.prendi(i, std::array<double, 2>{x, 2 * x});
}

TEST(RigheScelte, AreAllWhereThereAreFew) {
    RigheScelte scelte(1, 2, 10);
    for (std::uint64_t i = 0; i < 10; ++i) prendi(scelte, i);
    EXPECT_EQ(scelte.colonna(0), (std::vector<double>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(scelte.colonna(1)[7], 14);
}

TEST(RigheScelte, AreTheSameInWhateverOrderTheyCome) {
    constexpr std::uint64_t n = 5000;
    RigheScelte avanti(1, 2, 50), indietro(1, 2, 50), altro(2, 2, 50);
    for (std::uint64_t i = 0; i < n; ++i) {
        prendi(avanti, i);
        prendi(indietro, n - 1 - i);
        prendi(altro, i);
    }
    EXPECT_EQ(avanti.numero(), 50U);
    EXPECT_EQ(avanti.colonna(0), indietro.colonna(0));
    EXPECT_NE(avanti.colonna(0), altro.colonna(0));
    const auto uno = avanti.colonna(0), doppio = avanti.colonna(1);
    EXPECT_TRUE(std::ranges::is_sorted(uno));
    for (std::size_t k = 0; k < uno.size(); ++k) EXPECT_EQ(doppio[k], 2 * uno[k]);
}

// Of 100,000 numbers 1000, evenly: their mean is within four standard errors of the middle.
TEST(RigheScelte, FavourNoVariant) {
    RigheScelte scelte(3, 2, 1000);
    for (std::uint64_t i = 0; i < 100'000; ++i) prendi(scelte, i);
    const auto numeri = scelte.colonna(0);
    const double media = std::accumulate(numeri.begin(), numeri.end(), 0.0) / 1000;
    EXPECT_NEAR(media, 50'000, 4 * 1e5 / std::sqrt(12.0) / std::sqrt(1000.0));
}

}  // namespace
}  // namespace korven::studies
