#include "panels/anchor_forces.hpp"

#include <gtest/gtest.h>

#include "masks/editing.hpp"
#include "support/plain_masks.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"
#include "support/wall_files.hpp"

namespace korven::panels {
namespace {

using test::muro;

constexpr int segmenti = 60;

// 10 m of wall in sand: dug to 2 m, anchor 1 placed and stressed, dug to 5 m.
test::Muro ancorato() {
    return muro()
        .lungo(10)
        .tirante(1.5, 500, 8)
        .fase({.scavo = 2})
        .fase({.scavo = 2, .tiranti = 1})
        .fase({.scavo = 5, .tiranti = 1});
}

TEST(TiriTirante, AreThoseOfTheEquilibriumInKilonewtons) {
    const auto parete = live::calcola(ancorato().dati(), segmenti);
    ASSERT_TRUE(parete.sta());
    const auto tiri = tiriDelTirante(parete, 1);
    ASSERT_EQ(tiri.fasi.size(), 3U);
    EXPECT_FALSE(tiri.fasi[0].tiro);
    EXPECT_EQ(tiri.fasi[0].nota, "non in opera");
    for (const int k : {2, 3}) {
        const auto& qui = tiri.fasi[static_cast<std::size_t>(k) - 1];
        ASSERT_TRUE(qui.tiro);
        EXPECT_DOUBLE_EQ(*qui.tiro, 10 * parete.fase(k)->tiri[0]);
        EXPECT_EQ(qui.scavo, k == 2 ? 2 : 5);
    }
    EXPECT_EQ(tiri.perche, "");
}

TEST(TiriTirante, FollowThePrestressWithoutStiffness) {
    // A constant force: 8 t are 80 kN in every stage, and the first of equals is the largest.
    auto dati = ancorato().dati();
    dati.rigTirante[1] = 0;
    const auto tiri = tiriDelTirante(live::calcola(dati, segmenti), 1);
    ASSERT_EQ(tiri.fasi.size(), 3U);
    EXPECT_DOUBLE_EQ(tiri.fasi[1].tiro.value(), 80);
    EXPECT_DOUBLE_EQ(tiri.fasi[2].tiro.value(), 80);
    EXPECT_TRUE(tiri.fasi[1].massimo);
    EXPECT_EQ(tiri.fasi[1].nota, "massimo");
    EXPECT_FALSE(tiri.fasi[2].massimo);
}

TEST(TiriTirante, MarkNothingForAnAnchorThatIsNever) {
    for (const int tirante : {0, 2, 21}) {
        const auto tiri = tiriDelTirante(live::calcola(ancorato().dati(), segmenti), tirante);
        for (const auto& qui : tiri.fasi) {
            EXPECT_FALSE(qui.tiro);
            EXPECT_FALSE(qui.massimo);
            EXPECT_EQ(qui.nota, "non in opera");
        }
    }
}

TEST(TiriTirante, SayFromWhichStageOnTheWallDoesNotStand) {
    // Dug out to its toe the wall turns about its anchor.
    auto caduta = ancorato().fase({.scavo = 10, .tiranti = 1}).fase({.scavo = 10, .tiranti = 1});
    const auto parete = live::calcola(caduta.dati(), segmenti);
    ASSERT_EQ(parete.fasiInEquilibrio(), 3);
    const auto tiri = tiriDelTirante(parete, 1);
    EXPECT_TRUE(tiri.fasi[2].tiro);
    EXPECT_EQ(tiri.fasi[3].nota, "non in equilibrio");
    EXPECT_EQ(tiri.fasi[4].nota, "non calcolata");
    EXPECT_TRUE(tiri.perche.starts_with("la paratia è un meccanismo nella fase 4")) << tiri.perche;
}

TEST(TiriTirante, SayWhyNothingIsComputed) {
    const auto parete = live::calcola(ancorato().lungo(0).dati(), segmenti);
    ASSERT_TRUE(parete.fasi.empty());
    const auto tiri = tiriDelTirante(parete, 1);
    EXPECT_EQ(tiri.fasi.size(), 3U);
    EXPECT_EQ(tiri.fasi[0].nota, "non calcolata");
    EXPECT_EQ(tiri.perche, parete.rifiuto);
    EXPECT_NE(tiri.perche, "");
}

TEST(TiriDellaRiga, AreThoseOfTheAnchorThatTheRowWillBe) {
    const test::CartellaProvvisoria cartella;
    masks::Maschere maschere;
    maschere.leggiMaschere(test::maschereSemplici(cartella));
    const auto dati = test::progettoSemplice();
    masks::preparaMaschera(maschere, masks::NumeroMaschera::tiranti, dati, 0);
    auto testi = maschere.valoriTesto();
    live::ProgettoVivo vivo;
    const auto dellaRiga = [&](int riga) {
        return tiriDellaRiga(vivo, masks::ModelloGriglia(maschere.corrente(), testi), riga);
    };
    EXPECT_TRUE(dellaRiga(1).fasi.empty()) << "without a project";
    EXPECT_EQ(dellaRiga(1).perche, "");

    vivo.guarda(&dati);
    ASSERT_EQ(dellaRiga(1).fasi.size(), 2U);
    EXPECT_EQ(dellaRiga(1).fasi[1].tiro, tiriDelTirante(vivo.parete(), 1).fasi[1].tiro);
    EXPECT_TRUE(dellaRiga(1).fasi[1].tiro);
    EXPECT_TRUE(dellaRiga(20).fasi.empty());
    EXPECT_EQ(dellaRiga(20).perche, "la riga è vuota");

    testi[1] = "x";
    vivo.digita(maschere.corrente(), {masks::NumeroMaschera::tiranti, {}, testi});
    ASSERT_NE(vivo.impedimento(), "");
    EXPECT_TRUE(dellaRiga(1).fasi.empty());
    EXPECT_EQ(dellaRiga(1).perche,
              "i tiri tornano quando la tabella è completa: " + vivo.impedimento());
}

}  // namespace
}  // namespace korven::panels
