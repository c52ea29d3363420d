#include "drawings/result_diagram.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>
#include <vector>

#include "base/value_error.hpp"
#include "drawings/diagram_rows.hpp"
#include "plot/text_width.hpp"
#include "support/drawing_by_pen.hpp"
#include "support/wall_builder.hpp"

namespace korven::drawings {
namespace {

using analysis::Diagramma;
using test::cifre;
using test::polilinee;
using test::testiCon;
using Linee = std::vector<std::string>;

// A wall of 9.5 m in 5 segments: 2 cm of sheet to the metre, nodes at y 21.5, 17.7, 13.9, 10.1, 6.3
// and 2.5. One layer without cohesion, phi 30; two stages, excavated to 1.9 and 3.8 m; an anchor on
// the second node in stage 2.
results::DatiRelazione muro() {
    results::DatiRelazione d;
    d.progetto = test::muro()
                     .lungo(9.5)
                     .tirante(1.9, 100, 3)
                     .fase({.scavo = 1.9})
                     .fase({.scavo = 3.8, .tiranti = 1})
                     .dati();
    for (int i = 1; i <= 6; ++i) d.progetto.titoli[i] = "riga " + std::to_string(i);
    d.nNodi = 6;
    d.passo = 1.9;
    d.fasi.resize(2);
    d.azioni.resize(2);
    d.azioni[1].nTiranti = 1;
    return d;
}

void nodi(analysis::VettoreNodi& valori, const std::vector<double>& scritti) {
    for (std::size_t i = 0; i < scritti.size(); ++i) valori[static_cast<int>(i + 1)] = scritti[i];
}

class Disegno : public test::ProvaPlot {
 protected:
    Disegno() { configura(test::penneNere()); }

