#include "scene/palette.hpp"

#include <gtest/gtest.h>

namespace korven::scene {
namespace {

// The published ends of the scale, and two greys by hand: 0x77 has the luminance 0.1845, so
// 1.05 / (0.1845 + 0.05) = 4.48; 0x76 has 0.1812 and 4.54.
TEST(Contrasto, IsThatOfTheGuidelines) {
    EXPECT_NEAR(contrasto({0, 0, 0}, {255, 255, 255}), 21, 1e-9);
    EXPECT_EQ(contrasto({9, 99, 200}, {9, 99, 200}), 1);
    EXPECT_NEAR(contrasto({0x77, 0x77, 0x77}, {255, 255, 255}), 4.48, 0.005);
    EXPECT_NEAR(contrasto({255, 255, 255}, {0x76, 0x76, 0x76}), 4.54, 0.005);
}

TEST(Tavolozza, FollowsTheDesktop) {
    EXPECT_EQ(tavolozza({0, 0, 0}, {240, 240, 240}), Tavolozza::chiara);
    EXPECT_EQ(tavolozza({250, 250, 250}, {40, 40, 60}), Tavolozza::scura);
}

// Whatever a text may stand on: the sheet, the ground of every layer, the fields of the curves,
// open water.
TEST(Palette, KeepsEveryTextReadableOnEveryGround) {
    std::vector<Tinta> fondi{{Ruolo::sfondo}, {Ruolo::fondoAcqua}};
    for (int s = 0; s < numeroColoriStrato; ++s) fondi.push_back({Ruolo::fondoStrato, s});
    for (const Tavolozza t : {Tavolozza::chiara, Tavolozza::scura})
        for (const Ruolo testo : {Ruolo::testo, Ruolo::testoTenue, Ruolo::acqua, Ruolo::carico,
                                  Ruolo::tirante, Ruolo::fase, Ruolo::meccanismo, Ruolo::avviso})
            for (const Tinta& fondo : fondi)
                EXPECT_GE(contrasto(colore({testo}, t), colore(fondo, t)), 4.5)
                    << static_cast<int>(testo) << " on " << static_cast<int>(fondo.ruolo) << "/"
                    << fondo.strato << (t == Tavolozza::chiara ? " light" : " dark");
}

TEST(Palette, KeepsTheValuesOfACurveReadableOnItsField) {
    const std::pair<Ruolo, Ruolo> curve[] = {{Ruolo::curva, Ruolo::fondoCurva},
                                             {Ruolo::curvaMonte, Ruolo::fondoMonte},
                                             {Ruolo::curvaValle, Ruolo::fondoValle},
                                             {Ruolo::acqua, Ruolo::fondoAcqua}};
    for (const Tavolozza t : {Tavolozza::chiara, Tavolozza::scura})
        for (const auto& [linea, fondo] : curve)
            EXPECT_GE(contrasto(colore({linea}, t), colore({fondo}, t)), 4.5)
                << static_cast<int>(linea);
}

// The curves of the results and the domain of a section write on the sheet and on their fields.
TEST(Palette, KeepsTheTextsOfCurvesAndOfTheDomainReadable) {
    for (const Tavolozza t : {Tavolozza::chiara, Tavolozza::scura})
        for (const Ruolo testo :
             {Ruolo::testo, Ruolo::testoTenue, Ruolo::meccanismo, Ruolo::evidenza, Ruolo::avviso})
            for (const Ruolo fondo : {Ruolo::sfondo, Ruolo::fondoCurva})
                EXPECT_GE(contrasto(colore({testo}, t), colore({fondo}, t)), 4.5)
                    << static_cast<int>(testo) << " on " << static_cast<int>(fondo)
                    << (t == Tavolozza::chiara ? " light" : " dark");
}

TEST(Palette, TellsTheCurvesFromTheirGround) {
    for (const Tavolozza t : {Tavolozza::chiara, Tavolozza::scura})
        for (const Ruolo r : {Ruolo::terreno, Ruolo::bordoMuro, Ruolo::acqua, Ruolo::carico,
                              Ruolo::tirante, Ruolo::curva, Ruolo::curvaMonte, Ruolo::curvaValle,
                              Ruolo::meccanismo, Ruolo::asse, Ruolo::evidenza, Ruolo::primaSerie,
                              Ruolo::secondaSerie, Ruolo::terzaSerie, Ruolo::quartaSerie})
            EXPECT_GE(contrasto(colore({r}, t), colore({Ruolo::sfondo}, t)), 3)
                << static_cast<int>(r);
}

}  // namespace
}  // namespace korven::scene
