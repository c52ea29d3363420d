#include "shell/run/progress_qt.hpp"

#include <gtest/gtest.h>

#include <QWindow>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/run_flags.hpp"
#include "base/folders/file_lock.hpp"
#include "support/desktop_bench.hpp"
#include "support/restless_wall.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::shell {
namespace {

using std::chrono::milliseconds;

TEST(RitmoRidisegno, AllowsThirtyRedrawsASecond) {
    RitmoRidisegno ritmo;
    const RitmoRidisegno::Istante inizio{};
    int volte = 0;
    for (int ms = 0; ms < 1000; ++ms) volte += ritmo.tocca(inizio + milliseconds(ms));
    EXPECT_GE(volte, 28);
    EXPECT_LE(volte, 30);
    ritmo.ricomincia();
    EXPECT_TRUE(ritmo.tocca(inizio));
}

TEST(RiquadroTempCalc, IsAThirdOfTheScreenWideAndTwoThirdsHighInTheMiddle) {
    EXPECT_EQ(riquadroTempCalc(QRect(0, 0, 1200, 900)), QRect(400, 150, 400, 600));
}

// Three nodes, one anchor at node 2, excavated to the depth of node 2.
QuadroAvanzamento tre() { return {0.02, 10, 1.5, 1.5, {0.02, 0.01, 0}, {0, -10, 5}, {2}}; }

TEST(QuadroTempCalc, PlacesTheWallAnchorsExcavationAndShapes) {
    const auto linee = tratti(tre());
    ASSERT_EQ(linee.size(), 7u);
    const auto uguale = [](QLineF a, QLineF b) {
        return QLineF(a.p1(), b.p1()).length() + QLineF(a.p2(), b.p2()).length() < 1e-12;
    };
    const double unita = 1 / 2.2;  // yMax, or mMax, on the unit square
    EXPECT_TRUE(uguale(linee[0].linea, {0.5 - unita / 2, 0.5, 0.5, 0.5}));  // anchor
    EXPECT_TRUE(uguale(linee[1].linea, {0.5, 0.5, 0.5 + unita, 0.5}));      // excavation
    EXPECT_TRUE(uguale(linee[2].linea, {0.5, 0.25, 0.5, 0.75}));            // axis
    EXPECT_TRUE(uguale(linee[3].linea, {0.5 + unita, 0.25, 0.5 + unita / 2, 0.5}));
    EXPECT_TRUE(uguale(linee[5].linea, {0.5, 0.25, 0.5 - unita, 0.5}));
    for (const int i : {0, 1, 2}) EXPECT_EQ(linee[static_cast<std::size_t>(i)].colore, Qt::black);
    EXPECT_EQ(linee[3].colore, QColor(0, 0, 255));
    EXPECT_EQ(linee[6].colore, QColor(0, 255, 0));
}

TEST(QuadroTempCalc, StaysOnTheAxisWhereNothingMoves) {
    QuadroAvanzamento fermo{0, 0, 1, 0, {0, 0}, {0, 0}, {}};
    for (const auto& [colore, linea] : tratti(fermo)) {
        EXPECT_DOUBLE_EQ(linea.x1(), 0.5);
        EXPECT_DOUBLE_EQ(linea.x2(), 0.5);
    }
    EXPECT_TRUE(tratti({}).empty());
}

class Corsa : public ::testing::Test {
 protected:
    void calcola(AvanzamentoQt& avanzamento) {
        avanzamento.sopra(&principale);
        analysis::CalcoloParatia(analysis::relazione, {banco.dialogo, avanzamento, banco.uscita});
    }
    test::Banco banco{test::progettoSemplice()};
    QWidget principale;
};

TEST_F(Corsa, ShowsTheWindowWhileItLastsAndPutsTheCaptionBack) {
    principale.setWindowTitle("KORVEN 32 - muro");
    QStringList didascalie;
    QObject::connect(&principale, &QWidget::windowTitleChanged,
                     [&](const QString& t) { didascalie += t; });
    AvanzamentoQt avanzamento;
    calcola(avanzamento);
    EXPECT_FALSE(analysis::erroreCalcolo);
    EXPECT_EQ(avanzamento.finestra(), nullptr);
    ASSERT_GE(didascalie.size(), 2);
    EXPECT_TRUE(didascalie.first().startsWith("fase=1   iter.=1   Ymax="))
        << didascalie.first().toStdString();
    EXPECT_TRUE(didascalie.at(didascalie.size() - 2).startsWith("fase=2"));  // the last state
    EXPECT_EQ(didascalie.last(), "KORVEN 32 - muro");
}

TEST_F(Corsa, IsRedrawnNoMoreOftenThanTheRhythmAllowsButWithTheLastState) {
    int volte = 0;
    QObject::connect(&principale, &QWidget::windowTitleChanged, [&](const QString&) { ++volte; });
    AvanzamentoQt fermo([] { return RitmoRidisegno::Istante{}; });  // no time passes
    calcola(fermo);
    EXPECT_EQ(volte, 3);  // the first iteration, the last one, the caption put back
}

TEST_F(Corsa, EndsWhenTheStopButtonIsPressed) {
    AvanzamentoQt avanzamento;
    bool modale = false;
    QTimer occhio;
    QObject::connect(&occhio, &QTimer::timeout, [&] {
        auto* finestra = avanzamento.finestra();
        if (finestra == nullptr) return;
        modale = finestra->isModal();
        QTest::mouseClick(finestra->findChild<QPushButton*>("Command1"), Qt::LeftButton);
        occhio.stop();
    });
    occhio.start(0);
    calcola(avanzamento);
    EXPECT_TRUE(modale);
    EXPECT_TRUE(analysis::erroreCalcolo);
    EXPECT_FALSE(banco.haRisultati());
    EXPECT_TRUE(banco.dialogo.messaggi.empty());
    EXPECT_EQ(avanzamento.finestra(), nullptr);
}

// A wall that flips for ever; the test looks at the window after each iteration and ends the run.
class CorsaSenzaRiposo : public ::testing::Test {
 protected:
    // The line of the window after that many iterations.
    QString riga(int iterazioni) {
        AvanzamentoQt avanzamento([this] { return ora += milliseconds(1000); });
        QString vista;
        class Seguito : public analysis::Avanzamento {
         public:
            Seguito(AvanzamentoQt& a, int quante, QString& vista)
                : a_(a), quante_(quante), vista_(vista) {}
            void apri() override { a_.apri(); }
            void chiudi() override { a_.chiudi(); }
            void iterazione(const analysis::StatoIterazione& stato) override {
                a_.iterazione(stato);
                if (stato.iterazione < quante_) return;
                analysis::stopCalcolo = true;
                const auto* riga = a_.finestra()->findChild<QLabel*>("riga");
                if (riga->isVisible()) vista_ = riga->text();
            }

         private:
            AvanzamentoQt& a_;
            int quante_;
            QString& vista_;
        } seguito(avanzamento, iterazioni, vista);
        analysis::CalcoloParatia(analysis::relazione, {banco.dialogo, seguito, banco.uscita});
        EXPECT_TRUE(banco.dialogo.messaggi.empty());
        return vista;
    }
    RitmoRidisegno::Istante ora{};
    test::Banco banco{test::progettoSenzaPace(), 10};
};

TEST_F(CorsaSenzaRiposo, SaysAfter200IterationsWhatBecomesOfTheWall) {
    EXPECT_EQ(riga(199), "");
    const QString detto = riga(200);
    EXPECT_TRUE(detto.startsWith(
        "la paratia è in equilibrio nella fase 1, con uno spostamento massimo di "))
        << detto.toStdString();
    EXPECT_TRUE(detto.endsWith("mm: oscilla soltanto l'iterazione")) << detto.toStdString();
}

// Another run's lock is held by the test.
class CorsaCheAttende : public Corsa {
 protected:
    void SetUp() override {
        principale.setWindowTitle("KORVEN 32 - muro");
        ASSERT_EQ(altra.prendi(base::nomeSerratura(banco.risultati())),
                  base::Serratura::Esito::presa);
    }
    // Runs while something is done to the box that tells of the other run.
    void calcola(const std::function<void(QMessageBox&)>& fa) {
        AvanzamentoQt avanzamento;
        avanzamento.sopra(&principale);
        QTimer occhio;
        QObject::connect(&occhio, &QTimer::timeout, [&] {
            auto* attesa = principale.findChild<QMessageBox*>("attesa");
            if (attesa == nullptr) return;
            occhio.stop();
            testo = attesa->text().toStdString();
            modale = attesa->isVisible() && attesa->isModal();
            fa(*attesa);
        });
        occhio.start(0);
        analysis::CalcoloParatia(analysis::relazione,
                                 {banco.dialogo, avanzamento, banco.uscita, &guardia});
        EXPECT_TRUE(testo.starts_with("Un altro calcolo sta usando il file dei risultati"));
        EXPECT_TRUE(modale);
        EXPECT_EQ(principale.findChild<QMessageBox*>("attesa"), nullptr);
        EXPECT_EQ(principale.windowTitle(), "KORVEN 32 - muro");
    }
    base::Serratura altra;
    analysis::GuardiaRisultati guardia;
    std::string testo;
    bool modale = false;
};

TEST_F(CorsaCheAttende, ServesItsBoxAndGoesOnWhenTheOtherRunHasEnded) {
    calcola([this](QMessageBox&) { altra.lascia(); });
    EXPECT_FALSE(analysis::erroreCalcolo);
    EXPECT_TRUE(banco.haRisultati());
}

TEST_F(CorsaCheAttende, EndsWithTheButtonOfItsBoxAndWithEsc) {
    for (const bool esc : {false, true}) {
        calcola([esc](QMessageBox& attesa) {
            if (esc)
                QTest::keyClick(&attesa, Qt::Key_Escape);
            else
                QTest::mouseClick(attesa.buttons().first(), Qt::LeftButton);
        });
        EXPECT_TRUE(analysis::erroreCalcolo);
        EXPECT_FALSE(banco.haRisultati());
        EXPECT_TRUE(banco.dialogo.messaggi.empty());
    }
}

TEST(TempCalcTest, StopsAtEscEnterSpaceAndItsCloseBoxAndStays) {
    for (const auto tasto : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        TempCalc finestra(nullptr);
        finestra.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
        int volte = 0;
        QObject::connect(&finestra, &TempCalc::interruzione, [&] { ++volte; });
        QTest::keyClick(finestra.focusWidget(), tasto);
        EXPECT_EQ(volte, 1) << tasto;
        EXPECT_FALSE(finestra.findChild<QPushButton*>("Command1")->isEnabled());
        finestra.close();
        EXPECT_EQ(volte, 2);
        EXPECT_TRUE(finestra.isVisible());
    }
}

TEST(TempCalcTest, BelongsToTheMainForm) {
    QWidget principale;
    principale.show();
    TempCalc finestra(&principale);
    finestra.show();
    EXPECT_EQ(finestra.windowType(), Qt::Dialog) << "of a plain window desktops know no owner";
    EXPECT_EQ(finestra.windowHandle()->transientParent(), principale.windowHandle());
}

TEST(TempCalcTest, KeepsItsButtonOneAndAHalfSizesFromTheCorner) {
    TempCalc finestra(nullptr);
    finestra.resize(400, 600);
    finestra.show();
    const QRect b = finestra.findChild<QPushButton*>("Command1")->geometry();
    EXPECT_NEAR(400 - (b.x() + b.width()), 1.5 * b.width(), 1);
    EXPECT_NEAR(600 - (b.y() + b.height()), 1.5 * b.height(), 1);
}

}  // namespace
}  // namespace korven::shell
