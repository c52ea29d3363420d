#include "support/plot_text.hpp"

#include <gtest/gtest.h>

#include "support/golden.hpp"
#include "support/plot_setup.hpp"

// The readable form in which all drawings are compared, and a small drawing that shows it.

namespace korven::plot {
namespace {

class DisegnoComeTesto : public test::ProvaPlot {
 protected:
    DisegnoComeTesto() { configura(test::penneDistinte()); }
};

TEST_F(DisegnoComeTesto, NamesPensMovesLinesAndTexts) {
    plotApri(0, 0, 19, 27);
    plotPenna(4);
    plotMuovi(1.5, 22, pennaSu);  // the L of a diagram's axes
    plotMuovi(1.5, 2, pennaGiu);
    plotMuovi(18.5, 2, pennaGiu);
    plotPenna(20);  // colour 5, as pen 5
    plotMuovi(5, 5, pennaSuOrigine);
    plotSimbolo(0, 0, 0.6, "10", 0, conteggioSimbolo);
    plotPenna(1);
    plotSimbolo(5, 21, 0.5, "Titolo", 0, conteggioCentrato);
    plotPenna(20);
    plotSimbolo(-4.7, 8, 0.3, "LATO \"MONTE\"", 90, 12);
    plotNumero(1, 1, 0.2, 12.345, 0, 2);
    plotMuovi(0, 0, fineDisegno);
    test::confrontaConGolden("plot/readable_form.txt", test::disegnoComeTesto());
}

TEST_F(DisegnoComeTesto, TellsColourAndWidthWhereNoPenIsTheOne) {
    plotApri(0, 0, 19, 27);
    plotPennaRgb(4, 4711);
    plotMuovi(1, 1, pennaGiu);
    plotPennaRgb(4, statoPlot.penne[1].colore);  // the colour of one pen, the width of another
    plotMuovi(1, 2, pennaGiu);
    plotPennaRgb(4, 4711);
    plotSimbolo(1, 1, 0.3, "a", 0, 1);
    plotMuovi(0, 0, fineDisegno);
    EXPECT_EQ(test::disegnoComeTesto(),
              "sheet 0.000 0.000 19.000 27.000\n"
              "colour 4711 width 0.040\nmove 0.000 0.000\nline 1.000 1.000\n"
              "colour 8388608 width 0.040\nline 1.000 2.000\n"
              "text 1.000 1.000 height 0.300 colour 4711 font Arial \"a\"\n");
}

TEST_F(DisegnoComeTesto, CountsWhitePensAsBlackAndNeverShowsAMinusZero) {
    plotApri(0, 0, 19, 27);
    plotPenna(15);
    plotMuovi(-0.0001, 1, pennaGiu);
    plotMuovi(0, 0, fineDisegno);
    EXPECT_EQ(test::disegnoComeTesto(),
              "sheet 0.000 0.000 19.000 27.000\npen 15\nmove 0.000 0.000\nline 0.000 1.000\n");
}

}  // namespace
}  // namespace korven::plot
