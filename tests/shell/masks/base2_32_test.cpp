// The form of a table: how it is built, its buttons, its help. The keys are in grid_view_test.cpp,
// the clipboard in grid_clipboard_test.cpp.

#include "shell/masks/base2_32.hpp"

#include <QHeaderView>
#include <QLabel>
#include <QScreen>

#include "base/table.hpp"
#include "support/dialog_double.hpp"
#include "support/grid_form_bench.hpp"

namespace korven::shell {
namespace {

using base::Risposta;
using masks::GenereMaschera;

class FormaGriglia : public test::BancoGriglia {
 protected:
    QLabel& striscia() { return test::controllo<QLabel>(*forma, "Label1"); }
    void apriGenere(GenereMaschera genere, const Testi& testi) {
        maschera.genere = genere;
        apri(testi);
    }
};

constexpr const char* incomplete =
    "Alcune righe di dati non sono state completate: volete controllare i dati inseriti?";

TEST_F(FormaGriglia, HasTitleAndHelpContextOfItsMask) {
    maschera.contesto = 5;
    apri();
    EXPECT_EQ(forma->windowTitle(), "Tabella");
    EXPECT_EQ(forma->property("contestoGuida").toInt(), 5);
    apri({"1|Altro titolo", "3", "18", "uno", "0"});
    EXPECT_EQ(forma->windowTitle(), "Altro titolo");
    EXPECT_EQ(cella(1, 3), "uno");
}

TEST_F(FormaGriglia, Has500RowsUnderTheLabelsOfTheColumnsAndBesideTheirNumbers) {
    apri();
    const auto& modello = *griglia().model();
    EXPECT_EQ(modello.rowCount(), 500);
    EXPECT_EQ(modello.columnCount(), 4);
    EXPECT_EQ(modello.headerData(0, Qt::Horizontal), "Prof. [m]");
    EXPECT_EQ(modello.headerData(3, Qt::Horizontal), "Tipo");
    EXPECT_EQ(modello.headerData(0, Qt::Vertical), 1);
    EXPECT_EQ(modello.headerData(499, Qt::Vertical), 500);
    EXPECT_EQ(test::controllo<QLabel>(*forma, "angolo").text(), "N");
}

TEST_F(FormaGriglia, FillsItsCellsTrimmedAndStartsAtTheFirst) {
    apri({"1", "  3 ", "18", " uno", "0"});
    EXPECT_EQ(cella(1, 1), "3");
    EXPECT_EQ(cella(1, 3), "uno");
    EXPECT_EQ(cella(2, 1), "");
    EXPECT_EQ(cursore(), "1,1");
    EXPECT_TRUE(griglia().hasFocus());
    EXPECT_TRUE(griglia().selectionModel()->isSelected(griglia().currentIndex()));
}

TEST_F(FormaGriglia, GivesAColumnTheRoomOfItsLabelOrOfItsDigits) {
    maschera.campi[2].tipo = std::string(30, '#');
    apri();
    const auto larghezza = [&](const char* testo) {
        return griglia().fontMetrics().horizontalAdvance(QString(testo));
    };
    EXPECT_GE(griglia().columnWidth(0), larghezza(" Prof. [m] "));
    EXPECT_LT(griglia().columnWidth(0), 2 * larghezza(" Prof. [m] "));
    EXPECT_GE(griglia().columnWidth(1), larghezza(" 888888888888888888888888888888 "));
    EXPECT_GE(griglia().verticalHeader()->width(), larghezza(" 8888 "));
}

TEST_F(FormaGriglia, AlignsNumbersAtTheRight) {
    apri();
    const auto allineata = [&](int colonna) {
        return griglia().model()->index(0, colonna - 1).data(Qt::TextAlignmentRole).toInt();
    };
    EXPECT_TRUE(allineata(1) & Qt::AlignRight);
    EXPECT_TRUE(allineata(3) & Qt::AlignLeft);
}

TEST_F(FormaGriglia, ShowsATableThatFillsAllItsRows) {
    Testi piena = {"500"};
    for (int i = 0; i < 2000; ++i) piena.push_back(std::to_string(i % 4));
    apri(piena);
    EXPECT_EQ(cella(1, 4), "3");
    EXPECT_EQ(cella(500, 1), "0");
    EXPECT_EQ(cella(500, 4), "3");
}

TEST_F(FormaGriglia, CannotHoldMoreThan500Rows) { EXPECT_THROW(apri({"501"}), base::ErroreIndice); }

TEST_F(FormaGriglia, HasItsButtonsBelowTheGrid) {
    apri();
    const char* attesi[] = {"&Conferma", "&Annulla", "&Inserisci riga", "&Elimina riga", "&Help"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(pulsante(i).text(), attesi[i]);
        EXPECT_EQ(pulsante(i).width(), pulsante(0).width());
        EXPECT_GT(pulsante(i).mapTo(forma.get(), QPoint()).y(), griglia().geometry().bottom());
        EXPECT_FALSE(pulsante(i).isDefault() || pulsante(i).autoDefault());
    }
}

TEST_F(FormaGriglia, HasOnlyHelpAfterCancelInAFixedGrid) {
    maschera.pulsanti = {"&Conferma", "&Annulla", "&Help"};
    maschera.riferimento = "8 EDITTIR";
    apriGenere(GenereMaschera::grigliaFissa, {"1", "3", "18", "uno", "0"});
    premi(2);
    EXPECT_EQ(aperti, std::vector<int>{8});
    EXPECT_EQ(cella(1, 1), "3") << "no row came or went";
}

TEST_F(FormaGriglia, ExplainsTheColumnOfTheCursor) {
    apri();
    EXPECT_EQ(striscia().text(), "la profondità");
    clic(1, 4);
    EXPECT_EQ(striscia().text(), "il tipo\n0=traz.,1=tutti") << "a line break for $$$";
    QTest::mouseClick(&striscia(), Qt::LeftButton);
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(dialogo.messaggi[0].testo, "il tipo\n0=traz.,1=tutti");
    EXPECT_EQ(dialogo.messaggi[0].titolo, "Tipo");
    EXPECT_GE(striscia().height(), 2 * striscia().fontMetrics().height());
    const int altezza = striscia().height();
    clic(1, 2);
    QApplication::processEvents();
    EXPECT_EQ(striscia().height(), altezza);
}

TEST_F(FormaGriglia, OpensTheHelpByItsButtonAndByF1) {
    maschera.riferimento = "9 EDITFASI";
    maschera.contesto = 5;
    apri();
    premi(4);
    tasto(Qt::Key_F1);
    EXPECT_EQ(aperti, (std::vector<int>{9, 5}));
    cHeGuida = false;
    tasto(Qt::Key_F1);
    EXPECT_TRUE(dialogo.messaggi.empty());
    premi(4);
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(dialogo.messaggi[0].testo, "9 EDITFASI");
}

TEST_F(FormaGriglia, ConfirmsItsRows) {
    apri();
    scrivi("4");
    premi(0);
    EXPECT_EQ(forma->result(), QDialog::Accepted);
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(forma->modello().valoriTesto(),
              (Testi{"2", "4", "18", "uno", "0", "8", "19", "due", "1"}));
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(FormaGriglia, LeavesOutEmptyRowsWhenItIsConfirmed) {
    apri({"3", "1", "2", "a", "0", "", "", "", "", "3", "4", "b", "1"});
    dialogo.risposte = {Risposta::no};
    premi(0);
    EXPECT_EQ(forma->modello().valoriTesto(), (Testi{"2", "1", "2", "a", "0", "3", "4", "b", "1"}));
    EXPECT_EQ(forma->result(), QDialog::Accepted);
}

TEST_F(FormaGriglia, ReturnsToItsCursorWhenTheUserWantsToLookAtIncompleteRows) {
    apri({"2", "1", "2", "a", "0", "3", "", "b", "1"});
    clic(2, 3);
    dialogo.risposte = {Risposta::si};
    premi(0);
    ASSERT_EQ(dialogo.domande.size(), 1U);
    EXPECT_EQ(dialogo.domande[0],
              (test::DialogoFinto::Detto{incomplete, "ATTENZIONE!", base::Icona::domanda}));
    EXPECT_TRUE(forma->isVisible());
    EXPECT_EQ(cursore(), "2,3");
    EXPECT_TRUE(griglia().hasFocus());
}

TEST_F(FormaGriglia, AsksAboutIncompleteRowsWhereTheKindOfTheMaskWantsIt) {
    const std::pair<GenereMaschera, std::size_t> casi[] = {{GenereMaschera::griglia, 1},
                                                           {GenereMaschera::grigliaFissa, 1},
                                                           {GenereMaschera::grigliaLibera, 0}};
    for (const auto& [genere, domande] : casi) {
        dialogo.domande.clear();
        dialogo.risposte = {Risposta::no};
        apriGenere(genere, {"1", "1", "", "a", "0"});
        premi(0);
        EXPECT_EQ(dialogo.domande.size(), domande) << static_cast<int>(genere);
        EXPECT_EQ(forma->result(), QDialog::Accepted);
    }
}

TEST_F(FormaGriglia, StaysWhenTheCellIsBad) {
    apri();
    tasto(Qt::Key_F2);
    scrivi("x");
    premi(0);
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_TRUE(forma->isVisible());
    EXPECT_FALSE(editore().isVisible()) << "an open editor is closed first";
    EXPECT_EQ(cella(1, 1), "3x");
}

TEST_F(FormaGriglia, IsCancelledByItsButtonWithoutAQuestion) {
    apri();
    scrivi("999");
    premi(1);
    EXPECT_EQ(forma->result(), QDialog::Rejected);
    EXPECT_FALSE(forma->isVisible());
    EXPECT_TRUE(dialogo.messaggi.empty());
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(FormaGriglia, AsksAboutChangedRowsAtItsCloseBoxAndAtEscOutsideTheCells) {
    for (const bool conEsc : {false, true}) {
        dialogo.domande.clear();
        apri();
        const auto lascia = [&] {
            if (conEsc)
                QTest::keyClick(&pulsante(0), Qt::Key_Escape);
            else
                forma->close();
        };
        scrivi("4");
        dialogo.risposte = {Risposta::no, Risposta::si};
        lascia();
        EXPECT_TRUE(forma->isVisible());
        EXPECT_EQ(cella(1, 1), "4");
        lascia();
        EXPECT_FALSE(forma->isVisible());
        EXPECT_EQ(forma->result(), QDialog::Rejected);
        EXPECT_EQ(dialogo.domande.size(), 2U);
        apri();
        lascia();
        EXPECT_FALSE(forma->isVisible()) << "nothing was changed";
        EXPECT_EQ(dialogo.domande.size(), 2U);
    }
}

TEST_F(FormaGriglia, SaysInTitleAndStripThatThereAreTooManyRows) {
    capienza = 2;
    apri();
    EXPECT_EQ(forma->windowTitle(), "Tabella");
    clic(3, 1);
    scrivi("9");
    EXPECT_EQ(forma->windowTitle(), "Tabella - righe scritte: 3, capienza della tabella: 2");
    EXPECT_TRUE(striscia().text().startsWith("righe scritte: 3, capienza della tabella: 2."));
    premi(3);
    EXPECT_EQ(forma->windowTitle(), "Tabella");
    EXPECT_EQ(striscia().text(), "la profondità");
}

TEST_F(FormaGriglia, TellsWhatANumberIsReadAsWhileItIsTyped) {
    apri();
    scrivi("20,5");
    EXPECT_EQ(striscia().text(), "letto come 20: il segno decimale è il punto\nla profondità");
    tasto(Qt::Key_F2);
    QTest::keyClicks(&editore(), ".7");
    EXPECT_EQ(striscia().text(), "letto come 20: il segno decimale è il punto\nla profondità");
    tasto(Qt::Key_Escape);
    tasto(Qt::Key_Escape);
    EXPECT_EQ(striscia().text(), "la profondità");
}

TEST_F(FormaGriglia, MarksTheTextOfACellAfterABox) {
    apri();
    const auto foto = [&] { return griglia().viewport()->grab().toImage(); };
    scrivi("999");
    const QRect posto = griglia().visualRect(griglia().currentIndex());
    const auto tinta = [&](QPoint dove) { return foto().pixelColor(dove); };
    const QColor base = griglia().palette().color(QPalette::Active, QPalette::Base);
    const QPoint sinistra(posto.left() + 4, posto.center().y());
    EXPECT_NE(tinta(sinistra), base) << "the whole cell";
    tasto(Qt::Key_Return);
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(tinta(sinistra), base) << "the text alone";
    scrivi("8");
    EXPECT_EQ(cella(1, 1), "8");
    EXPECT_NE(tinta(sinistra), base);
}

TEST_F(FormaGriglia, InsertsARowInsideTheData) {
    apri();
    clic(2, 2);
    premi(2);
    EXPECT_EQ(cella(2, 1) + cella(2, 2) + cella(2, 3), "");
    EXPECT_EQ(cella(3, 3), "due");
    EXPECT_EQ(cursore(), "2,2");
    EXPECT_TRUE(griglia().hasFocus());
    clic(5, 1);
    premi(2);
    EXPECT_EQ(cella(3, 3), "due") << "nothing after the data";
}

TEST_F(FormaGriglia, InsertsNothingWhenTheLastRowIsFull) {
    Testi piena = {"500"};
    for (int i = 0; i < 2000; ++i) piena.emplace_back(i % 4 == 3 ? "1" : "2");
    apri(piena);
    premi(2);
    EXPECT_EQ(cella(1, 1), "2");
}

TEST_F(FormaGriglia, DeletesTheCurrentRow) {
    apri();
    premi(3);
    EXPECT_EQ(cella(1, 3), "due");
    EXPECT_EQ(cella(2, 3), "");
    EXPECT_EQ(cursore(), "1,1");
    clic(4, 1);
    premi(3);
    EXPECT_EQ(cella(1, 3), "due");
}

TEST_F(FormaGriglia, IsCentredAndFitsTheScreen) {
    maschera.campi[1].tipo = std::string(300, '#');
    apri();
    const QRect schermo = forma->screen()->availableGeometry();
    EXPECT_TRUE(schermo.contains(forma->frameGeometry()));
    EXPECT_LE(qAbs(schermo.center().x() - forma->geometry().center().x()), 4);
}

}  // namespace
}  // namespace korven::shell
