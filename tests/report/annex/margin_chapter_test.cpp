#include <gtest/gtest.h>

#include <algorithm>

#include "base/code_page.hpp"
#include "report/annex/twin_words.hpp"
#include "safety/mesh_words.hpp"
#include "support/chapter_bench.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"
#include "tables/margin_table.hpp"

namespace korven::report {
namespace {

using test::contesto;
using test::testo;

Blocchi margine(const Contesto& c) { return test::blocchi(capitoloMargine, c); }

TEST(CapitoloMargine, HoldsTheMarginOfTheDossier) {
    const Contesto c = contesto(test::progettoSemplice());
    const auto b = margine(c);
    const auto tavole = test::tutti<document::Tavola>(b);
    ASSERT_EQ(tavole.size(), 3U);
    const safety::Margine& m = *c.fascicolo->margine;
    EXPECT_EQ(tavole[0].prospetto.righe, tables::prospettoMargine(m).righe);
    EXPECT_EQ(test::numero(tavole[0].prospetto, 1, 2), *m.fasi[1].riduzione.F);
    const safety::ErroreGrandezza& M = m.maglia->momentoPositivo;
    EXPECT_EQ(test::numero(tavole[1].prospetto, 0, 1), 10 * M.valore);
    EXPECT_EQ(test::numero(tavole[1].prospetto, 0, 2), 10 * M.doppia);
    EXPECT_EQ(test::numero(tavole[1].prospetto, 0, 3), 10 * M.fine);
    EXPECT_NEAR(test::numero(tavole[1].prospetto, 0, 4), 100 * *M.quota, 1e-9);
    const tables::Prospetto& doppi = tavole[2].prospetto;
    std::size_t riga = 0;
    for (const dossier::NumeroDoppio& d : c.fascicolo->doppi) {
        if (d.equilibrio == 0 && d.relazione == 0) continue;
        EXPECT_EQ(test::numero(doppi, riga, 2), 10 * d.equilibrio);
        EXPECT_EQ(test::numero(doppi, riga, 4), 10 * d.relazione);
        EXPECT_EQ(doppi.righe[riga][7].numero.has_value(), d.diverso());
        ++riga;
    }
    EXPECT_EQ(doppi.righe.size(), riga);
    EXPECT_NE(testo(b).find(tables::verdetto(m)), std::string::npos);
    for (const auto& frase : tables::frasi(m)) EXPECT_NE(testo(b).find(frase), std::string::npos);
}

TEST(ProspettoDoppi, HasADifferenceOnlyOfValuesOfOnePlaceAndOneSign) {
    dossier::Fascicolo f = *contesto(test::progettoSemplice()).fascicolo;
    const dossier::NumeroDoppio d{.cosa = dossier::Doppio::taglio,
                                  .fase = 1,
                                  .equilibrio = 10,
                                  .zEquilibrio = 2,
                                  .relazione = 11.2,
                                  .zRelazione = 2,
                                  .perche = "molle"};
    f.doppi = {d, d, d};
    f.doppi[1].relazione = -11.2;
    f.doppi[2].zRelazione = 2.5;
    const tables::Prospetto p = prospettoDoppi(f);
    ASSERT_EQ(p.righe.size(), 3U);
    EXPECT_EQ(p.righe[0][6].testo, "12.00");
    EXPECT_EQ(p.righe[1][6].testo, tables::nessuno);
    EXPECT_EQ(p.righe[2][6].testo, tables::nessuno);
    EXPECT_EQ(p.note.back().find("Differenza: relazione meno equilibrio"), 0U);
}

// Whose the limits are: the smaller one a code's, the other this program's own.
TEST(CapitoloMargine, SaysWhoseTheLimitsOfTheFactorAre) {
    const std::string detto = testo(margine(contesto(test::progettoSemplice())));
    EXPECT_NE(
        detto.find("Sotto 1.25 il programma classifica F «pericolo»: è γφ' = γc' dell'insieme M2"),
        std::string::npos);
    EXPECT_NE(
        detto.find("Sotto 1.50 lo classifica «da vedere»: è un consiglio di questo programma"),
        std::string::npos);
}

// A row whose three meshes give no order is named with the reason.
TEST(CapitoloMargine, NamesTheRowWithoutAnOrder) {
    const Contesto c = contesto(test::progettoSemplice());
    const auto p = test::tutti<document::Tavola>(margine(c))[1].prospetto;
    std::size_t senza = 0, nomi = 0;
    for (const auto& riga : p.righe)
        if (!riga[5].numero) {
            const std::string nome =
                base::conMinuscola(riga[0].testo.substr(0, riga[0].testo.find(" [")));
            EXPECT_TRUE(std::any_of(p.note.begin(), p.note.end(), [&](const std::string& nota) {
                return base::conMinuscola(nota).substr(0, nota.find(':')).find(nome) !=
                       std::string::npos;
            })) << nome;
            ++senza;
        }
    for (const std::string& nota : p.note)
        nomi += 1 + static_cast<std::size_t>(std::count(
                        nota.begin(), nota.begin() + static_cast<long>(nota.find(':')), ','));
    EXPECT_EQ(nomi, senza);
}

// Each use with the three meshes, and the paragraph that warns of what grows.
TEST(CapitoloMargine, TellsTheUsesOfTheSectionWithFinerMeshes) {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::diaframmaSimmetrico();
    dossier::Fascicolo f = *contesto(dati).fascicolo;
    f.margine->maglia->usi[0].maglie[2]->progetto *= 1.2;
    const Contesto c{std::make_shared<const dossier::Fascicolo>(f), {}};
    const auto b = margine(c);
    const auto p = test::tavola(b, "Sfruttamenti con maglie più fini");
    ASSERT_EQ(p.righe.size(), f.margine->maglia->usi.size());
    for (std::size_t i = 0; i < p.righe.size(); ++i)
        for (std::size_t maglia = 0; maglia < 3; ++maglia)
            EXPECT_NEAR(test::numero(p, i, 1 + maglia),
                        100 * *f.margine->maglia->usi[i].maglie[maglia]->uso(), 1e-9);
    const auto avvisi = safety::avvisiMaglia(*f.margine);
    ASSERT_EQ(avvisi.size(), 1U);
    for (const auto& capitolo : {capitoloMargine, capitoloCopertina})
        EXPECT_NE(testo(test::blocchi(capitolo, c)).find(avvisi[0].testo), std::string::npos);
}

// The heading has the title of its table.
TEST(CapitoloMargine, SaysNoTitleTwice) {
    const auto b = margine(contesto(test::progettoSemplice()));
    for (const auto& t : test::tutti<document::Tavola>(b)) EXPECT_EQ(t.prospetto.titolo, "");
    EXPECT_NE(testo(b).find("\nMargine per fase\n"), std::string::npos);
}

TEST(CapitoloMargine, OfAWallThatFallsGivesItsVerdictAsADanger) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    const auto b = margine(contesto(dati));
    EXPECT_EQ(std::get<document::Paragrafo>(b[0]).stile, document::Stile::pericolo);
    EXPECT_NE(testo(b).find("Margine per fase"), std::string::npos);
    EXPECT_EQ(testo(b).find("Errore di maglia"), std::string::npos) << "nothing more to say";
}

TEST(CapitoloMargine, OfAProjectWithoutAWallSaysWhy) {
    const auto b = margine(contesto(test::progettoVuoto()));
    ASSERT_EQ(b.size(), 2U);
    EXPECT_EQ(std::get<document::Paragrafo>(b[0]).testo, "Di questo progetto non c'è un margine.");
}

}  // namespace
}  // namespace korven::report
