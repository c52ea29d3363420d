#include "shell/dialogo_qt.hpp"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QPushButton>

#include "support/desktop_bench.hpp"

namespace korven::shell {
namespace {

using base::Icona;
using base::Pulsanti;
using base::Risposta;
using Box = test::AllaProssimaFinestra<QMessageBox>;

TEST(BoxQt, ShowsTextTitleAndIconAsGiven) {
    DialogoQt dialogo;
    QString testo, titolo;
    QMessageBox::Icon icona = QMessageBox::NoIcon;
    const Box box([&](QMessageBox& b) {
        testo = b.text();
        titolo = b.windowTitle();
        icona = b.icon();
        QTest::keyClick(&b, Qt::Key_Return);
    });
    dialogo.messaggio("Il valore <di> EJ & altro", "ATTENZIONE!", Icona::stop);
    EXPECT_TRUE(box.fatto);
    EXPECT_EQ(testo, "Il valore <di> EJ & altro");
    EXPECT_EQ(titolo, "ATTENZIONE!");
    EXPECT_EQ(icona, QMessageBox::Critical);
}

TEST(BoxQt, ShowsBelowAQuestionWhatHelpsToAnswerIt) {
    DialogoQt dialogo;
    QString testo, sotto;
    const Box box([&](QMessageBox& b) {
        testo = b.text();
        sotto = b.informativeText();
        QTest::keyClick(&b, Qt::Key_Escape);
    });
    EXPECT_EQ(dialogo.domandaInformata("Sostituire?", "ATTENZIONE!", Pulsanti::siNo, Icona::domanda,
                                       "EJ: 1\nEJ: 2"),
              Risposta::no);
    EXPECT_EQ(testo, "Sostituire?");
    EXPECT_EQ(sotto, "EJ: 1\nEJ: 2");
}

TEST(BoxQt, BreaksLinesAtCarriageReturns) {
    DialogoQt dialogo;
    QString testo;
    const Box box([&](QMessageBox& b) {
        testo = b.text();
        QTest::keyClick(&b, Qt::Key_Return);
    });
    dialogo.messaggio("intervallo:\r0; 1\r\nfine\n.", "ATTENZIONE!", Icona::stop);
    EXPECT_EQ(testo, "intervallo:\n0; 1\nfine\n.");
}

TEST(BoxQt, AnswersByItsButtons) {
    DialogoQt dialogo;
    const std::pair<const char*, Risposta> casi[] = {
        {"si", Risposta::si}, {"no", Risposta::no}, {"annulla", Risposta::annulla}};
    for (const auto& [nome, attesa] : casi) {
        const Box box([nome = nome](QMessageBox& b) {
            QTest::mouseClick(b.findChild<QPushButton*>(nome), Qt::LeftButton);
        });
        EXPECT_EQ(dialogo.domanda("Salvare?", "ATTENZIONE!", Pulsanti::siNoAnnulla, Icona::domanda),
                  attesa);
        EXPECT_TRUE(box.fatto);
    }
}

TEST(BoxQt, TakesEnterForYesAndEscForTheLeastItCanDo) {
    DialogoQt dialogo;
    const auto premi = [&](Qt::Key tasto, Pulsanti pulsanti, Icona icona = Icona::domanda) {
        const Box box([tasto](QMessageBox& b) { QTest::keyClick(&b, tasto); });
        return dialogo.domanda("Salvare?", "ATTENZIONE!", pulsanti, icona);
    };
    EXPECT_EQ(premi(Qt::Key_Return, Pulsanti::siNo, Icona::avviso), Risposta::no);
    EXPECT_EQ(premi(Qt::Key_Return, Pulsanti::siNoAnnulla), Risposta::si);
    EXPECT_EQ(premi(Qt::Key_Escape, Pulsanti::siNoAnnulla), Risposta::annulla);
    EXPECT_EQ(premi(Qt::Key_Escape, Pulsanti::siNo), Risposta::no);
}

TEST(BoxQt, AppearsAboveTheViewerThatDisablesTheMainForm) {
    QWidget principale, visore;
    QWidget anteprima(&principale, Qt::Window);
    DialogoQt dialogo;
    dialogo.sopra(&principale);
    QWidget* sopra = nullptr;
    const auto chiedi = [&] {
        const Box box([&](QMessageBox& b) {
            sopra = b.parentWidget();
            EXPECT_TRUE(b.isEnabled());
            b.reject();
        });
        dialogo.messaggio("a", "b", Icona::avviso);
    };
    chiedi();
    EXPECT_EQ(sopra, nullptr);
    for (QWidget* finestra : {&principale, &anteprima, &visore}) finestra->show();
    chiedi();
    EXPECT_EQ(sopra, &principale);
    principale.setEnabled(false);
    chiedi();
    EXPECT_EQ(sopra, &visore);
    visore.hide();
    chiedi();
    EXPECT_EQ(sopra, &principale);
}

TEST(BoxQt, AppearsAboveTheWindowBesideTheMainFormThatIsInUse) {
    QWidget principale;
    QWidget compagna(&principale, Qt::Window);
    DialogoQt dialogo;
    dialogo.sopra(&principale);
    principale.show();
    compagna.show();
    compagna.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&compagna));
    QWidget* sopra = nullptr;
    const Box box([&](QMessageBox& b) {
        sopra = b.parentWidget();
        b.reject();
    });
    dialogo.messaggio("a", "b", Icona::avviso);
    EXPECT_EQ(sopra, &compagna);
}

TEST(BoxQt, HasItsButtonsInTheLanguageInForce) {
    const test::TestiConsegnati tedesco(2);
    DialogoQt dialogo;
    QStringList testi;
    const Box box([&](QMessageBox& b) {
        for (const char* nome : {"si", "no", "annulla"})
            testi += b.findChild<QPushButton*>(nome)->text();
        b.reject();
    });
    (void)dialogo.domanda("?", "!", Pulsanti::siNoAnnulla, Icona::domanda);
    EXPECT_EQ(testi.value(0), "&Ja");
    EXPECT_EQ(testi.value(1), "&Nein");
    EXPECT_FALSE(testi.value(2).isEmpty());
}

TEST(BoxQt, ShowsTheHourglassAndGivesThePointerBackOnce) {
    DialogoQt dialogo;
    dialogo.puntatore(base::Puntatore::clessidra);
    dialogo.puntatore(base::Puntatore::clessidra);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    dialogo.puntatore(base::Puntatore::normale);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    dialogo.puntatore(base::Puntatore::normale);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace korven::shell
