#include "plot/plot_engine.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/file_error.hpp"
#include "base/table.hpp"
#include "plot/drawing_stop.hpp"
#include "plot/spill_files.hpp"
#include "support/plot_record.hpp"
#include "support/plot_setup.hpp"

namespace korven::plot {
namespace {

constexpr Colore rossoPieno = 255;
constexpr Colore bluPieno = 255 * 65536;

class MotorePlot : public test::ProvaPlot {
 protected:
    static const std::vector<Segmento>& linee() { return statoPlot.archivio.lineeInMemoria(); }
    static const std::vector<TestoPlot>& testi() { return statoPlot.archivio.testi(); }
    static Tratto tratto(std::size_t i) {
        const Segmento& s = linee().at(i);
        return {{s.x1, s.y1}, {s.x2, s.y2}};
    }
    void configuraMargini(double sinistro, double superiore) const {
        ConfigurazionePlot c = test::configurazioneDiProva();
        c.margineSinistro = sinistro;
        c.margineSuperiore = superiore;
        configura(c);
    }
};

TEST_F(MotorePlot, PenDownDrawsFromTheLastPositionAndPenUpOnlyMoves) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotMuovi(1, 2, pennaSu);
    plotMuovi(3, 4, pennaGiu);
    plotMuovi(5, 6, pennaGiu);
    plotMuovi(7, 8, pennaSu);
    plotMuovi(9, 8, pennaGiu);
    plotMuovi(0, 0, fineDisegno);
    EXPECT_EQ(linee(), (std::vector<Segmento>{{1, 2, 3, 4, rossoPieno, 0.01},
                                              {3, 4, 5, 6, rossoPieno, 0.01},
                                              {7, 8, 9, 8, rossoPieno, 0.01}}));
}

TEST_F(MotorePlot, MinusThreeMovesTheOriginAndTheNextLineStartsAtItsZero) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotMuovi(3, 5, pennaSuOrigine);
    plotMuovi(2, 1, pennaGiu);
    plotMuovi(1, 1, pennaSuOrigine);  // the origin moves from where it is
    plotMuovi(2, 0, pennaGiu);
    ASSERT_EQ(linee().size(), 2U);
    EXPECT_EQ(tratto(0), (Tratto{{3, 5}, {5, 6}}));
    EXPECT_EQ(tratto(1), (Tratto{{4, 6}, {6, 6}}));
}

TEST_F(MotorePlot, MinusTwoDrawsAndThenMovesTheOrigin) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotMuovi(1, 1, pennaSu);
    plotMuovi(4, 2, pennaGiuOrigine);
    plotMuovi(1, 0, pennaGiu);
    ASSERT_EQ(linee().size(), 2U);
    EXPECT_EQ(tratto(0), (Tratto{{1, 1}, {4, 2}}));
    EXPECT_EQ(tratto(1), (Tratto{{4, 2}, {5, 2}}));
}

TEST_F(MotorePlot, OriginStartsAnewWithEachDrawing) {
    plotApri(0, 0, 19, 27);
    plotMuovi(3, 5, pennaSuOrigine);
    plotMuovi(0, 0, fineDisegno);
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotMuovi(2, 1, pennaGiu);
    EXPECT_EQ(tratto(0), (Tratto{{0, 0}, {2, 1}}));
}

TEST_F(MotorePlot, PenOfColourZeroMovesAndLeavesNoTrace) {
    plotApri(0, 0, 19, 27);
    plotPenna(3);
    plotMuovi(1, 1, pennaSu);
    plotMuovi(2, 2, pennaGiu);
    plotSimbolo(1, 1, 0.3, "nascosto", 0, 8);
    plotSimbolo(1, 1, 0.3, "3", 0, conteggioSimbolo);
    plotMuovi(5, 5, pennaGiu);
    EXPECT_TRUE(linee().empty());
    EXPECT_TRUE(testi().empty());
    plotPenna(1);
    plotMuovi(6, 5, pennaGiu);  // from where the unseen pen went
    EXPECT_EQ(tratto(0), (Tratto{{5, 5}, {6, 5}}));
}

