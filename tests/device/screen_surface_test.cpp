#include "device/screen_surface.hpp"

#include <gtest/gtest.h>

#include "device/graphics_session.hpp"
#include "plot/plot_engine.hpp"
#include "support/drawing_by_pen.hpp"
#include "support/ink.hpp"

namespace korven::device {
namespace {

using plot::fineDisegno;
using plot::pennaGiu;
using plot::pennaSu;
using plot::plotMuovi;

/// A sheet of 10 by 5 cm, 100 pixels to the centimetre.
class Schermo : public test::ProvaPlot {
 protected:
    Schermo() : superficie([] { return plot::SpazioDisegno{1000, 500, 20}; }, [this] { ++volte; }) {
        configura(test::penneNere());
        plot::statoPlot.superficie = &superficie;
        plot::statoPlot.foglioStampante = {};  // no mark
    }
    static void apri() {
        plot::plotApri(0, 0, 10, 5);
        plot::plotPenna(1);
    }
    static void linea(double x1, double y1, double x2, double y2) {
        plotMuovi(x1, y1, pennaSu);
        plotMuovi(x2, y2, pennaGiu);
    }
    test::Macchia macchia() {
        plotMuovi(0, 0, fineDisegno);
        return test::macchia(superficie.immagine());
    }

    const SessioneGrafica sessione;
    SuperficieSchermo superficie;
    int volte = 0;
};

TEST_F(Schermo, HasThePictureInTheSizeOfTheSurfaceAndTellsThatItIsComplete) {
    apri();
    EXPECT_EQ(volte, 0);
    plotMuovi(0, 0, fineDisegno);
    EXPECT_EQ(volte, 1);
    EXPECT_EQ(superficie.immagine().size(), QSize(1000, 500));
    EXPECT_EQ(superficie.immagine().pixel(5, 5), qRgb(255, 255, 255));
}

TEST_F(Schermo, ShowsALevelLineOnWholePixelsWithoutBlur) {
    apri();
    linea(2, 3, 4, 3);  // 0.1 mm is one pixel
    const test::Macchia m = macchia();
    EXPECT_EQ(m.altezza(), 1);
    EXPECT_EQ(m.sopra, 200) << "3 cm above the lower edge";
    EXPECT_NEAR(m.sinistra, 200, 1);
    EXPECT_NEAR(m.larghezza(), 200, 2);
    EXPECT_EQ(superficie.immagine().pixel(300, 200), qRgb(0, 0, 0)) << "full black";
    EXPECT_EQ(superficie.immagine().pixel(300, 199), qRgb(255, 255, 255));
    EXPECT_EQ(superficie.immagine().pixel(300, 201), qRgb(255, 255, 255));
}

TEST_F(Schermo, ShowsAnUprightLineOfEvenWidthWithoutBlur) {
    apri();
    plot::plotPenna(4);  // 0.4 mm
    linea(2, 1, 2, 4);
    const test::Macchia m = macchia();
    EXPECT_EQ(m.larghezza(), 4);
    EXPECT_EQ(m.sinistra, 198);
    EXPECT_EQ(superficie.immagine().pixel(198, 250), qRgb(0, 0, 0));
    EXPECT_EQ(superficie.immagine().pixel(197, 250), qRgb(255, 255, 255));
}

TEST_F(Schermo, ShowsTheSheetOfThePrinterAsAPaleDottedRectangleOfOnePixel) {
    plot::statoPlot.foglioStampante = {4, 3};
    apri();
    plotMuovi(0, 0, fineDisegno);
    int grigi = 0, altri = 0;
    for (int x = 1; x < 399; ++x) {
        const QRgb punto = superficie.immagine().pixel(x, 200);
        EXPECT_TRUE(punto == qRgb(220, 220, 220) || punto == qRgb(255, 255, 255)) << x;
        (punto == qRgb(220, 220, 220) ? grigi : altri) += 1;
        EXPECT_EQ(superficie.immagine().pixel(x, 199), qRgb(255, 255, 255));
        EXPECT_EQ(superficie.immagine().pixel(x, 201), qRgb(255, 255, 255));
    }
    EXPECT_GT(grigi, 100);
    EXPECT_GT(altri, 100);
}

TEST_F(Schermo, WritesATextOnItsBaseLineAtTheHeightTold) {
    apri();
    plot::plotSimbolo(2, 3, 1, "HHH", 0, 3);
    const test::Macchia m = macchia();
    EXPECT_NEAR(m.sotto, 200, 1);
    EXPECT_GE(m.sinistra, 200);
    EXPECT_LE(m.sinistra, 220);
    // 1 cm gives characters of 133 pixels; a capital of this face is 0.688 of that.
    EXPECT_NEAR(m.altezza(), 92, 2);
}

TEST_F(Schermo, CentresATextAndTurnsAnother) {
    apri();
    plot::plotSimbolo(5, 3, 0.5, "HHH", 0, plot::conteggioCentrato);
    const test::Macchia centrato = macchia();
    EXPECT_NEAR((centrato.sinistra + centrato.destra) / 2.0, 500, 1.5);
    apri();
    plot::plotSimbolo(5, 1, 0.5, "HHH", 90, 3);
    const test::Macchia girato = macchia();
    EXPECT_NEAR(girato.destra, 500, 1.5) << "the base line";
    EXPECT_NEAR(girato.sotto, 400, 12);
    EXPECT_GT(girato.altezza(), girato.larghezza());
}

TEST_F(Schermo, FillsAPolygon) {
    apri();
    plot::statoPlot.archivio.aggiungi(
        plot::PoligonoPlot{4, {{{1, 1}, {3, 1}, {3, 2}, {1, 2}, {}}}, plot::daRgb(10, 20, 30)});
    plot::plotTutto();
    EXPECT_EQ(superficie.immagine().pixel(200, 350), qRgb(10, 20, 30));
    EXPECT_EQ(superficie.immagine().pixel(200, 250), qRgb(255, 255, 255));
}

TEST_F(Schermo, ShowsInAZoomThePartThatLiesInIt) {
    apri();
    linea(0, 2.5, 10, 2.5);
    linea(-1e7, 2.25, 1e7, 2.25);  // beyond every pixel number
    plot::plotSimbolo(9, 1, 0.5, "H", 0, 1);
    plotMuovi(0, 0, fineDisegno);
    plot::plotZoom(2, 2, 3, 2.5);
    const test::Macchia m = test::macchia(superficie.immagine());
    EXPECT_EQ(m.sopra, 0) << "the line on the upper edge";
    EXPECT_EQ(m.larghezza(), 1000);
    EXPECT_EQ(superficie.immagine().pixel(500, 250), qRgb(0, 0, 0));
}

TEST_F(Schermo, KnowsWhichPointOfTheSheetLiesUnderAPixelOfTheWindow) {
    superficie.impostaRapporto(2);  // a window of 500 by 250 pixels of its own
    apri();
    plotMuovi(0, 0, fineDisegno);
    EXPECT_EQ(superficie.immagine().deviceIndependentSize(), QSizeF(500, 250));
    EXPECT_EQ(superficie.puntoDelFoglio({0, 0}), (plot::Punto{0, 5}));
    EXPECT_EQ(superficie.puntoDelFoglio({500, 250}), (plot::Punto{10, 0}));
    EXPECT_EQ(superficie.puntoDelFoglio({-50, 50}), (plot::Punto{-1, 4}));
}

TEST_F(Schermo, DrawsFineLinesOnADenseScreen) {
    superficie.impostaRapporto(2);
    apri();
    linea(2, 3, 4, 3);
    EXPECT_EQ(macchia().altezza(), 1) << "a pixel of the screen, half of one of the window";
}

TEST_F(Schermo, LetsGoOfThePictureAndDrawsTheNextOne) {
    apri();
    linea(2, 3, 4, 3);
    plotMuovi(0, 0, fineDisegno);
    superficie.svuota();
    EXPECT_TRUE(superficie.immagine().isNull());
    apri();
    linea(2, 3, 4, 3);
    EXPECT_EQ(macchia().altezza(), 1);
}

TEST_F(Schermo, GoesOnWithADrawingThatWasShown) {
    apri();
    plotMuovi(0, 0, fineDisegno);
    linea(2, 3, 4, 3);
    EXPECT_EQ(macchia().altezza(), 1);
}

}  // namespace
}  // namespace korven::device
