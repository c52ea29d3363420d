#include "review/log_limit.hpp"

#include <gtest/gtest.h>

#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"

namespace korven::review {
namespace {

// Layers that end at these depths.
std::string rifiuto(double primo, double secondo) {
    auto dati = test::progettoSemplice();
    dati.profStrato[1] = primo;
    dati.profStrato[2] = secondo;
    return rifiutoStratigrafia(dati);
}

TEST(RifiutoStratigrafia, NamesTheLayerThatLiesFarthestFromTheGround) {
    const std::string perche =
        ": la colonna stratigrafica non è disegnata oltre i 500 m di altezza: correggere la "
        "profondità";
    EXPECT_EQ(rifiuto(8, 45000), "strato 2: Prof. [m] = 45000" + perche);
    EXPECT_EQ(rifiuto(45000, 20), "strato 1: Prof. [m] = 45000" + perche);
    EXPECT_EQ(rifiuto(-501, 20), "strato 1: Prof. [m] = -501" + perche) << "upward";
    EXPECT_EQ(rifiuto(-300, 400), "strato 2: Prof. [m] = 400" + perche) << "both together";
}

TEST(RifiutoStratigrafia, LetsALogOf500MetresBeDrawn) {
    EXPECT_EQ(rifiuto(8, 500), "");
    EXPECT_EQ(rifiuto(-100, 400), "");
    project::DatiProgetto vuoto = test::progettoVuoto();
    EXPECT_EQ(rifiutoStratigrafia(vuoto), "");
}

}  // namespace
}  // namespace korven::review
