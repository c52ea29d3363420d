#include <gtest/gtest.h>

#include <algorithm>

#include "scene/scene.hpp"
#include "support/sample_projects.hpp"
#include "support/scene_parts.hpp"

// The ground of a picture: layers down to where the analysis has them, and their names.

namespace korven::scene {
namespace {

using test::dice;
using test::figure;
using test::muro;
using test::scenaDi;
using test::testi;

TEST(Terreno, LeavesGroundBelowTheLastLayerWithoutColour) {
    const auto dati =
        muro().lungo(10).strato({.fondo = 10.2, .descrizione = "103C3 Sabbia"}).dati();
    const auto ignoto = figure<Area>(scenaDi(dati), Elemento::strato, 0);
    ASSERT_FALSE(ignoto.empty());
    EXPECT_EQ(ignoto[0].tinta, (Tinta{Ruolo::fondoStrato, 0}));
}

TEST(Terreno, GoesOnWithALastLayerThatEndsAboveTheToeAsTheAnalysisDoes) {
    const auto dati = muro().lungo(10).strato({.fondo = 8, .descrizione = "103C3 Sabbia"}).dati();
    const Scena s = scenaDi(dati);
    EXPECT_TRUE(figure<Area>(s, Elemento::strato, 0).empty());
    const auto sabbia = figure<Area>(s, Elemento::strato, 1);
    ASSERT_FALSE(sabbia.empty());
    EXPECT_GT(intorno(sabbia[0].punti).basso, s.y(10));
    EXPECT_TRUE(figure<Linea>(s, Elemento::strato, 1).empty()) << "a line would be a layer's foot";
}

TEST(Terreno, NamesALayerWithItsFirstWordWhereThatIsNoCode) {
    const auto dati = muro().strato({.fondo = 20, .descrizione = "limo argilloso"}).dati();
    EXPECT_TRUE(dice(testi(scenaDi(dati), Elemento::strato, 1), "limo argilloso"));
}

TEST(Terreno, NumbersAllLayersOfANarrowPictureWhereOneNameHasNoRoom) {
    auto dati = test::progettoSemplice();
    dati.descrStrato[1] = "101 Sabbia";
    dati.descrStrato[2] = "103 Ghiaia";
    const Opzioni stretta{.curva = false, .stretta = true, .parole = false};
    const auto nomi = [&] {
        return testi(scena(live::calcola(dati, 40), {2}, {260, 360}, MisuraStimata(), stretta),
                     Elemento::strato);
    };
    EXPECT_TRUE(dice(nomi(), "Sabbia"));
    EXPECT_TRUE(dice(nomi(), "Ghiaia"));
    dati.descrStrato[1] = "101 Sabbia limosa da fine a media ben addensata";
    EXPECT_TRUE(dice(nomi(), "strato 1"));
    EXPECT_TRUE(dice(nomi(), "strato 2"));
}

}  // namespace
}  // namespace korven::scene
