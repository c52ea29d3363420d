#include "drawings/annex/panel_scale.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace korven::drawings {
namespace {

DatiPannello pannello(std::vector<double> valori) {
    DatiPannello dati;
    dati.unita = project::unita::forzaAlMetro;
    dati.curve.emplace_back().valori = std::move(valori);
    return dati;
}

TEST(ScalaPannello, HoldsAllShownValuesAndNothingWithAirAtTheirEnds) {
    const ScalaPannello s(pannello({2, 10}), 50, 150);  // 20 to 100 kN/m
    EXPECT_EQ(s.minimo, 0);
    EXPECT_DOUBLE_EQ(s.massimo, 105);
    EXPECT_EQ(s.x(0), 50);
    EXPECT_DOUBLE_EQ(s.x(105), 150);
    const ScalaPannello nulla(pannello({0, 0}), 0, 100);
    EXPECT_LT(nulla.minimo, nulla.massimo);
}

TEST(NumeriAscisse, StandClearOfEachOtherWithinThePanel) {
    const scene::MisuraStimata misura;
    for (const double grande : {0.013, 1.0, 47.0, 99999.0})
        for (const double larga : {20.0, 60.0, 200.0}) {
            const ScalaPannello s(pannello({-grande, 0.4 * grande}), 0, larga);
            const auto numeri = numeriAscisse(s, misura);
            EXPECT_FALSE(numeri.empty());
            for (std::size_t i = 0; i < numeri.size(); ++i)
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_GT(std::fabs(numeri[i].x - numeri[j].x),
                              numeri[i].mezza + numeri[j].mezza)
                        << grande << ' ' << larga;
        }
}

}  // namespace
}  // namespace korven::drawings
