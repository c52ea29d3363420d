#include "shell/picture/picture_panel.hpp"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLayout>
#include <QMimeData>
#include <QSlider>
#include <QTest>
#include <QToolButton>

#include "masks/editing.hpp"
#include "project/project_data.hpp"
#include "shell/picture/picture_view.hpp"
#include "support/document_ports.hpp"
#include "support/plain_masks.hpp"
#include "support/sample_projects.hpp"

namespace korven::shell {
namespace {

class PannelloFiguraTest : public ::testing::Test {
 protected:
    PannelloFiguraTest() : pannello(vita, [this](const QFont&) { ++salvate; }) {
        project::Progetto = test::progettoSemplice();
        project::fileCorrente = ambiente.lavori / "muro.kvd";
        vita.guarda();
        pannello.resize(900, 620);
        pannello.show();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QSlider& fasi() const { return *pannello.findChild<QSlider*>("fasiFigura"); }
    [[nodiscard]] QToolButton& curva(int tasto) const {
        return *pannello.findChild<QToolButton*>("curvaFigura" + QString::number(tasto));
    }
    [[nodiscard]] QString lettura() const {
        return pannello.findChild<QLabel*>("letturaFigura")->text();
    }
    VistaFigura& vista() { return pannello.vista(); }
    // Over the wall at a depth.
    void mouse(double z) {
        const scene::Scena& s = vista().scena();
        QTest::mouseMove(&vista(), QPoint(static_cast<int>(s.lettura.sinistra) + 5,
                                          static_cast<int>(std::lround(s.y(z)))));
        QCoreApplication::processEvents();
    }

    test::AmbienteDocumento ambiente;
    VitaProgetto vita;
    int salvate = 0;
    // Before the first widget that it is asked for.
    const bool insegnato = (insegnaAccessoFigura(), true);
    PannelloFigura pannello;
};

TEST_F(PannelloFiguraTest, ShowsThePictureOfSavingAloneWhereItsTextHasNoRoom) {
    // The main form makes it as narrow as it is itself.
    pannello.layout()->setSizeConstraint(QLayout::SetNoConstraint);
    pannello.setMinimumSize(0, 0);
    const auto& salva = *pannello.findChild<QToolButton*>("pulsanteSalvaFigura");
    EXPECT_EQ(salva.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    const int larga = salva.sizeHint().width();
    pannello.resize(salva.parentWidget()->layout()->totalMinimumSize().width() - larga / 2, 400);
    QCoreApplication::processEvents();
    EXPECT_EQ(salva.toolButtonStyle(), Qt::ToolButtonIconOnly);
    EXPECT_FALSE(salva.toolTip().isEmpty());
    for (int tasto = 1; tasto <= 4; ++tasto) {
        EXPECT_EQ(curva(tasto).toolButtonStyle(), Qt::ToolButtonTextOnly);
        EXPECT_GE(curva(tasto).width(), curva(tasto).sizeHint().width());
    }
    pannello.resize(900, 620);
    EXPECT_EQ(salva.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
}

TEST_F(PannelloFiguraTest, ShowsThePicturesOfTheCurvesWhereTheirTextsHaveNoRoomEither) {
    pannello.layout()->setSizeConstraint(QLayout::SetNoConstraint);
    pannello.setMinimumSize(0, 0);
    pannello.resize(480, 340);  // the smallest main form
    QCoreApplication::processEvents();
    const auto& salva = *pannello.findChild<QToolButton*>("pulsanteSalvaFigura");
    QRect prima;
    for (int tasto = 1; tasto <= 4; ++tasto) {
        const QToolButton& una = curva(tasto);
        EXPECT_EQ(una.toolButtonStyle(), Qt::ToolButtonIconOnly);
        EXPECT_FALSE(una.icon().isNull());
        EXPECT_GE(una.width(), una.sizeHint().width());
        EXPECT_FALSE(una.geometry().intersects(prima));
        EXPECT_TRUE(una.toolTip().startsWith(una.text()));
        prima = una.geometry();
    }
    EXPECT_FALSE(salva.geometry().intersects(prima));
    EXPECT_LE(salva.geometry().right(), salva.parentWidget()->width());
}

// The main form has the key for the contents of the help.
TEST_F(PannelloFiguraTest, KeepsF1FromTheMenuForItsOwnPageOfTheHelp) {
    int sommari = 0;
    QAction sommario;
    sommario.setShortcut(Qt::Key_F1);
    QObject::connect(&sommario, &QAction::triggered, [&] { ++sommari; });
    pannello.addAction(&sommario);
    pannello.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&pannello));
    QTest::keyClick(&vista(), Qt::Key_F1);
    EXPECT_EQ(sommari, 0);
    EXPECT_EQ(pannello.property("paginaGuida"), "figura");
    QTest::keyClick(&vista(), Qt::Key_F1, Qt::ControlModifier);  // another key
    sommario.setShortcut(Qt::Key_F2);
    QTest::keyClick(&vista(), Qt::Key_F2);
    EXPECT_EQ(sommari, 1);
}

TEST_F(PannelloFiguraTest, BeginsAnewWithAnotherProject) {
    QTest::keyClick(&vista(), Qt::Key_Down);
    vita.mostra({.fase = 2, .curva = live::Curva::taglio});
    vita.guarda();
    EXPECT_TRUE(vista().profondita());
    EXPECT_EQ(fasi().value(), 2);
    vita.guarda(1);
    EXPECT_FALSE(vista().profondita());
    EXPECT_EQ(lettura(), "Lettura dei valori: mouse, oppure tasti Su e Giù");
    EXPECT_EQ(fasi().value(), 0);
    EXPECT_TRUE(curva(4).isChecked());
}

TEST_F(PannelloFiguraTest, OffersTheEnvelopeAndAllStages) {
    EXPECT_EQ(fasi().minimum(), 0);
    EXPECT_EQ(fasi().maximum(), 2);
    EXPECT_EQ(fasi().value(), 0);
    EXPECT_EQ(pannello.findChild<QLabel*>("faseFigura")->text(), "inviluppo");
}

TEST_F(PannelloFiguraTest, ChoosesTheStageWithThePageKeysAndTheSlider) {
    QTest::keyClick(&pannello, Qt::Key_PageDown);
    EXPECT_EQ(vita.vivo().vista().fase, 1);
    QTest::keyClick(&pannello, Qt::Key_PageDown);
    QTest::keyClick(&pannello, Qt::Key_PageDown);  // no further
    EXPECT_EQ(vita.vivo().vista().fase, 2);
    EXPECT_EQ(pannello.findChild<QLabel*>("faseFigura")->text(), "fase 2");
    QTest::keyClick(&pannello, Qt::Key_PageUp);
    EXPECT_EQ(vita.vivo().vista().fase, 1);
    fasi().setValue(0);
    EXPECT_EQ(vita.vivo().vista().fase, 0);
}

TEST_F(PannelloFiguraTest, ChoosesTheCurveWithTheKeysOneToFourAndTheButtons) {
    EXPECT_TRUE(curva(3).isChecked());
    const live::Curva curve[] = {live::Curva::pressioni, live::Curva::spostamento,
                                 live::Curva::momento, live::Curva::taglio};
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(&pannello, static_cast<Qt::Key>(Qt::Key_1 + i));
        EXPECT_EQ(vita.vivo().vista().curva, curve[i]);
        EXPECT_TRUE(curva(i + 1).isChecked());
    }
    QTest::mouseClick(&curva(2), Qt::LeftButton);
    EXPECT_EQ(vita.vivo().vista().curva, live::Curva::spostamento);
}

TEST_F(PannelloFiguraTest, ReadsTheWallUnderTheMouse) {
    fasi().setValue(2);
    mouse(3);
    ASSERT_TRUE(vista().profondita());
    EXPECT_NEAR(*vista().profondita(), 3, 1 / vista().scena().scala);
    EXPECT_TRUE(lettura().contains(" kN m/m")) << lettura().toStdString();
    EXPECT_TRUE(lettura().contains("Sabbia, limosa"));
    QTest::mouseMove(&vista(), QPoint(2, 2));
    QCoreApplication::processEvents();
    EXPECT_FALSE(vista().profondita());
    EXPECT_EQ(lettura(), "Lettura dei valori: mouse, oppure tasti Su e Giù");
}

TEST_F(PannelloFiguraTest, ReadsTheWallNodeByNodeWithTheKeys) {
    vista().setFocus();
    const double h = vita.vivo().parete().h;
    QTest::keyClick(&vista(), Qt::Key_Down);
    EXPECT_EQ(vista().profondita(), 0);
    QTest::keyClick(&vista(), Qt::Key_Down);
    EXPECT_NEAR(*vista().profondita(), h, 1e-12);
    QTest::keyClick(&vista(), Qt::Key_Up);
    QTest::keyClick(&vista(), Qt::Key_Up);
    EXPECT_EQ(vista().profondita(), 0);
    QTest::keyClick(&vista(), Qt::Key_End);
    EXPECT_EQ(vista().profondita(), 12);
    QTest::keyClick(&vista(), Qt::Key_Home);
    EXPECT_EQ(vista().profondita(), 0);
}

TEST_F(PannelloFiguraTest, TellsScreenReadersWhatIsReadAndWhatThePictureSays) {
    vista().setFocus();
    QTest::keyClick(&vista(), Qt::Key_End);
    auto* accesso = QAccessible::queryAccessibleInterface(&vista());
    ASSERT_NE(accesso, nullptr);
    EXPECT_EQ(accesso->role(), QAccessible::Graphic);
    EXPECT_TRUE(accesso->text(QAccessible::Value).startsWith("12.00 m"));
    EXPECT_EQ(accesso->text(QAccessible::Name), "Figura del progetto");
    EXPECT_TRUE(accesso->text(QAccessible::Description).contains("La paratia è in equilibrio"));
}

TEST_F(PannelloFiguraTest, FollowsTheProject) {
    const double prima = vista().scena().paratia;
    project::Progetto.lunghezzaParatia = 14;
    project::Progetto.nFasi = 1;
    vita.guarda();
    EXPECT_EQ(prima, 12);
    EXPECT_EQ(vista().scena().paratia, 14);
    EXPECT_EQ(fasi().maximum(), 1);
}

struct Conta : QObject {
    bool eventFilter(QObject*, QEvent* evento) override {
        pitture += evento->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int pitture = 0;
};

TEST_F(PannelloFiguraTest, KeepsAPictureThatWouldBeTheSameAgain) {
    Conta conta;
    vista().installEventFilter(&conta);
    emit vita.cambiata();  // as when a margin arrives
    QCoreApplication::processEvents();
    EXPECT_EQ(conta.pitture, 0);
    project::Progetto.sovraccMonte = 2;
    vita.guarda();
    QCoreApplication::processEvents();
    EXPECT_EQ(conta.pitture, 1);
}

// As the form of the stages tells of each key: nothing flickers.
TEST_F(PannelloFiguraTest, IsPaintedOnceByEachKeyInAFormAndByNoneThatChangesNothing) {
    masks::Maschere maschere;
    maschere.leggiMaschere(test::maschereSemplici(ambiente.lavori));
    masks::preparaMaschera(maschere, masks::NumeroMaschera::fasi, project::Progetto, 0);
    live::ValoriForma valori{masks::NumeroMaschera::fasi, {}, maschere.valoriTesto()};
    Conta conta;
    vista().installEventFilter(&conta);
    const auto digita = [&](const char* scavo) {
        valori.testi[5] = scavo;  // of stage 2
        const int prima = conta.pitture;
        vita.digita(maschere.corrente(), valori);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();  // what the first left
        return conta.pitture - prima;
    };
    const scene::Scena prima = vista().scena();
    EXPECT_EQ(digita("4.5"), 1);
    EXPECT_EQ(vita.vivo().impedimento(), "");
    EXPECT_NE(vista().scena(), prima);
    EXPECT_EQ(digita("4.5"), 0);
    EXPECT_EQ(digita("4.50"), 0);
    EXPECT_EQ(digita("4"), 1);
    EXPECT_EQ(digita("x"), 1);  // what is in the way is told
    EXPECT_EQ(digita("x"), 0);
}

TEST_F(PannelloFiguraTest, PaintsAnewWhenTheDesktopTurnsDark) {
    const QColor chiaro = vista().grab().toImage().pixelColor(5, 5);
    QPalette scura;
    scura.setColor(QPalette::Window, QColor(40, 40, 40));
    scura.setColor(QPalette::WindowText, Qt::white);
    pannello.setPalette(scura);
    QCoreApplication::processEvents();
    EXPECT_EQ(chiaro, QColor(Qt::white));
    EXPECT_LT(vista().grab().toImage().pixelColor(5, 5).lightness(), 60);
}

TEST_F(PannelloFiguraTest, CopiesThePictureAsImageAndAsSvgAndTellsWhich) {
    QStringList copiate;
    QObject::connect(&pannello, &PannelloFigura::copiata,
                     [&](const QString& che) { copiate << che; });
    QTest::keyClick(&vista(), Qt::Key_C, Qt::ControlModifier);
    vita.mostra({.fase = 2, .curva = live::Curva::taglio});
    QTest::keyClick(&fasi(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiate, QStringList({"inviluppo, Momento", "fase 2, Taglio"}));
    const QMimeData* dati = QApplication::clipboard()->mimeData();
    ASSERT_NE(dati, nullptr);
    EXPECT_TRUE(dati->hasImage());
    EXPECT_TRUE(dati->data("image/svg+xml").contains("<svg "));
}

TEST_F(PannelloFiguraTest, SavesByItsButton) {
    QTest::mouseClick(pannello.findChild<QToolButton*>("pulsanteSalvaFigura"), Qt::LeftButton);
    EXPECT_EQ(salvate, 1);
}

TEST_F(PannelloFiguraTest, NamesAllThatCanBeUsed) {
    for (const QWidget* figlio : pannello.findChildren<QWidget*>()) {
        if (figlio->focusPolicy() == Qt::NoFocus) continue;
        auto* accesso = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(figlio));
        EXPECT_FALSE(accesso->text(QAccessible::Name).isEmpty())
            << figlio->objectName().toStdString();
    }
}

}  // namespace
}  // namespace korven::shell
