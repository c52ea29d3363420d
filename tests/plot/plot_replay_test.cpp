#include <gtest/gtest.h>

#include <limits>

#include "plot/plot_engine.hpp"
#include "support/plot_record.hpp"
#include "support/plot_setup.hpp"

// What the engine shows on a surface, while a drawing is made and when it is replayed.

namespace korven::plot {
namespace {

using Eventi = std::vector<std::string>;

// A surface on which a drawing of 20 x 10 cm has 50 pixels to the centimetre.
class Riproduzione : public test::ProvaPlot {
 protected:
    Riproduzione() { statoPlot.superficie = &superficie; }

    Eventi preso() { return std::exchange(superficie.eventi, {}); }
    static void disegna() {
        plotApri(0, 0, 20, 10);
        plotPenna(1);
        plotMuovi(1, 2, pennaSu);
        plotMuovi(3, 4, pennaGiu);
        plotPenna(5);
        plotMuovi(3, 5, pennaGiu);
        plotSimbolo(8, 9, 0.3, "Titolo", 90, conteggioCentrato);
        plotMuovi(0, 0, fineDisegno);
    }

    test::SuperficieRegistrata superficie{{1000, 500, 20}};
};

TEST_F(Riproduzione, DrawingAppearsWhileItIsMade) {
    disegna();
    EXPECT_EQ(preso(),
              (Eventi{"prepare 0.00 0.00 20.00 10.00 on 1000 500",
                      "sheet 0.00 0.00 21.00 29.70 colour 14474460",  // 220 220 220
                      "width 1", "line 1.00 2.00 3.00 4.00 colour 255",
                      "width 2",  // 0.05 cm of 50 pixels, rounded down
                      "line 3.00 4.00 3.00 5.00 colour 16711680",
                      "text 8.00 9.00 font -20 turn 900 centred colour 16711680 Arial \"Titolo\"",
                      "show"}));
}

TEST_F(Riproduzione, ReplayShowsTheSameAndStoresNothing) {
    disegna();
    const Eventi prima = preso();
    plotTutto();
    EXPECT_EQ(preso(), prima);
    EXPECT_EQ(statoPlot.archivio.lineeInMemoria().size(), 2U);
    EXPECT_EQ(statoPlot.archivio.testi().size(), 1U);
}

TEST_F(Riproduzione, StrokesOfACallerDuringAReplayAreShownButNotStored) {
    disegna();
    plotApri(0, 0, 20, 10, 1);
    preso();
    plotPenna(1);
    plotMuovi(1, 0, pennaGiu);
    plotSimbolo(1, 1, 0.3, "qui", 0, 3);
    EXPECT_EQ(preso().size(), 3U);  // width, line, text
    EXPECT_EQ(statoPlot.archivio.lineeInMemoria().size(), 2U);
    EXPECT_EQ(statoPlot.archivio.testi().size(), 1U);
}

TEST_F(Riproduzione, ZoomShowsTheRectangleAtItsScaleAndKeepsTheWholeDrawing) {
    disegna();
    preso();
    plotZoom(0, 0, 4, 2);  // 250 pixels to the centimetre
    EXPECT_EQ(preso(),
              (Eventi{"prepare 0.00 0.00 4.00 2.00 on 1000 500",
                      "sheet 0.00 0.00 21.00 29.70 colour 14474460", "width 2",
                      "line 1.00 2.00 3.00 4.00 colour 255", "width 12",
                      "line 3.00 4.00 3.00 5.00 colour 16711680",
                      "text 8.00 9.00 font -100 turn 900 centred colour 16711680 Arial \"Titolo\"",
                      "show"}));
    EXPECT_TRUE(statoPlot.zoom);
    EXPECT_EQ(statoPlot.finestra, (Riquadro{0, 0, 4, 2}));
    EXPECT_EQ(statoPlot.estensione, (Riquadro{0, 0, 20, 10}));
}

TEST_F(Riproduzione, FullViewComesBackUnchangedHoweverOftenEvenWithMargins) {
    ConfigurazionePlot c = test::configurazioneDiProva();
    c.margineSinistro = 2;
    c.margineSuperiore = 1;
    configura(c);
    disegna();
    const Riquadro tutto{0, -1, 22, 10};
    EXPECT_EQ(statoPlot.estensione, tutto);
    for (int volta = 0; volta < 3; ++volta) {
        plotZoom(1, 1, 3, 2);
        EXPECT_EQ(statoPlot.finestra, (Riquadro{1, 1, 3, 2}));
        plotTutto();
        EXPECT_FALSE(statoPlot.zoom);
        EXPECT_EQ(statoPlot.finestra, tutto);
        EXPECT_EQ(statoPlot.estensione, tutto);
    }
}

TEST_F(Riproduzione, NarrowWindowIsWidenedOnTheSurfaceAloneNotInTheWholeDrawing) {
    plotApri(0, 0, 1, 10);  // 50 pixels wide, raised to 6 tool strips: 120 pixels, 2.4 cm
    EXPECT_EQ(preso().front(), "prepare 0.00 0.00 2.40 10.00 on 120 500");
    EXPECT_EQ(statoPlot.finestra, (Riquadro{0, 0, 2.4, 10}));
    EXPECT_EQ(statoPlot.estensione, (Riquadro{0, 0, 1, 10}));
    plotMuovi(0, 0, fineDisegno);
    plotTutto();
    EXPECT_EQ(statoPlot.estensione, (Riquadro{0, 0, 1, 10}));
}

TEST_F(Riproduzione, EndOfADrawingTakesTheZoomOff) {
    disegna();
    plotZoom(1, 1, 3, 2);
    plotMuovi(0, 0, fineDisegno);
    EXPECT_FALSE(statoPlot.zoom);
}

TEST_F(Riproduzione, NewDrawingWhileAZoomWasLeftInForceHasItsOwnExtent) {
    disegna();
    plotZoom(1, 1, 3, 2);  // and the viewer is closed
    plotApri(0, 0, 30, 15);
    EXPECT_EQ(statoPlot.estensione, (Riquadro{0, 0, 30, 15}));
    EXPECT_FALSE(statoPlot.zoom);
}

TEST_F(Riproduzione, WhiteIsBlackOnTheSurface) {
    plotApri(0, 0, 20, 10);
    plotPenna(2);
    preso();
    plotMuovi(1, 0, pennaGiu);
    plotSimbolo(1, 1, 0.3, "nero", 0, 4);
    EXPECT_EQ(preso(), (Eventi{"width 1", "line 0.00 0.00 1.00 0.00 colour 0",
                               "text 1.00 1.00 font -20 turn 0 colour 0 Courier New \"nero\""}));
}

TEST_F(Riproduzione, TextTooSmallForAPixelIsWrittenWithHeightMinusOne) {
    plotApri(0, 0, 20, 10);
    plotPenna(1);
    preso();
    plotSimbolo(1, 1, 0.01, "a", 0, 1);  // half a pixel
    EXPECT_EQ(preso(), (Eventi{"text 1.00 1.00 font -1 turn 0 colour 255 Arial \"a\""}));
}

TEST_F(Riproduzione, PolygonsComeFirst) {
    disegna();
    statoPlot.archivio.aggiungi(PoligonoPlot{4, {}, nero});
    preso();
    plotTutto();
    EXPECT_EQ(preso().at(2), "polygon of 4");
}

TEST_F(Riproduzione, SpillFilesAreReplayedInTheOrderDrawn) {
    plotApri(0, 0, 20, 10);
    plotPenna(1);
    test::tracciaLinee(32002);
    plotMuovi(0, 0, fineDisegno);
    const Eventi prima = preso();
    plotTutto();
    EXPECT_TRUE(preso() == prima);
    EXPECT_EQ(prima.size(), 2U + 1 + 32002 + 1);
}

TEST_F(Riproduzione, LineOrTextWithoutAPlaceIsLeftOutAndTheOthersAreShown) {
    constexpr double nessuno = std::numeric_limits<double>::quiet_NaN();
    plotApri(0, 0, 20, 10);
    plotPenna(1);
    plotMuovi(nessuno, 0, pennaSu);
    plotMuovi(1, 1, pennaGiu);
    plotSimbolo(1, std::numeric_limits<double>::infinity(), 0.3, "a", 0, 1);
    plotSimbolo(1, 1, 0.3, "b", 0, 1);
    plotMuovi(2, 1, pennaGiu);
    plotMuovi(0, 0, fineDisegno);
    preso();
    plotTutto();
    const Eventi eventi = preso();
    EXPECT_EQ(Eventi(eventi.begin() + 2, eventi.end()),
              (Eventi{"width 1", "line 1.00 1.00 2.00 1.00 colour 255",
                      "text 1.00 1.00 font -20 turn 0 colour 255 Arial \"b\"", "show"}));
}

TEST_F(Riproduzione, NoSheetIsMarkedWhereThePrinterHasNone) {
    statoPlot.foglioStampante = {};
    plotApri(0, 0, 20, 10);
    EXPECT_EQ(preso().size(), 1U);
}

TEST_F(Riproduzione, WithoutASurfaceTheDrawingIsStoredAndReplayDoesNothing) {
    statoPlot.superficie = nullptr;
    disegna();
    plotZoom(1, 1, 3, 2);
    plotTutto();
    EXPECT_EQ(statoPlot.archivio.lineeInMemoria().size(), 2U);
    EXPECT_EQ(statoPlot.estensione, (Riquadro{0, 0, 20, 10}));
}

}  // namespace
}  // namespace korven::plot