    results::DatiRelazione dati = muro();
};

TEST_F(Disegno, HasTheSixHeadingsAndItsTitleOnTop) {
    disegnaDiagramma(Diagramma::momenti, dati, 0);
    EXPECT_EQ(
        testiCon("riga"),
        (Linee{"\"riga 1\" 10.000 26.000 h 0.50 centred", "\"riga 2\" 10.000 25.500 h 0.30 centred",
               "\"riga 3\" 10.000 25.000 h 0.30 centred", "\"riga 4\" 10.000 24.500 h 0.30 centred",
               "\"riga 5\" 10.000 24.000 h 0.30 centred",
               "\"riga 6\" 10.000 23.500 h 0.30 centred"}));
    EXPECT_EQ(testiCon("DIAGRAMMA"),
              (Linee{"\"DIAGRAMMA DEI MOMENTI\" 10.000 22.300 h 0.40 centred"}));
}

TEST_F(Disegno, HasATitleAndAUnitOfItsOwnForEachResult) {
    const std::tuple<Diagramma, const char*, const char*> righe[] = {
        {Diagramma::pressioni, "\"DIAGRAMMA DELLE PRESSIONI\"", "\"[kN/m²]\" 18.300 1.700 h 0.20"},
        {Diagramma::spostamenti, "\"DIAGRAMMA DEGLI SPOSTAMENTI\"", "\"[cm]\" 18.300 1.700 h 0.20"},
        {Diagramma::momenti, "\"DIAGRAMMA DEI MOMENTI\"", "\"[kN m]\" 18.300 1.700 h 0.20"},
        {Diagramma::taglio, "\"DIAGRAMMA DEL TAGLIO\"", "\"[kN]\" 18.300 1.700 h 0.20"},
    };
    for (const auto& [diagramma, titolo, unita] : righe) {
        disegnaDiagramma(diagramma, dati, 0);
        EXPECT_EQ(testiCon(titolo).size(), 1u) << titolo;
        EXPECT_EQ(testiCon("["), Linee{unita});
    }
}

TEST_F(Disegno, HasAFrameOfTwoAxesAndTheWallWithTheGroundUphill) {
    disegnaDiagramma(Diagramma::momenti, dati, 0);
    EXPECT_EQ(polilinee(4), Linee{"1.500 22.000, 1.500 2.000, 18.500 2.000"});
    EXPECT_EQ(polilinee(7), Linee{"10.000 2.500, 10.000 21.500, 2.000 21.500"});
}

TEST_F(Disegno, MarksTheValuesInKilonewtonsAtEachTenthTick) {
    nodi(dati.fasi[0].momentoNodo, {0, 16});  // 1 cm of sheet is 2 t m
    disegnaDiagramma(Diagramma::momenti, dati, 0);
    EXPECT_EQ(testiCon("0\" 5.000"), Linee{"\"-100\" 5.000 1.700 h 0.20 centred"});
    EXPECT_EQ(testiCon("\"0\" 10.000"), Linee{"\"0\" 10.000 1.700 h 0.20 centred"});
    EXPECT_EQ(testiCon("\"100\" 15.000"), Linee{"\"100\" 15.000 1.700 h 0.20 centred"});
    const auto tacche = polilinee(6);
    EXPECT_EQ(tacche[0], "2.000 2.000, 2.000 2.100") << "-16 is no tenth tick";
    EXPECT_EQ(tacche[6], "5.000 2.000, 5.000 2.200");
    EXPECT_EQ(tacche[32], "18.000 2.000, 18.000 2.100");
    EXPECT_EQ(tacche[33], "1.500 21.500, 1.700 21.500") << "the first of the depths";
}

TEST_F(Disegno, MarksDisplacementsInCentimetres) {
    nodi(dati.fasi[0].yNodo, {0, 0.0032});
    disegnaDiagramma(Diagramma::spostamenti, dati, 0);
    // 0.32 cm: ticks of 0.01 to 0.32, 25 cm of sheet to the centimetre.
    EXPECT_EQ(testiCon("\"0.1\""), Linee{"\"0.1\" 12.500 1.700 h 0.20 centred"});
    EXPECT_EQ(testiCon("\"-0.3\""), Linee{"\"-0.3\" 2.500 1.700 h 0.20 centred"});
}

TEST_F(Disegno, MarksEachTenthOfAMetreAndNumbersTheMetres) {
    disegnaDiagramma(Diagramma::momenti, dati, 0);
    const auto numeri = testiCon("angle 90");
    ASSERT_EQ(numeri.size(), 10u);
    EXPECT_EQ(numeri.front(), "\"0\" 1.400 21.500 h 0.20 angle 90 centred");
    EXPECT_EQ(numeri.back(), "\"9\" 1.400 3.500 h 0.20 angle 90 centred");
    const auto tacche = polilinee(6);
    EXPECT_EQ(tacche.back(), "1.500 2.500, 1.600 2.500") << "the toe";
    EXPECT_EQ(tacche[tacche.size() - 6], "1.500 3.500, 1.700 3.500") << "9 m";
}

TEST_F(Disegno, WritesMWhereALongerUnitWouldEndAtTheAxis) {
    disegnaDiagramma(Diagramma::momenti, dati, 0);
    const double larghezza = plot::MetricaStimata().larghezza("Arial", 0.2, "[m]");
    EXPECT_EQ(testiCon("\"m\""), Linee{"\"m\" " + cifre(1.4 - larghezza, 3) + " 21.800 h 0.20"});
}

TEST_F(Disegno, DrawsEachStageInItsPenFromTopToToe) {
    nodi(dati.fasi[0].yNodo, {0.08, 0.06, 0.04, 0.02, 0, -0.01});
    nodi(dati.fasi[1].yNodo, {0, 0.01, 0.02, 0.01, 0, 0});
    disegnaDiagramma(Diagramma::spostamenti, dati, 0);
    EXPECT_EQ(polilinee(15),
              (Linee{"10.000 17.700, 18.000 17.700",
                     "18.000 21.500, 16.000 17.700, 14.000 13.900, 12.000 10.100, 10.000 6.300, "
                     "9.000 2.500"}));
    EXPECT_EQ(polilinee(16).back(),
              "10.000 21.500, 11.000 17.700, 12.000 13.900, 11.000 10.100, 10.000 6.300, "
              "10.000 2.500");
}

TEST_F(Disegno, NamesTheStageAtTheRightEndOfItsExcavationLevel) {
    disegnaDiagramma(Diagramma::momenti, dati, 0);
    const double larghezza = plot::MetricaStimata().larghezza("Arial", 0.25, "Fase di scavo n. 2");
    EXPECT_EQ(testiCon("scavo n. 2"),
              Linee{"\"Fase di scavo n. 2\" " + cifre(18 - larghezza, 3) + " 14.025 h 0.25"});
    EXPECT_EQ(polilinee(16).front(), "10.000 13.900, 18.000 13.900");
}

TEST_F(Disegno, NumbersAnAnchorByTheStageInWhichItComesIntoPlace) {
    disegnaDiagramma(Diagramma::momenti, dati, 0);
    EXPECT_EQ(testiCon("Tirante"), Linee{"\"Tirante n. 2\" 2.000 17.325 h 0.25"});
    EXPECT_EQ(polilinee(16)[1], "10.000 17.700, 2.000 17.700");
}

TEST_F(Disegno, GivesAllAnchorsOfAStageTheSameLabel) {
    dati.progetto.profTirante[2] = 6;  // nearest node at 5.7 m
    dati.azioni[1].nTiranti = 2;
    disegnaDiagramma(Diagramma::momenti, dati, 0);
    EXPECT_EQ(testiCon("Tirante"), (Linee{"\"Tirante n. 2\" 2.000 17.325 h 0.25",
                                          "\"Tirante n. 2\" 2.000 9.725 h 0.25"}));
}

TEST_F(Disegno, OfOneStageHasItsCurvesAlone) {
    disegnaDiagramma(Diagramma::momenti, dati, 1);
    EXPECT_EQ(polilinee(15).size(), 2u);
    EXPECT_EQ(testiCon("scavo"), testiCon("scavo n. 1"));
}

TEST_F(Disegno, OfOneStageHasTheAnchorsOfThatStageAndOfLaterOnes) {
    disegnaDiagramma(Diagramma::momenti, dati, 1);
    EXPECT_EQ(testiCon("Tirante").size(), 1u);
    dati.progetto.nFasi = 3;
    dati.progetto.tirantiFase[3] = 1;
    dati.fasi.resize(3);
    dati.azioni.push_back(dati.azioni[1]);
    disegnaDiagramma(Diagramma::momenti, dati, 3);
    EXPECT_TRUE(testiCon("Tirante").empty()) << "it came into place in stage 2";
}

TEST_F(Disegno, OfAStageThatDoesNotExistIsAnEmptyFrame) {
    disegnaDiagramma(Diagramma::momenti, dati, 3);
    EXPECT_TRUE(polilinee(15).empty());
    EXPECT_TRUE(polilinee(16).empty());
    EXPECT_TRUE(testiCon("Tirante").empty());
    EXPECT_FALSE(polilinee(4).empty());
}

TEST_F(Disegno, SharesPen30AmongTheStagesFromTheSixteenthOn) {
    dati.progetto.nFasi = 18;
    dati.fasi.resize(18);
    dati.azioni.resize(18);
    disegnaDiagramma(Diagramma::momenti, dati, 0);
    EXPECT_EQ(polilinee(29).size(), 2u) << "stage 15";
    EXPECT_EQ(polilinee(30).size(), 6u) << "stages 16 to 18";
}

TEST_F(Disegno, OfAWallThatStandsStillHasAScaleOfATenthOfAMillimetre) {
    disegnaDiagramma(Diagramma::spostamenti, dati, 0);
    EXPECT_EQ(testiCon("\"0.01\""), Linee{"\"0.01\" 18.000 1.700 h 0.20 centred"});
}

TEST_F(Disegno, OfAWallThatMovesUphillHasNoTicksAndLooksFromTheOtherSide) {
    nodi(dati.fasi[0].yNodo, {-0.08, 0, 0, 0, 0, 0});
    disegnaDiagramma(Diagramma::spostamenti, dati, 0);
    EXPECT_TRUE(testiCon("centred").size() == 17u) << "headings, title and metres alone";
    EXPECT_TRUE(polilinee(15)[1].starts_with("18.000 21.500, 10.000"));
}

// Uphill sigma 10, k0 0.5, ka 0.25, kp 1.6; downhill the negative of it. At rest everywhere.
void terreno(analysis::RisultatiFase& fase) {
    for (int i = 1; i <= 6; ++i) {
        fase.sigmaVm[i] = 10, fase.k0m[i] = 0.5, fase.kam[i] = 0.25, fase.kpm[i] = 1.6;
        if (i < 2) continue;
        fase.sigmaVv[i] = 10, fase.k0v[i] = -0.5, fase.kav[i] = -0.25, fase.kpv[i] = -1.6;
    }
}

TEST_F(Disegno, OfPressuresHasTheUphillSideUphillBetweenItsLimits) {
    for (auto& fase : dati.fasi) terreno(fase);
    disegnaDiagramma(Diagramma::pressioni, dati, 1);
    // vDati 16, half a centimetre of sheet to the t/m2.
    EXPECT_EQ(polilinee(8)[0],
              "8.750 21.500, 8.750 17.700, 8.750 13.900, 8.750 10.100, 8.750 6.300, 8.750 2.500");
    EXPECT_TRUE(polilinee(9)[0].starts_with("2.000 21.500, 2.000 17.700"));
    EXPECT_TRUE(polilinee(15)[1].starts_with("7.500 21.500, 7.500 17.700"));
}

TEST_F(Disegno, OfPressuresBeginsDownhillAtTheExcavationLevel) {
    for (auto& fase : dati.fasi) terreno(fase);
    disegnaDiagramma(Diagramma::pressioni, dati, 2);
    const std::string fondo = "11.250 10.100, 11.250 6.300, 11.250 2.500";
    EXPECT_EQ(polilinee(8)[1], "11.250 13.900, " + fondo);
    EXPECT_TRUE(polilinee(9)[1].starts_with("18.000 13.900, 18.000 10.100"));
    EXPECT_TRUE(polilinee(16).back().starts_with("12.500 13.900, 12.500 10.100"));
}

TEST_F(Disegno, OfShearStepsByTheForceOfTheAnchor) {
    dati.Vmax = 32;  // 1 cm of sheet is 4 t
    nodi(dati.azioni[1].taglioNodo, {0, 8, 4, 0, -4, 0});
    nodi(dati.fasi[1].yNodo, {0, 0.02, 0, 0, 0, 0});
    dati.azioni[1].yTirante[1] = 0.01;  // force 3 + 100 * 0.01 = 4
    disegnaDiagramma(Diagramma::taglio, dati, 2);
    EXPECT_EQ(polilinee(16).back(),
              "10.000 21.500, 11.000 17.700, 12.000 17.700, 11.000 13.900, 10.000 10.100, "
              "9.000 6.300, 10.000 2.500");
}

TEST_F(Disegno, OfValuesThatNoSheetHoldsIsRefused) {
    nodi(dati.fasi[0].momentoNodo, {0, 1e308});
    EXPECT_THROW(disegnaDiagramma(Diagramma::momenti, dati, 0), base::ErroreValore);
    nodi(dati.fasi[0].yNodo, {0, 1e307});  // in centimetres it is beyond all numbers
    EXPECT_THROW(disegnaDiagramma(Diagramma::spostamenti, dati, 0), base::ErroreValore);
    dati.progetto.lunghezzaParatia = 1e9;
    EXPECT_THROW(disegnaDiagramma(Diagramma::taglio, dati, 0), base::ErroreValore);
}

TEST(RigaDiagramma, IsThereOnceForEachDiagramInTheOrderOfTheirNumbers) {
    ASSERT_EQ(diagrammi().size(), 4u);
    int numero = 0;
    for (const RigaDiagramma& riga : diagrammi()) {
        EXPECT_EQ(static_cast<int>(riga.diagramma), ++numero);
        EXPECT_EQ(&rigaDiagramma(riga.diagramma), &riga);
    }
    EXPECT_EQ(rigaDiagramma(Diagramma::taglio).nome.italiano, "taglio");
    EXPECT_EQ(rigaDiagramma(Diagramma::taglio).nome.inglese, "shear");
}

// Only the displacements have an axis in the unit that is shown.
TEST(RigaDiagramma, ShowsTheNumbersOfItsAxisByTheFactorOfItsUnit) {
    for (const RigaDiagramma& riga : diagrammi())
        EXPECT_EQ(riga.unita.fattore, riga.diagramma == Diagramma::spostamenti ? 1 : 10)
            << riga.nome.italiano;
}

TEST(ValoreDiScala, OfPressuresIsThePassivePressureAtTheToeInTheLastStage) {
    auto dati = muro();
    dati.progetto.coesione[1] = 1;
    dati.fasi[0].sigmaVm[6] = 100;
    dati.fasi[1].sigmaVm[6] = 10;
    dati.fasi[1].kpm[6] = 3;
    EXPECT_NEAR(rigaDiagramma(Diagramma::pressioni).valoreDiScala(dati), 30 + 2 * std::sqrt(3.),
                1e-12);
}

TEST(ValoreDiScala, OfDisplacementsKeepsTheSignOfTheLargerExtreme) {
    auto dati = muro();
    nodi(dati.fasi[0].yNodo, {0.01, -0.02});
    nodi(dati.fasi[1].yNodo, {0.015});
    EXPECT_DOUBLE_EQ(rigaDiagramma(Diagramma::spostamenti).valoreDiScala(dati), -2);
    nodi(dati.fasi[1].yNodo, {0.02});
    EXPECT_DOUBLE_EQ(rigaDiagramma(Diagramma::spostamenti).valoreDiScala(dati), 2);
}

TEST(ValoreDiScala, OfMomentsIsTheLargerSizeOfAllStages) {
    auto dati = muro();
    nodi(dati.fasi[0].momentoNodo, {5, -30});
    nodi(dati.fasi[1].momentoNodo, {20, 0});
    EXPECT_EQ(rigaDiagramma(Diagramma::momenti).valoreDiScala(dati), 30);
}

TEST(ValoreDiScala, OfShearIsThatOfTheLastStageAlone) {
    auto dati = muro();
    nodi(dati.azioni[0].taglioNodo, {90});
    dati.azioni[0].estremi = {.vMin = 0, .vMax = 90};
    dati.Vmax = 12;
    EXPECT_EQ(rigaDiagramma(Diagramma::taglio).valoreDiScala(dati), 12);
}

}  // namespace
}  // namespace korven::drawings