TEST_F(MotorePlot, WhiteIsStoredAsBlackForLinesAndTexts) {
    plotApri(0, 0, 19, 27);
    plotPenna(2);
    plotMuovi(1, 0, pennaGiu);
    plotSimbolo(1, 1, 0.3, "nero", 0, 4);
    ASSERT_EQ(linee().size(), 1U);
    EXPECT_EQ(linee()[0].colore, nero);
    ASSERT_EQ(testi().size(), 1U);
    EXPECT_EQ(testi()[0].colore, nero);
    EXPECT_EQ(statoPlot.penna.colore, bianco);  // the pen itself keeps its colour
}

TEST_F(MotorePlot, PensAboveThirtyAreThirtyAndRowZeroDrawsNothing) {
    plotApri(0, 0, 19, 27);
    plotPenna(45);
    EXPECT_EQ(statoPlot.penna, statoPlot.penne[30]);
    plotMuovi(1, 0, pennaGiu);
    EXPECT_EQ(linee().at(0).spessore, 3.0 / 10);
    plotPenna(0);
    plotMuovi(2, 0, pennaGiu);
    EXPECT_EQ(linee().size(), 1U);
    EXPECT_THROW(plotPenna(-1), base::ErroreIndice);
}

TEST_F(MotorePlot, PenWithAColourOfItsOwnKeepsWidthAndFontOfItsRow) {
    plotApri(0, 0, 19, 27);
    plotPennaRgb(4, 4711);
    EXPECT_EQ(statoPlot.penna, (PennaPlot{4711, statoPlot.penne[4].spessore, "Courier New"}));
    plotPennaRgb(99, bianco);
    plotMuovi(1, 0, pennaGiu);
    EXPECT_EQ(linee().at(0).colore, nero);
    plotPennaRgb(1, nonDisegnato);
    plotMuovi(2, 0, pennaGiu);
    EXPECT_EQ(linee().size(), 1U);
    plotPenna(4);
    EXPECT_EQ(statoPlot.penna.colore, bluPieno);
}

TEST_F(MotorePlot, APenOfNoTableDrawsAsItSays) {
    plotApri(0, 0, 10, 10);
    plotPenna({daRgb(10, 20, 30), 0.035, "Arial"});
    plotMuovi(1, 1, pennaSu);
    plotMuovi(2, 1, pennaGiu);
    ASSERT_EQ(statoPlot.archivio.lineeInMemoria().size(), 1u);
    EXPECT_EQ(statoPlot.archivio.lineeInMemoria()[0].colore, daRgb(10, 20, 30));
    EXPECT_EQ(statoPlot.archivio.lineeInMemoria()[0].spessore, 0.035);
}

TEST_F(MotorePlot, AFilledPolygonIsStoredFromTheOriginInItsColourAndShownBelowTheLines) {
    test::SuperficieRegistrata superficie({1000, 1000, 50});
    statoPlot.superficie = &superficie;
    plotApri(0, 0, 10, 10);
    plotMuovi(2, 3, pennaSuOrigine);
    const Punto vertici[] = {{0, 0}, {1, 0}, {1, 1}};
    plotPoligono(vertici, nero);
    EXPECT_EQ(superficie.eventi.back(), "polygon of 3");
    plotPoligono(vertici, bianco);
    plotMuovi(0, 0, fineDisegno);
    const auto& poligoni = statoPlot.archivio.poligoni();
    ASSERT_EQ(poligoni.size(), 2u);
    EXPECT_EQ(poligoni[0].vertici[2],
              (Punto{3 + statoPlot.scostamentoX, 4 - statoPlot.scostamentoY}));
    EXPECT_EQ(poligoni[0].colore, nero);
    EXPECT_EQ(poligoni[1].colore, bianco);
}

TEST_F(MotorePlot, OffsetsShiftLinesAndTextsRightAndDownAndWidenTheWindow) {
    configuraMargini(1.5, 0.5);
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotMuovi(1, 1, pennaSuOrigine);
    plotMuovi(2, 3, pennaGiu);
    plotSimbolo(1, 1, 0.3, "qui", 0, 3);
    EXPECT_EQ(tratto(0), (Tratto{{2.5, 0.5}, {4.5, 3.5}}));
    EXPECT_EQ(testi().at(0).x, 3.5);
    EXPECT_EQ(testi().at(0).y, 1.5);
    EXPECT_EQ(statoPlot.finestra, (Riquadro{0, -0.5, 20.5, 27}));
    EXPECT_EQ(statoPlot.estensione, (Riquadro{0, -0.5, 20.5, 27}));
}

