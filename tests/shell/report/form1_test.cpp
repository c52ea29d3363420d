#include "shell/report/form1.hpp"

#include <QClipboard>
#include <QFontMetrics>
#include <QListView>

#include "base/file_error.hpp"
#include "support/form_setup.hpp"
#include "support/page_record.hpp"

namespace korven::shell {
namespace {

using Righe = std::vector<std::string>;

class Anteprima : public testing::Test {
 protected:
    void mostra(const Righe& righe) {
        test::metti(cartella / "muro.TAB", test::markup(righe));
        forma.mostra(cartella / "muro.TAB");
    }
    QListView& elenco() { return test::controllo<QListView>(forma, "List1"); }
    int quante() { return elenco().model()->rowCount(); }
    QString riga(int i) { return elenco().model()->index(i, 0).data().toString(); }

    QApplication& app = test::applicazione();
    const test::CartellaProvvisoria cartella;
    Form1 forma;
    const Righe breve{"#RESET",   "#HEADER Testa", "#FOOTER Piede", "testo",
                      "#RIGHT",   "destra",        "#LEFT",         "#STARTLIST",
                      "corto\t1", "più lungo\t20", "#ENDLIST",      "#ENDDOCUMENT"};
};

TEST_F(Anteprima, ShowsTheReportAsTheLinesOfAList) {
    mostra(breve);
    EXPECT_TRUE(forma.isVisible());
    EXPECT_EQ(quante(), 8);
    EXPECT_EQ(riga(0).trimmed(), "Testa");
    EXPECT_EQ(riga(2), "testo");
    EXPECT_EQ(riga(7).trimmed(), "Piede");
}

TEST_F(Anteprima, BringsColumnsAndLeadersIntoLine) {
    mostra(breve);
    // As many characters before the last digit, all of them of one width.
    EXPECT_EQ(riga(4).size(), riga(5).size());
    EXPECT_TRUE(riga(4).startsWith("corto ..")) << riga(4).toStdString();
    const QFontMetrics misure(elenco().font());
    for (const char c : {'i', 'W', '.', ' ', '0'})
        EXPECT_EQ(misure.horizontalAdvance(QLatin1Char(c)),
                  misure.horizontalAdvance(QLatin1Char('m')));
    // The right end of the room: the width of the window less one centimetre.
    const double punti = forma.windowWidth() - 72 / 2.54;
    EXPECT_NEAR(forma.textWidth(riga(3).toStdString()), punti, forma.textWidth("m"));
}

TEST_F(Anteprima, AddsAfterWhatItShowsUntilItIsClosed) {
    mostra(breve);
    mostra(breve);
    EXPECT_EQ(quante(), 16);
    EXPECT_EQ(elenco().currentIndex().row(), 8) << "and goes there";
    EXPECT_TRUE(elenco().selectionModel()->selectedIndexes().isEmpty());
    forma.close();
    mostra(breve);
    EXPECT_EQ(quante(), 8);
}

TEST_F(Anteprima, IsNotOpenedWithoutAReport) {
    forma.mostra(cartella / "manca.TAB");
    EXPECT_FALSE(forma.isVisible());
}

TEST_F(Anteprima, ShowsNothingOfAReportThatIsEmptyOrOpensNoDocument) {
    mostra({});
    mostra({"testo", "#STARTTABLE", "a"});
    EXPECT_EQ(quante(), 0);
}

TEST_F(Anteprima, KeepsTheLinesBeforeATableThatIsTooLarge) {
    Righe righe{"#RESET", "testo", "#STARTTABLE"};
    for (int i = 1; i <= 511; ++i) righe.emplace_back("a\tb");
    righe.emplace_back("#ENDTABLE");
    EXPECT_THROW(mostra(righe), base::ErroreFile);
    EXPECT_EQ(quante(), 3);
    EXPECT_EQ(riga(2), "testo");
}

TEST_F(Anteprima, ClosesAtEscAndAtADoubleClickAnywhereInTheList) {
    mostra(breve);
    QTest::keyClick(&elenco(), Qt::Key_Escape);
    EXPECT_FALSE(forma.isVisible());
    mostra(breve);
    const QPoint sottoLeRighe(20, elenco().viewport()->height() - 5);
    QTest::mouseDClick(elenco().viewport(), Qt::LeftButton, {}, sottoLeRighe);
    EXPECT_FALSE(forma.isVisible());
}

TEST_F(Anteprima, LetsTheListFillTheFormLess120TwipsInEachDirection) {
    mostra(breve);
    const int meno = qRound(2 * 60 / 1440.0 * forma.logicalDpiX());  // 60 on each side
    for (const QSize misure : {QSize(700, 500), QSize(431, 333)}) {
        forma.resize(misure);
        ASSERT_TRUE(QTest::qWaitFor([&] { return elenco().width() == misure.width() - meno; }));
        EXPECT_EQ(elenco().height(), misure.height() - meno);
    }
}

TEST_F(Anteprima, CopiesTheSelectedLinesInTheirOrder) {
    mostra(breve);
    auto* scelta = elenco().selectionModel();
    for (const int i : {4, 2})
        scelta->select(elenco().model()->index(i, 0), QItemSelectionModel::Select);
    QTest::keyClick(&elenco(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), riga(2) + "\n" + riga(4));
}

TEST_F(Anteprima, MeasuresOneLineForAllOfThem) {
    Righe righe{"#RESET"};
    for (int i = 1; i <= 6000; ++i) righe.push_back("riga " + std::to_string(i));
    righe.push_back(std::string(400, 'x'));
    mostra(righe);
    EXPECT_EQ(quante(), 6003);
    EXPECT_TRUE(elenco().uniformItemSizes());
    // And yet the widest can be seen to its end.
    EXPECT_GE(elenco().sizeHintForIndex(elenco().model()->index(5, 0)).width(),
              QFontMetrics(elenco().font()).horizontalAdvance(QString(400, 'x')));
}

TEST_F(Anteprima, HasANameForThoseWhoCannotSeeIt) {
    EXPECT_EQ(elenco().accessibleName(), "Tabulati");
}

}  // namespace
}  // namespace korven::shell
