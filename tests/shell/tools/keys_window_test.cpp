#include "shell/tools/keys_window.hpp"

#include <gtest/gtest.h>

#include <QAction>
#include <QKeySequence>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <set>

#include "commands/key_table.hpp"
#include "help/pages.hpp"
#include "shell/help/guida.hpp"
#include "shell/main/menu1.hpp"
#include "shell/toolkit_texts.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"
#include "support/small_help.hpp"

namespace korven::shell {
namespace {

std::set<QString> tastiScritti(const std::string& finestra) {
    std::set<QString> scritti;
    for (const auto& [nome, righe] : commands::tastiProgramma())
        for (const auto& riga : righe)
            if (nome == finestra)
                for (const QString& uno : QString::fromStdString(riga.tasti).split(", "))
                    scritti.insert(QKeySequence(uno, QKeySequence::PortableText).toString());
    return scritti;
}

// The keys that a window takes by itself, in words that the list has.
std::set<QString> tastiVeri(const QWidget& finestra) {
    std::set<QString> veri;
    for (const auto* tasto : finestra.findChildren<QShortcut*>())
        if (tasto->parent() == &finestra) veri.insert(tasto->key().toString());
    return veri;
}

class FinestraTastiTest : public ::testing::Test {
 protected:
    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
};

TEST_F(FinestraTastiTest, ListsEachWindowWithItsKeys) {
    QWidget principale;
    FinestraTasti finestra(principale);
    finestra.show();
    const auto& elenco = test::controllo<QTreeWidget>(finestra, "elenco");
    const auto tutti = commands::tastiProgramma();
    ASSERT_EQ(elenco.topLevelItemCount(), static_cast<int>(tutti.size()));
    EXPECT_EQ(elenco.topLevelItem(0)->text(0), "Finestra principale");
    EXPECT_TRUE(elenco.topLevelItem(0)->isExpanded());
    EXPECT_EQ(elenco.topLevelItem(0)->child(0)->text(0), "Ctrl+O");
    EXPECT_EQ(elenco.topLevelItem(0)->child(0)->text(1), "Apri");
    for (const auto& [nome, righe] : tutti)
        for (const auto& riga : righe)
            for (const QString& uno : QString::fromStdString(riga.tasti).split(", "))
                EXPECT_NE(QKeySequence(uno, QKeySequence::PortableText)[0].key(), Qt::Key_unknown)
                    << nome << ": " << riga.tasti;
}

TEST_F(FinestraTastiTest, WritesNoKeyAsAnArrowNorTwiceInARowInAnyLanguage) {
    for (int lingua = 1; lingua <= 6; ++lingua) {
        const test::TestiConsegnati testi(lingua);
        const auto diQt = testiQt(lingua);
        ASSERT_TRUE(diQt);
        QCoreApplication::installTranslator(diQt.get());
        QWidget principale;
        const FinestraTasti finestra(principale);
        QCoreApplication::removeTranslator(diQt.get());
        const auto& elenco = test::controllo<QTreeWidget>(finestra, "elenco");
        int letti = 0;
        for (QTreeWidgetItemIterator voce(const_cast<QTreeWidget*>(&elenco)); *voce; ++voce) {
            QStringList suoi = (*voce)->text(0).split(", ");
            EXPECT_EQ(suoi.removeDuplicates(), 0) << (*voce)->text(0).toStdString();
            for (const QChar c : (*voce)->text(0)) {
                ++letti;
                EXPECT_FALSE(c >= QChar(0x2190) && c <= QChar(0x21FF))
                    << (*voce)->text(0).toStdString();
            }
        }
        EXPECT_GT(letti, 200);
    }
}

TEST_F(FinestraTastiTest, IsClosedByItsButton) {
    QWidget principale;
    FinestraTasti finestra(principale);
    finestra.show();
    test::controllo<QPushButton>(finestra, "chiudi").click();
    EXPECT_FALSE(finestra.isVisible());
}

TEST_F(FinestraTastiTest, IsShownOnceForItsMainForm) {
    QWidget principale;
    principale.show();
    mostraTasti(principale);
    mostraTasti(principale);
    EXPECT_EQ(principale.findChildren<FinestraCompagna*>().size(), 1);
    EXPECT_TRUE(principale.findChild<FinestraCompagna*>()->isVisible());
}

TEST_F(FinestraTastiTest, NamesTheKeysThatTheWindowsReallyTake) {
    const FinestraGuida guida(help::leggiGuida("m.hlp", test::guidaPiccola()));
    for (const auto& tasto : tastiVeri(guida))
        EXPECT_TRUE(tastiScritti("Finestra della guida").contains(tasto)) << tasto.toStdString();
    QWidget principale;
    const FinestraTasti accanto(principale);
    for (const auto& tasto : tastiVeri(accanto))
        EXPECT_TRUE(tastiScritti("Finestre accanto alla principale").contains(tasto))
            << tasto.toStdString();
    const Menu1 menu1;
    for (const auto& tasto : tastiVeri(menu1))
        EXPECT_TRUE(tastiScritti("Finestra principale").contains(tasto)) << tasto.toStdString();
}

}  // namespace
}  // namespace korven::shell
