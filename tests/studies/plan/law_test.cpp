#include "studies/plan/law.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace korven::studies {
namespace {

using enum TipoLegge;

constexpr double z975 = 1.959963984540054;  // Phi^-1(0.975), of the tables

TEST(Quantile, OfTheNormalLawIsMeanAndDeviations) {
    const Legge legge{normale, {32, 2}};
    EXPECT_DOUBLE_EQ(quantile(legge, 0.5), 32);
    EXPECT_NEAR(quantile(legge, 0.975), 32 + 2 * z975, 1e-12);
    EXPECT_NEAR(quantile(legge, 0.025), 32 - 2 * z975, 1e-12);
}

// Mean 10 and deviation 3 of the variable: sigma^2 = ln 1.09, median 10 / sqrt(1.09).
TEST(Quantile, OfTheLognormalLawTakesMeanAndDeviationOfTheVariable) {
    const Legge legge{lognormale, {10, 3}};
    const double sigma = std::sqrt(std::log(1.09)), mediana = 10 / std::sqrt(1.09);
    EXPECT_NEAR(quantile(legge, 0.5), mediana, 1e-12);
    EXPECT_NEAR(quantile(legge, 0.975), mediana * std::exp(sigma * z975), 1e-11);
    EXPECT_NEAR(quantile(legge, 0.025), mediana * std::exp(-sigma * z975), 1e-12);
}

TEST(Quantile, OfTheUniformLawIsAShareOfItsRange) {
    const Legge legge{uniforme, {-2, 6}};
    EXPECT_DOUBLE_EQ(quantile(legge, 0.25), 0);
    EXPECT_DOUBLE_EQ(quantile(legge, 0.875), 5);
}

// From 2 to 6, most often 3: a quarter lies below 3. At 0.0625 the area of the left triangle,
// (x-2)^2/4, gives x = 2.5; at 0.8125 that of the right one, (6-x)^2/12 = 0.1875, gives 4.5.
TEST(Quantile, OfTheTriangularLawIsTheRootOfAnArea) {
    const Legge legge{triangolare, {2, 3, 6}};
    EXPECT_NEAR(quantile(legge, 0.0625), 2.5, 1e-14);
    EXPECT_NEAR(quantile(legge, 0.25), 3, 1e-14);
    EXPECT_NEAR(quantile(legge, 0.8125), 4.5, 1e-14);
}

TEST(Quantile, OfATriangleMayHaveItsTopAtAnEnd) {
    EXPECT_NEAR(quantile({triangolare, {0, 0, 1}}, 0.75), 0.5, 1e-14);  // 1 - (1-x)^2
    EXPECT_NEAR(quantile({triangolare, {0, 1, 1}}, 0.25), 0.5, 1e-14);  // x^2
}

constexpr Legge leggi[] = {
    {normale, {32, 2}}, {lognormale, {10, 3}}, {uniforme, {-2, 6}}, {triangolare, {2, 3, 6}}};

TEST(DaScarto, GivesTheQuantileOfItsProbability) {
    for (const auto& legge : leggi)
        for (const double p : {1e-12, 0.001, 0.2, 0.5, 0.8, 0.999})
            EXPECT_NEAR(daScarto(legge, scartoNormale(p)), quantile(legge, p),
                        1e-9 * std::fabs(quantile(legge, p)) + 1e-12)
                << static_cast<int>(legge.tipo) << ' ' << p;
}

// Far up Phi(z) is 1 for a number: the values are still within the range, and still grow.
TEST(DaScarto, StaysWithinTheRangeFarOut) {
    const Legge triangolo{triangolare, {2, 3, 6}};
    EXPECT_GT(daScarto(triangolo, 7), daScarto(triangolo, 6));
    for (const auto& legge : {triangolo, Legge{uniforme, {2, 6}}})
        for (const double z : {-40.0, -9.0, 9.0, 40.0}) {
            EXPECT_GE(daScarto(legge, z), 2);
            EXPECT_LE(daScarto(legge, z), 6);
        }
}

// sqrt((a^2 + b^2 + c^2 - ab - ac - bc) / 18) for the triangle: (4 + 36 + 9 - 12 - 6 - 18) / 18.
TEST(MediaEScartoTipo, AreThoseOfTheTextbooks) {
    EXPECT_EQ(media(leggi[0]), 32);
    EXPECT_EQ(scartoTipo(leggi[0]), 2);
    EXPECT_EQ(media(leggi[1]), 10);
    EXPECT_EQ(scartoTipo(leggi[1]), 3);
    EXPECT_EQ(media(leggi[2]), 2);
    EXPECT_NEAR(scartoTipo(leggi[2]), 8 / std::sqrt(12), 1e-14);
    EXPECT_NEAR(media(leggi[3]), 11.0 / 3, 1e-14);
    EXPECT_NEAR(scartoTipo(leggi[3]), std::sqrt(13.0 / 18), 1e-14);
}

TEST(DifettoLegge, IsFoundBeforeAnyValueIsAsked) {
    using enum DifettoLegge;
    const double nan = std::nan("");
    for (const auto& legge : leggi) EXPECT_FALSE(difetto(legge));
    EXPECT_EQ(difetto({normale, {32, 0}}), scarto);
    EXPECT_EQ(difetto({normale, {32, -2}}), scarto);
    EXPECT_EQ(difetto({normale, {32, nan}}), scarto);
    EXPECT_EQ(difetto({lognormale, {0, 1}}), media);
    EXPECT_EQ(difetto({lognormale, {-3, 1}}), media);
    EXPECT_EQ(difetto({lognormale, {3, 0}}), scarto);
    EXPECT_EQ(difetto({uniforme, {2, 2}}), estremi);
    EXPECT_EQ(difetto({uniforme, {3, 2}}), estremi);
    EXPECT_EQ(difetto({triangolare, {2, 7, 6}}), estremi);
    EXPECT_EQ(difetto({triangolare, {2, 1, 6}}), estremi);
    EXPECT_EQ(difetto({triangolare, {2, 2, 2}}), estremi);
    EXPECT_FALSE(difetto({triangolare, {2, 2, 6}}));
    EXPECT_EQ(difetto({normale, {0, 1e308}}), oltreNumeri);
    EXPECT_EQ(difetto({normale, {nan, 1}}), oltreNumeri);
    EXPECT_EQ(difetto({lognormale, {1e-300, 1e300}}), oltreNumeri);
    EXPECT_EQ(difetto({uniforme, {-1e308, 1e308}}), oltreNumeri);
    EXPECT_EQ(difetto({triangolare, {-1e308, 0, 1e308}}), oltreNumeri);
}

TEST(NomiLeggi, HaveARowForEachLawWithItsParametersInItsForm) {
    for (const auto& legge : leggi) {
        const auto riga = std::ranges::find(nomiLeggi(), legge.tipo, &NomeLegge::tipo);
        ASSERT_NE(riga, nomiLeggi().end());
        EXPECT_EQ(riga->forma(), std::string(riga->nome.italiano) + std::string(riga->argomenti));
        EXPECT_EQ(std::ranges::count(riga->argomenti, ',') + 1,
                  static_cast<std::ptrdiff_t>(riga->parametri));
    }
}

}  // namespace
}  // namespace korven::studies
