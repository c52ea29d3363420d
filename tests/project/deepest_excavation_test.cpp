#include "project/deepest_excavation.hpp"

#include <gtest/gtest.h>

namespace korven::project {
namespace {

DatiProgetto muro() {
    DatiProgetto dati;
    dati.lunghezzaParatia = 10;
    dati.nFasi = 3;
    dati.profFase[1] = 4;
    dati.profFase[2] = 9.99;
    dati.profFase[3] = 6;
    return dati;
}

TEST(ScavoMassimo, IsTheDeepestOfTheStagesThatThereAre) {
    DatiProgetto dati = muro();
    EXPECT_EQ(scavoMassimo(dati), 9.99);
    dati.nFasi = 1;
    EXPECT_EQ(scavoMassimo(dati), 4);
    dati.nFasi = 0;
    EXPECT_EQ(scavoMassimo(dati), 0);
}

TEST(PiedeScavato, IsOneThatAnExcavationReaches) {
    DatiProgetto dati = muro();
    EXPECT_FALSE(piedeScavato(dati));
    dati.profFase[2] = 10;
    EXPECT_TRUE(piedeScavato(dati)) << "just reached";
    EXPECT_FALSE(alPiede(dati, dati.profFase[3]));
    EXPECT_TRUE(alPiede(dati, dati.profFase[2]));
}

TEST(PiedeScavato, IsNoneOfAWallWithoutALength) {
    DatiProgetto dati = muro();
    dati.lunghezzaParatia = 0;
    EXPECT_FALSE(piedeScavato(dati));
}

}  // namespace
}  // namespace korven::project
