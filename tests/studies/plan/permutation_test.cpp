#include "studies/plan/permutation.hpp"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

namespace korven::studies {
namespace {

TEST(Permutazione, TakesEachNumberOnce) {
    for (const std::uint64_t n : {1U, 2U, 3U, 4U, 5U, 7U, 8U, 16U, 17U, 63U, 64U, 65U, 1000U}) {
        const Permutazione ordine(20, 1, n);
        std::set<std::uint64_t> visti;
        for (std::uint64_t i = 0; i < n; ++i) {
            EXPECT_LT(ordine(i), n);
            visti.insert(ordine(i));
        }
        EXPECT_EQ(visti.size(), n);
    }
}

// Each of the six orders of three things comes as often as the others: of 6000 about 1000. The sum
// of squares over 1000 is below 20.5 in 999 of 1000 seeds (chi square, five degrees of freedom).
TEST(Permutazione, HasNoFavouriteOrder) {
    constexpr std::uint64_t quante = 6000;
    std::map<std::vector<std::uint64_t>, int> volte;
    for (std::uint64_t seme = 0; seme < quante; ++seme) {
        const Permutazione ordine(seme, 0, 3);
        ++volte[{ordine(0), ordine(1), ordine(2)}];
    }
    ASSERT_EQ(volte.size(), 6U);
    double chi = 0;
    for (const auto& [ordine, n] : volte) chi += (n - 1000.0) * (n - 1000.0) / 1000;
    EXPECT_LT(chi, 20.5);
}

// A neighbour in place is none in value: the ranks of 1000 numbers and their places, of which the
// correlation is within 4/sqrt(1000) of 0 for almost all orders.
TEST(Permutazione, HasNoOrderLeft) {
    constexpr std::uint64_t n = 1000;
    const Permutazione ordine(7, 3, n), altro(7, 4, n), altroSeme(8, 3, n);
    double somma = 0, fraDue = 0, fraSemi = 0;
    const auto centrato = [](std::uint64_t x) { return static_cast<double>(x) - (n - 1) / 2.0; };
    for (std::uint64_t i = 0; i < n; ++i) {
        somma += centrato(i) * centrato(ordine(i));
        fraDue += centrato(altro(i)) * centrato(ordine(i));
        fraSemi += centrato(altroSeme(i)) * centrato(ordine(i));
    }
    const double intera = n * (n * n - 1.0) / 12;
    EXPECT_NEAR(somma / intera, 0, 0.127);
    EXPECT_NEAR(fraDue / intera, 0, 0.127);
    EXPECT_NEAR(fraSemi / intera, 0, 0.127);
}

TEST(Permutazione, IsThereForNumbersThatNoMemoryHolds) {
    constexpr std::uint64_t n = std::uint64_t{1} << 53U;
    const Permutazione ordine(1, 0, n - 1);
    EXPECT_LT(ordine(n - 2), n - 1);
    EXPECT_NE(ordine(0), ordine(1));
}

}  // namespace
}  // namespace korven::studies
