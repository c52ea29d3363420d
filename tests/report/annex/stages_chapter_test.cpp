#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "project/codes.hpp"
#include "report/annex/stage_tables.hpp"
#include "support/chapter_bench.hpp"
#include "support/restless_wall.hpp"
#include "support/sample_projects.hpp"

namespace korven::report {
namespace {

using test::contesto;
using test::haTavola;
using test::numero;
using test::riga;
using test::tavola;
using test::testo;

Blocchi fasi(const Contesto& c) { return test::blocchi(capitoloFasi, c); }

project::DatiProgetto caduto() {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    test::aggiungiFase(dati, {.scavo = 11.95, .falda = 11});
    return dati;
}

TEST(CapitoloFasi, HoldsTheNodesOfTheDossier) {
    const Contesto c = contesto(test::progettoSemplice());
    const auto& f = *c.fascicolo->parete.fase(2);
    const auto p = tavola(fasi(c), "Nodi: Fase 2");
    ASSERT_EQ(p.righe.size(), 41U);
    for (std::size_t i = 0; i < 41; ++i) {
        EXPECT_NEAR(numero(p, i, 1), 0.3 * static_cast<double>(i), 1e-12);
        EXPECT_EQ(numero(p, i, 2), 1000 * f.y[i]);
        EXPECT_EQ(numero(p, i, 3), 10 * f.momento[i]);
        EXPECT_EQ(numero(p, i, 4), 10 * f.taglioSopra[i]);
        EXPECT_EQ(numero(p, i, 5), 10 * f.taglioSotto[i]);
        EXPECT_EQ(numero(p, i, 6), 10 * f.monte[i]);
        EXPECT_EQ(numero(p, i, 7), 10 * f.valle[i]);
        EXPECT_EQ(numero(p, i, 8), 10 * f.acqua[i]);
    }
    EXPECT_EQ(p.righe[40].back().testo, "2");  // the layer by its number alone
}

TEST(CapitoloFasi, ThinsTheNodesAndKeepsThePeaks) {
    const Contesto c = contesto(test::progettoSemplice(), 12);
    const auto p = tavola(fasi(c), "Nodi: Fase 2");
    EXPECT_LE(p.righe.size(), 12U);
    const auto e = *c.fascicolo->parete.estremiDi(2);
    bool massimo = false;
    for (std::size_t i = 0; i < p.righe.size(); ++i)
        massimo = massimo || numero(p, i, 3) == 10 * e.momento().valore;
    EXPECT_TRUE(massimo);
    EXPECT_EQ(p.righe.front()[0].testo, "1");
    EXPECT_EQ(p.righe.back()[0].testo, "41");
}

TEST(CapitoloFasi, HoldsTheBalanceOfEachStage) {
    const Contesto c = contesto(test::progettoSemplice());
    const auto p = tavola(fasi(c), "Equilibrio delle forze e dei momenti", 2);
    const dossier::BilancioFase& b = c.fascicolo->bilanci[1];
    const auto monte = riga(p, "Terreno a monte");
    EXPECT_EQ(monte[1].numero, 10 * b.monte.forza);
    EXPECT_EQ(monte[2].numero, 10 * b.monte.momento);
    EXPECT_EQ(monte[3].numero, b.monte.momento / b.monte.forza);
    EXPECT_EQ(riga(p, "Terreno a valle")[1].numero, 10 * b.valle.forza);
    EXPECT_EQ(riga(p, "Acqua")[2].numero, 10 * b.acqua.momento);
    // A tie pulls towards the retained side, from its own depth.
    const auto tirante = riga(p, "Tirante 1");
    EXPECT_NEAR(tirante[1].numero.value_or(0), -10 * c.fascicolo->tiranti[0].tiri[1].value_or(0),
                1e-9);
    EXPECT_NEAR(tirante[3].numero.value_or(0), 1.5, 1e-12);
    const auto somma = riga(p, "Somma di tutte (< 1e-9 della maggiore)");
    EXPECT_EQ(somma[1].numero, 10 * b.resto.forza);
    EXPECT_LT(std::fabs(somma[1].numero.value_or(1)), 1e-6);
    EXPECT_EQ(somma[1].testo, "0.00");
    EXPECT_EQ(somma[2].testo, "0.00");
    EXPECT_TRUE(p.note.empty());
}

// A remainder that is more than rounding is told in its size, whatever the rest.
TEST(ProspettoBilancio, HidesNoRemainder) {
    dossier::BilancioFase b;
    b.monte = {10, 30};
    b.valle = {-10, -30};
    b.resto = {2e-8, 0};
    const project::DatiProgetto dati;
    const auto p = prospettoBilancio(dati, b);
    EXPECT_EQ(p.righe.back()[0].testo, "Somma di tutte");
    EXPECT_EQ(p.righe.back()[1].testo, "2.0e-07");
    b.resto = {9e-9, 1e-9};
    EXPECT_EQ(prospettoBilancio(dati, b).righe.back()[1].testo, "0.00");
}

TEST(ProspettoBilancio, HasTheConstantPressureWhereThereIsOne) {
    dossier::BilancioFase b;
    b.monte = {10, 30};
    b.valle = {-12, -33};
    const project::DatiProgetto dati;
    const auto righe = [&] {
        const auto p = prospettoBilancio(dati, b);
        return std::ranges::count_if(
            p.righe, [](const auto& r) { return r[0].testo == "Pressione costante"; });
    };
    EXPECT_EQ(righe(), 0);
    b.costante = {2, 3};
    EXPECT_EQ(righe(), 1);
    EXPECT_EQ(riga(prospettoBilancio(dati, b), "Pressione costante")[1].numero, 20);
}

// What a checker gets from the printed pressures, and why the restraint bears more.
TEST(ProspettoBilancio, TellsForceAndMomentOfAFixedToeAndTheHalfSegmentBelowIt) {
    auto dati = test::progettoSemplice();
    dati.vincoloPiede = 3;
    const Contesto c = contesto(dati);
    const auto& f = *c.fascicolo->parete.fase(2);
    const dossier::BilancioFase& b = c.fascicolo->bilanci[1];
    const auto p = prospettoBilancio(dati, b);
    const auto reazione = riga(p, "Reazione del vincolo al piede");
    EXPECT_NEAR(*reazione[3].numero, 12, 1e-9);
    const auto incastro = riga(p, "Momento d'incastro al piede");
    EXPECT_EQ(incastro[1].numero, 0);
    EXPECT_NEAR(*incastro[2].numero, -10 * f.momento.back(), 1e-6);
    const double netta = live::pressioneNetta(f, 40);  // nodes every 0.3 m
    EXPECT_NEAR(*riga(p, "Mezzo segmento oltre il piede")[1].numero, 10 * netta * 0.15, 1e-9);
    EXPECT_NEAR(*reazione[1].numero + 10 * netta * 0.15, 10 * f.taglio.back(), 1e-6);
    const std::string frase = fraseSomme(*c.fascicolo, 51);
    for (const std::string& numero :
         {"nella fase 2 la pressione netta dell'ultimo nodo, " + tables::pressione(netta).testo +
              " kN/m², per 0.1500 m",
          "la reazione al piede, " + reazione[1].testo + " kN/m, è il taglio dell'ultimo nodo, " +
              tables::forza(f.taglio.back()).testo + " kN/m"})
        EXPECT_NE(frase.find(numero), std::string::npos) << numero << '\n' << frase;
    const auto libero = contesto(test::progettoSemplice());
    EXPECT_EQ(fraseSomme(*libero.fascicolo, 51).find("incastro"), std::string::npos);
}

TEST(CapitoloFasi, SetsTheSpecifiedRunBesideTheEquilibrium) {
    const Contesto c = contesto(test::progettoSemplice());
    const auto b = fasi(c);
    const auto p = tavola(b, "Soluzione di equilibrio e calcolo per fasi");
    const dossier::CorsaFase& corsa = c.fascicolo->corsa[1];
    EXPECT_EQ(numero(p, 1, 1), c.fascicolo->parete.fase(2)->passi);
    EXPECT_EQ(numero(p, 1, 2), corsa.iterazioni);
    EXPECT_EQ(p.righe[1][3].testo, "a convergenza");
    EXPECT_EQ(numero(p, 1, 4), 1000 * corsa.scartoSpostamento->valore);
    EXPECT_EQ(numero(p, 1, 5), 10 * corsa.scartoMomento->valore);
    EXPECT_EQ(numero(p, 1, 6), 10 * corsa.scartoTaglio->valore);
    EXPECT_NE(testo(b).find("Il calcolo per fasi (iterazioni: " + std::to_string(corsa.iterazioni)),
              std::string::npos);
}

// One reason at one depth in two stages, another in one; none of them told by the report's twins.
TEST(CapitoloFasi, TellsWhyTheRunDiffersAtItsTableAndAtEachStage) {
    Contesto c = contesto(test::progettoSemplice());
    dossier::Fascicolo f = *c.fascicolo;
    f.doppi.clear();
    for (dossier::CorsaFase& corsa : f.corsa) {
        corsa.scartoMomento = {};
        corsa.scartoTaglio->z = 1.5;
        corsa.scartoTaglio->altrove = corsa.scartoTaglio->valore;
        corsa.scartoTaglio->perche = "molle";
    }
    f.corsa[0].scartoMomento =
        dossier::Scarto{.valore = 1, .z = 3, .altrove = 0.04, .perche = "regole"};
    f.corsa[1].scartoMomento = dossier::Scarto{.valore = 0};
    const auto mostra = [&] {
        c.fascicolo = std::make_shared<const dossier::Fascicolo>(f);
        return fasi(c);
    };
    const auto note = tavola(mostra(), "Soluzione di equilibrio e calcolo per fasi").note;
    const auto haNota = [&](const char* nota) {
        return std::find(note.begin(), note.end(), nota) != note.end();
    };
    EXPECT_TRUE(
        haNota("Scarto del momento (fase 1 a 3.00 m): regole. Soltanto lì: negli altri "
               "nodi è al più di 0.40 kN m/m."));
    EXPECT_TRUE(haNota("Scarto del taglio (fasi 1, 2 a 1.50 m): molle."));
    EXPECT_NE(testo(mostra()).find("nel taglio. Lo scarto del momento è del solo nodo a 3.00 m: "
                                   "negli altri è al più di 0.40 kN m/m. Scarto del momento: "
                                   "regole. Scarto del taglio: molle."),
              std::string::npos);
    EXPECT_NE(testo(mostra()).find("nel taglio. Scarto del taglio: molle."), std::string::npos);
    f.doppi = {{.cosa = dossier::Doppio::taglio, .fase = 2, .perche = "molle"}};
    EXPECT_EQ(testo(mostra()).find("nel taglio. Scarto del taglio: molle."), std::string::npos);
}

TEST(CapitoloFasi, TellsTheConditionsOfAStage) {
    const auto p = tavola(fasi(contesto(test::progettoSemplice())), "Condizioni della fase", 2);
    ASSERT_EQ(p.righe.size(), 1U);
    const double attesi[] = {5, 3, 5, 10, 0, 1};  // m, m, m, kN/m2, kN/m2, anchors
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(numero(p, 0, i), attesi[i]) << i;
    EXPECT_EQ(p.righe[0][5].testo, "1");
}

TEST(CapitoloFasi, OfAWallThatFallsSaysHowAndTellsTheStagesThatStand) {
    const Contesto c = contesto(caduto());
    ASSERT_FALSE(c.fascicolo->parete.sta());
    const auto b = fasi(c);
    EXPECT_TRUE(haTavola(b, "Nodi: Fase 1"));
    EXPECT_FALSE(haTavola(b, "Nodi: Fase 2"));
    EXPECT_NE(testo(b).find("nessun equilibrio"), std::string::npos);
    EXPECT_NE(testo(b).find("Fase 3\nNon calcolata"), std::string::npos);
    EXPECT_EQ(test::tutti<document::Figura>(b).size(), 2U);  // stage 1 and the fall
    const auto corse = tavola(b, "Soluzione di equilibrio e calcolo per fasi");
    EXPECT_EQ(corse.righe[0][2].testo, "-");
    EXPECT_EQ(corse.note.back(),
              "Il calcolo per fasi, che scrive la relazione, non è stato eseguito.");
}

// The rows of the balance sum up to what the verdict says is missing.
TEST(CapitoloFasi, OfAMechanismHasTheBalanceAtTheLimit) {
    auto dati = test::progettoSemplice();
    dati.vincoloTesta = valore(project::VincoloTesta::cerniera);  // which only a turn goes about
    dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    const Contesto c = contesto(dati);
    ASSERT_TRUE(c.fascicolo->limite);
    const auto& moto = *c.fascicolo->parete.perche->moto;
    ASSERT_FALSE(moto.traslazione);
    const auto b = fasi(c);
    const auto p = tavola(b, "Equilibrio al limite");
    const std::size_t perno = p.righe.size() - 2, somma = p.righe.size() - 1;
    EXPECT_EQ(p.righe[perno][0].testo, "Reazione del perno");
    double momento = 0, forza = numero(p, perno, 2);
    for (std::size_t i = 0; i < perno; ++i) {
        forza += numero(p, i, 2);
        EXPECT_NEAR(numero(p, i, 2) * numero(p, i, 4), numero(p, i, 5), 1e-9);
        EXPECT_EQ(p.righe[i][6].testo, numero(p, i, 5) > 0 ? "spinge" : "resiste");
        momento += numero(p, i, 5);
    }
    EXPECT_NEAR(momento, 10 * moto.mancante, 1e-6);
    EXPECT_NEAR(numero(p, somma, 5), 10 * moto.mancante, 1e-6);
    EXPECT_NEAR(numero(p, somma, 2), forza, 1e-9);
    EXPECT_NEAR(numero(p, somma, 2) * numero(p, somma, 4), numero(p, somma, 5), 1e-6);
    const auto nodi = tavola(b, "Pressioni al limite");
    ASSERT_EQ(nodi.righe.size(), 41U);
    EXPECT_EQ(numero(nodi, 20, 3), 10 * c.fascicolo->limite->nodi[20].monte);
    // From the table alone: stretch times pressures.
    for (std::size_t i = 0; i < 41; ++i) {
        if (std::fabs(numero(nodi, i, 1) - moto.profondita) < 0.1) continue;
        EXPECT_NEAR(
            numero(nodi, i, 2) * (numero(nodi, i, 3) + numero(nodi, i, 5) + numero(nodi, i, 7)),
            numero(nodi, i, 8), 1e-9);
    }
}

// A reader multiplies with the printed signs: the head moves towards the excavation here, so that
// the arms above the pivot are positive. A head moment stands alone: it has no arm.
TEST(CapitoloFasi, OfAMechanismHasMomentsThatFollowFromForcesAndArms) {
    auto dati = test::progettoSemplice();
    dati.tirantiFase[1] = dati.tirantiFase[2] = 0;
    dati.nTiranti = 0;
    dati.lunghezzaParatia = dati.profFase[2] + 3;
    dati.forzaTesta = 0.5;
    dati.momentoTesta = 2;
    const Contesto c = contesto(dati);
    ASSERT_TRUE(c.fascicolo->limite);
    ASSERT_EQ(c.fascicolo->limite->moto.verso, -1);
    const auto p = tavola(fasi(c), "Equilibrio al limite");
    const auto forza = riga(p, "Forza in testa"), momento = riga(p, "Momento in testa");
    EXPECT_EQ(forza[3].numero, 0);
    EXPECT_NEAR(*forza[4].numero, c.fascicolo->limite->moto.profondita, 1e-9);
    EXPECT_FALSE(momento[4].numero);
    EXPECT_NEAR(*momento[5].numero, 20, 1e-9);
    EXPECT_EQ(momento[6].testo, "spinge");
    for (const auto& r : p.righe) {
        if (!r[4].numero) continue;
        EXPECT_NEAR(*r[2].numero * *r[4].numero, *r[5].numero, 1e-6) << r[0].testo;
    }
    EXPECT_NE(p.note.front().find("momento in testa"), std::string::npos);
}

// The head moment of the input turns the other way than the moments of the balance.
TEST(CapitoloFasi, SaysThatTheHeadMomentHasAnotherSignInTheBalance) {
    auto dati = test::progettoSemplice();
    constexpr const char* frase = "segno opposto a quello dei dati";
    EXPECT_EQ(testo(fasi(contesto(dati))).find(frase), std::string::npos);
    dati.momentoTesta = 1;
    const Contesto c = contesto(dati);
    const auto b = fasi(c);
    EXPECT_NE(testo(b).find(frase), std::string::npos);
    const auto p = tavola(b, "Equilibrio delle forze e dei momenti");
    EXPECT_NEAR(*riga(p, "Carichi in testa")[2].numero, -10, 1e-9);
}

TEST(CapitoloFasi, TellsOfNoTableOfNodesWhereNoStageStands) {
    auto dati = test::progettoSemplice();
    dati.profFase[1] = dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    const Contesto c = contesto(dati);
    ASSERT_EQ(c.fascicolo->parete.fasiInEquilibrio(), 0);
    const std::string detto = testo(fasi(c));
    EXPECT_NE(detto.find("Nessuna fase è in equilibrio"), std::string::npos);
    EXPECT_EQ(detto.find("tabella dei nodi"), std::string::npos);
}

TEST(CapitoloFasi, SaysHowAllNodesArePrintedWhereSomeAreNot) {
    const auto detto = [](int righe) {
        return fraseSomme(*contesto(test::progettoSemplice()).fascicolo, righe);
    };
    EXPECT_NE(detto(40).find("con --righe 41 il comando"), std::string::npos);
    EXPECT_EQ(detto(41).find("--righe"), std::string::npos);
}

TEST(CapitoloFasi, SaysWhatTheReportHasOtherwise) {
    auto dati = test::progettoSemplice();
    dati.vincoloPiede = valore(project::VincoloPiede::incastro);
    const Contesto c = contesto(dati);
    ASSERT_TRUE(c.fascicolo->conRelazione());
    const auto b = fasi(c);
    EXPECT_NE(testo(b).find("La relazione ha qui altri numeri. "), std::string::npos);
    bool detto = false;
    for (const auto& nota : tavola(b, "Soluzione di equilibrio e calcolo per fasi").note)
        detto = detto || nota.find("al piede incastrato") != std::string::npos;
    EXPECT_TRUE(detto);
}

Contesto senzaPace() {
    class InSilenzio : public analysis::OsservatoreCorsa {
    } osservatore;
    const auto dati = test::progettoSenzaPace();
    return {std::make_shared<const dossier::Fascicolo>(dossier::fascicolo(
                {.scritti = dati, .usati = dati, .nSeg = 10, .identita = {}, .sulProgetto = {}},
                osservatore)),
            {}};
}

// Elsewhere the remark names the command that finds the equilibrium, which stands in this document.
TEST(CapitoloOsservazioni, OfARunThatDoesNotConvergeNamesTheChapterInsteadOfTheCommand) {
    std::string testi;
    for (const auto& t :
         test::tutti<document::Tavola>(test::blocchi(capitoloOsservazioni, senzaPace())))
        for (const auto& r : t.prospetto.righe)
            for (const auto& cella : r) testi += cella.testo + "\n";
    EXPECT_NE(testi.find("la relazione non ha numeri, il suo equilibrio è nel capitolo Fasi"),
              std::string::npos)
        << testi;
    EXPECT_EQ(testi.find("korven32c"), std::string::npos) << testi;
}

TEST(CapitoloFasi, OfARunWithoutRestHasTheEquilibriumAndSaysSo) {
    const Contesto c = senzaPace();
    const auto b = fasi(c);
    EXPECT_TRUE(haTavola(b, "Nodi: Fase 1"));
    const auto corse = tavola(b, "Soluzione di equilibrio e calcolo per fasi");
    EXPECT_EQ(corse.righe[0][3].testo, "non a convergenza");
    EXPECT_EQ(corse.righe[0][3].peso, review::Peso::pericolo);
    EXPECT_NE(corse.note.back().find("non converge"), std::string::npos);
    EXPECT_NE(testo(b).find("Il calcolo per fasi non converge"), std::string::npos);
}

TEST(CapitoloFasi, OfAProjectWithoutAWallSaysWhy) {
    const auto b = fasi(contesto(test::progettoVuoto()));
    ASSERT_EQ(b.size(), 1U);
    EXPECT_EQ(std::get<document::Paragrafo>(b[0]).stile, document::Stile::pericolo);
    EXPECT_FALSE(std::get<document::Paragrafo>(b[0]).testo.empty());
}

// A pressure that the user adds and an anchor that pulls with its prestress alone act at the limit
// too, and the rows still sum up to what is missing.
TEST(CapitoloFasi, OfAMechanismNamesTheConstantPressureAndTheAnchorThatDoesNotGive) {
    auto dati = test::progettoSemplice();
    dati.lunghezzaParatia = dati.profFase[2] + 1.5;
    dati.pressioneOrizz = 0.5;
    dati.rigTirante[1] = 0;
    dati.pretTirante[1] = 1;
    const Contesto c = contesto(dati);
    ASSERT_TRUE(c.fascicolo->limite);
    const auto b = fasi(c);
    const auto p = tavola(b, "Equilibrio al limite");
    EXPECT_EQ(riga(p, "Pressione costante").back().testo, "spinge");
    EXPECT_EQ(riga(p, "Tirante 1").back().testo, "resiste");
    const auto nodi = tavola(b, "Pressioni al limite");
    EXPECT_NE(nodi.note.back().find("La forza conta anche la pressione costante di 5"),
              std::string::npos)
        << nodi.note.back();
    const bool ruota = !c.fascicolo->limite->moto.traslazione;
    const std::size_t colonna = ruota ? 5 : 2, ultime = ruota ? 2 : 1;
    double somma = 0;
    for (std::size_t i = 0; i + ultime < p.righe.size(); ++i) somma += numero(p, i, colonna);
    EXPECT_NEAR(std::fabs(somma), 10 * c.fascicolo->parete.perche->moto->mancante, 1e-6);
}

}  // namespace
}  // namespace korven::report
