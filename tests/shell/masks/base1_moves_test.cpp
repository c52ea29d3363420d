// The form of fields: the keys that move about, and the checks when a field is left.

#include <QAbstractItemView>
#include <QWheelEvent>
#include <functional>

#include "base/translated_texts.hpp"
#include "shell/dialogo_qt.hpp"
#include "shell/masks/base1.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/field_form_bench.hpp"

namespace korven::shell {
namespace {

constexpr const char* intervallo =
    "Vi e' un errore di digitazione del valore introdotto o il valore è fuori dal range previsto; "
    "deve infatti appartenere all'intervallo:\r-5; 10";
constexpr const char* alfanumerico =
    "Non sono ammessi caratteri alfanumerici in un campo di tipo numerico.";
constexpr const char* lunghezza =
    "Il dato introdotto eccede la lunghezza ammessa. Viene quindi troncato alla massima lunghezza "
    "ammissibile.";

class MovimentiCampi : public test::BancoBase1 {
 protected:
    void SetUp() override { apri(); }

    // The name of the control that has the focus.
    [[nodiscard]] std::string fuoco() const {
        return forma->focusWidget()->objectName().toStdString();
    }
    void tasto(Qt::Key quale, Qt::KeyboardModifiers con = {}) {
        QTest::keyClick(forma->focusWidget(), quale, con);
    }
    void attendi(const char* messaggio, const char* titolo) {
        ASSERT_EQ(dialogo.messaggi.size(), 1U);
        EXPECT_EQ(dialogo.messaggi[0],
                  (test::DialogoFinto::Detto{messaggio, titolo, base::Icona::stop}));
    }
};

TEST_F(MovimentiCampi, GoDownByDownAndBothEnterKeysAcrossChoicesAndTexts) {
    EXPECT_EQ(fuoco(), "Combo1_0");
    tasto(Qt::Key_Down);
    EXPECT_EQ(fuoco(), "Combo1_1");
    tasto(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "Text1_0");
    tasto(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(fuoco(), "Text1_1");
    tasto(Qt::Key_Down);
    EXPECT_EQ(fuoco(), "Text1_2");
    EXPECT_EQ(combo(0).currentIndex(), 0) << "the arrows change no choice";
}

TEST_F(MovimentiCampi, StayAtTheEndsAndConfirmNothing) {
    tasto(Qt::Key_Up);
    EXPECT_EQ(fuoco(), "Combo1_0");
    testo(2).setFocus();
    for (const auto quale : {Qt::Key_Return, Qt::Key_Down, Qt::Key_Enter}) tasto(quale);
    EXPECT_EQ(fuoco(), "Text1_2");
    EXPECT_TRUE(forma->isVisible());
}

TEST_F(MovimentiCampi, GoUpFromTheFirstTextToTheLastChoice) {
    testo(0).setFocus();
    tasto(Qt::Key_Up);
    EXPECT_EQ(fuoco(), "Combo1_1");
    tasto(Qt::Key_Up);
    EXPECT_EQ(fuoco(), "Combo1_0");
}

TEST_F(MovimentiCampi, PassOverAFieldThatCannotTakeTheFocus) {
    maschera.campi[1].soloLettura = true;
    apri();
    tasto(Qt::Key_Down);
    EXPECT_EQ(fuoco(), "Text1_0");
    tasto(Qt::Key_Up);
    EXPECT_EQ(fuoco(), "Combo1_0");
}

TEST_F(MovimentiCampi, DoNothingOnF1) {
    for (QWidget* controllo :
         {static_cast<QWidget*>(&combo(0)), static_cast<QWidget*>(&testo(0))}) {
        controllo->setFocus();
        tasto(Qt::Key_F1);
        EXPECT_EQ(forma->focusWidget(), controllo);
    }
    EXPECT_TRUE(aperti.empty());
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(MovimentiCampi, ChangeAChoiceByLeftAndRightAndByItsList) {
    tasto(Qt::Key_Right);
    EXPECT_EQ(combo(0).currentText(), "cerniera");
    tasto(Qt::Key_Right);
    EXPECT_EQ(combo(0).currentIndex(), 1);
    tasto(Qt::Key_Left);
    tasto(Qt::Key_Left);
    EXPECT_EQ(combo(0).currentIndex(), 0);
    combo(1).setFocus();
    QTest::keyClicks(&combo(1), "b");
    EXPECT_EQ(forma->modello().valoriCombo(), (std::vector<double>{0, 2}));
}

TEST_F(MovimentiCampi, StayInTheListOfAChoiceWhileItIsOpen) {
    tasto(Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(combo(0).view()->isVisible());
    QTest::keyClick(combo(0).view(), Qt::Key_Down);
    QTest::keyClick(combo(0).view(), Qt::Key_Return);
    EXPECT_FALSE(combo(0).view()->isVisible());
    EXPECT_EQ(forma->modello().valoriCombo()[0], 1);
    EXPECT_EQ(fuoco(), "Combo1_0");
    EXPECT_TRUE(forma->isVisible());
}

TEST_F(MovimentiCampi, GoByTabThroughFieldsStripAndButtons) {
    std::string strada;
    for (int i = 0; i < 9; ++i) {
        strada += fuoco() + ' ';
        tasto(Qt::Key_Tab);
    }
    EXPECT_EQ(strada,
              "Combo1_0 Combo1_1 Text1_0 Text1_1 Text1_2 Labelhelp Command1_0 Command1_1 "
              "Command1_2 ");
    EXPECT_EQ(fuoco(), "Combo1_0");
}

TEST_F(MovimentiCampi, PressAButtonThatHasTheFocusByEnterAndSpace) {
    pulsante(2).setFocus(Qt::TabFocusReason);
    tasto(Qt::Key_Return);
    tasto(Qt::Key_Space);
    EXPECT_EQ(aperti.size(), 2U);
    pulsante(0).setFocus(Qt::TabFocusReason);
    tasto(Qt::Key_Enter);
    EXPECT_EQ(forma->result(), QDialog::Accepted);
    EXPECT_FALSE(forma->isVisible());
}

TEST_F(MovimentiCampi, AreMadeByAccessKeysToo) {
    scrivi(testo(0), "99");
    QTest::keyClick(&testo(0), Qt::Key_C, Qt::AltModifier);
    QTRY_COMPARE(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(fuoco(), "Text1_0");
    QTest::keyClick(&testo(0), Qt::Key_A, Qt::AltModifier);
    QTRY_VERIFY(!forma->isVisible());
}

TEST_F(MovimentiCampi, StopAtAValueOutOfRangeWhateverTheWayOut) {
    const std::function<void()> uscite[] = {
        [&] { tasto(Qt::Key_Down); },
        [&] { tasto(Qt::Key_Up); },
        [&] { tasto(Qt::Key_Tab); },
        [&] { QTest::mouseClick(&testo(2), Qt::LeftButton); },
        [&] { QTest::mouseClick(&combo(0), Qt::LeftButton); },
        [&] { premi(0); },
        [&] { pulsante(0).setFocus(Qt::TabFocusReason); },
    };
    for (const auto& esci : uscite) {
        dialogo.messaggi.clear();
        scrivi(testo(0), "10.01");
        esci();
        attendi(intervallo, "Lunghezza [m]");
        EXPECT_EQ(fuoco(), "Text1_0");
        EXPECT_EQ(testo(0).text(), "10.01");
        EXPECT_TRUE(forma->isVisible());
        EXPECT_FALSE(combo(0).view()->isVisible()) << "the click was for the field only";
    }
}

TEST_F(MovimentiCampi, StopAtABlankOrALetterInANumber) {
    for (const char* cattivo : {"1 2", "1d3", "x", "1,5"}) {
        dialogo.messaggi.clear();
        scrivi(testo(0), cattivo);
        tasto(Qt::Key_Return);
        attendi(alfanumerico, "Lunghezza [m]");
        EXPECT_EQ(fuoco(), "Text1_0") << cattivo;
    }
}

TEST_F(MovimentiCampi, AcceptTheLimitsAnEmptyNumberAndAnExponent) {
    maschera.campi[2].massimo = 1000;
    for (const char* buono : {"-5", "1000", "", " 7 ", "1e3", ".5", "+1E+2"}) {
        testo(0).setFocus();
        testo(0).clear();
        scrivi(testo(0), buono);
        tasto(Qt::Key_Return);
        EXPECT_EQ(fuoco(), "Text1_1") << buono;
    }
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(MovimentiCampi, TakeNoMoreCharactersThanATextMayHave) {
    scrivi(testo(1), "abcdefg");
    EXPECT_EQ(testo(1).text(), "abcd");
    tasto(Qt::Key_Return);
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(MovimentiCampi, ShowATextOfAFileThatIsTooLongAndCutItWithAMessage) {
    apri({0, 0}, {"5", "abcdefg", ""});
    EXPECT_EQ(testo(1).text(), "abcdefg");
    testo(1).setFocus();
    tasto(Qt::Key_Return);
    attendi(lunghezza, "Sigla");
    EXPECT_EQ(testo(1).text(), "abcd");
    EXPECT_EQ(fuoco(), "Text1_1");
    tasto(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "Text1_2");
    EXPECT_EQ(testo(1).maxLength(), 4);
}

TEST_F(MovimentiCampi, RemoveTheDecimalsThatAPictureDoesNotTake) {
    scrivi(testo(2), "12.34");
    EXPECT_EQ(testo(2).text(), "12.34");
    QTest::keyClicks(&testo(2), "5");
    EXPECT_EQ(testo(2).text(), "12.34");
    tasto(Qt::Key_Up);
    EXPECT_TRUE(dialogo.messaggi.empty()) << "with @ there is no length";
    maschera.campi[4].tipo = "##.##";
    scrivi(testo(2), "1");
    tasto(Qt::Key_Up);
    attendi(lunghezza, "Peso");  // without it every entry is refused
}

TEST_F(MovimentiCampi, ShowACharacterThatCannotBeSavedAsItWillBe) {
    testo(1).setFocus();
    testo(1).setText("ab");
    testo(1).setCursorPosition(1);
    testo(1).insert(QString::fromUtf8("φ"));
    EXPECT_EQ(testo(1).text(), "a?b");
    EXPECT_EQ(testo(1).cursorPosition(), 2) << "where it was typed";
}

TEST_F(MovimentiCampi, TakeTheDecimalKeyOfTheNumberPadForAPoint) {
    scrivi(testo(0), "1");
    QTest::keyClick(&testo(0), Qt::Key_Comma, Qt::KeypadModifier);
    QTest::keyClicks(&testo(0), "5");
    EXPECT_EQ(forma->modello().testo(2), "1.5");
    scrivi(testo(1), "a");
    QTest::keyClick(&testo(1), Qt::Key_Comma, Qt::KeypadModifier);
    EXPECT_EQ(testo(1).text(), "a,");
}

TEST_F(MovimentiCampi, LeaveAChoiceAloneWhenTheWheelTurnsOverIt) {
    testo(0).setFocus();
    const QPointF centro = combo(0).rect().center();
    QWheelEvent rotella(centro, combo(0).mapToGlobal(centro), {}, {0, -120}, Qt::NoButton, {},
                        Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo(0), &rotella);
    EXPECT_EQ(combo(0).currentIndex(), 0);
    EXPECT_EQ(fuoco(), "Text1_0");
}

// Opens the first box that it is asked for, counts the others.
class UnBoxVero : public DialogoQt {
 public:
    void messaggio(std::string_view testo, std::string_view titolo, base::Icona icona) override {
        if (++quanti == 1) DialogoQt::messaggio(testo, titolo, icona);
    }
    int quanti = 0;
};

// The box of the desktop takes the focus and gives it back, which must not look like a user that
// leaves the field again.
TEST_F(MovimentiCampi, TellAFaultInOneBoxWithAStopSign) {
    forma->hide();
    UnBoxVero vero;
    Base1 sopra(maschera, {}, {"11", "", ""}, vero, {}, nullptr);
    sopra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&sopra));
    auto& casella = test::controllo<QLineEdit>(sopra, "Text1_0");
    auto& altra = test::controllo<QLineEdit>(sopra, "Text1_1");
    casella.setFocus();
    QString detto, titolo;
    QMessageBox::Icon icona = QMessageBox::NoIcon;
    const std::function<void()> uscite[] = {[&] { QTest::keyClick(&casella, Qt::Key_Return); },
                                            [&] { QTest::keyClick(&casella, Qt::Key_Tab); },
                                            [&] { QTest::mouseClick(&altra, Qt::LeftButton); }};
    for (const auto& esci : uscite) {
        vero.quanti = 0;
        const test::AllaProssimaFinestra<QMessageBox> box([&](QMessageBox& b) {
            detto = b.text();
            titolo = b.windowTitle();
            icona = b.icon();
            QTest::keyClick(&b, Qt::Key_Return);
            sopra.activateWindow();  // on this screen nobody else gives the focus back
            QApplication::processEvents();
        });
        esci();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&sopra));
        EXPECT_EQ(vero.quanti, 1);
        EXPECT_TRUE(casella.hasFocus());
        EXPECT_EQ(casella.selectedText(), "11") << "what is typed next takes its place";
    }
    EXPECT_TRUE(detto.endsWith("all'intervallo:\n-5; 10")) << detto.toStdString();
    EXPECT_EQ(titolo, "Lunghezza [m]");
    EXPECT_EQ(icona, QMessageBox::Critical);
}

}  // namespace
}  // namespace korven::shell
