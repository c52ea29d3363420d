// The viewer, its buttons and keys, one by one.

#include "shell/viewer/grafica.hpp"

#include <QRegularExpression>
#include <QTimer>
#include <QToolButton>
#include <map>

#include "project/output_guard.hpp"
#include "support/desktop_bench.hpp"
#include "support/viewer_setup.hpp"

namespace korven::shell {
namespace {

class Visore : public test::ProvaVisore {};

TEST_F(Visore, AppearsWithTheFirstDrawingAndDisablesTheMainForm) {
    EXPECT_EQ(visore->forma(), nullptr);
    EXPECT_TRUE(principale.isEnabled());
    disegna();
    EXPECT_TRUE(forma().isVisible());
    EXPECT_FALSE(principale.isEnabled());
    EXPECT_EQ(forma().windowTitle(), "KORVEN 32 - muro.kvd");
}

// A run gives its results the place of the project, and draws from them.
TEST_F(Visore, NamesTheProjectWhileARunDraws) {
    project::fileCorrente = "/progetti/muro.OUT";
    project::progettiProtetti.corrente = "/progetti/muro.kvd";
    disegna();
    project::progettiProtetti = {};
    EXPECT_EQ(forma().windowTitle(), "KORVEN 32 - muro.kvd");
}

TEST_F(Visore, BringsTheMainFormBackWhenItIsClosed) {
    disegna();
    principale.hide();
    premi("Picture6");
    EXPECT_FALSE(forma().isVisible());
    EXPECT_TRUE(principale.isEnabled());
    EXPECT_TRUE(principale.isVisible());
    EXPECT_TRUE(visore->immagine().isNull());
    disegna();
    EXPECT_TRUE(forma().isVisible()) << "the next drawing opens it again";
    EXPECT_FALSE(principale.isEnabled());
}

TEST_F(Visore, KeepsTheMainFormFromBeingClosedWhileItIsOpen) {
    disegna();
    EXPECT_FALSE(principale.close());
    EXPECT_TRUE(principale.isVisible());
    EXPECT_TRUE(forma().isVisible());
    tasto('U');
    EXPECT_TRUE(principale.close());
}

// As the preview, to be read beside the drawing.
TEST_F(Visore, LeavesTheOtherWindowsOfTheMainFormInUse) {
    QWidget anteprima(&principale, Qt::Window);
    const QWidget controllo(&principale);
    disegna();
    EXPECT_TRUE(anteprima.isEnabled());
    EXPECT_FALSE(controllo.isEnabled());
    premi("Picture2");
    EXPECT_TRUE(anteprima.isEnabled());
    tasto('U');
    EXPECT_TRUE(anteprima.isEnabled());
    EXPECT_TRUE(controllo.isEnabled());
}

TEST_F(Visore, LetsACommandWaitUntilItIsClosed) {
    visore->attendi();  // nothing is open: at once
    disegna();
    QTimer::singleShot(20, &forma(), [this] { tasto('U'); });
    visore->attendi();
    EXPECT_FALSE(forma().isVisible());
    EXPECT_TRUE(principale.isEnabled());
}

TEST_F(Visore, HasTheToolTipOfEachButtonAsItsNameForThoseWhoCannotSee) {
    disegna();
    const std::map<std::string, std::string> suggerimenti = {
        {"Picture1", "Ingrandimento di una sezione di immagine"},
        {"Picture8", "Ingrandimento di una sezione di immagine"},
        {"Picture2", "Ritorno all'immagine a tutto schermo"},
        {"Picture3", "Invio dell'immagine alla stampante"},
        {"Picture5",
         "Invio alla stampante dell'immagine ridotta alle dimensioni del foglio disponibile"},
        {"Picture4", "Esportazione dell'immagine in formato DXF"},
        {"Picture6", "Uscita dall'anteprima"},
        {"Picture9", "Spostamento a sinistra di 1/4 della finestra di zoom"},
        {"Picture10", "Spostamento a destra di 1/4 della finestra di zoom"},
        {"Picture11", "Spostamento in alto di 1/4 della finestra di zoom"},
        {"Picture12", "Spostamento in basso di 1/4 della finestra di zoom"},
        {"Picture13", "Spostamento a sinistra della finestra di zoom"},
        {"Picture14", "Spostamento a destra della finestra di zoom"},
        {"Picture15", "Spostamento in alto della finestra di zoom"},
        {"Picture16", "Spostamento in basso della finestra di zoom"},
        {"Picture17", "Salvataggio dell'immagine in formato PDF, SVG o PNG"},
    };
    for (const auto& [nome, testo] : suggerimenti) {
        const QWidget& bottone = pulsante(nome.c_str());
        EXPECT_EQ(bottone.toolTip().toStdString(), testo) << nome;
        EXPECT_EQ(bottone.accessibleName().toStdString(), testo) << nome;
    }
    EXPECT_EQ(forma().findChildren<QToolButton*>().size(), qsizetype(suggerimenti.size()));
    EXPECT_TRUE(pulsante("Picture7").toolTip().isEmpty()) << "the drawing";
}

TEST_F(Visore, HasItsToolTipsInTheLanguageInForce) {
    const test::TestiConsegnati tedesco(2);
    disegna();
    for (const QToolButton* bottone : forma().findChildren<QToolButton*>()) {
        EXPECT_FALSE(bottone->toolTip().isEmpty()) << bottone->objectName().toStdString();
        EXPECT_FALSE(bottone->toolTip().contains(QRegularExpression("immagine|Spostamento")))
            << bottone->toolTip().toStdString();
    }
}

TEST_F(Visore, KeepsTheProportionsOfTheDrawing) {
    disegna(10, 5);
    const QSize superficie = pulsante("Picture7").size();
    EXPECT_NEAR(superficie.width() / double(superficie.height()), 2, 0.01);
    EXPECT_EQ(visore->immagine().size(), superficie);
}

TEST_F(Visore, ArmsTheZoomAndDisarmsItWithTheButtonAboveIt) {
    disegna();
    EXPECT_FALSE(visibile("Picture8"));
    premi("Picture1");
    EXPECT_TRUE(visibile("Picture8"));
    EXPECT_EQ(pulsante("Picture8").geometry(), pulsante("Picture1").geometry());
    premi("Picture8");
    EXPECT_FALSE(visibile("Picture8"));
    trascina(posto(2, 4), posto(6, 2));
    EXPECT_EQ(finestra(), "0.00 0.00 10.00 5.00") << "no longer armed";
}

TEST_F(Visore, ZoomsOnTheWindowOfADrag) {
    disegna();
    premi("Picture1");
    trascina(posto(6, 2), posto(2, 4));  // from any corner
    const plot::Riquadro zoom = plot::statoPlot.rettangoloZoom;
    EXPECT_NEAR(zoom.xmin, 2, 0.02);
    EXPECT_NEAR(zoom.ymin, 2, 0.02);
    EXPECT_NEAR(zoom.xmax, 6, 0.02);
    EXPECT_NEAR(zoom.ymax, 4, 0.02);
    EXPECT_TRUE(plot::statoPlot.zoom);
    EXPECT_FALSE(visibile("Picture8"));
    trascina(posto(3, 3), posto(4, 4));
    EXPECT_EQ(plot::statoPlot.rettangoloZoom, zoom) << "one drag an arming";
}

TEST_F(Visore, ZoomsOnHalfACentimetreWhenADragEndsWhereItBegan) {
    disegna();
    premi("Picture1");
    trascina(posto(4, 3), posto(4, 3));
    const plot::Riquadro& zoom = plot::statoPlot.rettangoloZoom;
    EXPECT_NEAR(zoom.xmin, 4, 0.02);
    EXPECT_NEAR(zoom.ymin, 3, 0.02);
    EXPECT_DOUBLE_EQ(zoom.larghezza(), 0.5);
    EXPECT_DOUBLE_EQ(zoom.altezza(), 0.5);
}

TEST_F(Visore, ClampsADragThatLeavesTheSurfaceToTheWindowOnTheScreen) {
    disegna();
    premi("Picture1");
    trascina(posto(8, 1), posto(30, -20));
    EXPECT_NEAR(plot::statoPlot.rettangoloZoom.xmax, 10, 1e-9);
    EXPECT_NEAR(plot::statoPlot.rettangoloZoom.ymin, 0, 1e-9);
    premi("Picture1");
    const plot::Riquadro finestraPrima = plot::statoPlot.finestra;
    trascina(posto(9, 0.3), posto(-30, 30));  // clamped to the zoom, not to the drawing
    EXPECT_NEAR(plot::statoPlot.rettangoloZoom.xmin, finestraPrima.xmin, 1e-9);
    EXPECT_NEAR(plot::statoPlot.rettangoloZoom.ymax, finestraPrima.ymax, 1e-9);
}

TEST_F(Visore, MarksTheWindowOfADragWhileItLasts) {
    disegna();
    premi("Picture1");
    QWidget& superficie = pulsante("Picture7");
    const QImage prima = superficie.grab().toImage();
    QTest::mousePress(&superficie, Qt::LeftButton, {}, posto(2, 4));
    QTest::mouseMove(&superficie, posto(6, 2));
    const QImage durante = superficie.grab().toImage();
    const QPoint lato = posto(4, 4);
    bool segnato = false;  // a dash or the light line below it, within a pixel
    for (int y = lato.y() - 1; y <= lato.y() + 1; ++y)
        for (int x = lato.x() - 10; x <= lato.x() + 10; ++x)
            segnato = segnato || durante.pixel(x, y) != prima.pixel(x, y);
    EXPECT_TRUE(segnato);
    QTest::keyClick(&forma(), Qt::Key_Escape);
    EXPECT_EQ(superficie.grab().toImage(), prima) << "erased without a trace";
    EXPECT_TRUE(forma().isVisible());
    EXPECT_FALSE(visibile("Picture8"));
}

TEST_F(Visore, GoesBackToTheWholeDrawing) {
    disegna();
    premi("Picture1");
    trascina(posto(2, 4), posto(6, 2));
    premi("Picture1");
    premi("Picture2");
    EXPECT_EQ(finestra(), "0.00 0.00 10.00 5.00");
    EXPECT_FALSE(plot::statoPlot.zoom);
    EXPECT_FALSE(visibile("Picture8"));
}

TEST_F(Visore, PansByAFifthOrFourFifthsOfTheZoomWindow) {
    const std::map<const char*, std::string> finestre = {
        {"Picture9", "3.20 2.00 7.20 4.00"},  {"Picture10", "4.80 2.00 8.80 4.00"},
        {"Picture11", "4.00 2.40 8.00 4.40"}, {"Picture12", "4.00 1.60 8.00 3.60"},
        {"Picture13", "0.80 2.00 4.80 4.00"}, {"Picture14", "7.20 2.00 11.20 4.00"},
        {"Picture15", "4.00 3.60 8.00 5.60"}, {"Picture16", "4.00 0.40 8.00 2.40"}};
    disegna();
    for (const auto& [nome, attesa] : finestre) {
        plot::plotZoom(4, 2, 8, 4);
        premi(nome);
        const plot::Riquadro& z = plot::statoPlot.rettangoloZoom;
        EXPECT_EQ(test::punto(z.xmin, z.ymin) + ' ' + test::punto(z.xmax, z.ymax), attesa) << nome;
    }
}

TEST_F(Visore, DoesNotPanWithoutAZoom) {
    disegna();
    for (int i = 9; i <= 16; ++i) {
        premi(("Picture" + std::to_string(i)).c_str());
        EXPECT_EQ(finestra(), "0.00 0.00 10.00 5.00") << i;
    }
    plot::plotZoom(4, 2, 8, 4);
    premi("Picture2");
    premi("Picture9");
    EXPECT_EQ(finestra(), "0.00 0.00 10.00 5.00");
}

TEST_F(Visore, ForgetsAnArmedZoomWhenANewDrawingEnds) {
    disegna();
    premi("Picture1");
    disegna();
    EXPECT_FALSE(visibile("Picture8"));
    EXPECT_FALSE(plot::statoPlot.zoom);
}

TEST_F(Visore, LeavesWithTheKeyUAndWithEsc) {
    for (const int codice : {int(Qt::Key_U), int(Qt::Key_Escape)}) {
        disegna();
        QTest::keyClick(&forma(), Qt::Key(codice));
        EXPECT_FALSE(forma().isVisible());
        EXPECT_TRUE(principale.isEnabled());
    }
}

TEST_F(Visore, TakesItsKeysInEitherCaseOnTheFormAndOnItsButtons) {
    disegna();
    QTest::keyClick(&pulsante("Picture3"), 's');
    QTest::keyClick(&pulsante("Picture7"), 'S');
    EXPECT_EQ(porte.titoli.size(), 2U);
    QTest::keyClick(&forma(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(porte.titoli.size(), 2U) << "no letter";
    QTest::keyClick(&forma(), 'u');
    EXPECT_FALSE(forma().isVisible());
}

TEST_F(Visore, FitsTheDrawingToTheWindowWhenThatIsResized) {
    disegna();
    plot::plotZoom(4, 2, 8, 4);
    forma().resize(500, 620);
    ASSERT_TRUE(QTest::qWaitFor([this] { return pulsante("Picture7").width() < 500; }));
    EXPECT_EQ(finestra(), "4.00 2.00 8.00 4.00");
    EXPECT_TRUE(plot::statoPlot.zoom);
    premi("Picture2");
    forma().resize(900, 640);
    ASSERT_TRUE(QTest::qWaitFor([this] { return pulsante("Picture7").width() > 700; }));
    EXPECT_EQ(finestra(), "0.00 0.00 10.00 5.00");
}

TEST_F(Visore, CanBeWorkedByKeyboardAlone) {
    disegna();
    forma().activateWindow();
    pulsante("Picture1").setFocus();
    QTest::keyClick(&pulsante("Picture1"), Qt::Key_Space);
    EXPECT_TRUE(visibile("Picture8"));
    QTest::keyClick(&pulsante("Picture8"), Qt::Key_Space);
    EXPECT_FALSE(visibile("Picture8"));
    for (const auto* bottone : forma().findChildren<QToolButton*>())
        EXPECT_TRUE(bottone->focusPolicy() & Qt::TabFocus) << bottone->objectName().toStdString();
}

}  // namespace
}  // namespace korven::shell
