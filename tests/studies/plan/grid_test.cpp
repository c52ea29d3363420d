#include "studies/plan/grid.hpp"

#include <gtest/gtest.h>

#include <array>

namespace korven::studies {
namespace {

project::CampoNominato campo(const char* nome) { return *project::campoNominato(nome); }

std::vector<double> valori(double da, double a, double passo) {
    const Asse asse(campo("lunghezzaParatia"), da, a, passo);
    std::vector<double> tutti;
    for (std::uint64_t k = 0; k < asse.numero(); ++k) tutti.push_back(asse.valore(k));
    return tutti;
}

TEST(Asse, TakesItsEndWhereAStepLeadsToIt) {
    EXPECT_EQ(valori(8, 10, 0.5), (std::vector<double>{8, 8.5, 9, 9.5, 10}));
    EXPECT_EQ(valori(8, 9.9, 0.5), (std::vector<double>{8, 8.5, 9, 9.5}));
    EXPECT_EQ(valori(10, 9, -0.5), (std::vector<double>{10, 9.5, 9}));
    EXPECT_EQ(valori(8, 8, 1), (std::vector<double>{8}));
}

// 8 + 3 * 0.1 is 8.300000000000001 for a computer, and (9 - 8) / 0.1 may be below 10.
TEST(Asse, HasTheDecimalNumbersThatItsTextMeans) {
    EXPECT_EQ(valori(8, 8.5, 0.1), (std::vector<double>{8, 8.1, 8.2, 8.3, 8.4, 8.5}));
    EXPECT_EQ(valori(0.05, 0.35, 0.1), (std::vector<double>{0.05, 0.15, 0.25, 0.35}));
    EXPECT_EQ(valori(-0.3, 0, 0.1), (std::vector<double>{-0.3, -0.2, -0.1, 0}));
}

TEST(Asse, CountsStepsWithinABillionthOfOne) {
    EXPECT_EQ(Asse::quanti(0, 1, 0.1), 11);
    EXPECT_EQ(Asse::quanti(0, 1 - 1e-11, 0.1), 11);
    EXPECT_EQ(Asse::quanti(0, 1 - 1e-9, 0.1), 10);
    EXPECT_LT(Asse::quanti(0, 1, -0.1), 1);
}

TEST(Griglia, IsTheProductWithTheLastFieldFastest) {
    const auto griglia = std::get<Griglia>(Griglia::di({
        Asse(campo("lunghezzaParatia"), 8, 9, 1),
        Asse(campo("phiStrato[2]"), 30, 34, 2),
    }));
    EXPECT_EQ(griglia.numero(), 6U);
    EXPECT_EQ(project::nomeStabile(*griglia.campi()[1].campo, griglia.campi()[1].riga),
              "phiStrato[2]");
    const std::array<std::array<double, 2>, 6> attesi{
        {{8, 30}, {8, 32}, {8, 34}, {9, 30}, {9, 32}, {9, 34}}};
    for (std::uint64_t i = 0; i < 6; ++i) {
        std::array<double, 2> v{};
        EXPECT_TRUE(griglia.valori(i, v).empty());
        EXPECT_EQ(v, attesi[i]) << i;
    }
}

TEST(Griglia, RefusesAFieldTwice) {
    const auto letta =
        Griglia::di({Asse(campo("phiStrato[2]"), 30, 34, 2), Asse(campo("phiStrato[1]"), 30, 34, 2),
                     Asse(campo("phiStrato[2]"), 30, 34, 1)});
    const auto& difetto = std::get<DifettoPiano>(letta);
    EXPECT_EQ(difetto.motivo, MotivoPiano::campoRipetuto);
    EXPECT_EQ(difetto.testo, "phiStrato[2]");
}

TEST(Griglia, RefusesMoreVariantsThanNumbersCount) {
    const auto letta = Griglia::di(
        {Asse(campo("phiStrato[1]"), 0, 50, 1e-7), Asse(campo("phiStrato[2]"), 0, 50, 1e-7)});
    EXPECT_EQ(std::get<DifettoPiano>(letta).motivo, MotivoPiano::troppeVarianti);
}

}  // namespace
}  // namespace korven::studies
