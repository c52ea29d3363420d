// The form of fields: how it is built, its buttons, help. Moves and checks: base1_moves_test.cpp.

#include "shell/masks/base1.hpp"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>

#include "shell/forms/help_strip.hpp"
#include "shell/qt_text.hpp"
#include "support/field_form_bench.hpp"

namespace korven::shell {
namespace {

class FormaCampi : public test::BancoBase1 {};

TEST_F(FormaCampi, HasTitleAndHelpContextOfItsMask) {
    maschera.contesto = 6;
    apri();
    EXPECT_EQ(forma->windowTitle(), "Prova");
    EXPECT_EQ(forma->property("contestoGuida").toInt(), 6);
}

TEST_F(FormaCampi, OpensInTheMiddleOfTheScreen) {
    apri();
    const QPoint scarto =
        forma->screen()->availableGeometry().center() - forma->geometry().center();
    // The frame that the desktop lays around the form is known only once it is shown.
    const QSize cornice = forma->frameGeometry().size() - forma->size();
    EXPECT_LE(scarto.manhattanLength(), 2 + cornice.width() + cornice.height());
}

TEST_F(FormaCampi, HasARowForEachFieldOneBelowTheOther) {
    apri();
    int precedente = -1000;
    for (int i = 0; i < 5; ++i) {
        const int y = sullaForma(etichetta(i)).top();
        EXPECT_GE(y - precedente, 16) << i;
        precedente = y;
    }
    const QWidget* controlli[] = {&combo(0), &combo(1), &testo(0), &testo(1), &testo(2)};
    for (int i = 0; i < 5; ++i) {
        const QRect accanto = sullaForma(*controlli[i]);
        EXPECT_TRUE(accanto.contains(accanto.left(), sullaForma(etichetta(i)).center().y())) << i;
        EXPECT_GT(accanto.left(), sullaForma(etichetta(i)).right()) << i;
    }
}

TEST_F(FormaCampi, GrowsByTheNumberOfItsFields) {
    apri();
    const int altezza = forma->height();
    maschera.campi.insert(maschera.campi.end(), 10, test::campoMaschera("Altro", "0", 0, 9, "a"));
    apri();
    EXPECT_GE(forma->height(), altezza + 10 * 16);
}

TEST_F(FormaCampi, LeadsFromEachLabelToItsFieldWithDots) {
    apri();
    EXPECT_EQ(etichetta(2).text(), QString("Lunghezza [m] ") + QString(106, '.'));
    EXPECT_EQ(etichetta(0).text().size(), 120);
}

TEST_F(FormaCampi, PaintsWholeDotsUpToTheEdgeOfTheLabel) {
    apri();
    const QImage prima = etichetta(0).grab().toImage(), altra = etichetta(1).grab().toImage();
    // The same pattern of dots at the right end, whatever the length of the label.
    const int larghezza = 40;
    EXPECT_EQ(prima.copy(prima.width() - larghezza, 0, larghezza, prima.height()),
              altra.copy(altra.width() - larghezza, 0, larghezza, altra.height()));
    EXPECT_LT(etichetta(2).minimumSizeHint().width(), 200) << "120 characters are not needed";
}

TEST_F(FormaCampi, OffersTheItemsOfAChoice) {
    apri({1, 2});
    EXPECT_EQ(combo(0).count(), 2);
    EXPECT_EQ(combo(1).itemText(2), "Bell");
    EXPECT_EQ(combo(0).currentText(), "cerniera");
    EXPECT_EQ(combo(1).currentText(), "Bell");
}

TEST_F(FormaCampi, ShowsTheLastItemOfACodeBeyondAllAndKeepsTheCode) {
    apri({7, 0});
    EXPECT_EQ(combo(0).currentIndex(), 1);
    premi(0);
    EXPECT_EQ(forma->modello().valoriCombo(), (std::vector<double>{7, 0}));
}

TEST_F(FormaCampi, LimitsTheLengthOfATextAndOfNothingElse) {
    apri();
    EXPECT_GT(testo(0).maxLength(), 1000);
    EXPECT_EQ(testo(1).maxLength(), 4);
    EXPECT_GT(testo(2).maxLength(), 1000);
    EXPECT_EQ(testo(0).width(), testo(1).width());
    maschera.campi[3].tipo = "4@";
    apri();
    EXPECT_GT(testo(1).maxLength(), 1000);
    const int stretta = testo(0).width();
    maschera.campi[3].tipo = "40";
    apri();
    EXPECT_GT(testo(0).width(), 2 * stretta) << "the longest type makes the width of all";
}

TEST_F(FormaCampi, AlignsNumbersAtTheRight) {
    apri();
    EXPECT_TRUE(testo(0).alignment().testFlag(Qt::AlignRight));
    EXPECT_FALSE(testo(1).alignment().testFlag(Qt::AlignRight));
    EXPECT_TRUE(testo(2).alignment().testFlag(Qt::AlignRight));
}

TEST_F(FormaCampi, LocksReadOnlyFieldsAndShowsThemInGrey) {
    maschera.campi[1].soloLettura = maschera.campi[3].soloLettura = true;
    apri();
    EXPECT_FALSE(combo(1).isEnabled());
    EXPECT_EQ(combo(1).palette().color(QPalette::Disabled, QPalette::ButtonText), QColor(0x808080));
    EXPECT_TRUE(combo(0).isEnabled());
    EXPECT_TRUE(testo(1).isReadOnly());
    EXPECT_EQ(testo(1).palette().color(QPalette::Text), QColor(0x808080));
    EXPECT_FALSE(testo(0).isReadOnly());
}

TEST_F(FormaCampi, HasItsButtonsInOneRowUnderTheFields) {
    apri();
    const char* attesi[] = {"&Conferma", "&Annulla", "&Help"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(pulsante(i).text(), attesi[i]);
        EXPECT_EQ(sullaForma(pulsante(i)).top(), sullaForma(pulsante(0)).top());
        EXPECT_GT(sullaForma(pulsante(i)).top(), sullaForma(testo(2)).bottom());
        EXPECT_EQ(pulsante(i).width(), pulsante(0).width());
        EXPECT_GE(pulsante(i).width(), 4 * 9) << "characters of the longest caption";
        EXPECT_FALSE(pulsante(i).isDefault() || pulsante(i).autoDefault());
    }
}

TEST_F(FormaCampi, ConfirmsWhatWasTypedAndPicked) {
    apri();
    combo(1).setCurrentIndex(2);
    scrivi(testo(0), "7.5");
    premi(0);
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(forma->result(), QDialog::Accepted);
    EXPECT_EQ(forma->modello().valoriCombo(), (std::vector<double>{0, 2}));
    EXPECT_EQ(forma->modello().valoriTesto(), (std::vector<std::string>{"7.5", "abcd", "1.25"}));
}

TEST_F(FormaCampi, IsCancelledByItsButtonByEscAndByClosingWithoutAnyCheck) {
    for (int i = 0; i < 3; ++i) {
        apri();
        scrivi(testo(0), "999");
        if (i == 0) premi(1);
        if (i == 1) QTest::keyClick(&testo(0), Qt::Key_Escape);
        if (i == 2) forma->close();
        EXPECT_FALSE(forma->isVisible()) << i;
        EXPECT_EQ(forma->result(), QDialog::Rejected) << i;
    }
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(FormaCampi, OpensTheHelpAtTheEntryOfItsReference) {
    apri();
    premi(2);
    maschera.riferimento = "300 EDITX";
    premi(2);
    EXPECT_EQ(aperti, (std::vector<int>{6, 200}));
    EXPECT_TRUE(dialogo.messaggi.empty());
    EXPECT_TRUE(forma->isVisible());
}

TEST_F(FormaCampi, ShowsTheReferenceWhereThereIsNoHelp) {
    cHeGuida = false;
    apri();
    premi(2);
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(dialogo.messaggi[0].testo, "6 EDITX");
}

TEST_F(FormaCampi, ExplainsTheFieldInUseInAStripThatAClickShowsInABox) {
    apri();
    auto& striscia = test::controllo<QLabel>(*forma, "Labelhelp");
    EXPECT_EQ(striscia.text(), "aiuto 0");
    EXPECT_GT(sullaForma(striscia).top(), sullaForma(testo(2)).bottom());
    testo(1).setFocus();
    EXPECT_EQ(striscia.text(), "aiuto 3");
    QTest::mouseClick(&striscia, Qt::LeftButton);
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(dialogo.messaggi[0].testo, "aiuto 3");
    EXPECT_EQ(dialogo.messaggi[0].titolo, "Sigla");
    striscia.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&striscia, Qt::Key_Space);
    EXPECT_EQ(dialogo.messaggi.size(), 2U);
}

TEST_F(FormaCampi, KeepsTheStripAsHighAsItsLongestTextNeeds) {
    maschera.campi[3].aiuto = std::string("una lunga spiegazione del campo ") +
                              std::string(150, 'm') + std::string(" che va a capo") +
                              std::string(150, 'n');
    apri();
    auto& striscia = test::controllo<QLabel>(*forma, "Labelhelp");
    const int altezza = striscia.height();
    EXPECT_GE(altezza, 3 * striscia.fontMetrics().height());
    testo(1).setFocus();
    QApplication::processEvents();
    EXPECT_EQ(striscia.height(), altezza);
    EXPECT_GE(altezza, striscia.heightForWidth(striscia.width()));
}

TEST_F(FormaCampi, ScrollsWhenTheScreenIsTooLow) {
    maschera.campi.insert(maschera.campi.end(), 20, test::campoMaschera("Altro", "0", 0, 9, "a"));
    apri();
    forma->resize(forma->width(), 300);
    QApplication::processEvents();
    for (int i = 0; i < 23; ++i) testo(i).setFocus();
    auto& area = *forma->findChild<QScrollArea*>();
    const QRect ultimo(testo(22).mapTo(area.viewport(), QPoint()), testo(22).size());
    EXPECT_TRUE(area.viewport()->rect().contains(ultimo));
}

TEST_F(FormaCampi, NamesItsControlsForThoseWhoCannotSeeThem) {
    apri();
    EXPECT_EQ(combo(1).accessibleName(), "Metodo");
    EXPECT_EQ(testo(0).accessibleName(), "Lunghezza [m]");
    EXPECT_EQ(testo(0).accessibleDescription(), "aiuto 2");
}

TEST_F(FormaCampi, RemembersItsSize) {
    apri();
    const QSize grande = forma->size() + QSize(60, 40);
    forma->resize(grande);
    premi(1);
    apri();
    EXPECT_EQ(forma->size(), grande);
}

}  // namespace
}  // namespace korven::shell
