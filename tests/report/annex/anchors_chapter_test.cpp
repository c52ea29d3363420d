#include <gtest/gtest.h>

#include "project/shown_number.hpp"
#include "support/chapter_bench.hpp"
#include "support/sample_projects.hpp"

namespace korven::report {
namespace {

using test::contesto;
using test::numero;
using test::tavola;

Blocchi tiranti(const Contesto& c) { return test::blocchi(capitoloTiranti, c); }

TEST(CapitoloTiranti, HoldsTheForcesOfTheDossier) {
    const Contesto c = contesto(test::progettoSemplice());
    const auto b = tiranti(c);
    const dossier::StoriaTirante& t = c.fascicolo->tiranti[0];
    const auto elenco = tavola(b, "Tiranti");
    ASSERT_EQ(elenco.righe.size(), 1U);
    EXPECT_EQ(numero(elenco, 0, 1), 1.5);
    EXPECT_EQ(elenco.righe[0][3].testo, "5000");
    EXPECT_EQ(numero(elenco, 0, 4), 50);
    EXPECT_EQ(numero(elenco, 0, 5), 2);
    EXPECT_EQ(numero(elenco, 0, 6), 10 * t.allaPosa);
    EXPECT_EQ(numero(elenco, 0, 7), 10 * t.massimo);
    EXPECT_EQ(numero(elenco, 0, 8), 2);
    ASSERT_TRUE(t.relazione);
    EXPECT_EQ(elenco.righe[0][9].testo, project::numeroRelazione(10 * *t.relazione));
    const auto fasi = tavola(b, "Forza dei tiranti in ogni fase");
    ASSERT_EQ(fasi.righe.size(), 2U);
    EXPECT_EQ(fasi.righe[0][1].testo, "-");
    EXPECT_EQ(numero(fasi, 1, 1), 10 * *t.tiri[1]);
}

TEST(CapitoloTiranti, SaysThatThereAreNone) {
    auto dati = test::progettoSemplice();
    dati.nTiranti = 0;
    dati.tirantiFase[2] = 0;
    const auto b = tiranti(contesto(dati));
    ASSERT_EQ(b.size(), 1U);
    EXPECT_EQ(test::testo(b), "Il progetto non ha tiranti.\n");
}

TEST(CapitoloTiranti, TellsAnAnchorThatNoStagePutsInPlace) {
    auto dati = test::progettoSemplice();
    test::aggiungiTirante(dati, 3, 400);
    const auto elenco = tavola(tiranti(contesto(dati)), "Tiranti");
    ASSERT_EQ(elenco.righe.size(), 2U);
    for (std::size_t j = 5; j < 10; ++j) {
        EXPECT_EQ(elenco.righe[1][j].testo, "-") << j;
        EXPECT_EQ(elenco.righe[1][j].perche,
                  "In nessuna fase in equilibrio il tirante è in opera.");
    }
}

TEST(CapitoloTiranti, OfAWallThatFallsSaysWhyTheReportHasNoForce) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 11.9;
    const Contesto c = contesto(dati);
    ASSERT_FALSE(c.fascicolo->parete.sta());
    const auto b = tiranti(c);
    EXPECT_FALSE(tavola(b, "Tiranti").righe[0][9].perche.empty());
    EXPECT_EQ(tavola(b, "Forza dei tiranti in ogni fase").righe.size(), 1U);
    EXPECT_FALSE(tavola(b, "Forza dei tiranti in ogni fase").note.empty());
}

}  // namespace
}  // namespace korven::report
