#include "tables/curves.hpp"

#include <gtest/gtest.h>

#include "support/result_tables.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"
#include "tables/node_table.hpp"

namespace korven::tables {
namespace {

using live::PareteViva;

TEST(Curve, ReadTheNumbersOfTheTableOfNodes) {
    const PareteViva parete = live::calcola(test::progettoSemplice(), 24);
    const CurveMostrate c = curve(parete, 2);
    const Prospetto p = prospettoNodi(parete, 2);
    ASSERT_EQ(c.z.size(), 25u);
    for (std::size_t i = 0; i < 25; ++i) {
        EXPECT_EQ(c.z[i], p.righe[i][1].numero);
        EXPECT_EQ(valore(c.curve[0], i), p.righe[i][test::posto(p, "Pressione netta")].testo);
        EXPECT_EQ(valore(c.curve[1], i), p.righe[i][2].testo);
        EXPECT_EQ(valore(c.curve[2], i), p.righe[i][3].testo);
        if (i != 3) {
            EXPECT_EQ(valore(c.curve[3], i), p.righe[i][4].testo);
        }
    }
    // Node 4 has the anchor: above and below it.
    EXPECT_EQ(valore(c.curve[3], 3), p.righe[3][4].testo + " / " + p.righe[3][5].testo);
    EXPECT_TRUE(conSalto(c.curve[3], 3));
    EXPECT_FALSE(conSalto(c.curve[3], 4));
    EXPECT_TRUE(lettura(c, 3).ends_with(" kN/m (sopra / sotto il tirante)")) << lettura(c, 3);
    EXPECT_EQ(lettura(c, 4), "z 2.00 m: Pressione netta " + valore(c.curve[0], 4) +
                                 " kN/m²; Spostamento " + valore(c.curve[1], 4) + " mm; Momento " +
                                 valore(c.curve[2], 4) + " kN m/m; Taglio " +
                                 valore(c.curve[3], 4) + " kN/m");
}

TEST(Curve, OfTheEnvelopeReadBothEnds) {
    const PareteViva parete = live::calcola(test::progettoSemplice(), 24);
    const CurveMostrate c = curve(parete, 0);
    const Prospetto p = prospettoInviluppo(parete);
    EXPECT_EQ(valore(c.curve[2], 12), p.righe[12][4].testo + " / " + p.righe[12][5].testo);
    EXPECT_EQ(c.titolo, "Inviluppo delle fasi");
}

TEST(Curve, HaveAxesOnRoundNumbersAroundAllValues) {
    const CurveMostrate c = curve(live::calcola(test::progettoSemplice(), 24), 0);
    for (const CurvaMostrata& una : c.curve) {
        EXPECT_GT(una.passo, 0);
        EXPECT_LE(una.da, 0);
        EXPECT_GE(una.a, 0);
        EXPECT_LE((una.a - una.da) / una.passo, 7);
        for (const double v : una.massimo) EXPECT_LE(project::mostrato(*una.unita, v), una.a);
        for (const double v : una.minimo) EXPECT_GE(project::mostrato(*una.unita, v), una.da);
    }
}

TEST(Curve, OfAStageThatFallsAreEmptyAndSayWhy) {
    const PareteViva parete =
        live::calcola(test::leggiMuro(std::string(KORVEN_WALLS) + "/meccanismo.kvd"));
    const CurveMostrate c = curve(parete, 1);
    EXPECT_TRUE(c.z.empty());
    EXPECT_EQ(c.perche, perche(parete, 1));
    EXPECT_GT(c.curve[0].a, c.curve[0].da);
    EXPECT_EQ(nodoVicino(c, 3), 0u);
}

TEST(NodoVicino, IsTheNearestOne) {
    const CurveMostrate c = curve(live::calcola(test::progettoSemplice(), 24), 1);
    EXPECT_EQ(nodoVicino(c, -5), 0u);
    EXPECT_EQ(nodoVicino(c, 1.2), 2u);
    EXPECT_EQ(nodoVicino(c, 1.3), 3u);
    EXPECT_EQ(nodoVicino(c, 99), 24u);
}

}  // namespace
}  // namespace korven::tables
