#include "shell/viewer/drawing_watch_qt.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

using namespace std::chrono_literals;

class Sorveglianza : public ::testing::Test {
 protected:
    // As many lines as make it look at the clock for sure.
    bool lavora() {
        bool ferma = false;
        for (int i = 0; i < 64; ++i) ferma = sorveglianza.fermare();
        return ferma;
    }
    static DisegnoInCorso* finestra() {
        for (QWidget* aperta : QApplication::topLevelWidgets())
            if (auto* mia = qobject_cast<DisegnoInCorso*>(aperta)) return mia;
        return nullptr;
    }

    QApplication& app = test::applicazione();
    SorveglianzaQt::Istante adesso{};
    QWidget forma;
    SorveglianzaQt sorveglianza{[this] { return &forma; }, [this] { return adesso; }};
};

TEST_F(Sorveglianza, ShowsABoxOnceTheWorkHasTakenHalfASecond) {
    sorveglianza.inizia();
    adesso += 499ms;
    EXPECT_FALSE(lavora());
    EXPECT_EQ(finestra(), nullptr);
    adesso += 1ms;
    EXPECT_FALSE(lavora());
    ASSERT_NE(finestra(), nullptr);
    EXPECT_TRUE(finestra()->isVisible());
    EXPECT_EQ(finestra()->windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(finestra()->parentWidget(), &forma) << "no other form is to come to the front";
    sorveglianza.finita();
    EXPECT_EQ(finestra(), nullptr);
}

TEST_F(Sorveglianza, EndsTheWorkThatItsUserEndsAndNotTheNext) {
    for (const int tasto : {Qt::Key_Escape, Qt::Key_Space}) {  // space presses the button
        sorveglianza.inizia();
        adesso += 600ms;
        EXPECT_FALSE(lavora());
        QTest::keyClick(finestra()->focusWidget(), static_cast<Qt::Key>(tasto));
        EXPECT_TRUE(lavora());
        sorveglianza.finita();
        EXPECT_FALSE(lavora()) << "no work any more";
    }
    sorveglianza.inizia();
    EXPECT_FALSE(lavora());
    sorveglianza.finita();
}

TEST_F(Sorveglianza, CountsTheHalfSecondFromTheOutermostWork) {
    sorveglianza.inizia();
    adesso += 300ms;
    sorveglianza.inizia();
    adesso += 200ms;
    EXPECT_FALSE(lavora());
    EXPECT_NE(finestra(), nullptr);
    sorveglianza.finita();
    sorveglianza.finita();
}

TEST_F(Sorveglianza, TakesWorkWithinWorkForOne) {
    sorveglianza.inizia();
    adesso += 600ms;
    EXPECT_FALSE(lavora());
    sorveglianza.inizia();
    sorveglianza.finita();
    EXPECT_NE(finestra(), nullptr);
    finestra()->close();
    EXPECT_TRUE(lavora());
    sorveglianza.finita();
}

}  // namespace
}  // namespace korven::shell
