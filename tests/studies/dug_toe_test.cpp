#include "studies/dug_toe.hpp"

#include <gtest/gtest.h>

#include <array>

#include "studies/small_study.hpp"

namespace korven::studies {
namespace {

// Four stages, the last 10 m deep.
project::DatiProgetto muro() { return test::esempioStudio("diaframma_due_ordini"); }

TEST(PiedeScavato, IsThatOfTheLengthAndTheStagesOfARow) {
    const std::vector campi{test::campoDi("lunghezzaParatia"), test::campoDi("phiStrato[1]"),
                            test::campoDi("profFase[4]")};
    PiedeScavato scavato(muro(), campi);
    EXPECT_FALSE(scavato(std::array{10.01, 30.0, 10.0}));
    EXPECT_TRUE(scavato(std::array{10.01, 30.0, 10.5}));
    EXPECT_TRUE(scavato(std::array{10.0, 30.0, 10.0}));
    EXPECT_FALSE(scavato(std::array{10.01, 30.0, 10.0})) << "each row by itself";
}

TEST(PiedeScavato, LooksAtTheStagesThatARowHas) {
    const std::vector campi{test::campoDi("lunghezzaParatia"), test::campoDi("nFasi")};
    PiedeScavato scavato(muro(), campi);
    EXPECT_TRUE(scavato(std::array{9.5, 4.0}));
    EXPECT_FALSE(scavato(std::array{9.5, 1.0}));
    EXPECT_TRUE(scavato(std::array{9.5, 4.0})) << "the stages are there again";
}

TEST(PiedeScavato, OfOtherFieldsIsThatOfTheProject) {
    const std::vector campi{test::campoDi("phiStrato[1]")};
    auto dati = muro();
    EXPECT_FALSE(PiedeScavato(dati, campi)(std::array{30.0}));
    dati.lunghezzaParatia = 9;
    EXPECT_TRUE(PiedeScavato(dati, campi)(std::array{30.0}));
}

}  // namespace
}  // namespace korven::studies
