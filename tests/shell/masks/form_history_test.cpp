// Taking back and doing again in the forms of masks, by their keys.

#include <QMenu>
#include <QTimer>

#include "shell/forms/history_keys.hpp"
#include "support/field_form_bench.hpp"
#include "support/grid_form_bench.hpp"

namespace korven::shell {
namespace {

class StoriaCampi : public test::BancoBase1 {
 protected:
    void SetUp() override { apri(); }
    void tasto(Qt::Key quale, Qt::KeyboardModifiers con = Qt::ControlModifier) {
        QTest::keyClick(forma->focusWidget(), quale, con);
    }
    [[nodiscard]] std::string fuoco() const {
        return forma->focusWidget()->objectName().toStdString();
    }
    QString striscia() { return test::controllo<QLabel>(*forma, "Labelhelp").text(); }
    // Chooses an item of the menu of a text box.
    void scegliDalMenu(QLineEdit& casella, const QString& voce) {
        bool trovata = false;
        QTimer::singleShot(0, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (auto* azione : menu->actions())
                if (azione->text().startsWith(voce) && azione->isEnabled()) {
                    trovata = true;
                    azione->trigger();
                }
            menu->close();
        });
        QContextMenuEvent evento(QContextMenuEvent::Keyboard, QPoint(),
                                 casella.mapToGlobal(QPoint()));
        QApplication::sendEvent(&casella, &evento);
        EXPECT_TRUE(trovata);
    }
};

TEST_F(StoriaCampi, TakeBackFieldByFieldWhateverTheTextBoxRemembers) {
    QTest::keyClick(&combo(1), Qt::Key_Right);
    scrivi(testo(0), "7.25");
    scrivi(testo(1), "xy");
    tasto(Qt::Key_Z);
    EXPECT_EQ(testo(1).text(), "abcd");
    EXPECT_EQ(fuoco(), "Text1_1");
    EXPECT_TRUE(striscia().startsWith("Annullato: campo Sigla\n"));
    tasto(Qt::Key_Z);
    EXPECT_EQ(testo(0).text(), "5");
    EXPECT_EQ(testo(0).selectedText(), "5");
    EXPECT_EQ(fuoco(), "Text1_0");
    tasto(Qt::Key_Z);
    EXPECT_EQ(combo(1).currentIndex(), 0);
    EXPECT_EQ(fuoco(), "Combo1_1");
    tasto(Qt::Key_Z);
    EXPECT_TRUE(striscia().startsWith("Nulla da annullare\n"));
    tasto(Qt::Key_Y);
    tasto(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(combo(1).currentIndex(), 1);
    EXPECT_EQ(testo(0).text(), "7.25");
    EXPECT_EQ(fuoco(), "Text1_0");
    tasto(Qt::Key_8, {});
    EXPECT_EQ(striscia(), "aiuto 2");
    tasto(Qt::Key_Y);
    EXPECT_TRUE(striscia().startsWith("Nulla da ripetere\n"));
    EXPECT_EQ(testo(1).text(), "abcd");
}

TEST_F(StoriaCampi, TellThoseWhoFollowTheForm) {
    scrivi(testo(0), "9");
    std::vector<std::string> seguiti;
    QObject::connect(forma.get(), &FormaMaschera::digitata,
                     [&] { seguiti.push_back(forma->valori().testi[0]); });
    tasto(Qt::Key_Z);
    ASSERT_FALSE(seguiti.empty());
    EXPECT_EQ(seguiti.back(), "5");
    tasto(Qt::Key_Y);
    EXPECT_EQ(seguiti.back(), "9");
}

TEST_F(StoriaCampi, TakeBackABadTextInsteadOfTellingItsFault) {
    scrivi(testo(0), "x");
    tasto(Qt::Key_Z);
    QTest::keyClick(&testo(0), Qt::Key_Down);
    EXPECT_EQ(fuoco(), "Text1_1");
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(StoriaCampi, TakeBackFromAButtonToo) {
    scrivi(testo(0), "9");
    pulsante(2).setFocus();
    tasto(Qt::Key_Z);
    EXPECT_EQ(testo(0).text(), "5");
    EXPECT_EQ(fuoco(), "Text1_0");
}

TEST_F(StoriaCampi, TakeBackFromTheMenuOfATextBox) {
    scrivi(testo(0), "9");
    scegliDalMenu(testo(0), "&Undo");
    EXPECT_EQ(testo(0).text(), "5");
    EXPECT_EQ(forma->modello().testo(2), "5");
    EXPECT_TRUE(striscia().startsWith("Annullato: campo Lunghezza\n"));
    scegliDalMenu(testo(0), "&Redo");
    EXPECT_EQ(testo(0).text(), "9");
}

TEST_F(StoriaCampi, BringBackATextThatIsLongerThanItsBoxTakes) {
    apri({0, 0}, {"5", "lunghissimo", "1.25"});
    scrivi(testo(1), "ab");
    tasto(Qt::Key_Z);
    EXPECT_EQ(testo(1).text(), "lunghissimo");
    tasto(Qt::Key_Y);
    EXPECT_EQ(testo(1).text(), "ab");
    EXPECT_EQ(testo(1).maxLength(), 4);
}

class StoriaTabella : public test::BancoGriglia {
 protected:
    void SetUp() override { apri(); }
    QString striscia() { return test::controllo<QLabel>(*forma, "Label1").text(); }
    void annulla() { tasto(Qt::Key_Z, Qt::ControlModifier); }
    void ripeti() { tasto(Qt::Key_Y, Qt::ControlModifier); }
};

TEST_F(StoriaTabella, TakesBackCellsRowsAndPastesAndDoesThemAgain) {
    dialogo.risposta = base::Risposta::si;
    scrivi("4.5");
    clic(2, 2);
    premi(2);
    incolla("7\tnuovo");
    EXPECT_EQ(cella(2, 3), "nuovo");
    annulla();
    EXPECT_EQ(cella(2, 3), "");
    EXPECT_TRUE(striscia().startsWith("Annullato: riga 2 incollata\n"));
    annulla();
    EXPECT_EQ(cella(2, 3), "due");
    EXPECT_EQ(cursore(), "2,2");
    annulla();
    EXPECT_EQ(cella(1, 1), "3");
    EXPECT_EQ(cursore(), "1,1");
    annulla();
    EXPECT_TRUE(striscia().startsWith("Nulla da annullare\n"));
    ripeti();
    tasto(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    ripeti();
    EXPECT_EQ(cella(1, 1), "4.5");
    EXPECT_EQ(cella(2, 3), "nuovo");
    EXPECT_EQ(cella(3, 3), "due");
    tasto(Qt::Key_Down);
    EXPECT_EQ(striscia(), "il peso");
}

TEST_F(StoriaTabella, TakesTheTextOfTheFloatingEditorBack) {
    doppioClic(2, 3);
    scrivi("tre");
    QTest::keyClick(&editore(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(editore().isVisible());
    EXPECT_TRUE(griglia().hasFocus());
    EXPECT_EQ(cella(2, 3), "due");
    ripeti();
    EXPECT_EQ(cella(2, 3), "duetre");
}

TEST_F(StoriaTabella, TellsThoseWhoFollowTheForm) {
    scrivi("9");
    std::vector<std::string> seguiti;
    QObject::connect(forma.get(), &FormaMaschera::digitata,
                     [&] { seguiti.push_back(forma->valori().testi[1]); });
    annulla();
    ripeti();
    EXPECT_EQ(seguiti, (Testi{"3", "9"}));
}

TEST_F(StoriaTabella, AsksNothingWhenAllWasTakenBack) {
    scrivi("9");
    annulla();
    forma->reject();
    EXPECT_FALSE(forma->isVisible());
    EXPECT_TRUE(dialogo.domande.empty());
}

}  // namespace
}  // namespace korven::shell
