#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "safety/short_margin.hpp"
#include "support/result_tables.hpp"
#include "support/wall_files.hpp"
#include "tables/anchor_table.hpp"
#include "tables/margin_table.hpp"
#include "tables/node_table.hpp"
#include "tables/stage_table.hpp"

// A number that stands in several tables is the same in all of them, to its last shown digit, on
// every delivered example and every wall of the tests.

namespace korven::tables {
namespace {

using live::PareteViva;
using test::posto;

std::vector<std::string> tuttiIMuri() {
    std::vector<std::string> muri = test::muriIn(KORVEN_EXAMPLES);
    for (std::string& muro : test::muriIn(KORVEN_WALLS)) muri.push_back(std::move(muro));
    return muri;
}

// The cell of the column that is largest in size.
const Cella& maggiore(const Prospetto& p, const char* titolo) {
    const std::size_t c = posto(p, titolo);
    return (
        *std::max_element(p.righe.begin(), p.righe.end(), [c](const auto& una, const auto& altra) {
            return std::fabs(*una[c].numero) < std::fabs(*altra[c].numero);
        }))[c];
}

void confrontaFase(const PareteViva& parete, const safety::Margine& margine, int k) {
    const Prospetto nodi = prospettoNodi(parete, k), fasi = prospettoFasi(parete);
    const Prospetto statica = prospettoStatica(margine, parete.dati),
                    tiranti = prospettoTiranti(parete, &margine);
    const auto& fase = fasi.righe[static_cast<std::size_t>(k) - 1];
    // In size: of two nodes that are equal in size each table may take its own.
    const auto senzaSegno = [](const Cella& c) {
        return c.testo.starts_with('-') ? c.testo.substr(1) : c.testo;
    };
    EXPECT_EQ(senzaSegno(fase[3]), senzaSegno(maggiore(nodi, "Spostamento")));
    EXPECT_EQ(senzaSegno(fase[5]), senzaSegno(maggiore(nodi, "Momento")));
    // Of a wall with anchors on either side of a node.
    const bool dueLati = posto(nodi, "Taglio") == nodi.colonne.size();
    Cella T = maggiore(nodi, dueLati ? "Taglio sopra" : "Taglio");
    if (dueLati && std::fabs(*maggiore(nodi, "Taglio sotto").numero) > std::fabs(*T.numero))
        T = maggiore(nodi, "Taglio sotto");
    EXPECT_EQ(senzaSegno(fase[7]), senzaSegno(T));
    for (const auto& riga : statica.righe) {
        if (riga[0].numero != k) continue;
        if (riga[1].testo == "Momento [kN m/m]") {
            EXPECT_EQ(riga[2], fase[5]);
        }
        if (riga[1].testo == "Taglio [kN/m]") {
            EXPECT_EQ(riga[2], fase[7]);
        }
        for (std::size_t j = 0; j < tiranti.righe.size(); ++j)
            if (riga[1].testo == "tirante " + std::to_string(j + 1) + " [kN/m]") {
                EXPECT_EQ(riga[2], tiranti.righe[j][static_cast<std::size_t>(k) + 3]);
            }
    }
}

TEST(Prospetti, WriteNoNumberTwiceInTwoWays) {
    int fasi = 0;
    for (const std::string& muro : tuttiIMuri()) {
        SCOPED_TRACE(muro);
        const PareteViva parete = live::calcola(test::leggiMuro(muro));
        const auto breve = safety::margineBreve(parete.dati, parete.nSeg);
        ASSERT_TRUE(breve);
        for (int k = 1; k <= parete.fasiInEquilibrio(); ++k, ++fasi)
            confrontaFase(parete, breve->margine, k);
    }
    EXPECT_GE(fasi, 50);
}

}  // namespace
}  // namespace korven::tables
