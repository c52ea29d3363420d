#include "shell/companions/companion_window.hpp"

#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>
#include <QPushButton>
#include <QScreen>

#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

class FinestraCompagnaTest : public ::testing::Test {
 protected:
    FinestraCompagnaTest() {
        principale.setGeometry(10, 20, 300, 200);
        principale.show();
    }
    std::unique_ptr<FinestraCompagna> nuova(const char* nome = "compagna",
                                            QSize comoda = {240, 160}) {
        return std::make_unique<FinestraCompagna>(principale, nome, "Compagna", comoda);
    }
    static void attendi(QWidget& finestra) {
        finestra.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    }

    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    QWidget principale;
};

TEST_F(FinestraCompagnaTest, GoesBesideTheMainFormAtFirst) {
    const auto una = nuova();
    una->mostraDavanti();
    EXPECT_TRUE(una->isVisible());
    const QRect intera = principale.frameGeometry();
    EXPECT_EQ(una->pos(), intera.topLeft() + QPoint(intera.width(), 0));
    EXPECT_EQ(una->size(), QSize(240, 160));
    const auto altra = nuova("altra");
    EXPECT_NE(altra->pos(), una->pos());
}

TEST_F(FinestraCompagnaTest, IsNoLargerThanItsScreen) {
    const QRect schermo = principale.screen()->availableGeometry();
    const auto una = nuova("grande", {5000, 4000});
    una->mostraDavanti();
    EXPECT_TRUE(schermo.contains(una->frameGeometry()));
}

TEST_F(FinestraCompagnaTest, RemembersItsPlaceAndSizeWhenItCloses) {
    const QRect misure(60, 70, 320, 240);
    auto una = nuova();
    una->mostraDavanti();
    una->setGeometry(misure);
    una->close();
    EXPECT_EQ(nuova()->geometry(), misure);
    EXPECT_NE(nuova("altra")->geometry(), misure);
}

TEST_F(FinestraCompagnaTest, ClosesByEsc) {
    const auto una = nuova();
    una->mostraDavanti();
    attendi(*una);
    QTest::keyClick(una.get(), Qt::Key_Escape);
    EXPECT_FALSE(una->isVisible());
}

TEST_F(FinestraCompagnaTest, ClosesWithTheMainFormAndRemembersItsPlaceThen) {
    const auto una = nuova();
    una->mostraDavanti();
    una->setGeometry(60, 70, 320, 240);
    principale.close();
    EXPECT_FALSE(una->isVisible());
    EXPECT_EQ(nuova()->geometry(), QRect(60, 70, 320, 240));
}

TEST_F(FinestraCompagnaTest, ComesBackFromTheTaskBar) {
    const auto una = nuova();
    una->showMinimized();
    una->mostraDavanti();
    EXPECT_FALSE(una->isMinimized());
    EXPECT_TRUE(una->isVisible());
}

TEST_F(FinestraCompagnaTest, TakesTheKeysThatTheMainFormShares) {
    QAction salva("Salva");
    salva.setShortcut(Qt::CTRL | Qt::Key_S);
    principale.addAction(&salva);
    int salvati = 0;
    QObject::connect(&salva, &QAction::triggered, [&] { ++salvati; });
    const auto una = nuova();
    una->mostraDavanti();
    attendi(*una);
    QTest::keyClick(una.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(salvati, 1);
    attendi(principale);
    QTest::keyClick(&principale, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(salvati, 2);
}

TEST_F(FinestraCompagnaTest, TakesNoInputUnderAModalForm) {
    const auto una = nuova();
    auto* pulsante = new QPushButton("premi", una.get());
    int premuti = 0;
    QObject::connect(pulsante, &QPushButton::clicked, [&] { ++premuti; });
    una->mostraDavanti();
    QDialog modale(&principale);
    const test::AllaProssimaFinestra<QDialog> aperta([&](QDialog& d) {
        QTest::mouseClick(una->windowHandle(), Qt::LeftButton, {}, pulsante->geometry().center());
        d.reject();
    });
    modale.exec();
    EXPECT_TRUE(aperta.fatto);
    EXPECT_EQ(premuti, 0);
    QTest::mouseClick(una->windowHandle(), Qt::LeftButton, {}, pulsante->geometry().center());
    EXPECT_EQ(premuti, 1);
    EXPECT_FALSE(una->isModal());
}

}  // namespace
}  // namespace korven::shell
