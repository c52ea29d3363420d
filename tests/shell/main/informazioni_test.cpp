#include "shell/main/informazioni.hpp"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include "support/desktop_bench.hpp"

namespace korven::shell {
namespace {

QLabel* riga(const Informazioni& box, const char* nome) { return box.findChild<QLabel*>(nome); }

TEST(InformazioniTest, NamesTheProgramAndItsSubject) {
    const Informazioni box("", nullptr);
    EXPECT_EQ(riga(box, "nome")->text(), "KORVEN 32");
    EXPECT_EQ(riga(box, "sottotitolo")->text(), "Dimensionamento di Paratie e Diaframmi");
    EXPECT_TRUE(riga(box, "fileCorrente")->isHidden());
}

TEST(InformazioniTest, ShowsTheOpenProjectWithItsAmpersandAsItIs) {
    const Informazioni box("File corrente: /A&&B/C&D", nullptr);
    EXPECT_EQ(riga(box, "fileCorrente")->text(), "File corrente: /A&B/C&D");
    EXPECT_FALSE(riga(box, "fileCorrente")->isHidden());
}

TEST(InformazioniTest, HasItsKeysOnTheButton) {
    const Informazioni box("", nullptr);
    ASSERT_NE(box.focusWidget(), nullptr);
    EXPECT_EQ(box.focusWidget(), box.findChild<QPushButton*>());
}

TEST(InformazioniTest, ClosesAtEnterAndAtEsc) {
    for (const auto tasto : {Qt::Key_Return, Qt::Key_Escape}) {
        Informazioni box("", nullptr);
        box.show();
        QTest::keyClick(&box, tasto);
        EXPECT_FALSE(box.isVisible());
    }
}

}  // namespace
}  // namespace korven::shell
