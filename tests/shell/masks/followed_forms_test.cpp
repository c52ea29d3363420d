// What the open forms tell those who follow what is typed.

#include <QLabel>
#include <QSignalSpy>

#include "support/field_form_bench.hpp"
#include "support/grid_form_bench.hpp"

namespace korven::shell {
namespace {

class GrigliaSeguita : public test::BancoGriglia {
 protected:
    void segui() {
        apri();
        QObject::connect(forma.get(), &FormaMaschera::digitata, [this] { ++digitate; });
        QObject::connect(forma.get(), &Base2_32::postoCambiato, [this] { ++mosse; });
    }
    int digitate = 0, mosse = 0;
};

TEST_F(GrigliaSeguita, TellsEachCharacterOnceAndNoMoveOfTheCursor) {
    segui();
    scrivi("45");
    EXPECT_EQ(digitate, 2);
    EXPECT_EQ(forma->valori().testi[1], "45");
    tasto(Qt::Key_Right);
    tasto(Qt::Key_Down);
    EXPECT_EQ(digitate, 2);
    EXPECT_EQ(mosse, 2);
}

TEST_F(GrigliaSeguita, TellsTheTextOfTheOpenEditorAndThatItWasDropped) {
    segui();
    tasto(Qt::Key_F2);
    QTest::keyClicks(&editore(), "7");
    EXPECT_EQ(forma->valori().testi[1], "37");
    EXPECT_EQ(cella(1, 1), "3");
    QTest::keyClick(&editore(), Qt::Key_Escape);
    EXPECT_EQ(forma->valori().testi[1], "3");
    EXPECT_EQ(digitate, 2);
}

TEST_F(GrigliaSeguita, TellsAPasteOnceAndARowThatGoes) {
    segui();
    dialogo.risposte = {base::Risposta::si, base::Risposta::si};
    incolla("5\t6\r\n7\t8");
    EXPECT_EQ(digitate, 1);
    premi(3);  // deletes the row
    EXPECT_EQ(digitate, 2);
    EXPECT_EQ(forma->valori().testi[0], "1");
}

TEST_F(GrigliaSeguita, HasAPanelBesideTheGridAndTakesWhatItWrites) {
    segui();
    const int prima = griglia().width();
    auto* pannello = new QLabel("pannello");
    pannello->setMinimumWidth(80);
    forma->affianca(pannello);
    QTest::qWait(0);
    EXPECT_TRUE(pannello->isVisible());
    EXPECT_GE(griglia().width(), prima - 2);
    EXPECT_GE(pannello->mapTo(forma.get(), QPoint()).x(),
              griglia().mapTo(forma.get(), griglia().rect().topRight()).x());
    EXPECT_TRUE(forma->scrivi({2, 2}, "21"));
    EXPECT_EQ(cella(2, 2), "21");
    EXPECT_EQ(cursore(), "2,2");
    EXPECT_EQ(digitate, 1);
    EXPECT_EQ(mosse, 1);
    EXPECT_FALSE(forma->scrivi({2, 1}, "101"));  // beyond the limits of its column
    EXPECT_EQ(cella(2, 1), "8");
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
}

class CampiSeguiti : public test::BancoBase1 {};

TEST_F(CampiSeguiti, TellEachCharacterAndEachChoice) {
    apri();
    int digitate = 0;
    QObject::connect(forma.get(), &FormaMaschera::digitata, [&] { ++digitate; });
    testo(0).selectAll();
    QTest::keyClicks(&testo(0), "7");
    EXPECT_EQ(digitate, 1);
    EXPECT_EQ(forma->valori().testi[0], "7");
    combo(1).setCurrentIndex(2);
    EXPECT_EQ(digitate, 2);
    EXPECT_EQ(forma->valori().combo[1], 2);
}

}  // namespace
}  // namespace korven::shell
