#include "plot/plot_print.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "base/file_error.hpp"
#include "plot/plot_engine.hpp"
#include "support/dialog_double.hpp"
#include "support/plot_record.hpp"
#include "support/plot_setup.hpp"

namespace korven::plot {
namespace {

using Eventi = std::vector<std::string>;

// A sheet of 20 x 30 cm with 100 pixels to the centimetre; 5.67 twips to the pixel.
constexpr MisureStampante a100pixel{200, 300, 2000, 3000, 20 * 567.0, 30 * 567.0, 5.67, 4};

MisureStampante monocromatica() {
    MisureStampante m = a100pixel;
    m.pianiColore = 1;
    return m;
}

class Stampa : public test::ProvaPlot {
 protected:
    static void disegna(double larghezza, double altezza) {
        plotApri(0, 0, larghezza, altezza);
        plotPenna(5);
        plotMuovi(1, altezza - 1, pennaSu);
        plotMuovi(3, altezza - 2, pennaGiu);
        plotSimbolo(8, altezza - 4, 0.3, "Titolo", 90, conteggioCentrato);
        plotMuovi(0, 0, fineDisegno);
    }
    static Eventi stampata(bool adatta, const MisureStampante& misure = a100pixel) {
        test::StampanteRegistrata stampante(misure);
        test::DialogoFinto dialogo;
        plotStampa(adatta, stampante, dialogo);
        return stampante.eventi;
    }
    static long pagine(const Eventi& eventi) {
        return std::count(eventi.begin(), eventi.end(), "page");
    }
};

TEST_F(Stampa, FullSizePrintsLinesAndTextsWhereTheyAreFromTheUpperLeftCorner) {
    disegna(19, 27);
    EXPECT_EQ(stampata(false),
              (Eventi{"page", "pen 16711680 width 5",  // 0.05 cm of 100 pixels
                      "line 100 100 300 200",
                      "font 50.00 turn 900 Arial",  // 5/3 of 0.3 cm of 100 pixels
                      "text 800 400 centred colour 16711680 \"Titolo\"", "page end", "end"}));
}

TEST_F(Stampa, DrawingTwoCentimetresWiderThanTheSheetTakesTwoSheets) {
    disegna(22, 27);
    const Eventi eventi = stampata(false);
    EXPECT_EQ(pagine(eventi), 2);
    EXPECT_EQ(std::count(eventi.begin(), eventi.end(), "page end"), 2);
    EXPECT_EQ(std::count(eventi.begin(), eventi.end(), "end"), 1);
}

TEST_F(Stampa, SheetsOverlapByACentimetreAndGoRowByRow) {
    plotApri(0, 0, 39, 31);  // 2 x 2 sheets: 2 * 20 - 1 = 39, 2 * 30 - 1
    plotPenna(5);
    plotMuovi(19.5, 1.5, pennaSu);  // half a centimetre from two sheets' edges
    plotMuovi(19.75, 1.5, pennaGiu);
    plotMuovi(0, 0, fineDisegno);
    const std::string penna = "pen 16711680 width 5";
    EXPECT_EQ(stampata(false), (Eventi{"page", penna, "line 1950 2950 1975 2950", "page end",  //
                                       "page", penna, "line 50 2950 75 2950", "page end",      //
                                       "page", penna, "line 1950 50 1975 50", "page end",      //
                                       "page", penna, "line 50 50 75 50", "page end", "end"}));
}

TEST_F(Stampa, OverlapIsTheNumberInTheFirstLineOfItsFile) {
    EXPECT_EQ(sovrapposizioneFogli(), 1);
    test::metti(programma / "OVERLAP.CFG", "2.5 cm\r\nanything\r\n");
    EXPECT_EQ(sovrapposizioneFogli(), 2.5);
    disegna(38, 27);  // 2 * 20 - 2.5 = 37.5
    EXPECT_EQ(pagine(stampata(false)), 3);
    test::metti(programma / "OVERLAP.CFG", "0\r\n");
    EXPECT_EQ(pagine(stampata(false)), 2);
}

TEST_F(Stampa, OverlapThatIsNoNumberOrLeavesNothingOfTheSheetIsAnError) {
    disegna(19, 27);
    test::metti(programma / "overlap.cfg", "un centimetro\r\n");
    EXPECT_THROW((void)stampata(false), base::ErroreFile);
    test::metti(programma / "overlap.cfg", "20\r\n");
    EXPECT_THROW((void)stampata(false), base::ErroreFile);
    EXPECT_EQ(pagine(stampata(true)), 1);  // one sheet overlaps nothing
}

TEST_F(Stampa, StrokesAreCutACentimetreOutsideThePage) {
    plotApri(0, 0, 39, 27);
    plotPenna(5);
    plotMuovi(10, 20, pennaSu);
    plotMuovi(30, 20, pennaGiu);
    plotMuovi(0, 0, fineDisegno);
    const std::string penna = "pen 16711680 width 5";
    EXPECT_EQ(stampata(false),
              (Eventi{"page", penna, "line 2100 700 1000 700", "page end",  //
                      "page", penna, "line -100 700 1100 700", "page end", "end"}));
}

TEST_F(Stampa, FittedPrintKeepsTheScaleOfTheTighterSideAndCentres) {
    // 9.8 x 9.8 widened to 10 x 10; 20 / 10 = 2; 20 of 30 cm high, 5 above.
    plotApri(0, 0, 9.8, 9.8);
    plotPenna(5);
    plotMuovi(-0.1, 9.9, pennaSu);
    plotMuovi(4.9, 4.9, pennaGiu);
    plotSimbolo(4.9, 4.9, 0.3, "m", 0, 1);
    plotMuovi(0, 0, fineDisegno);
    const Eventi eventi = stampata(true);
    ASSERT_EQ(eventi.size(), 7U);
    EXPECT_EQ(eventi[1], "pen 16711680 width 10");
    EXPECT_EQ(eventi[2], "line 0 500 1000 1500");
    EXPECT_EQ(eventi[3], "font 100.00 turn 0 Arial");
    EXPECT_EQ(eventi[4], "text 1000 1500 colour 16711680 \"m\"");
    EXPECT_EQ(statoPlot.estensione, (Riquadro{0, 0, 9.8, 9.8}));
}

TEST_F(Stampa, PrinterOfOneColourPlanePrintsBlack) {
    disegna(19, 27);
    const Eventi eventi = stampata(false, monocromatica());
    EXPECT_EQ(eventi[1], "pen 0 width 5");
    EXPECT_EQ(eventi[4], "text 800 400 centred colour 0 \"Titolo\"");
}

TEST_F(Stampa, FileForcecolMakesItPrintColours) {
    disegna(19, 27);
    test::metti(programma / "ForceCol", "");
    EXPECT_EQ(stampata(false, monocromatica())[1], "pen 16711680 width 5");
}

TEST_F(Stampa, WhiteIsPrintedBlackAndThinLinesAreOnePixelWide) {
    plotApri(0, 0, 19, 27);
    ConfigurazionePlot c = test::configurazioneDiProva();
    c.penne[2].spessoreMm = 0.01;
    configura(c);
    plotApri(0, 0, 19, 27);
    plotPenna(2);
    plotMuovi(1, 26, pennaGiu);
    plotMuovi(0, 0, fineDisegno);
    EXPECT_EQ(stampata(false)[1], "pen 0 width 1");
}

TEST_F(Stampa, PenAndFontAreSetOnlyWhenTheyChange) {
    plotApri(0, 0, 19, 27);
    plotPenna(5);
    plotMuovi(1, 26, pennaSu);
    plotMuovi(2, 26, pennaGiu);
    plotMuovi(3, 26, pennaGiu);
    plotPenna(1);  // another colour
    plotMuovi(4, 26, pennaGiu);
    plotSimbolo(1, 26, 0.3, "a", 0, 1);
    plotSimbolo(2, 26, 0.3, "b", 0, 1);
    plotPenna(7);  // another colour, the same font
    plotSimbolo(3, 26, 0.3, "c", 0, 1);
    plotSimbolo(4, 26, 0.3, "d", 90, 1);
    plotMuovi(0, 0, fineDisegno);
    EXPECT_EQ(
        stampata(false),
        (Eventi{"page", "pen 16711680 width 5", "line 100 100 200 100", "line 200 100 300 100",
                "pen 255 width 1", "line 300 100 400 100", "font 50.00 turn 0 Arial",
                "text 100 100 colour 255 \"a\"", "text 200 100 colour 255 \"b\"",
                "text 300 100 colour 16711680 \"c\"", "font 50.00 turn 900 Arial",
                "text 400 100 colour 16711680 \"d\"", "page end", "end"}));
}

TEST_F(Stampa, ZoomOnTheScreenDoesNotChangeThePrint) {
    disegna(19, 27);
    const Eventi intera = stampata(false);
    const Eventi adattata = stampata(true);
    plotZoom(3, 3, 5, 5);
    EXPECT_EQ(stampata(false), intera);
    EXPECT_EQ(stampata(true), adattata);
}

// A unit after the end of an axis: "[kN/m2]" of height 0.2 is 1.05 cm long in Arial.
TEST_F(Stampa, FittedPrintKeepsTextsOnThePaperThatReachOutOfTheSheet) {
    plotApri(0, 0, 9.8, 9.8);
    plotPenna(5);
    plotSimbolo(9.6, 4.9, 0.2, "[kN/m2]", 0, 7);
    plotMuovi(0, 0, fineDisegno);
    const double lungo = MetricaStimata().larghezza("Arial", 0.2, "[kN/m2]");
    ASSERT_NEAR(lungo, 1.05, 0.05);
    // The drawing is 9.6 + lungo wide; with 0.1 cm on each side it fills the 20 cm of the paper.
    const double scala = 20 / (9.6 + lungo + 0.2);
    const Eventi eventi = stampata(true);
    const auto testo = std::find_if(eventi.begin(), eventi.end(),
                                    [](const auto& e) { return e.starts_with("text "); });
    ASSERT_NE(testo, eventi.end());
    const int x = std::stoi(testo->substr(5));
    EXPECT_NEAR(x, 100 * scala * 9.7, 1);  // 100 pixels a centimetre
    EXPECT_NEAR(x + 100 * scala * lungo, 2000 - 100 * scala * 0.1, 1);
    EXPECT_EQ(statoPlot.estensione, (Riquadro{0, 0, 9.8, 9.8})) << "on paper alone";
}

TEST_F(Stampa, PolygonsComeFirst) {
    disegna(19, 27);
    statoPlot.archivio.aggiungi(
        PoligonoPlot{3, {{{1, 26}, {2, 26}, {2, 25}, {0, 0}, {0, 0}}}, 4711});
    EXPECT_EQ(stampata(false)[1], "polygon 100 100 200 100 200 200 colour 4711");
}

TEST_F(Stampa, LinesOfSpillFilesArePrintedFileByFile) {
    plotApri(0, 0, 19, 27);
    plotPenna(5);
    for (int k = 0; k < 32001; ++k) {
        plotMuovi(k % 19, 27, pennaSu);
        plotMuovi(k % 19, 26, pennaGiu);
    }
    plotMuovi(0, 0, fineDisegno);
    const Eventi eventi = stampata(false);
    ASSERT_EQ(eventi.size(), 32001U + 4);
    EXPECT_EQ(eventi[2 + 32000], "line 400 0 400 100");  // 32000 = 1684 * 19 + 4
}

TEST_F(Stampa, PointerWaitsMeanwhileAndComesBackEvenAfterAnError) {
    disegna(19, 27);
    test::StampanteRegistrata stampante(a100pixel);
    test::DialogoFinto dialogo;
    plotStampa(false, stampante, dialogo);
    EXPECT_EQ(dialogo.puntatori,
              (std::vector{base::Puntatore::clessidra, base::Puntatore::normale}));
    test::metti(programma / "overlap.cfg", "");
    EXPECT_THROW(plotStampa(false, stampante, dialogo), base::ErroreFile);
    EXPECT_EQ(dialogo.puntatori.back(), base::Puntatore::normale);
}

TEST_F(Stampa, LineOrTextWithoutAPlaceIsLeftOut) {
    plotApri(0, 0, 19, 27);
    plotPenna(5);
    plotMuovi(std::numeric_limits<double>::quiet_NaN(), 26, pennaGiu);
    plotSimbolo(1, std::numeric_limits<double>::infinity(), 0.3, "a", 0, 1);
    plotMuovi(0, 0, fineDisegno);
    EXPECT_EQ(stampata(false), (Eventi{"page", "page end", "end"}));
}

}  // namespace
}  // namespace korven::plot
