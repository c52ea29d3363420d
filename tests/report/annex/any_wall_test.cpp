// The chapters of numbers take whatever a project may hold.

#include <gtest/gtest.h>

#include <limits>

#include "support/chapter_bench.hpp"
#include "support/random_walls.hpp"
#include "support/restless_wall.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::report {
namespace {

using project::DatiProgetto;

// Every table has a cell for each column, every block says something.
void verifica(const DatiProgetto& dati, const std::string& di) {
    const Contesto c = test::contesto(dati, 2);
    for (const auto capitolo : {capitoloTerreno, capitoloNodiTerreno, capitoloFasi, capitoloTiranti,
                                capitoloInviluppi, capitoloSezione, capitoloMargine}) {
        const Blocchi b = test::blocchi(capitolo, c);
        EXPECT_FALSE(b.empty()) << di;
        for (const auto& t : test::tutti<document::Tavola>(b)) {
            EXPECT_FALSE(t.prospetto.righe.empty()) << di << ": " << t.prospetto.titolo;
            for (const auto& riga : t.prospetto.righe)
                EXPECT_EQ(riga.size(), t.prospetto.colonne.size()) << di << t.prospetto.titolo;
        }
        for (const auto& p : test::tutti<document::Paragrafo>(b)) EXPECT_NE(p.testo, "") << di;
    }
}

TEST(CapitoliDiNumeri, TakeAnyWall) {
    verifica(test::progettoVuoto(), "empty");
    verifica(test::muroNudo(), "in the air");
    verifica(test::muroElastico(300), "elastic");
    verifica(test::progettoSenzaPace(), "restless");
    test::MuriCasuali muri(77);
    for (int i = 0; i < 10; ++i) verifica(muri.prossimo(), "random " + std::to_string(i));
}

TEST(CapitoliDiNumeri, TakeFullTables) {
    auto dati = test::muro().lungo(30).rigido(50000).dati();
    dati.nStrati = 0;
    for (int j = 1; j <= project::massimoStrati; ++j)
        test::aggiungiStrato(dati, {.fondo = 0.5 * j, .descrizione = "1A Sabbia|fine"});
    dati.nFasi = 0;
    for (int j = 1; j <= project::massimoTiranti; ++j) {
        test::aggiungiTirante(dati, 0.5 * j, 500, 3);
        test::aggiungiFase(dati, {.scavo = 0.5 * j, .tiranti = 1.0 * j});
    }
    dati.sezione = structure::paliArmati();
    verifica(dati, "full");
}

TEST(CapitoliDiNumeri, TakeEachSection) {
    for (const auto& sezione : {structure::diaframmaSimmetrico(), structure::paliTubolari(),
                                structure::palancola(), structure::paliArmati()})
        for (const double N : {-3000.0, 0.0, 3000.0}) {
            auto dati = test::progettoSemplice();
            dati.sezione = sezione;
            dati.sforzoNormale = N;
            verifica(dati, "section under " + std::to_string(N));
        }
}

TEST(CapitoliDiNumeri, TakeNumbersBeyondAllUse) {
    for (const double troppo : {1e300, -1e300, std::numeric_limits<double>::infinity()}) {
        auto dati = test::progettoSemplice();
        dati.forzaTesta = troppo;
        verifica(dati, "force");
        dati = test::progettoSemplice();
        dati.sezione = structure::diaframmaSimmetrico();
        dati.sforzoNormale = troppo;
        verifica(dati, "axial force");
    }
}

}  // namespace
}  // namespace korven::report
