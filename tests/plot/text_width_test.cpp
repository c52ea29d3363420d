#include "plot/text_width.hpp"

#include <gtest/gtest.h>

namespace korven::plot {
namespace {

// Font size for characters 1 cm high: a row of 5/3 cm over that of the face.
constexpr double corpo = 5.0 / 3.0 / 1.117;
constexpr double corpoMacchina = 5.0 / 3.0 / 1.133;

TEST(MetricaStimata, AddsTheWidthsOfASansSerifFace) {
    const MetricaStimata metrica;
    EXPECT_NEAR(metrica.larghezza("Arial", 1, "[m]"), (0.278 + 0.833 + 0.278) * corpo, 1e-12);
    EXPECT_NEAR(metrica.larghezza("", 0.2, "10"), 0.2 * 2 * 0.556 * corpo, 1e-12);
    EXPECT_NEAR(metrica.larghezza("Arial", 1, "~"), 0.584 * corpo, 1e-12);
    EXPECT_EQ(metrica.larghezza("Arial", 1, ""), 0);
}

TEST(MetricaStimata, GivesEveryCharacterOfATypewriterFaceTheSameWidth) {
    const MetricaStimata metrica;
    EXPECT_NEAR(metrica.larghezza("Courier New", 1, "iW|m"), 4 * 0.6 * corpoMacchina, 1e-12);
    EXPECT_NEAR(metrica.larghezza("Liberation Mono", 1, "iW"), 2 * 0.6 * corpoMacchina, 1e-12);
}

TEST(MetricaStimata, CountsCharactersNotBytes) {
    const MetricaStimata metrica;
    EXPECT_NEAR(metrica.larghezza("Courier New", 1, "città²"), 6 * 0.6 * corpoMacchina, 1e-12);
    EXPECT_NEAR(metrica.larghezza("Arial", 1, "à²ì"), (0.556 + 0.333 + 0.278) * corpo, 1e-12);
}

}  // namespace
}  // namespace korven::plot
