// The clipboard in the grid: what spreadsheets hand over and take.

#include <QMessageBox>

#include "shell/dialogo_qt.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/grid_form_bench.hpp"

namespace korven::shell {
namespace {

using base::Risposta;

constexpr const char* conferma = "Confermate l'inserimento dei seguenti dati?\r\n";
constexpr const char* sovrascrive =
    "Uno o più dati sono già presenti nella tabella. Volete sovrascriverli?";

class Appunti : public test::BancoGriglia {
 protected:
    std::string riga(int r) {
        std::string testo;
        for (int c = 1; c <= 4; ++c) testo += cella(r, c) + (c < 4 ? "|" : "");
        return testo;
    }
};

TEST_F(Appunti, TakeTheRowsByCtrlC) {
    apri();
    tasto(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "3\t18\tuno\t0\r\n8\t19\tdue\t1");
    clic(4, 1);
    tasto(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "3\t18\tuno\t0\r\n8\t19\tdue\t1\r\n\t\t\t")
        << "no data from there down: the rows above";
}

TEST_F(Appunti, FillTheGridFromTheCursorOnByCtrlVAndShiftInsert) {
    for (const bool insert : {false, true}) {
        apri();
        clic(4, 2);
        dialogo.domande.clear();
        dialogo.risposte = {Risposta::si};
        QApplication::clipboard()->setText("5\tx\r\n6\ty\r\n");
        if (insert)
            tasto(Qt::Key_Insert, Qt::ShiftModifier);
        else
            tasto(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(riga(4), "|5|x|");
        EXPECT_EQ(riga(5), "|6|y|");
        EXPECT_EQ(riga(6), "|||");
        EXPECT_EQ(cursore(), "4,2");
        ASSERT_EQ(dialogo.domande.size(), 1U);
        EXPECT_EQ(dialogo.domande[0],
                  (test::DialogoFinto::Detto{std::string(conferma) + "5\tx\r\n6\ty\r\n",
                                             "ATTENZIONE!", base::Icona::domanda}));
    }
}

TEST_F(Appunti, AreShownWithNoMoreThanSixLines) {
    apri();
    clic(4, 1);
    incolla("1\n2\n3\n4\n5\n6\n7");
    ASSERT_EQ(dialogo.domande.size(), 1U);
    EXPECT_EQ(dialogo.domande[0].testo, std::string(conferma) + "1\n2\n3\n4\n5\n6\n......");
    EXPECT_EQ(riga(4), "|||") << "nobody said yes";
}

TEST_F(Appunti, LeaveOccupiedCellsAloneOnNoAndFillTheFreeOnes) {
    apri({"2", "3", "", "uno", "", "", "19", "", "1"});
    dialogo.risposte = {Risposta::si, Risposta::no};
    incolla("7\t8\tdue\t1\r\n9\t9\ttre\t0");
    EXPECT_EQ(riga(1), "3|8|uno|1");
    EXPECT_EQ(riga(2), "9|19|tre|1");
    ASSERT_EQ(dialogo.domande.size(), 2U) << "asked once";
    EXPECT_EQ(dialogo.domande[1].testo, sovrascrive);
}

TEST_F(Appunti, OverwriteOnYes) {
    apri();
    dialogo.risposte = {Risposta::si, Risposta::si};
    incolla("7\t8\r\n9\t9");
    EXPECT_EQ(riga(1), "7|8|uno|0");
    EXPECT_EQ(riga(2), "9|9|due|1");
}

TEST_F(Appunti, LeaveTheCellOfABadValueEmptyWithTheMessageOfItsColumn) {
    apri();
    clic(4, 1);
    dialogo.risposte = {Risposta::si};
    incolla("101\t1\ttroppo lungo\t2");
    EXPECT_EQ(riga(4), "|1||");
    ASSERT_EQ(dialogo.messaggi.size(), 3U);
    EXPECT_EQ(dialogo.messaggi[0].titolo, "Prof. [m]");
    EXPECT_EQ(dialogo.messaggi[0].icona, base::Icona::stop);
    EXPECT_EQ(dialogo.messaggi[1].titolo, "Nome");
    EXPECT_EQ(dialogo.messaggi[2].titolo, "Tipo");
}

TEST_F(Appunti, DropWhatLiesBeyondTheLastColumn) {
    apri();
    clic(4, 3);
    dialogo.risposte = {Risposta::si};
    incolla("a\t1\tb\tc");
    EXPECT_EQ(riga(4), "||a|1");
    EXPECT_EQ(riga(5), "|||");
}

TEST_F(Appunti, StopAtRow500WithAMessage) {
    apri({"0"});
    dialogo.risposte = {Risposta::si};
    incolla(QString("1\r\n").repeated(600));
    EXPECT_EQ(cella(500, 1), "1");
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(
        dialogo.messaggi[0],
        (test::DialogoFinto::Detto{"Non è possibile inserire un numero di righe superiore a 500",
                                   "ATTENZIONE!", base::Icona::avviso}));
}

TEST_F(Appunti, DoNotMakeTheNextCharacterAppend) {
    apri();
    tasto(Qt::Key_C, Qt::ControlModifier);
    scrivi("7");
    EXPECT_EQ(cella(1, 1), "7");
    dialogo.risposte = {Risposta::si, Risposta::si};
    incolla("5");
    scrivi("8");
    EXPECT_EQ(cella(1, 1), "8");
}

TEST_F(Appunti, BelongToTheEditorWhileItIsOpen) {
    apri();
    QApplication::clipboard()->setText("4");
    tasto(Qt::Key_F2);
    tasto(Qt::Key_V, Qt::ControlModifier);
    tasto(Qt::Key_Return);
    EXPECT_EQ(cella(1, 1), "34");
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(Appunti, AskInABoxOfTheDesktop) {
    DialogoQt vero;
    Base2_32 forma2(maschera, {"0"}, vero, {}, nullptr);
    forma2.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&forma2));
    QString detto;
    const test::AllaProssimaFinestra<QMessageBox> box([&](QMessageBox& b) {
        detto = b.text();
        QTest::keyClick(&b, Qt::Key_Return);
    });
    QApplication::clipboard()->setText("1\t2\r\n3\t4\r\n");
    auto& griglia2 = test::controllo<QTableView>(forma2, "MSFlexGrid1");
    QTest::keyClick(&griglia2, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(detto, "Confermate l'inserimento dei seguenti dati?\n1\t2\n3\t4\n");
    EXPECT_EQ(forma2.modello().valoriTesto(), (Testi{"2", "1", "2", "", "", "3", "4", "", ""}));
}

}  // namespace
}  // namespace korven::shell
