#include "panels/stage_words.hpp"

#include <gtest/gtest.h>

#include "support/wall_builder.hpp"

namespace korven::panels {
namespace {

using test::muro;

// Anchors without stiffness have the forces that are written.
TEST(ParoleFase, TellTheLargestValuesAndTheForceOfEachAnchor) {
    const auto parete = live::calcola(muro()
                                          .lungo(10)
                                          .tirante(1.5, 0, 3)
                                          .tirante(3, 0, 2.5)
                                          .fase({.scavo = 4, .tiranti = 2})
                                          .dati(),
                                      40);
    ASSERT_TRUE(parete.sta());
    const std::string testo = paroleFase(parete, 1);
    EXPECT_TRUE(testo.starts_with("fase 1 in equilibrio: spostamento massimo ")) << testo;
    EXPECT_NE(testo.find(" mm a "), std::string::npos) << testo;
    EXPECT_NE(testo.find(", momento "), std::string::npos) << testo;
    EXPECT_NE(testo.find(", taglio "), std::string::npos) << testo;
    EXPECT_TRUE(testo.ends_with("; tiri: T1 30.0 kN/m, T2 25.0 kN/m")) << testo;
}

TEST(ParoleFase, TellTheExtremesOfTheStageAndNotOfAll) {
    auto dati = muro().lungo(10).fase({.scavo = 1}).fase({.scavo = 4}).dati();
    const std::string prima = paroleFase(live::calcola(dati, 40), 1);
    dati.profFase[2] = 4.5;
    EXPECT_EQ(paroleFase(live::calcola(dati, 40), 1), prima);
}

TEST(ParoleFase, TellWhichStageDoesNotStandAndWhichAreNotComputed) {
    const auto parete = live::calcola(
        muro().lungo(10).fase({.scavo = 1}).fase({.scavo = 9.5}).fase({.scavo = 9.5}).dati(), 40);
    ASSERT_EQ(parete.fasiInEquilibrio(), 1);
    const std::string cade = paroleFase(parete, 2);
    EXPECT_TRUE(cade.starts_with("la paratia è un meccanismo nella fase 2")) << cade;
    EXPECT_EQ(paroleFase(parete, 3), "la fase 3 non è calcolata: " + cade);
}

TEST(ParoleFase, TellWhyNothingIsComputed) {
    const auto parete = live::calcola(muro().lungo(0).dati(), 40);
    EXPECT_EQ(paroleFase(parete, 1), parete.rifiuto);
    EXPECT_NE(parete.rifiuto, "");
}

}  // namespace
}  // namespace korven::panels
