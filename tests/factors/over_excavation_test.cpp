#include "factors/over_excavation.hpp"

#include <gtest/gtest.h>

#include "support/wall_builder.hpp"

namespace korven::factors {
namespace {

constexpr Fattori decimo{.scavoQuota = 0.1, .scavoMassimo = 0.5};

TEST(ScavoImprevisto, IsATenthOfTheFreeHeightOfACantilever) {
    const auto dati = test::muro().fase({.scavo = 4}).fase({.scavo = 7}).fase({}).dati();
    EXPECT_DOUBLE_EQ(scavoImprevisto(dati, 1, decimo), 0.4);
    EXPECT_EQ(scavoImprevisto(dati, 2, decimo), 0.5);  // a tenth would be 0.7
    EXPECT_EQ(scavoImprevisto(dati, 3, decimo), 0);
    EXPECT_EQ(scavoImprevisto(dati, 2, Fattori()), 0);
}

TEST(ScavoImprevisto, IsATenthOfTheHeightBelowTheLowestSupport) {
    const auto dati = test::muro()
                          .tirante(1.5, 500)
                          .tirante(4, 500)
                          .fase({.scavo = 2})
                          .fase({.scavo = 4.5, .tiranti = 1})  // 4.5 - 1.5
                          .fase({.scavo = 8, .tiranti = 2})    // 8 - 4
                          .fase({.scavo = 4, .tiranti = 2})    // the second lies at the bottom
                          .con(&project::DatiProgetto::vincoloTesta, 2)
                          .dati();
    EXPECT_DOUBLE_EQ(scavoImprevisto(dati, 1, decimo), 0.2);  // from the hinge of the head
    EXPECT_DOUBLE_EQ(scavoImprevisto(dati, 2, decimo), 0.3);
    EXPECT_DOUBLE_EQ(scavoImprevisto(dati, 3, decimo), 0.4);
    EXPECT_DOUBLE_EQ(scavoImprevisto(dati, 4, decimo), 0.25);
}

TEST(ScavoImprevisto, LowersTheWaterThatIsKeptAtTheBottomAndLeavesOther) {
    auto dati = test::muro()
                    .fase({.scavo = 4, .falda = 4})
                    .fase({.scavo = 4, .falda = 4.3})
                    .fase({.scavo = 4, .falda = 6})
                    .fase({.scavo = 4, .falda = 2})  // the pit is under water
                    .dati();
    for (int k = 1; k <= 4; ++k) {
        EXPECT_DOUBLE_EQ(scavaDiPiu(dati, k, decimo), 0.4);
        EXPECT_DOUBLE_EQ(dati.profFase[k], 4.4);
    }
    EXPECT_DOUBLE_EQ(dati.faldaFase[1], 4.4);
    EXPECT_DOUBLE_EQ(dati.faldaFase[2], 4.4);
    EXPECT_EQ(dati.faldaFase[3], 6);
    EXPECT_EQ(dati.faldaFase[4], 2);
}

}  // namespace
}  // namespace korven::factors
