#include "plot/zoom_window.hpp"

#include <gtest/gtest.h>

#include "plot/plot_engine.hpp"
#include "support/plot_setup.hpp"

namespace korven::plot {
namespace {

constexpr Riquadro finestra{0, 0, 20, 10};

void uguali(const Riquadro& avuto, const Riquadro& atteso) {
    EXPECT_DOUBLE_EQ(avuto.xmin, atteso.xmin);
    EXPECT_DOUBLE_EQ(avuto.ymin, atteso.ymin);
    EXPECT_DOUBLE_EQ(avuto.xmax, atteso.xmax);
    EXPECT_DOUBLE_EQ(avuto.ymax, atteso.ymax);
}

TEST(RiquadroZoom, OrdersTheCornersOfADragInAnyDirection) {
    const Riquadro atteso{2, 1, 6, 4};
    uguali(riquadroZoom({2, 1}, {6, 4}, finestra), atteso);
    uguali(riquadroZoom({6, 4}, {2, 1}, finestra), atteso);
    uguali(riquadroZoom({2, 4}, {6, 1}, finestra), atteso);
    uguali(riquadroZoom({6, 1}, {2, 4}, finestra), atteso);
}

TEST(RiquadroZoom, DragThatEndsWhereItBeganIsASquareOfHalfACentimetre) {
    uguali(riquadroZoom({3, 2}, {3, 2}, finestra), {3, 2, 3.5, 2.5});
}

TEST(RiquadroZoom, EachSideAloneIsWidenedToHalfACentimetre) {
    uguali(riquadroZoom({3, 2}, {3.25, 5}, finestra), {3, 2, 3.5, 5});
    uguali(riquadroZoom({3, 2}, {5, 2.25}, finestra), {3, 2, 5, 2.5});
    uguali(riquadroZoom({3, 2}, {3.5, 2.5}, finestra), {3, 2, 3.5, 2.5});
}

TEST(RiquadroZoom, DragBeyondTheSurfaceIsHeldInTheWindow) {
    uguali(riquadroZoom({-3, -1}, {25, 12}, finestra), finestra);
    uguali(riquadroZoom({15, 5}, {25, 12}, finestra), {15, 5, 20, 10});
    // The least size is kept even where it reaches beyond the window.
    uguali(riquadroZoom({19.875, 9.875}, {25, 12}, finestra), {19.875, 9.875, 20.375, 10.375});
}

TEST(SpostaZoom, ShortStepIsAFifthNotTheQuarterThatTheButtonsName) {
    const Riquadro zoom{2, 1, 7, 3.5};  // 5 x 2.5
    uguali(spostaZoom(zoom, Direzione::sinistra, PassoSpostamento::breve), {1, 1, 6, 3.5});
    uguali(spostaZoom(zoom, Direzione::destra, PassoSpostamento::breve), {3, 1, 8, 3.5});
    uguali(spostaZoom(zoom, Direzione::alto, PassoSpostamento::breve), {2, 1.5, 7, 4});
    uguali(spostaZoom(zoom, Direzione::basso, PassoSpostamento::breve), {2, 0.5, 7, 3});
}

TEST(SpostaZoom, LongStepIsFourFifthsAndMayLeaveTheDrawing) {
    const Riquadro zoom{2, 1, 7, 3.5};
    uguali(spostaZoom(zoom, Direzione::sinistra, PassoSpostamento::lungo), {-2, 1, 3, 3.5});
    uguali(spostaZoom(zoom, Direzione::destra, PassoSpostamento::lungo), {6, 1, 11, 3.5});
    uguali(spostaZoom(zoom, Direzione::alto, PassoSpostamento::lungo), {2, 3, 7, 5.5});
    uguali(spostaZoom(zoom, Direzione::basso, PassoSpostamento::lungo), {2, -1, 7, 1.5});
}

class Zoom : public test::ProvaPlot {
 protected:
    Zoom() {
        plotApri(0, 0, 20, 10);
        plotMuovi(0, 0, fineDisegno);
    }
};

TEST_F(Zoom, PanWithoutAZoomDoesNothing) {
    plotSposta(Direzione::sinistra, PassoSpostamento::breve);
    EXPECT_FALSE(statoPlot.zoom);
    uguali(statoPlot.finestra, finestra);
}

TEST_F(Zoom, PanMovesTheZoomInForceAgainAndAgain) {
    plotIngrandisci({2, 1}, {7, 3.5});
    EXPECT_TRUE(statoPlot.zoom);
    plotSposta(Direzione::destra, PassoSpostamento::breve);
    plotSposta(Direzione::destra, PassoSpostamento::lungo);
    uguali(statoPlot.finestra, {7, 1, 12, 3.5});
    uguali(statoPlot.estensione, finestra);
}

TEST_F(Zoom, DragInsideAZoomIsHeldInWhatTheSurfaceShows) {
    plotIngrandisci({2, 1}, {7, 3.5});
    plotIngrandisci({4, 2}, {100, 100});
    uguali(statoPlot.finestra, {4, 2, 7, 3.5});
}

TEST_F(Zoom, PanAfterTheReturnToTheWholeDrawingDoesNothing) {
    plotIngrandisci({2, 1}, {7, 3.5});
    plotTutto();
    plotSposta(Direzione::basso, PassoSpostamento::lungo);
    uguali(statoPlot.finestra, finestra);
}

}  // namespace
}  // namespace korven::plot
