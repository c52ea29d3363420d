#include "shell/help/guida.hpp"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QToolButton>
#include <QTreeWidget>

#include "shell/help/browser.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"
#include "support/small_help.hpp"

namespace korven::shell {
namespace {

class Guida : public ::testing::Test {
 protected:
    Guida() {
        finestra.show();
        finestra.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&finestra));
    }
    ~Guida() override { finestra.close(); }
    const help::PaginaGuida& pagina(const char* nome) {
        return *help::paginaDiNome(finestra.guida(), nome);
    }
    std::string mostrata() {
        const auto* p = browser().paginaDi(browser().source());
        return p != nullptr ? p->nome : std::string();
    }
    VistaGuida& browser() {
        return dynamic_cast<VistaGuida&>(test::controllo<QTextBrowser>(finestra, "pagina"));
    }
    QTreeWidget& albero() { return test::controllo<QTreeWidget>(finestra, "albero"); }
    QLineEdit& cerca() { return test::controllo<QLineEdit>(finestra, "cerca"); }
    QListWidget& trovate() { return test::controllo<QListWidget>(finestra, "trovate"); }
    QToolButton& bottone(const char* nome) { return test::controllo<QToolButton>(finestra, nome); }

    QApplication& app = test::applicazione();
    const test::UtenteNuovo utente;  // what the window remembers is the test's own
    FinestraGuida finestra{help::leggiGuida("m.hlp", test::guidaPiccola())};
};

TEST_F(Guida, ShowsChaptersWithTheirPagesAndMarksTheOneInUse) {
    ASSERT_EQ(albero().topLevelItemCount(), 2);
    EXPECT_EQ(albero().topLevelItem(0)->text(0), "Primo");
    ASSERT_EQ(albero().topLevelItem(1)->childCount(), 2);
    EXPECT_EQ(albero().topLevelItem(1)->child(0)->text(0), "Strati");
    finestra.mostra(pagina("visore"));
    EXPECT_EQ(albero().currentItem()->text(0), "Visore");
    EXPECT_TRUE(browser().toPlainText().startsWith("Secondo\nVisore\nSpessore"));
}

TEST_F(Guida, OpensAPageFromTheContents) {
    finestra.mostraSommario();
    EXPECT_EQ(mostrata(), "inizio");
    albero().setCurrentItem(albero().topLevelItem(0)->child(1));
    QTest::keyClick(&albero(), Qt::Key_Return);
    EXPECT_EQ(mostrata(), "apri");
}

TEST_F(Guida, IsReadOnWithTheArrowsOfTheContentsAfterTheWayToThem) {
    finestra.mostra(pagina("visore"));
    browser().setFocus();
    finestra.mostraSommario();
    EXPECT_EQ(finestra.focusWidget(), &albero());
}

TEST_F(Guida, GoesToThePlaceOfAField) {
    finestra.mostra(pagina("strati"));
    EXPECT_EQ(browser().verticalScrollBar()->value(), 0);
    finestra.mostra(pagina("strati"), "campo4");
    EXPECT_GT(browser().verticalScrollBar()->value(), 500);
    ASSERT_EQ(browser().extraSelections().size(), 1);
    EXPECT_EQ(browser().extraSelections().first().cursor.selectedText(), "Gamma");
    finestra.mostra(pagina("visore"), "campo99");
    EXPECT_EQ(mostrata(), "visore");
}

TEST_F(Guida, FollowsALinkToAPlaceOfAnotherPage) {
    finestra.mostraSommario();
    browser().setFocus();
    QTest::keyClick(&browser(), Qt::Key_Tab);  // to the first link
    QTest::keyClick(&browser(), Qt::Key_Return);
    EXPECT_EQ(mostrata(), "strati");
    EXPECT_EQ(browser().source().fragment(), "campo4");
}

