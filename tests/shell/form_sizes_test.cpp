#include "shell/form_sizes.hpp"

#include <gtest/gtest.h>

#include <QScreen>
#include <QTest>
#include <QWidget>

#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

// As on a screen that was larger, or whose letters were smaller.
TEST(MisureFinestre, OfALargerScreenAreBroughtOntoThisOne) {
    test::applicazione();
    const test::UtenteNuovo utente;
    const QRect schermo = QGuiApplication::primaryScreen()->availableGeometry();
    {
        QWidget prima;
        prima.setObjectName("finestra");
        prima.setGeometry(schermo.right() - 40, schermo.bottom() - 30, schermo.width() + 500,
                          schermo.height() + 300);
        ricordaMisure(prima);
    }
    QWidget finestra;
    finestra.setObjectName("finestra");
    prendiMisura(finestra, {300, 200});
    EXPECT_TRUE(schermo.contains(finestra.geometry()))
        << finestra.x() << ' ' << finestra.y() << ' ' << finestra.width() << ' '
        << finestra.height();
    EXPECT_EQ(finestra.size(), misuraMassima(finestra));
}

TEST(MisureFinestre, ThatFitComeBackAsTheyWere) {
    test::applicazione();
    const test::UtenteNuovo utente;
    const QPoint angolo = QGuiApplication::primaryScreen()->availableGeometry().topLeft();
    const QRect misure(angolo + QPoint(60, 70), QSize(320, 240));
    {
        QWidget prima;
        prima.setObjectName("finestra");
        prima.setGeometry(misure);
        ricordaMisure(prima);
    }
    QWidget finestra;
    finestra.setObjectName("finestra");
    prendiMisura(finestra, {300, 200});
    EXPECT_EQ(finestra.geometry(), misure);
}

// A window is restored before it has a frame, and remembered with it.
TEST(MisureFinestre, ComeBackToThePixelAtEachStart) {
    test::applicazione();
    const test::UtenteNuovo utente;
    const QPoint angolo = QGuiApplication::primaryScreen()->availableGeometry().topLeft();
    QRect prima;
    for (int avvio = 1; avvio <= 3; ++avvio) {
        SCOPED_TRACE(avvio);
        QWidget finestra;
        finestra.setObjectName("finestra");
        if (!prendiMisura(finestra, {320, 240})) finestra.move(angolo + QPoint(60, 70));
        finestra.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&finestra));
        ASSERT_NE(finestra.frameGeometry(), finestra.geometry()) << "no frame, nothing is tested";
        if (avvio == 1) prima = finestra.geometry();
        EXPECT_EQ(finestra.geometry(), prima);
        ricordaMisure(finestra);
    }
}

}  // namespace
}  // namespace korven::shell
