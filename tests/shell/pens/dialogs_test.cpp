// The two dialogs of the desktop that open from the form of the pens.

#include <gtest/gtest.h>

#include <QColorDialog>
#include <QInputDialog>
#include <QPushButton>

#include "shell/pens/editacfg.hpp"
#include "support/desktop_bench.hpp"

namespace korven::shell {
namespace {

class DialoghiPenne : public ::testing::Test {
 protected:
    DialoghiEditacfg dialoghi;
};

TEST_F(DialoghiPenne, AskForTheNameOfAColourBeginningWithTheOldOne) {
    const test::TestiConsegnati tedesco(2);
    QStringList visto;
    const test::AllaProssimaFinestra<QInputDialog> box([&](QInputDialog& d) {
        visto << d.windowTitle() << d.labelText() << d.textValue();
        for (const auto* bottone : d.findChildren<QPushButton*>()) visto << bottone->text();
        d.setTextValue("Rosso mattone");
        QTest::keyClick(&d, Qt::Key_Return);
    });
    EXPECT_EQ(dialoghi.chiediTesto(nullptr, "DESCRIZIONE COLORI", "Nome colore:", "Rosso"),
              "Rosso mattone");
    EXPECT_EQ(visto,
              (QStringList{"DESCRIZIONE COLORI", "Nome colore:", "Rosso", "OK", "Abb&rechen"}));
}

TEST_F(DialoghiPenne, GiveNothingWhenTheUserGivesUp) {
    {
        const test::AllaProssimaFinestra<QInputDialog> box(
            [](QInputDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); });
        EXPECT_EQ(dialoghi.chiediTesto(nullptr, "a", "b", "c"), std::nullopt);
    }
    const test::AllaProssimaFinestra<QColorDialog> box(
        [](QColorDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); });
    EXPECT_EQ(dialoghi.scegliColore(nullptr, plot::daRgb(1, 2, 3)), std::nullopt);
}

TEST_F(DialoghiPenne, BeginWithThePresentColour) {
    const test::AllaProssimaFinestra<QColorDialog> box(
        [](QColorDialog& d) { QTest::keyClick(&d, Qt::Key_Return); });
    EXPECT_EQ(dialoghi.scegliColore(nullptr, plot::daRgb(200, 100, 50)), plot::daRgb(200, 100, 50));
}

}  // namespace
}  // namespace korven::shell