TEST_F(Guida, GoesBackAndForwardByKeysAndButtons) {
    finestra.mostra(pagina("apri"));
    EXPECT_FALSE(bottone("indietro").isEnabled());
    finestra.mostra(pagina("visore"));
    EXPECT_TRUE(bottone("indietro").isEnabled());
    QTest::keyClick(&finestra, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(mostrata(), "apri");
    EXPECT_EQ(albero().currentItem()->text(0), "Apri");
    QTest::keyClick(&finestra, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(mostrata(), "visore");
    bottone("indietro").click();
    EXPECT_EQ(mostrata(), "apri");
    bottone("avanti").click();
    EXPECT_EQ(mostrata(), "visore");
    QTest::keyClick(&finestra, Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(mostrata(), "inizio");
}

TEST_F(Guida, SearchesWhatIsTypedAndShowsThePageFound) {
    QTest::keyClick(&finestra, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(cerca().hasFocus());
    QTest::keyClicks(&cerca(), "densita");
    EXPECT_TRUE(trovate().isVisible());
    EXPECT_FALSE(albero().isVisible());
    ASSERT_EQ(trovate().count(), 1);
    EXPECT_EQ(trovate().item(0)->text(), "Strati");
    EXPECT_EQ(test::controllo<QLabel>(finestra, "conto").text(), "Pagine trovate: 1");
    QTest::keyClick(&cerca(), Qt::Key_Return);
    EXPECT_EQ(mostrata(), "strati");
    ASSERT_EQ(browser().extraSelections().size(), 1);
    EXPECT_EQ(browser().extraSelections().first().cursor.selectedText(), "Densità");
}

TEST_F(Guida, SaysWhenNothingIsFoundAndComesBackToTheContents) {
    QTest::keyClicks(&cerca(), "sifone");
    EXPECT_EQ(trovate().count(), 0);
    EXPECT_EQ(test::controllo<QLabel>(finestra, "conto").text(), "Nessuna pagina trovata");
    QTest::keyClick(&cerca(), Qt::Key_Return);
    cerca().clear();
    EXPECT_TRUE(albero().isVisible());
}

TEST_F(Guida, GoesDownFromTheSearchToItsResults) {
    QTest::keyClicks(&cerca(), "a");
    ASSERT_GT(trovate().count(), 1);
    cerca().setFocus();
    QTest::keyClick(&cerca(), Qt::Key_Down);
    EXPECT_TRUE(trovate().hasFocus());
    QTest::keyClick(&trovate(), Qt::Key_Down);
    QTest::keyClick(&trovate(), Qt::Key_Return);
    EXPECT_EQ(browser().paginaDi(browser().source())->titolo,
              trovate().item(1)->text().toStdString());
}

TEST_F(Guida, MakesLettersLargerAndSmallerWithinBoundsAndRemembersThem) {
    finestra.mostra(pagina("apri"));
    const int prima = browser().fontInfo().pixelSize();
    for (const auto piu : {Qt::Key_Plus, Qt::Key_Equal}) {
        const int passi = browser().ingrandimento();
        QTest::keyClick(&finestra, piu, Qt::ControlModifier);
        EXPECT_EQ(browser().ingrandimento(), passi + 1);
    }
    for (int i = 0; i < 40; ++i) QTest::keyClick(&finestra, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(browser().fontInfo().pixelSize(), prima);
    EXPECT_EQ(browser().ingrandimento(), 16);
    {
        FinestraGuida altra(help::leggiGuida("m.hlp", test::guidaPiccola()));
        auto& sua = dynamic_cast<VistaGuida&>(test::controllo<QTextBrowser>(altra, "pagina"));
        EXPECT_EQ(sua.ingrandimento(), 16);
    }
    QTest::keyClick(&finestra, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(browser().fontInfo().pixelSize(), prima);
    bottone("piccoli").click();
    EXPECT_EQ(browser().ingrandimento(), -1);
    bottone("grandi").click();
    EXPECT_EQ(browser().ingrandimento(), 0);
}

TEST_F(Guida, ClosesWithEscFromAnywhereAndRemembersItsSize) {
    finestra.resize(701, 555);
    cerca().setFocus();
    QTest::keyClick(&cerca(), Qt::Key_Escape);
    EXPECT_FALSE(finestra.isVisible());
    const FinestraGuida altra(help::leggiGuida("m.hlp", test::guidaPiccola()));
    EXPECT_EQ(altra.size(), QSize(701, 555));
}

TEST_F(Guida, NamesEveryControlForThoseWhoDoNotSee) {
    for (const char* nome : {"indietro", "avanti", "sommario", "piccoli", "grandi", "cerca",
                             "albero", "trovate", "pagina"})
        EXPECT_FALSE(test::controllo(finestra, nome).accessibleName().isEmpty()) << nome;
}

TEST_F(Guida, DoesNotKeepTheProgramRunning) {
    EXPECT_FALSE(finestra.testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(Guida, HasRoomForItsWordsInEveryLanguage) {
    for (int lingua = 1; lingua <= 6; ++lingua) {
        const test::TestiConsegnati testi(lingua);
        FinestraGuida tradotta(help::leggiGuida("m.hlp", test::guidaPiccola()));
        tradotta.resize(tradotta.minimumSize());
        tradotta.show();
        for (const char* nome : {"indietro", "avanti", "sommario", "piccoli", "grandi"}) {
            const auto& uno = test::controllo<QToolButton>(tradotta, nome);
            EXPECT_GE(uno.width(), uno.sizeHint().width()) << lingua << ' ' << nome;
        }
        EXPECT_EQ(tradotta.minimumSize(), tradotta.size()) << lingua;
    }
}

}  // namespace
}  // namespace korven::shell