TEST_F(MotorePlot, TextIsStoredAsItIsWithTheFontOfThePen) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotSimbolo(2, 3, 0.4, " città ", 90, conteggioCentrato);
    plotPenna(4);
    plotSimbolo(4, 5, 0.2, "m", -30, 1);
    EXPECT_EQ(testi(), (std::vector<TestoPlot>{{2, 3, 0.4, 90, -2, " città ", rossoPieno, "Arial"},
                                               {4, 5, 0.2, -30, 1, "m", bluPieno, "Courier New"}}));
}

TEST_F(MotorePlot, TextDoesNotMoveThePen) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotMuovi(1, 1, pennaSu);
    plotSimbolo(8, 8, 0.4, "altrove", 0, 7);
    plotMuovi(2, 1, pennaGiu);
    EXPECT_EQ(tratto(0), (Tratto{{1, 1}, {2, 1}}));
}

TEST_F(MotorePlot, MarkerIsDrawnAboutItsPointAndLeavesThePenThere) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotMuovi(10, 10, pennaSuOrigine);
    plotSimbolo(1, 2, 0.5, "3", 0, conteggioSimbolo);
    plotMuovi(5, 2, pennaGiu);
    ASSERT_EQ(linee().size(), 3U);
    EXPECT_EQ(tratto(0), (Tratto{{10.75, 12}, {11.25, 12}}));
    EXPECT_EQ(tratto(1), (Tratto{{11, 12.25}, {11, 11.75}}));
    EXPECT_EQ(tratto(2), (Tratto{{11, 12}, {15, 12}}));
    EXPECT_TRUE(testi().empty());
}

TEST_F(MotorePlot, UnknownMarkerDrawsNothingAndDoesNotMoveThePen) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotMuovi(1, 1, pennaSu);
    for (const char* codice : {"0", "17", "-2", "", "x"})
        plotSimbolo(5, 5, 1, codice, 0, conteggioSimbolo);
    plotMuovi(2, 1, pennaGiu);
    ASSERT_EQ(linee().size(), 1U);
    EXPECT_EQ(tratto(0), (Tratto{{1, 1}, {2, 1}}));
}

TEST_F(MotorePlot, NumberIsWrittenAsATextThatStartsAtItsPoint) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotNumero(2, 3, 0.2, -1.5, 90, 2);
    plotNumero(2, 3, 0.2, 7, 0, -1);
    EXPECT_EQ(testi(), (std::vector<TestoPlot>{{2, 3, 0.2, 90, 5, "-1.50", rossoPieno, "Arial"},
                                               {2, 3, 0.2, 0, 1, "7", rossoPieno, "Arial"}}));
}

TEST_F(MotorePlot, PenStartsAtValuesThatNoRowHas) {
    plotApri(0, 0, 19, 27);
    EXPECT_EQ(statoPlot.penna.colore, -1);
    EXPECT_EQ(statoPlot.penna.spessore, -1);
    EXPECT_TRUE(statoPlot.penna.carattere.empty());
}

TEST_F(MotorePlot, NewDrawingForgetsTheOneBefore) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotMuovi(1, 0, pennaGiu);
    plotSimbolo(1, 1, 0.3, "vecchio", 0, 7);
    plotMuovi(0, 0, fineDisegno);
    plotApri(0, 0, 20, 28.5);
    EXPECT_TRUE(linee().empty());
    EXPECT_TRUE(testi().empty());
    EXPECT_EQ(statoPlot.estensione, (Riquadro{0, 0, 20, 28.5}));
}

TEST_F(MotorePlot, ConfigurationIsReadAnewForEachDrawing) {
    plotApri(0, 0, 19, 27);
    EXPECT_EQ(statoPlot.penne[1].colore, rossoPieno);
    ConfigurazionePlot c = test::configurazioneDiProva();
    c.colori[1].valore = 4711;
    configura(c);
    plotApri(0, 0, 19, 27);
    EXPECT_EQ(statoPlot.penne[1].colore, 4711);
}

