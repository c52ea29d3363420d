#include <gtest/gtest.h>

#include "project/codes.hpp"
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
    EXPECT_EQ(elenco.righe[0][0].testo, "Tirante 1");
    EXPECT_EQ(numero(elenco, 0, 1), 1.5);
    EXPECT_EQ(numero(elenco, 0, 2), *t.profonditaNodo);
    EXPECT_EQ(elenco.righe[0][4].testo, "5000");
    EXPECT_EQ(numero(elenco, 0, 5), 50);
    EXPECT_EQ(numero(elenco, 0, 6), 2);
    EXPECT_EQ(numero(elenco, 0, 7), 1000 * *t.spostamentoPosa);
    const auto forze = tavola(b, "Forze maggiori");
    EXPECT_EQ(numero(forze, 0, 1), 10 * t.allaPosa);
    EXPECT_EQ(numero(forze, 0, 2), 10 * t.massimo);
    EXPECT_EQ(numero(forze, 0, 3), 2);
    ASSERT_TRUE(t.relazione);
    EXPECT_EQ(forze.righe[0][4].testo, project::numeroRelazione(10 * *t.relazione));
    const auto fasi = tavola(b, "Forza dei tiranti in ogni fase");
    ASSERT_EQ(fasi.righe.size(), 2U);
    EXPECT_EQ(fasi.righe[0][1].testo, "-");
    EXPECT_EQ(numero(fasi, 1, 1), 10 * *t.tiri[1]);
}

// A force of the report that is another number has its reason below the table.
TEST(CapitoloTiranti, SaysWhyTheReportHasAnotherForce) {
    const Contesto c = contesto(test::progettoSemplice());
    dossier::Fascicolo f = *c.fascicolo;
    const auto ultima = [&] {
        return tavola(tiranti({std::make_shared<const dossier::Fascicolo>(f), {}}),
                      "Forze maggiori")
            .note.back();
    };
    EXPECT_TRUE(ultima().starts_with("Relazione: forza")) << ultima();
    for (auto& d : f.doppi)
        if (d.cosa == dossier::Doppio::tiro) d.perche = "il file arrotonda";
    EXPECT_EQ(ultima(), "Relazione, Tirante 1: il file arrotonda.");
}

TEST(CapitoloTiranti, CallsAStrutAStrutWhichHasNoInclination) {
    auto dati = test::progettoSemplice();
    dati.tipoTirante[1] = project::valore(project::TipoTirante::trazioneCompressione);
    const auto b = tiranti(contesto(dati));
    EXPECT_EQ(tavola(b, "Puntoni").righe[0][0].testo, "Puntone 1");
    EXPECT_EQ(tavola(b, "Forza dei puntoni in ogni fase").colonne[1].titolo, "Puntone 1");
    EXPECT_EQ(test::testo(b).find("cos α"), std::string::npos);
    EXPECT_NE(test::testo(b).find("N = T i"), std::string::npos);
    test::aggiungiTirante(dati, 3, 400);
    const auto insieme = tiranti(contesto(dati));
    EXPECT_EQ(tavola(insieme, "Tiranti e puntoni").righe[1][0].testo, "Tirante 2");
    EXPECT_NE(test::testo(insieme).find("cos α"), std::string::npos);
}

TEST(CapitoloTiranti, SaysThatThereAreNone) {
    auto dati = test::progettoSemplice();
    dati.nTiranti = 0;
    dati.tirantiFase[2] = 0;
    const auto b = tiranti(contesto(dati));
    ASSERT_EQ(b.size(), 1U);
    EXPECT_EQ(test::testo(b), "Il progetto non ha né tiranti né puntoni.\n");
}

TEST(CapitoloTiranti, TellsAnAnchorThatNoStagePutsInPlace) {
    auto dati = test::progettoSemplice();
    test::aggiungiTirante(dati, 3, 400);
    const auto elenco = tavola(tiranti(contesto(dati)), "Tiranti");
    ASSERT_EQ(elenco.righe.size(), 2U);
    const auto forze = tavola(tiranti(contesto(dati)), "Forze maggiori");
    for (const auto& cella : {elenco.righe[1][6], elenco.righe[1][7], forze.righe[1][1],
                              forze.righe[1][2], forze.righe[1][3], forze.righe[1][4]}) {
        EXPECT_EQ(cella.testo, "-");
        EXPECT_EQ(cella.perche, "Non è in opera in nessuna fase in equilibrio.");
    }
}

TEST(CapitoloTiranti, OfAWallThatFallsSaysWhyTheReportHasNoForce) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 11.9;
    const Contesto c = contesto(dati);
    ASSERT_FALSE(c.fascicolo->parete.sta());
    const auto b = tiranti(c);
    EXPECT_FALSE(tavola(b, "Forze maggiori").righe[0][4].perche.empty());
    EXPECT_EQ(tavola(b, "Forza dei tiranti in ogni fase").righe.size(), 1U);
    EXPECT_FALSE(tavola(b, "Forza dei tiranti in ogni fase").note.empty());
}

}  // namespace
}  // namespace korven::report
