#include "drawings/diagram_scale.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

namespace korven::drawings {
namespace {

TEST(PassoScala, IsTheFirstOfTheTableWhoseLimitTheValueStaysBelow) {
    const std::pair<double, double> righe[] = {
        {-7, 0.001}, {0, 0.001},  {0.0999, 0.001}, {0.1, 0.01},   {0.999, 0.01},
        {1, 0.1},    {9.99, 0.1}, {10, 1},         {99.9, 1},     {100, 10},
        {999, 10},   {1000, 100}, {9999, 100},     {10000, 1000}, {99999, 1000},
    };
    for (const auto& [valore, passo] : righe) EXPECT_EQ(passoScala(valore), passo) << valore;
}

TEST(PassoScala, GoesOnBeyondTheTable) {
    EXPECT_EQ(passoScala(100000), 10000);
    EXPECT_EQ(passoScala(3.5e7), 1e6);
}

TEST(AsseValori, EndsAtTheFirstWholeStepNotBelowTheData) {
    const AsseValori asse = asseValori(34.2);
    EXPECT_EQ(asse.vMax, 35);
    EXPECT_EQ(asse.passo, 1);
    EXPECT_EQ(asseValori(35).vMax, 35);
}

TEST(AsseValori, TakesAWiderStepWhenItsEndNeedsOne) {
    const AsseValori asse = asseValori(9.95);
    EXPECT_EQ(asse.vMax, 10);
    EXPECT_EQ(asse.passo, 1);
}

TEST(AsseValori, OfDataAtZeroHasTenSteps) {
    const AsseValori asse = asseValori(0);
    EXPECT_EQ(asse.vMax, 0.01);
    EXPECT_EQ(asse.passo, 0.001);
}

TEST(AsseValori, OfANegativeValueEndsBelowZeroRoundedTowardsIt) {
    const AsseValori asse = asseValori(-2.3456);
    EXPECT_DOUBLE_EQ(asse.vMax, -2.345);
    EXPECT_EQ(asse.passo, 0.001);
    EXPECT_EQ(asseValori(-0.0004).vMax, 0.01) << "rounded to nothing";
}

TEST(Tacche, IncludeBothEndsWhateverTheErrorsOfTheSums) {
    const auto tutte = tacche(0, 12.3, 0.1);
    ASSERT_EQ(tutte.size(), 124u);
    EXPECT_EQ(tutte.front().valore, 0);
    EXPECT_DOUBLE_EQ(tutte.back().valore, 12.3);
    EXPECT_EQ(tacche(0, 0.3, 0.1).size(), 4u);
    EXPECT_EQ(tacche(-35, 35, 1).size(), 71u);
}

TEST(Tacche, EndAtTheLastWholeStep) { EXPECT_EQ(tacche(0, 0.37, 0.1).size(), 4u); }

TEST(Tacche, AreMajorAtEachTenthStepAlsoBelowZero) {
    std::vector<double> maggiori;
    for (const Tacca& t : tacche(-35, 35, 1))
        if (t.maggiore) maggiori.push_back(t.valore);
    EXPECT_EQ(maggiori, (std::vector<double>{-30, -20, -10, 0, 10, 20, 30}));
}

TEST(Tacche, AreMajorWhereAStepOfATenthComesToAWholeNumber) {
    std::vector<long> maggiori;
    for (const Tacca& t : tacche(0, 3, 0.1))
        if (t.maggiore) maggiori.push_back(std::lround(t.valore * 10));
    EXPECT_EQ(maggiori, (std::vector<long>{0, 10, 20, 30}));
}

TEST(Tacche, AreNoneOnAnAxisWhoseEndsChangedPlaces) {
    EXPECT_TRUE(tacche(2.345, -2.345, 0.001).empty());
}

}  // namespace
}  // namespace korven::drawings
