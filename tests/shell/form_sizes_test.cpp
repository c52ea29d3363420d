#include "shell/form_sizes.hpp"

#include <gtest/gtest.h>

#include <QScreen>
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

}  // namespace
}  // namespace korven::shell
