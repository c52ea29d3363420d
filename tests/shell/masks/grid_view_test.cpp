// What the keys and the mouse do in the grid and in its editor.

#include "shell/masks/grid_view.hpp"

#include <QInputMethodEvent>
#include <functional>

#include "support/dialog_double.hpp"
#include "support/grid_form_bench.hpp"

namespace korven::shell {
namespace {

constexpr const char* alfanumerico =
    "Non sono ammessi caratteri alfanumerici in un campo di tipo numerico.";

class VistaGrigliaTest : public test::BancoGriglia {
 protected:
    void SetUp() override { apri(); }

    // A key as a keyboard of another layout sends it.
    void tastoCon(Qt::Key quale, Qt::KeyboardModifiers con, const QString& testo) {
        QKeyEvent premuto(QEvent::KeyPress, quale, con, testo);
        QApplication::sendEvent(&griglia(), &premuto);
    }
};

TEST_F(VistaGrigliaTest, ClearsTheCellByTheFirstCharacterAndAppendsTheNext) {
    scrivi("4");
    EXPECT_EQ(cella(1, 1), "4");
    scrivi("5");
    EXPECT_EQ(cella(1, 1), "45");
    tasto(Qt::Key_Backspace);
    EXPECT_EQ(cella(1, 1), "4");
    tasto(Qt::Key_Escape);
    EXPECT_EQ(cella(1, 1), "3") << "what it had on entry";
    EXPECT_TRUE(forma->isVisible());
}

TEST_F(VistaGrigliaTest, DoesNotClearTheCellByOtherKeys) {
    const std::pair<Qt::Key, const char*> casi[] = {{Qt::Key_Backspace, "1"},
                                                    {Qt::Key_Delete, "1"},
                                                    {Qt::Key_Escape, "18"},
                                                    {Qt::Key_Shift, "18"}};
    for (const auto& [quale, rimane] : casi) {
        clic(1, 2);
        tasto(quale);
        EXPECT_EQ(cella(1, 2), rimane) << quale;
        tasto(Qt::Key_Escape);
        clic(2, 2);
    }
    clic(1, 2);
    tasto(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(cella(1, 2), "18");
    tasto(Qt::Key_Return);
    EXPECT_EQ(cella(1, 2), "18");
}

TEST_F(VistaGrigliaTest, TellsATypedPointFromDelete) {
    scrivi("1.5");
    EXPECT_EQ(cella(1, 1), "1.5");
    tasto(Qt::Key_Delete);
    tasto(Qt::Key_Delete);
    EXPECT_EQ(cella(1, 1), "1");
    tasto(Qt::Key_Escape);
    scrivi(".");
    EXPECT_EQ(cella(1, 1), "3.") << "a point never clears";
    tastoCon(Qt::Key_Period, Qt::KeypadModifier, ".");
    EXPECT_EQ(cella(1, 1), "3..");
}

TEST_F(VistaGrigliaTest, TakesTheDecimalKeyOfTheNumberPadForAPointInANumber) {
    scrivi("1");
    tastoCon(Qt::Key_Comma, Qt::KeypadModifier, ",");
    scrivi("5");
    EXPECT_EQ(cella(1, 1), "1.5");
    clic(1, 3);
    scrivi("a");
    tastoCon(Qt::Key_Comma, Qt::KeypadModifier, ",");
    EXPECT_EQ(cella(1, 3), "a,");
}

TEST_F(VistaGrigliaTest, TakesCharactersOfTheThirdLevelAndOfInputMethods) {
    clic(1, 3);
    tastoCon(Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@");
    tastoCon(Qt::Key_BracketLeft, Qt::GroupSwitchModifier, "[");
    EXPECT_EQ(cella(1, 3), "@[");
    QInputMethodEvent composto;
    composto.setCommitString(QString::fromUtf8("ê"));
    QApplication::sendEvent(&griglia(), &composto);
    EXPECT_EQ(cella(1, 3), "@[ê");
    EXPECT_TRUE(griglia().testAttribute(Qt::WA_InputMethodEnabled));
    tastoCon(Qt::Key_X, Qt::ControlModifier, QString(QChar(24)));
    tastoCon(Qt::Key_Y, Qt::AltModifier, "y");
    EXPECT_EQ(cella(1, 3), "@[ê") << "commands type nothing";
}

TEST_F(VistaGrigliaTest, MovesOnByEnterColumnByColumnAndRowByRow) {
    std::string strada;
    for (int i = 0; i < 5; ++i) {
        tasto(i % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
        strada += cursore() + ' ';
    }
    EXPECT_EQ(strada, "1,2 1,3 1,4 2,1 2,2 ");
    EXPECT_TRUE(forma->isVisible());
}

TEST_F(VistaGrigliaTest, MovesByTabArrowsAndTheKeysOfTheBlock) {
    struct Passo {
        Qt::Key tasto;
        Qt::KeyboardModifiers con;
        const char* dopo;
    };
    const Passo passi[] = {
        {Qt::Key_Tab, {}, "1,2"},
        {Qt::Key_Backtab, Qt::ShiftModifier, "1,1"},
        {Qt::Key_Down, {}, "2,1"},
        {Qt::Key_Right, {}, "2,2"},
        {Qt::Key_Up, {}, "1,2"},
        {Qt::Key_Left, {}, "1,1"},
        {Qt::Key_Left, {}, "1,1"},
        {Qt::Key_Up, {}, "1,1"},
        {Qt::Key_End, {}, "1,4"},
        {Qt::Key_Tab, {}, "2,1"},
        {Qt::Key_Backtab, {}, "1,4"},
        {Qt::Key_Home, {}, "1,1"},
        {Qt::Key_End, Qt::ControlModifier, "2,4"},
        {Qt::Key_Home, Qt::ControlModifier, "1,1"},
    };
    for (const auto& passo : passi) {
        tasto(passo.tasto, passo.con);
        EXPECT_EQ(cursore(), passo.dopo) << passo.tasto;
        EXPECT_TRUE(griglia().hasFocus());
    }
}

TEST_F(VistaGrigliaTest, TurnsPagesByWhatIsSeen) {
    tasto(Qt::Key_PageDown);
    const int pagina = griglia().currentIndex().row();
    EXPECT_GT(pagina, 5);
    EXPECT_TRUE(
        griglia().viewport()->rect().contains(griglia().visualRect(griglia().currentIndex())));
    tasto(Qt::Key_PageUp);
    EXPECT_EQ(cursore(), "1,1");
    for (int i = 0; i < 100; ++i) tasto(Qt::Key_PageDown);
    EXPECT_EQ(cursore(), "500,1");
}

TEST_F(VistaGrigliaTest, IsLeftByCtrlTab) {
    tasto(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_FALSE(griglia().hasFocus());
    EXPECT_EQ(forma->focusWidget()->objectName(), "Label1");
    griglia().setFocus();
    tasto(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(griglia().hasFocus());
    griglia().setFocus();
    tasto(Qt::Key_Tab, Qt::ControlModifier);
    tasto(Qt::Key_Tab);
    EXPECT_EQ(forma->focusWidget()->objectName(), "Command1_0");
    tasto(Qt::Key_Return);
    EXPECT_EQ(forma->result(), QDialog::Accepted);
}

TEST_F(VistaGrigliaTest, PutsTheCursorBackOnABadCellWhateverTheWayOut) {
    const std::function<void()> uscite[] = {
        [&] { tasto(Qt::Key_Return); },
        [&] { tasto(Qt::Key_Down); },
        [&] { tasto(Qt::Key_Tab); },
        [&] { clic(2, 2); },
        [&] { tasto(Qt::Key_PageDown); },
        [&] { tasto(Qt::Key_End); },
        [&] { griglia().setCurrentIndex(griglia().model()->index(1, 2)); },
    };
    for (const auto& esci : uscite) {
        dialogo.messaggi.clear();
        tasto(Qt::Key_Escape);
        scrivi("1x");
        esci();
        EXPECT_EQ(cursore(), "1,1");
        EXPECT_EQ(cella(1, 1), "1x");
        ASSERT_EQ(dialogo.messaggi.size(), 1U);
        EXPECT_EQ(dialogo.messaggi[0],
                  (test::DialogoFinto::Detto{alfanumerico, "Prof. [m]", base::Icona::stop}));
    }
}

TEST_F(VistaGrigliaTest, ChecksEachKindOfColumn) {
    const std::tuple<int, const char*, const char*, const char*> casi[] = {
        {1, "100.5", "100.5",
         "Vi e' un errore di digitazione del valore introdotto o il valore è fuori dal range "
         "previsto; deve infatti appartenere all'intervallo:\r\n0; 100"},
        {2, "1 2", "1 2", alfanumerico},
        {3, "abcdefg", "abcde",
         "Il dato introdotto eccede la lunghezza ammessa. Viene quindi troncato alla massima "
         "lunghezza ammissibile."},
        {4, "2", "2", "Il dato inserito non e' compreso tra quelli ammissibili."},
    };
    for (const auto& [colonna, scritto, rimane, messaggio] : casi) {
        dialogo.messaggi.clear();
        clic(1, colonna);
        scrivi(scritto);
        clic(2, 1);
        EXPECT_EQ(cursore(), "1," + std::to_string(colonna));
        EXPECT_EQ(cella(1, colonna), rimane);
        ASSERT_EQ(dialogo.messaggi.size(), 1U);
        EXPECT_EQ(dialogo.messaggi[0].testo, messaggio);
        tasto(Qt::Key_Escape);
    }
}

TEST_F(VistaGrigliaTest, TakesTheKeysOfAColumnAndNothingElse) {
    const std::pair<const char*, bool> casi[] = {{"0", true},     {"1", true},  {" 1 ", true},
                                                 {"", true},      {"2", false}, {"01", false},
                                                 {"traz.", false}};
    for (const auto& [scritto, buono] : casi) {
        dialogo.messaggi.clear();
        clic(3, 4);
        scrivi(scritto);
        clic(3, 1);
        EXPECT_EQ(cursore(), buono ? "3,1" : "3,4") << scritto;
        EXPECT_EQ(dialogo.messaggi.empty(), buono) << scritto;
        tasto(Qt::Key_Escape);
        clic(3, 4);
        while (!cella(3, 4).empty()) tasto(Qt::Key_Backspace);
    }
}

TEST_F(VistaGrigliaTest, OpensTheEditorByF2AndByADoubleClick) {
    tasto(Qt::Key_F2);
    EXPECT_TRUE(editore().isVisible());
    EXPECT_TRUE(editore().hasFocus());
    EXPECT_EQ(editore().text(), "3");
    EXPECT_EQ(editore().geometry(), griglia().visualRect(griglia().currentIndex()));
    tasto(Qt::Key_Escape);
    EXPECT_FALSE(editore().isVisible());
    doppioClic(2, 3);
    EXPECT_TRUE(editore().isVisible());
    EXPECT_EQ(editore().text(), "due");
    EXPECT_EQ(cursore(), "2,3");
}

TEST_F(VistaGrigliaTest, WritesTheEditorByEnterAndDropsItByEsc) {
    tasto(Qt::Key_F2);
    scrivi("5");
    tasto(Qt::Key_Return);
    EXPECT_EQ(cella(1, 1), "35");
    EXPECT_EQ(cursore(), "1,1");
    EXPECT_TRUE(griglia().hasFocus());
    tasto(Qt::Key_F2);
    scrivi("7");
    tasto(Qt::Key_Escape);
    EXPECT_EQ(cella(1, 1), "35");
    EXPECT_TRUE(griglia().hasFocus());
    EXPECT_TRUE(forma->isVisible());
}

TEST_F(VistaGrigliaTest, WritesTheEditorWhenTheCursorGoesElsewhere) {
    tasto(Qt::Key_F2);
    scrivi("5");
    clic(2, 2);
    EXPECT_EQ(cella(1, 1), "35");
    EXPECT_EQ(cursore(), "2,2");
    tasto(Qt::Key_F2);
    scrivi("0");
    tasto(Qt::Key_Tab);
    EXPECT_EQ(cella(2, 2), "190");
    EXPECT_EQ(cursore(), "2,3");
    EXPECT_FALSE(editore().isVisible());
}

TEST_F(VistaGrigliaTest, MovesInsideTheEditorByItsOwnKeys) {
    tasto(Qt::Key_F2);
    tasto(Qt::Key_Home);
    scrivi("1");
    QTest::keyClick(&editore(), Qt::Key_Comma, Qt::KeypadModifier);
    EXPECT_EQ(editore().text(), "1.3");
    QTest::mouseClick(&editore(), Qt::LeftButton);
    EXPECT_TRUE(editore().isVisible());
    tasto(Qt::Key_Return);
    EXPECT_EQ(cella(1, 1), "1.3");
}

TEST_F(VistaGrigliaTest, KeepsTheArrowsInsideTheEditorAndOpensTheHelpFromIt) {
    tasto(Qt::Key_F2);
    for (const auto quale : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Down}) tasto(quale);
    EXPECT_TRUE(editore().isVisible());
    EXPECT_EQ(cursore(), "1,1");
    scrivi("2");
    EXPECT_EQ(editore().text(), "23");
    tasto(Qt::Key_F1);
    EXPECT_EQ(aperti.size(), 1U);
    tasto(Qt::Key_PageDown);
    EXPECT_EQ(cella(1, 1), "23");
    EXPECT_FALSE(editore().isVisible());
}

TEST_F(VistaGrigliaTest, LeavesAReadOnlyColumnAsItIs) {
    maschera.campi[1].soloLettura = true;
    scrivi("9");
    tasto(Qt::Key_F2);
    doppioClic(1, 1);
    EXPECT_FALSE(editore().isVisible());
    EXPECT_EQ(cella(1, 1), "3");
}

TEST_F(VistaGrigliaTest, ShowsTheEndOfALongTextWhileItIsTyped) {
    maschera.campi[3].tipo = "/@";
    apri({"1", "1", "2", "", "0"});
    clic(1, 3);
    scrivi("mmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmm");
    const QRect posto = griglia().visualRect(griglia().currentIndex());
    const QImage prima = griglia().viewport()->grab(posto).toImage();
    scrivi("lll");
    EXPECT_NE(griglia().viewport()->grab(posto).toImage(), prima);
}

}  // namespace
}  // namespace korven::shell
