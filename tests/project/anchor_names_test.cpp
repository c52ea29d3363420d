#include "project/anchor_names.hpp"

#include <gtest/gtest.h>

namespace korven::project {
namespace {

TEST(NomeTirante, IsThatOfAStrutWhereCompressionIsTaken) {
    DatiProgetto dati;
    dati.nTiranti = 2;
    dati.tipoTirante[2] = 1;
    EXPECT_FALSE(puntone(dati, 1));
    EXPECT_TRUE(puntone(dati, 2));
    EXPECT_EQ(nomeTirante(dati, 1), "Tirante 1");
    EXPECT_EQ(nomeTirante(dati, 2), "Puntone 2");
    EXPECT_EQ(siglaTirante(dati, 1), "T1");
    EXPECT_EQ(siglaTirante(dati, 2), "P2");
}

}  // namespace
}  // namespace korven::project
