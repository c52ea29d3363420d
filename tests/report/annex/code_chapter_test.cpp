#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include "factors/words.hpp"
#include "support/chapter_bench.hpp"
#include "support/wall_files.hpp"
#include "tables/combination_tables.hpp"

namespace korven::report {
namespace {

// Of two combinations, as they are; the second divides the strength of the ground.
factors::NormaChiesta norma(double divisore) {
    factors::Norma n{"prova", "Prova 1", "prova.txt", {}};
    for (const double attrito : {1.0, divisore}) {
        factors::Combinazione c{.nome = "C" + std::to_string(n.combinazioni.size() + 1),
                                .fonte = "una fonte",
                                .fattori = {.attrito = attrito, .coesione = attrito},
                                .fonti = {}};
        c.fonti.resize(factors::vociFattori().size());
        c.fonti[0] = "tab. 1";
        n.combinazioni.push_back(c);
    }
    return {n, {.monte = factors::Natura::permanente}};
}

Contesto contesto(const std::string& muro, double divisore) {
    const auto dati = test::leggiMuro(muro);
    class InSilenzio : public analysis::OsservatoreCorsa {
    } osservatore;
    return {
        std::make_shared<const dossier::Fascicolo>(dossier::fascicolo({.scritti = dati,
                                                                       .usati = dati,
                                                                       .nSeg = 40,
                                                                       .identita = {},
                                                                       .sulProgetto = {},
                                                                       .norma = norma(divisore)},
                                                                      osservatore)),
        {}};
}

const std::string dueOrdini = KORVEN_EXAMPLES "/diaframma_due_ordini.kvd";

std::vector<std::string> capitoli(const dossier::Fascicolo& fascicolo) {
    std::vector<std::string> nomi;
    for (const auto& titolo : test::tutti<document::Titolo>(allegato(fascicolo).blocchi))
        if (titolo.livello == 1) nomi.push_back(titolo.testo);
    return nomi;
}

// The same tables as the command's, of the same numbers.
TEST(CapitoloNorma, TellsWhatTheCombinationsGive) {
    const Contesto c = contesto(dueOrdini, 1.05);
    const auto b = test::blocchi(capitoloNorma, c);
    const factors::Combinazioni& tutte = *c.fascicolo->norma;
    const auto diretto =
        factors::combinazioni(c.fascicolo->parete.dati, 40, norma(1.05).norma, tutte.natura);
    EXPECT_EQ(tutte.natura.monte, factors::Natura::permanente);
    EXPECT_EQ(tables::prospettoEffetti(tutte).righe, tables::prospettoEffetti(diretto).righe);
    const auto tavole = test::tutti<document::Tavola>(b);
    ASSERT_EQ(tavole.size(), 6U);  // factors, effects, checks, anchors, two times the sources
    EXPECT_EQ(tavole[0].prospetto.righe, tables::prospettoFattori(diretto).righe);
    EXPECT_EQ(tavole[1].prospetto.righe, tables::prospettoEffetti(diretto).righe);
    EXPECT_EQ(tavole[2].prospetto.righe, tables::prospettoVerifiche(diretto).righe);
    EXPECT_EQ(tavole[3].prospetto.righe,
              tables::prospettoTiri(diretto, c.fascicolo->parete.dati).righe);
    EXPECT_EQ(tavole[5].prospetto.titolo, "C2: una fonte");
    EXPECT_EQ(tavole[5].prospetto.righe.at(0).at(2).testo, "tab. 1");
    const std::string testo = test::testo(b);
    EXPECT_NE(testo.find(factors::verdetto(diretto)), std::string::npos);
    EXPECT_NE(testo.find("Sovraccarico a monte: permanente"), std::string::npos) << testo;
    EXPECT_NE(testo.find("prova.txt"), std::string::npos);
}

TEST(CapitoloNorma, IsThereWhereACodeWasAskedFor) {
    const auto con = capitoli(*contesto(dueOrdini, 1.05).fascicolo);
    EXPECT_EQ(std::ranges::count(con, "10. Combinazioni della norma Prova 1"), 1);
    EXPECT_EQ(con.back(), "12. Come ripetere il documento");
    const auto senza = capitoli(*test::contesto(test::leggiMuro(dueOrdini)).fascicolo);
    EXPECT_EQ(con.size(), senza.size() + 1);
}

TEST(CapitoloNorma, NamesACombinationThatDoesNotStandHereAndOnTheCover) {
    const Contesto c = contesto(KORVEN_EXAMPLES "/palancola_mensola.kvd", 5);
    const std::string testo = test::testo(test::blocchi(capitoloNorma, c));
    EXPECT_NE(testo.find("Combinazioni senza equilibrio: C2."), std::string::npos) << testo;
    EXPECT_NE(testo.find("C2: "), std::string::npos);
    const auto verdetti = test::tavola(test::blocchi(capitoloCopertina, c), "Verdetti");
    const auto riga = std::ranges::find(verdetti.righe, "Combinazioni della norma Prova 1",
                                        [](const auto& r) { return r[0].testo; });
    ASSERT_NE(riga, verdetti.righe.end());
    EXPECT_EQ((*riga)[1].testo, "NON verificate");
    EXPECT_EQ((*riga)[2].testo, factors::verdetto(*c.fascicolo->norma));
}

// A run would refuse it: there is nothing to be told under any combination.
TEST(CapitoloNorma, IsNotThereForAWallThatARunRefuses) {
    auto dati = test::leggiMuro(dueOrdini);
    dati.nFasi = 0;
    class InSilenzio : public analysis::OsservatoreCorsa {
    } osservatore;
    const auto f = dossier::fascicolo({.scritti = dati,
                                       .usati = dati,
                                       .nSeg = 40,
                                       .identita = {},
                                       .sulProgetto = {},
                                       .norma = norma(1)},
                                      osservatore);
    EXPECT_FALSE(f.norma);
    for (const auto& nome : capitoli(f)) EXPECT_EQ(nome.find("Combinazioni"), std::string::npos);
}

}  // namespace
}  // namespace korven::report
