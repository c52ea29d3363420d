#include "shell/tables/table_view.hpp"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QHeaderView>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>

#include "live/wall.hpp"
#include "shell/qt_text.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"
#include "support/sample_projects.hpp"
#include "tables/node_table.hpp"

namespace korven::shell {
namespace {

using tables::Prospetto;

Prospetto nodi(double scavo) {
    project::DatiProgetto dati = test::progettoSemplice();
    dati.profFase[2] = scavo;
    return tables::prospettoNodi(live::calcola(dati, 50), 2);
}

class VistaProspettoTest : public ::testing::Test {
 protected:
    VistaProspettoTest() {
        vista.resize(700, 200);
        vista.show();
        vista.mostra(nodi(5));
    }
    [[nodiscard]] QString testo(int riga, int colonna) const {
        return vista.modello()
            .data(vista.modello().index(riga, colonna), Qt::DisplayRole)
            .toString();
    }

    QApplication& app = test::applicazione();
    VistaProspetto vista{QStringLiteral("nodi"), nullptr};
};

TEST_F(VistaProspettoTest, KeepsSelectionScrollAndOrderWhileNumbersChange) {
    vista.sortByColumn(2, Qt::DescendingOrder);
    const auto indice = vista.modello().index(30, 2);
    const std::size_t riga = vista.modello().riga(30);
    vista.setCurrentIndex(indice);
    vista.verticalScrollBar()->setValue(20);
    QSignalSpy daCapo(&vista.modello(), &QAbstractItemModel::modelReset);
    vista.mostra(nodi(5.5));
    EXPECT_EQ(daCapo.count(), 0);
    EXPECT_EQ(vista.modello().riga(vista.currentIndex().row()), riga);
    EXPECT_EQ(vista.verticalScrollBar()->value(), 20);
    EXPECT_EQ(vista.horizontalHeader()->sortIndicatorSection(), 2);
    const auto& p = vista.modello().prospetto();
    for (int r = 1; r < vista.modello().rowCount(); ++r)
        EXPECT_GE(*p.righe[vista.modello().riga(r - 1)][2].numero,
                  *p.righe[vista.modello().riga(r)][2].numero);
}

TEST_F(VistaProspettoTest, TellsNobodyOfATableThatIsTheSame) {
    QSignalSpy cambiate(&vista.modello(), &QAbstractItemModel::dataChanged);
    vista.mostra(nodi(5));
    EXPECT_EQ(cambiate.count(), 0);
    vista.mostra(nodi(5.5));
    EXPECT_EQ(cambiate.count(), 1);
}

TEST_F(VistaProspettoTest, DrawsAllHeadsAnewWhereOneHasAnotherName) {
    Prospetto p = nodi(5);
    p.colonne.back().titolo += " nuova";
    QSignalSpy teste(&vista.modello(), &QAbstractItemModel::headerDataChanged);
    vista.mostra(p);
    ASSERT_FALSE(teste.isEmpty());
    for (const auto& segnale : teste) {
        EXPECT_EQ(segnale[1].toInt(), 0);
        EXPECT_EQ(segnale[2].toInt(), vista.modello().columnCount() - 1);
    }
}

TEST_F(VistaProspettoTest, TakesMoreAndFewerRows) {
    Prospetto p = nodi(5);
    p.righe.resize(10);
    vista.mostra(p);
    EXPECT_EQ(vista.modello().rowCount(), 10);
    vista.mostra(nodi(5));
    EXPECT_EQ(vista.modello().rowCount(), 51);
    EXPECT_EQ(testo(50, 0), "51");
}

TEST_F(VistaProspettoTest, CopiesWhatIsSelectedWithItsHeadsAndAllDigits) {
    vista.setFocus();
    vista.selectRow(4);
    QTest::keyClick(&vista, Qt::Key_C, Qt::ControlModifier);
    const QMimeData* dati = QGuiApplication::clipboard()->mimeData();
    const QStringList righe = dati->text().split(QLatin1Char('\n'));
    ASSERT_EQ(righe.size(), 3);  // the heads, the row, the end of the last line
    EXPECT_TRUE(righe[0].startsWith(QStringLiteral("Nodo\tz [m]\tSpostamento [mm]")));
    const QStringList celle = righe[1].split(QLatin1Char('\t'));
    const auto& riga = vista.modello().prospetto().righe[4];
    for (int c = 0; c < 9; ++c)
        EXPECT_EQ(celle[c].toDouble(), riga[static_cast<std::size_t>(c)].numero);
    EXPECT_TRUE(dati->html().contains(QStringLiteral("<table>")));
}

TEST_F(VistaProspettoTest, CopiesAllOfItWhereNoMoreThanACellIsSelected) {
    vista.setCurrentIndex(vista.modello().index(3, 3));
    const std::unique_ptr<QMimeData> dati(vista.copiato());
    EXPECT_EQ(dati->text().count(QLatin1Char('\n')), 52);
    vista.clearSelection();
    QTest::keyClick(&vista, Qt::Key_A, Qt::ControlModifier);
    const std::unique_ptr<QMimeData> tutto(vista.copiato());
    EXPECT_EQ(tutto->text(), dati->text());
}

TEST_F(VistaProspettoTest, CopiesRowsInTheOrderInWhichTheyAreShown) {
    vista.sortByColumn(0, Qt::DescendingOrder);
    const std::unique_ptr<QMimeData> dati(vista.copiato());
    EXPECT_TRUE(dati->text().section(QLatin1Char('\n'), 1, 1).startsWith(QStringLiteral("51\t")));
}

TEST_F(VistaProspettoTest, GoesBackToTheOrderOfTheTable) {
    vista.sortByColumn(2, Qt::AscendingOrder);
    EXPECT_NE(vista.modello().riga(0), 0u);
    vista.sortByColumn(-1, Qt::AscendingOrder);
    EXPECT_EQ(vista.modello().riga(0), 0u);
}

TEST_F(VistaProspettoTest, IsReadCellByCellWithTheHeadsOfRowAndColumn) {
    auto* letta = QAccessible::queryAccessibleInterface(&vista);
    ASSERT_TRUE(letta != nullptr && letta->tableInterface() != nullptr);
    EXPECT_EQ(letta->text(QAccessible::Name), QStringLiteral("Nodi: Fase 2"));
    auto* cella = letta->tableInterface()->cellAt(4, 3);
    ASSERT_NE(cella, nullptr);
    EXPECT_EQ(cella->text(QAccessible::Name), QStringLiteral("Momento %1 kN m/m").arg(testo(4, 3)));
    const auto teste = cella->tableCellInterface()->columnHeaderCells();
    ASSERT_EQ(teste.size(), 1);
    EXPECT_EQ(teste[0]->text(QAccessible::Name), QStringLiteral("Momento [kN m/m]"));
    // It belongs to whoever asks, and goes by way of the registry alone.
    QAccessible::deleteAccessibleInterface(QAccessible::registerAccessibleInterface(teste[0]));
}

TEST_F(VistaProspettoTest, HasColumnsThatGrowAndFitAnewInAnotherTable) {
    const int stretta = vista.columnWidth(2);
    Prospetto larga = nodi(5);
    larga.righe[0][2].testo = "-12345678901234567890123456789.00";
    vista.mostra(larga);
    EXPECT_GT(vista.columnWidth(2), stretta);
    const int cresciuta = vista.columnWidth(2);
    vista.mostra(nodi(5));
    EXPECT_EQ(vista.columnWidth(2), cresciuta);
    vista.mostra(Prospetto{});
    vista.mostra(nodi(5));
    EXPECT_EQ(vista.columnWidth(2), stretta);
}

TEST_F(VistaProspettoTest, KeepsTheWidthToWhichAColumnWasDragged) {
    constexpr QSize comoda(2400, 200);  // all heads in one line
    vista.resize(comoda);
    const int prima = vista.columnWidth(3);
    auto& testa = *vista.horizontalHeader();
    const QPoint bordo(testa.sectionViewportPosition(3) - 1, testa.height() / 2);
    const int voluta = vista.columnWidth(2) + 37;
    QTest::mousePress(testa.viewport(), Qt::LeftButton, {}, bordo);
    QTest::mouseMove(testa.viewport(), bordo + QPoint(37, 0));
    QTest::mouseRelease(testa.viewport(), Qt::LeftButton, {}, bordo + QPoint(37, 0));
    ASSERT_EQ(vista.columnWidth(2), voluta);
    vista.resize(500, 200);
    vista.mostra(nodi(5.5));
    vista.resize(comoda);
    EXPECT_EQ(vista.columnWidth(2), voluta);
    EXPECT_EQ(vista.columnWidth(3), prima);
    vista.mostra(Prospetto{});
    vista.mostra(nodi(5));
    EXPECT_EQ(vista.columnWidth(2), voluta - 37);
}

TEST_F(VistaProspettoTest, BreaksHeadsBeforeAColumnLeavesTheWindow) {
    const auto testa = [this](int ruolo) {
        return vista.modello().headerData(3, Qt::Horizontal, ruolo).toString();
    };
    vista.resize(2400, 200);
    EXPECT_EQ(testa(Qt::DisplayRole), QStringLiteral("Momento [kN m/m]"));
    const int bassa = vista.horizontalHeader()->height();
    vista.resize(960, 200);
    EXPECT_EQ(testa(Qt::DisplayRole), QStringLiteral("Momento\n[kN m/m]"));
    EXPECT_EQ(testa(Qt::AccessibleTextRole), QStringLiteral("Momento [kN m/m]"));
    EXPECT_GT(vista.horizontalHeader()->height(), bassa);
    EXPECT_EQ(vista.horizontalScrollBar()->maximum(), 0);
    const int cifre = vista.fontMetrics().horizontalAdvance(QStringLiteral("-1234.56"));
    for (int c = 2; c < 9; ++c) EXPECT_GE(vista.columnWidth(c), cifre) << c;
}

TEST_F(VistaProspettoTest, ExplainsItsColumns) {
    EXPECT_FALSE(
        vista.modello().headerData(2, Qt::Horizontal, Qt::ToolTipRole).toString().isEmpty());
}

TEST_F(VistaProspettoTest, ShowsInGreyWhatIsOfTheWallBefore) {
    EXPECT_FALSE(vista.modello().data(vista.modello().index(0, 0), Qt::ForegroundRole).isValid());
    vista.sospendi(true);
    EXPECT_TRUE(vista.modello().data(vista.modello().index(0, 0), Qt::ForegroundRole).isValid());
}

// A table of a number and of words that are wider than its window.
Prospetto parole() {
    const std::string lunga =
        "ruota attorno alla profondità di 6.12 m, il piede verso lo scavo, e ancora altre parole";
    return {.titolo = "Margine",
            .colonne = {{.titolo = "Fase"}, {.titolo = "Moto con F", .numerica = false}},
            .righe = {{tables::cella(1), tables::parola("ferma")},
                      {tables::cella(2), tables::parola(lunga)}}};
}

TEST_F(VistaProspettoTest, SetsWordsInSeveralLinesWhereTheWindowIsNarrow) {
    vista.resize(280, 300);
    vista.mostra(parole());
    QTest::qWait(1);
    EXPECT_EQ(vista.horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(vista.rowHeight(1), 2 * vista.rowHeight(0));
    vista.resize(900, 300);
    QTest::qWait(1);
    EXPECT_EQ(vista.rowHeight(1), vista.rowHeight(0));
}

TEST_F(VistaProspettoTest, GivesWhatIsLeftToALastColumnOfWordsAndToNoNumbers) {
    vista.resize(2400, 300);
    vista.mostra(parole());
    EXPECT_EQ(vista.columnWidth(0) + vista.columnWidth(1), vista.viewport()->width());
    Prospetto numeri = parole();
    std::swap(numeri.colonne[0], numeri.colonne[1]);
    for (auto& riga : numeri.righe) std::swap(riga[0], riga[1]);
    vista.mostra(numeri);
    EXPECT_LT(vista.columnWidth(1), 100);
    vista.mostra(parole());
    EXPECT_EQ(vista.columnWidth(0) + vista.columnWidth(1), vista.viewport()->width());
}

TEST_F(VistaProspettoTest, SaysWhyItHasNoRowsAndWhyACellIsEmpty) {
    Prospetto vuoto = parole();
    vuoto.righe.clear();
    vista.mostra(vuoto);
    const QImage muta = vista.grab().toImage();
    vuoto.note = {"La paratia è un meccanismo nella fase 2."};
    vista.mostra(vuoto);
    EXPECT_NE(vista.grab().toImage(), muta);
    EXPECT_EQ(vista.accessibleDescription(), qt(vuoto.note[0]));
    Prospetto monca = parole();
    monca.righe[0][0] = tables::senza("La resistenza è 0.");
    vista.mostra(monca);
    const auto indice = vista.modello().index(0, 0);
    EXPECT_EQ(vista.modello().data(indice, Qt::ToolTipRole), "La resistenza è 0.");
    EXPECT_EQ(vista.modello().data(indice, Qt::AccessibleTextRole), "Fase -: La resistenza è 0.");
    EXPECT_EQ(vista.accessibleDescription(), QString());
}

}  // namespace
}  // namespace korven::shell