TEST_F(MotorePlot, MissingConfigurationIsAnErrorAndLeavesTheDrawingBefore) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotMuovi(1, 0, pennaGiu);
    plotMuovi(0, 0, fineDisegno);
    base::impostaCartellaProgramma(programma / "altrove");
    EXPECT_THROW(plotApri(0, 0, 5, 5), base::ErroreFile);
    EXPECT_EQ(linee().size(), 1U);
    EXPECT_EQ(statoPlot.estensione, (Riquadro{0, 0, 19, 27}));
}

TEST_F(MotorePlot, Line32001GoesAfterAFirstSpillFileAndTheEndWritesTheSecond) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    test::tracciaLinee(32000);
    EXPECT_EQ(statoPlot.archivio.nFileScarico(), 0);
    test::tracciaLinee(1, 32000);
    EXPECT_EQ(statoPlot.archivio.nFileScarico(), 1);
    EXPECT_EQ(linee().size(), 1U);
    plotMuovi(0, 0, fineDisegno);
    EXPECT_EQ(statoPlot.archivio.nFileScarico(), 2);
    EXPECT_EQ(leggiScarico(percorsoFileScarico(1)).size(), 32000U);
    EXPECT_EQ(leggiScarico(percorsoFileScarico(2)),
              (std::vector<Segmento>{{32000, 0, 32000, 1, rossoPieno, 0.01}}));
}

TEST_F(MotorePlot, Text2001IsRefusedInWordsThatNameTheLimit) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    for (int i = 0; i < 2000; ++i) plotSimbolo(1, 1, 0.3, "t", 0, 1);
    try {
        plotSimbolo(1, 1, 0.3, "t", 0, 1);
        FAIL() << "no error";
    } catch (const base::ErroreIndice& errore) {
        EXPECT_STREQ(errore.what(), "il disegno ha più testi di quanti ne possa tenere: 2000");
    }
}

TEST_F(MotorePlot, LabelWidthIsThatOfTheFontInUseUnlessADeviceMeasures) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);  // Arial
    const double arial = larghezzaTesto(0.2, "iii");
    plotPenna(4);  // Courier New
    EXPECT_GT(larghezzaTesto(0.2, "iii"), arial);

    struct DueCentimetri : MetricaTesto {
        double larghezza(std::string_view, double, std::string_view) const override { return 2; }
    };
    const DueCentimetri metrica;
    statoPlot.metrica = &metrica;
    EXPECT_EQ(larghezzaTesto(0.2, "iii"), 2);
}

struct SempreFermo : SorvegliaDisegno {
    void inizia() override { ++iniziati; }
    bool fermare() override { return true; }
    void finita() override { ++finiti; }
    int iniziati = 0, finiti = 0;
};

TEST_F(MotorePlot, AnInterruptEndsADrawingAtItsNextLine) {
    plotApri(0, 0, 10, 10);
    plotPenna(1);
    SempreFermo sorveglia;
    statoPlot.sorveglia = &sorveglia;
    plotMuovi(1, 1, pennaSu);
    EXPECT_THROW(plotMuovi(2, 2, pennaGiu), DisegnoInterrotto);
}

TEST_F(MotorePlot, AnInterruptEndsAReplayWithThePartThatIsShown) {
    plotApri(0, 0, 10, 10);
    plotPenna(1);
    test::tracciaLinee(2);
    plotMuovi(0, 0, fineDisegno);
    test::SuperficieRegistrata superficie({1000, 1000, 50});
    statoPlot.superficie = &superficie;
    SempreFermo sorveglia;
    statoPlot.sorveglia = &sorveglia;
    EXPECT_THROW(plotTutto(), DisegnoInterrotto);
    EXPECT_EQ(superficie.eventi.back(), "show");
    EXPECT_EQ(sorveglia.iniziati, 1);
    EXPECT_EQ(sorveglia.finiti, 1);
    EXPECT_FALSE(LavoroDisegno::inCorso());
}

}  // namespace
}  // namespace korven::plot
