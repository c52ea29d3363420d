#include "shell/main/selezling.hpp"

#include <gtest/gtest.h>

#include <QToolButton>

#include "shell/main/flags.hpp"
#include "support/desktop_bench.hpp"

namespace korven::shell {
namespace {

TEST(SelezlingTest, HasAButtonForEachLanguageOfferedInTheirOrder) {
    const Selezling forma({5, 3, 2, 1, 4, 6});
    EXPECT_EQ(forma.windowTitle(), "Select your language...");
    QStringList nomi;
    for (const auto* bottone : forma.findChildren<QToolButton*>())
        nomi += bottone->objectName() + " " + bottone->text();
    EXPECT_EQ(nomi.join(", "),
              "Picture1 English, Picture2 Français, Picture3 Deutsch, Picture4 Italiano, "
              "Picture5 Español, Picture6 Português");
    EXPECT_EQ(Selezling({1, 5}).findChildren<QToolButton*>().size(), 2);
}

TEST(SelezlingTest, ReturnsTheLanguageOfTheButtonClicked) {
    const test::AllaProssimaFinestra<Selezling> scelta([](Selezling& forma) {
        QTest::mouseClick(forma.findChild<QToolButton*>("Picture3"), Qt::LeftButton);
    });
    EXPECT_EQ(chiediLingua({5, 2, 1}), 2);
    EXPECT_TRUE(scelta.fatto);
}

TEST(SelezlingTest, CanBeUsedFromTheKeyboard) {
    const test::AllaProssimaFinestra<Selezling> scelta([](Selezling& forma) {
        forma.findChild<QToolButton*>("Picture4")->setFocus();
        QTest::keyClick(forma.findChild<QToolButton*>("Picture4"), Qt::Key_Space);
    });
    EXPECT_EQ(chiediLingua({5, 2, 1}), 1);
}

TEST(SelezlingTest, ReturnsNoneWhenItIsClosed) {
    const test::AllaProssimaFinestra<Selezling> chiude(
        [](Selezling& forma) { QTest::keyClick(&forma, Qt::Key_Escape); });
    EXPECT_EQ(chiediLingua({5, 2, 1}), 0);
}

TEST(SelezlingTest, PressesTheButtonOfTheLanguageThatHolds) {
    const test::AllaProssimaFinestra<Selezling> scelta([](Selezling& forma) {
        EXPECT_EQ(forma.windowTitle(), "Lingua del programma");
        for (const auto* bottone : forma.findChildren<QToolButton*>())
            EXPECT_EQ(bottone->isChecked(), bottone->objectName() == "Picture3")
                << bottone->objectName().toStdString();
        QTest::mouseClick(forma.findChild<QToolButton*>("Picture1"), Qt::LeftButton);
    });
    EXPECT_EQ(chiediAltraLingua({5, 2, 1}, 2, nullptr), 5);
    EXPECT_TRUE(scelta.fatto);
}

TEST(Bandiera, FillsItsSizeAtTheDensityOfTheScreen) {
    const QPixmap tedesca = bandiera(2, {96, 64}, 2);
    EXPECT_EQ(tedesca.size(), QSize(192, 128));
    const QImage punti = tedesca.toImage();
    EXPECT_EQ(punti.pixelColor(96, 20), QColor(Qt::black));
    EXPECT_EQ(punti.pixelColor(96, 64), QColor(221, 0, 0));
    EXPECT_EQ(punti.pixelColor(96, 110), QColor(255, 204, 0));
}

}  // namespace
}  // namespace korven::shell
