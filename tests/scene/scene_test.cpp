#include "scene/scene.hpp"

#include <gtest/gtest.h>

#include <cstdio>

#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"
#include "support/scene_parts.hpp"

// Where the picture puts what the project says. Heights and widths are compared with what follows
// by hand from the scale that the scene gives.

namespace korven::scene {
namespace {

using live::Curva;
using test::dice;
using test::figure;
using test::muro;
using test::pianta;
using test::scenaDi;
using test::testi;

TEST(Scena, DrawsTheWallToScaleWithTheThicknessOfItsSection) {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::diaframmaSimmetrico();
    dati.sezione.spessoreDiaframma = 80;  // cm
    const Scena s = scenaDi(dati);
    const Riquadro muro = pianta(s);
    EXPECT_NEAR(muro.altezza(), 12 * s.scala, 1e-9);
    EXPECT_NEAR(muro.larghezza(), 0.8 * s.scala, 1e-9);
    EXPECT_EQ(muro.alto, s.y(0));
    EXPECT_EQ(muro.basso, s.y(12));
    EXPECT_LT(muro.basso, s.altezza);
}

TEST(Scena, GivesAThinSheetPileALeastWidth) {
    auto dati = test::progettoSemplice();
    dati.lunghezzaParatia = 40;
    dati.sezione = {};
    dati.sezione.tipoPalancola = true;
    dati.sezione.palancolaAltAla = 5;
    dati.sezione.palancolaSpessore = 1;  // 11 cm deep in all
    const Scena s = scenaDi(dati);
    EXPECT_LT(0.11 * s.scala, 4);
    EXPECT_EQ(pianta(s).larghezza(), 4);
}

TEST(Scena, DrawsAnUndefinedSectionWithAUsualThickness) {
    const Scena s = scenaDi(test::progettoSemplice());
    EXPECT_NEAR(pianta(s).larghezza(), 0.6 * s.scala, 1e-9);
}

// The ground below it is of no layer that it could read as one with.
TEST(Scena, EndsTheLastLayerWithALineWhateverItsCodeBelowTheWallToo) {
    auto dati = test::progettoSemplice();
    const int ultimo = dati.nStrati;
    dati.descrStrato[ultimo] = "-103 Ghiaia";
    for (const double letto : {12.6, 12.0}) {  // of a wall of 12 m
        dati.profStrato[ultimo] = letto;
        const Scena s = scenaDi(dati, {2});
        const auto linee = figure<Linea>(s, Elemento::strato, ultimo);
        ASSERT_EQ(linee.size(), 2U) << letto;
        for (const Linea& linea : linee) EXPECT_NEAR(linea.punti[0].y, s.y(letto), 1e-9);
        EXPECT_EQ(linee[0].punti[1].x, pianta(s).sinistra);
        EXPECT_EQ(linee[1].punti[0].x, pianta(s).sinistra);
    }
    dati.descrStrato[1] = "-101 Sabbia";
    EXPECT_TRUE(figure<Linea>(scenaDi(dati, {2}), Elemento::strato, 1).empty());
}

TEST(Scena, StretchesLayersToTheirDepths) {
    const Scena s = scenaDi(test::progettoSemplice(), {2});
    const auto primo = figure<Area>(s, Elemento::strato, 1);
    ASSERT_EQ(primo.size(), 1U);  // dug away on the other side: stage 2 goes to 5 m
    EXPECT_EQ(intorno(primo[0].punti).alto, s.y(0));
    EXPECT_EQ(intorno(primo[0].punti).basso, s.y(4));
    const auto secondo = figure<Area>(s, Elemento::strato, 2);
    ASSERT_EQ(secondo.size(), 3U);  // behind, in front, under the curve
    EXPECT_EQ(intorno(secondo[1].punti).alto, s.y(5));
    // Without a seam between them.
    for (std::size_t i = 1; i < secondo.size(); ++i)
        EXPECT_LE(intorno(secondo[i].punti).sinistra, intorno(secondo[i - 1].punti).destra - 1);
    EXPECT_TRUE(dice(testi(s, Elemento::strato, 1), "Sabbia"));
    EXPECT_TRUE(dice(testi(s, Elemento::strato, 2), "Ghiaia"));
}

TEST(Scena, HatchesALayerWithCodeAndColourOfItsDescription) {
    const auto dati = muro().strato({.fondo = 20, .descrizione = "103C3 Sabbia"}).dati();
    const Scena s = scenaDi(dati);
    const auto campite = figure<Campitura>(s, Elemento::strato, 1);
    ASSERT_EQ(campite.size(), 2U);
    EXPECT_EQ(campite[0].codice, 103);
    EXPECT_EQ(campite[0].tinta, (Tinta{Ruolo::strato, 3}));
}

TEST(Scena, SlopesTheGroundByItsAngle) {
    auto dati = test::progettoSemplice();
    for (const double gradi : {10.0, -10.0}) {
        dati.inclinazioneMonte = gradi;
        const Scena s = scenaDi(dati);
        const auto suolo = figure<Linea>(s, Elemento::terreno, 0).at(0).punti;
        EXPECT_EQ(suolo[1].y, s.y(0));
        // tan 10 degrees
        EXPECT_NEAR((suolo[1].y - suolo[0].y) / (suolo[1].x - suolo[0].x),
                    gradi > 0 ? 0.17633 : -0.17633, 1e-5);
    }
}

TEST(Scena, DrawsTheExcavationOfTheStageShown) {
    for (const auto& [fase, scavo] : {std::pair{1, 2.0}, {2, 5.0}, {0, 5.0}}) {
        const Scena s = scenaDi(test::progettoSemplice(), {fase});
        const auto linee = figure<Linea>(s, Elemento::terreno);
        EXPECT_EQ(linee.at(1).punti[0].y, s.y(scavo)) << fase;
    }
}

TEST(Scena, NamesAllStagesAtTheirLevels) {
    const Scena s = scenaDi(test::progettoSemplice(), {2});
    EXPECT_EQ(figure<Linea>(s, Elemento::fase, 1).at(0).punti[0].y, s.y(2));
    EXPECT_TRUE(dice(testi(s, Elemento::fase), "fase 1  2.00 m"));
    EXPECT_TRUE(dice(testi(s, Elemento::fase), "fase 2  5.00 m"));
    EXPECT_TRUE(dice(testi(s, Elemento::nota), "fase 2 di 2  ·  scavo 5.00 m"));
}

TEST(Scena, GivesStagesOfOneDepthOneLine) {
    const auto s = scenaDi(muro().fase({.scavo = 2}).fase({.scavo = 2.001}).dati(), {1});
    EXPECT_TRUE(dice(testi(s, Elemento::fase), "fasi 1, 2  2.00 m"));
}

TEST(Scena, MeasuresLengthExcavationAndEmbedment) {
    const auto quote = testi(scenaDi(test::progettoSemplice(), {2}), Elemento::quota);
    EXPECT_TRUE(dice(quote, "12.00 m"));
    EXPECT_TRUE(dice(quote, "5.00 m"));
    EXPECT_TRUE(dice(quote, "7.00 m"));
}

TEST(Scena, DrawsAnchorsFromTheirHeadsWithTheForceOfTheStage) {
    const auto dati = test::progettoSemplice();
    const auto parete = live::calcola(dati, 40);
    const Scena s = scenaDi(dati, {2});
    const auto asse = figure<Linea>(s, Elemento::tirante, 1).at(0).punti;
    EXPECT_EQ(asse[0].y, s.y(1.5));
    EXPECT_GT(asse[1].y, asse[0].y);  // downwards,
    EXPECT_LT(asse[1].x, asse[0].x);  // into the ground
    char forza[32];
    std::snprintf(forza, sizeof forza, "%.1f", 10 * parete.fase(2)->tiri[0]);
    EXPECT_TRUE(
        dice(testi(s, Elemento::tirante, 1), std::string("T1  1.50 m  ") + forza + " kN/m"));
}

TEST(Scena, DashesAnchorsOfLaterStages) {
    const Scena s = scenaDi(test::progettoSemplice(), {1});
    EXPECT_EQ(figure<Linea>(s, Elemento::tirante, 1).at(0).tratteggio, Tratteggio::linee);
    EXPECT_TRUE(dice(testi(s, Elemento::tirante, 1), "T1  1.50 m"));
}

TEST(Scena, DrawsStrutsOnTheExcavatedSide) {
    auto dati = test::progettoSemplice();
    dati.tipoTirante[1] = valore(project::TipoTirante::trazioneCompressione);
    const Scena s = scenaDi(dati, {2});
    const Riquadro barra = intorno(figure<Area>(s, Elemento::tirante, 1).at(0).punti);
    EXPECT_EQ(barra.sinistra, pianta(s).destra);
    EXPECT_NEAR((barra.alto + barra.basso) / 2, s.y(1.5), 1e-9);
    const auto nomi = testi(s, Elemento::tirante, 1);
    ASSERT_EQ(nomi.size(), 1U);
    EXPECT_TRUE(nomi[0].starts_with("P1  ")) << nomi[0];
}

TEST(Scena, ShowsTheLoadsWithTheirValues) {
    auto dati = test::progettoSemplice();  // 1 t/m2 behind the wall
    dati.momentoTesta = 2;
    dati.forzaTesta = -1.5;
    dati.sforzoNormale = 30;
    dati.pressioneOrizz = 0.25;
    dati.sovraccFase[2] = 0.5;
    const Scena s = scenaDi(dati, {2});
    EXPECT_TRUE(dice(testi(s, Elemento::sovraccarico), "q 10 kN/m²"));
    EXPECT_TRUE(dice(testi(s, Elemento::sovraccarico, 2), "q 5 kN/m²"));
    EXPECT_TRUE(dice(testi(s, Elemento::sovraccarico), "p 2.5 kN/m²"));
    EXPECT_TRUE(dice(testi(s, Elemento::caricoTesta), "M 20.0 kN m/m"));
    EXPECT_TRUE(dice(testi(s, Elemento::caricoTesta), "F -15.0 kN/m"));
    EXPECT_TRUE(dice(testi(s, Elemento::caricoTesta), "N 300.0 kN/m"));
}

TEST(Scena, PointsLoadsTheWayTheyAct) {
    auto dati = test::progettoSemplice();
    const auto forza = [&](double t) {
        dati.forzaTesta = t;
        const auto punti = figure<Freccia>(scenaDi(dati), Elemento::caricoTesta).at(0).punti;
        return punti.back().x - punti.front().x;
    };
    EXPECT_GT(forza(1), 0);  // towards the excavation
    EXPECT_LT(forza(-1), 0);
    dati.forzaTesta = 0;
    const auto momento = [&](double tm) {
        dati.momentoTesta = tm;
        const auto punti = figure<Freccia>(scenaDi(dati), Elemento::caricoTesta).at(0).punti;
        return punti.back().x - punti.front().x;
    };
    EXPECT_GT(momento(1), 0);  // clockwise: the arc goes over the head to the excavation
    EXPECT_LT(momento(-1), 0);
    const auto q = figure<Freccia>(scenaDi(dati), Elemento::sovraccarico).at(0).punti;
    EXPECT_GT(q.back().y, q.front().y);  // down
}

TEST(Scena, ShowsTheWaterOfBothSides) {
    const Scena s = scenaDi(test::progettoSemplice(), {2});
    const auto acque = testi(s, Elemento::acqua);
    EXPECT_TRUE(dice(acque, "3.00 m"));
    EXPECT_TRUE(dice(acque, "5.00 m"));
    EXPECT_EQ(figure<Linea>(s, Elemento::acqua).at(0).punti[0].y, s.y(3));
}

TEST(Scena, FloodsWhatLiesUnderOpenWater) {
    auto dati = test::progettoSemplice();
    dati.faldaMonte = -1;
    dati.faldaFase[2] = 3;  // two metres above the excavation
    const Scena s = scenaDi(dati, {2});
    const auto specchi = figure<Area>(s, Elemento::acqua);
    const auto alto = [&](double z) {
        return std::any_of(specchi.begin(), specchi.end(), [&](const Area& a) {
            return a.tinta.ruolo == Ruolo::fondoAcqua && intorno(a.punti).alto == s.y(z);
        });
    };
    EXPECT_TRUE(alto(-1));
    EXPECT_TRUE(alto(3));
}

TEST(Scena, DrawsTheRestraints) {
    auto dati = test::progettoSemplice();
    EXPECT_TRUE(figure<Area>(scenaDi(dati), Elemento::vincolo).empty());
    dati.vincoloTesta = 2;
    dati.vincoloPiede = 3;
    const Scena s = scenaDi(dati);
    EXPECT_EQ(figure<Area>(s, Elemento::vincolo).size(), 1U);
    EXPECT_EQ(figure<Linea>(s, Elemento::vincolo).at(0).punti[0].y, s.y(12));
}

TEST(Scena, DrawsTheCurveAtTheDepthsOfTheNodesAndWritesItsPeaks) {
    const auto dati = test::progettoSemplice();
    const auto parete = live::calcola(dati, 40);
    const Scena s = scenaDi(dati, {2, Curva::momento});
    const auto curva = figure<Linea>(s, Elemento::curva).at(0).punti;
    ASSERT_EQ(curva.size(), 41U);
    for (std::size_t i = 0; i < 41; ++i)
        EXPECT_NEAR(curva[i].y, s.y(0.3 * static_cast<double>(i)), 1e-9);
    const auto estremi = equilibrium::estremi(*parete.fase(2), parete.h);
    char atteso[64];
    std::snprintf(atteso, sizeof atteso, "%.1f kN m/m  %.2f m", 10 * estremi.momentoMassimo.valore,
                  estremi.momentoMassimo.z);
    EXPECT_TRUE(dice(testi(s, Elemento::estremo), atteso));
    EXPECT_TRUE(dice(testi(s, Elemento::asse), "Momento [kN m/m]"));
    // Widths are proportional: the curve's axis is where it is 0, at the head.
    const auto& m = parete.fase(2)->momento;
    const double k = (curva[20].x - curva[0].x) / (m[20] - m[0]);
    for (std::size_t i = 1; i < 41; ++i)
        EXPECT_NEAR(curva[i].x - curva[0].x, k * (m[i] - m[0]), 1e-6);
}

TEST(Scena, DrawsPressuresTheWayThatTheyPressAndSaysWhichIsPositive) {
    const auto dati = test::progettoSemplice();
    const auto parete = live::calcola(dati, 40);
    const Scena s = scenaDi(dati, {2, Curva::pressioni});
    const auto& fase = *parete.fase(2);
    ASSERT_GT(fase.monte[10], 0);
    ASSERT_LT(fase.valle[30], 0);
    ASSERT_EQ(fase.valle[10], 0);  // above the excavation
    const auto linee = figure<Linea>(s, Elemento::curva);
    const double zero = linee.at(1).punti[10].x;
    EXPECT_GT(linee[0].punti[10].x, zero);  // towards the excavation,
    EXPECT_LT(linee[1].punti[30].x, zero);  // away from it
    EXPECT_TRUE(dice(testi(s, Elemento::asse), "+ verso lo scavo"));
    const auto verso = figure<Freccia>(s, Elemento::asse).at(0).punti;
    EXPECT_GT(verso[1].x, verso[0].x);
    EXPECT_TRUE(
        dice(testi(scenaDi(dati, {0, Curva::pressioni}), Elemento::asse), "+ verso lo scavo"));
    EXPECT_FALSE(
        dice(testi(scenaDi(dati, {2, Curva::momento}), Elemento::asse), "+ verso lo scavo"));
}

TEST(Scena, FillsTheBandOfTheEnvelope) {
    const Scena s = scenaDi(test::progettoSemplice(), {0, Curva::taglio});
    EXPECT_EQ(figure<Area>(s, Elemento::curva).size(), 1U);
    EXPECT_EQ(figure<Linea>(s, Elemento::curva).size(), 2U);
    EXPECT_TRUE(dice(testi(s, Elemento::nota), "inviluppo delle fasi da 1 a 2  ·  scavo 5.00 m"));
}

TEST(Scena, NamesTheAnchorWhereItsForceHasNoRoom) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    const auto nomi = [&](Misura misura) {
        return testi(scena(parete, {2}, misura, MisuraStimata()), Elemento::tirante, 1);
    };
    EXPECT_TRUE(nomi({900, 580}).at(0).starts_with("T1  1.50 m  "));
    EXPECT_TRUE(nomi({480, 340}).at(0).starts_with("T1  "));
    EXPECT_TRUE(nomi({480, 340}).at(0).ends_with(" kN/m"));
    EXPECT_EQ(nomi({240, 160}).at(0), "T1");
}

// Of a strut the end lies where the whole label of a stage would begin.
TEST(Scena, ShortensTheNameOfAStageThatWouldCoverAStrut) {
    auto dati = test::progettoSemplice();
    dati.tipoTirante[1] = valore(project::TipoTirante::trazioneCompressione);
    dati.profFase[1] = dati.profTirante[1] + 0.3;
    const Scena s = scena(live::calcola(dati, 40), {2}, {480, 340}, MisuraStimata());
    EXPECT_TRUE(dice(testi(s, Elemento::fase, 1), "1  1.80 m"));
    EXPECT_TRUE(dice(testi(scena(live::calcola(dati, 40), {2}, {1600, 1000}, MisuraStimata()),
                           Elemento::fase, 1),
                     "fase 1  1.80 m"));
}

TEST(Scena, InANarrowPlaceHasNoDimensionsAndOfAStageItsOwnLevelAlone) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    const Opzioni stretta{.curva = false, .stretta = true, .parole = false};
    const Scena fase = scena(parete, {2}, {140, 360}, MisuraStimata(), stretta);
    EXPECT_TRUE(figure<Linea>(fase, Elemento::quota).empty());
    EXPECT_EQ(testi(fase, Elemento::fase), std::vector<std::string>{"5.00 m"});
    EXPECT_EQ(testi(fase, Elemento::tirante), std::vector<std::string>{"T1"});
    const Scena tutte = scena(parete, {0}, {140, 360}, MisuraStimata(), stretta);
    EXPECT_TRUE(dice(testi(tutte, Elemento::fase), "1  2.00 m"));
    EXPECT_TRUE(dice(testi(tutte, Elemento::fase), "2  5.00 m"));
}

