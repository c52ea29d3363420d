#include <gtest/gtest.h>

#include "support/chapter_bench.hpp"
#include "support/sample_projects.hpp"

namespace korven::report {
namespace {

using test::contesto;
using test::numero;
using test::tavola;

Blocchi inviluppi(const Contesto& c) { return test::blocchi(capitoloInviluppi, c); }

TEST(CapitoloInviluppi, HoldsTheEnvelopesOfTheDossier) {
    const Contesto c = contesto(test::progettoSemplice());
    const auto b = inviluppi(c);
    const live::Inviluppo& e = c.fascicolo->inviluppo;
    const auto p = tavola(b, "Nodi: Inviluppo delle fasi");
    ASSERT_EQ(p.righe.size(), 41U);
    ASSERT_EQ(p.colonne.size(), 10U);  // the layer stands with the stages
    for (std::size_t i = 0; i < 41; ++i) {
        EXPECT_EQ(numero(p, i, 2), 1000 * e.y.minimo[i]);
        EXPECT_EQ(numero(p, i, 3), 1000 * e.y.massimo[i]);
        EXPECT_EQ(numero(p, i, 4), 10 * e.momento.minimo[i]);
        EXPECT_EQ(numero(p, i, 5), 10 * e.momento.massimo[i]);
        EXPECT_EQ(numero(p, i, 6), 10 * e.taglio.minimo[i]);
        EXPECT_EQ(numero(p, i, 7), 10 * e.taglio.massimo[i]);
        EXPECT_EQ(p.righe[i].size(), 10U);
    }
    EXPECT_EQ(tavola(b, "Valori massimi e minimi").colonne.size(), 7U);
    EXPECT_EQ(test::tutti<document::Figura>(b).size(), 1U);
}

TEST(CapitoloInviluppi, ThinsTheNodes) {
    const auto p =
        tavola(inviluppi(contesto(test::progettoSemplice(), 15)), "Nodi: Inviluppo delle fasi");
    EXPECT_LE(p.righe.size(), 15U);
    EXPECT_FALSE(p.note.empty());
}

TEST(CapitoloInviluppi, SaysOfWhichStagesItIs) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    const auto b = inviluppi(contesto(dati));
    EXPECT_NE(test::testo(b).find("Solo le fasi fino alla 1"), std::string::npos);
    dati.profFase[1] = 11.9;
    const auto nessuna = inviluppi(contesto(dati));
    ASSERT_EQ(nessuna.size(), 1U);
    EXPECT_NE(test::testo(nessuna).find("mancano"), std::string::npos) << test::testo(nessuna);
}

}  // namespace
}  // namespace korven::report
