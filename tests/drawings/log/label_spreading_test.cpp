#include "drawings/log/label_spreading.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace korven::drawings {
namespace {

using Posizioni = std::vector<double>;

void aspetta(const Posizioni& trovate, const Posizioni& attese) {
    ASSERT_EQ(trovate.size(), attese.size());
    for (std::size_t i = 0; i < attese.size(); ++i) EXPECT_NEAR(trovate[i], attese[i], 1e-12) << i;
}

TEST(SeparaEtichette, LeavesLabelsWithRoomWhereTheyAre) {
    aspetta(separaEtichette({18, 12, 3}, 0.24, 21, 1), {18, 12, 3});
    aspetta(separaEtichette({}, 0.24, 21, 1), {});
}

TEST(SeparaEtichette, MovesALabelBelowTheOneBefore) {
    aspetta(separaEtichette({16, 15.9, 5}, 0.24, 21, 1), {16, 15.76, 5});
    aspetta(separaEtichette({16, 15.9, 15.8}, 0.24, 21, 1), {16, 15.76, 15.52});
}

TEST(SeparaEtichette, KeepsTheFirstLabelHalfADistanceUnderTheUpperLimit) {
    aspetta(separaEtichette({20.95, 10}, 0.24, 21, 1), {20.88, 10});
}

TEST(SeparaEtichette, SetsTheLastLabelHalfADistanceAboveTheLowerLimit) {
    aspetta(separaEtichette({16, 1}, 0.24, 21, 1), {16, 1.12});
}

TEST(SeparaEtichette, PushesLabelsUpFromTheLowerLimit) {
    aspetta(separaEtichette({16, 1.2, 1}, 0.24, 21, 1), {16, 1.36, 1.12});
    aspetta(separaEtichette({16, 1.5, 1.2, 1}, 0.24, 21, 1), {16, 1.6, 1.36, 1.12});
}

TEST(SeparaEtichette, ALoneLabelKeepsToBothLimits) {
    aspetta(separaEtichette({1}, 0.24, 21, 1), {1.12});
    aspetta(separaEtichette({21}, 0.24, 21, 1), {20.88});
}

TEST(SeparaEtichette, TooManyLabelsLeaveAtTheTop) {
    aspetta(separaEtichette({1.3, 1.2, 1.1}, 0.24, 1.4, 1), {1.6, 1.36, 1.12});
}

TEST(SeparaEtichette, NoTwoLabelsAreEverCloserThanTheDistance) {
    std::mt19937 caso(240);
    std::uniform_real_distribution<double> y(1, 21);
    for (int prova = 0; prova < 300; ++prova) {
        Posizioni piedi(20);
        for (double& p : piedi) p = y(caso);
        std::sort(piedi.rbegin(), piedi.rend());
        const auto etichette = separaEtichette(piedi, 0.24, 21, piedi.back());
        for (std::size_t i = 1; i < etichette.size(); ++i)
            EXPECT_GE(etichette[i - 1] - etichette[i], 0.24 - 1e-9);
    }
}

}  // namespace
}  // namespace korven::drawings