// All three loads of the head, and layers whose names have no room.
TEST(Scena, InANarrowPlaceNamesLayersWholeOrByTheirNumberAndKeepsTheLoadsOfTheHead) {
    auto dati = test::progettoSemplice();
    dati.descrStrato[1] = "Sabbia limosa da fine a media ben addensata";
    dati.momentoTesta = -1;
    dati.sforzoNormale = 8;
    dati.forzaTesta = 1.5;
    const auto parete = live::calcola(dati, 40);
    const Opzioni stretta{.curva = false, .stretta = true, .parole = false};
    const Scena s = scena(parete, {2}, {260, 360}, MisuraStimata(), stretta);
    EXPECT_EQ(testi(s, Elemento::strato).at(0), "strato 1");
    EXPECT_EQ(testi(s, Elemento::caricoTesta).size(), 3U);
    EXPECT_TRUE(dice(testi(s, Elemento::caricoTesta), "M -10.0 kN m/m"));
    const Scena larga = scena(parete, {0}, {300, 360}, MisuraStimata(), stretta);
    EXPECT_TRUE(dice(testi(larga, Elemento::fase), "fase 1  2.00 m"));
    EXPECT_TRUE(dice(testi(larga, Elemento::fase), "fase 2  5.00 m"));
}

// A load on the excavation leaves its level the room for its name; where there is none, the first
// level alone says what the numbers are.
TEST(Scena, NamesALevelThatSeveralStagesShareBesideItsLoad) {
    auto dati = test::progettoSemplice();
    dati.nFasi = 3;
    dati.profFase[3] = dati.profFase[2];
    dati.tirantiFase[3] = dati.tirantiFase[2];
    dati.sovraccFase[2] = dati.sovraccFase[3] = 2;
    const auto parete = live::calcola(dati, 40);
    const Scena tutte =
        scena(parete, {0}, {400, 360}, MisuraStimata(), {.curva = false, .parole = false});
    EXPECT_TRUE(dice(testi(tutte, Elemento::fase), "fasi 2, 3  5.00 m"));
    const Scena stretta = scena(parete, {0}, {170, 360}, MisuraStimata(),
                                {.curva = false, .stretta = true, .parole = false});
    EXPECT_TRUE(dice(testi(stretta, Elemento::fase), "fase 1  2.00 m"));
    EXPECT_TRUE(dice(testi(stretta, Elemento::fase), "2, 3  5.00 m"))
        << testing::PrintToString(testi(stretta, Elemento::fase));
}

TEST(Scena, CanDoWithoutTheCurve) {
    const Scena s = scena(live::calcola(test::progettoSemplice(), 40), {2}, {300, 300},
                          MisuraStimata(), {.curva = false, .parole = false});
    EXPECT_TRUE(figure<Linea>(s, Elemento::curva).empty());
    EXPECT_TRUE(testi(s, Elemento::nota).empty() ||
                testi(s, Elemento::nota) == std::vector<std::string>{"EJ 120000 kN m²/m"});
    EXPECT_GT(pianta(s).sinistra, 0.5 * 300);
}

}  // namespace
}  // namespace korven::scene
