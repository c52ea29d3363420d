#include "shell/remarks/remarks_window.hpp"

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "shell/remarks/remark_delegate.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

using review::Osservazione;
using review::Osservazioni;
using review::Peso;

Osservazione una(std::string_view codice, Peso peso, const std::string& testo,
                 std::vector<std::string> campi = {}) {
    return {codice, peso, testo, std::move(campi), "strati"};
}

class FinestraOsservazioniTest : public ::testing::Test {
 protected:
    FinestraOsservazioniTest() { principale.show(); }
    void mostra(const Osservazioni& tutte) {
        finestra.mostra(tutte, "detto sopra");
        finestra.show();
        finestra.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    }
    template <class Controllo>
    Controllo& trova(const char* nome) {
        return test::controllo<Controllo>(finestra, nome);
    }
    QListWidget& lista() { return trova<QListWidget>("lista"); }

    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    QWidget principale;
    std::vector<std::string> aperti, pagine;
    FinestraOsservazioni finestra{
        principale,
        {.apribile = [](const Osservazione& o) { return !o.campi.empty(); },
         .apri = [this](const Osservazione& o) { aperti.push_back(o.campi.front()); },
         .guida = [this](const std::string& pagina) { pagine.push_back(pagina); }}};
    const Osservazioni due = {una("peso-mancante", Peso::pericolo, "manca un peso", {"gammaN[2]"}),
                              una("righe-in-piu", Peso::daVedere, "righe in più")};
};

TEST_F(FinestraOsservazioniTest, ListsTheRemarksWithTheWordOfTheirWeight) {
    mostra(due);
    ASSERT_EQ(lista().count(), 2);
    EXPECT_EQ(lista().item(0)->text(), "manca un peso");
    EXPECT_EQ(lista().item(0)->data(datoPeso), "pericolo");
    EXPECT_EQ(lista().item(1)->data(datoPeso), "da vedere");
    EXPECT_EQ(lista().item(1)->data(Qt::AccessibleTextRole), "da vedere: righe in più");
    EXPECT_EQ(trova<QLabel>("conteggio").text(), "detto sopra");
    EXPECT_EQ(lista().currentRow(), 0);
    EXPECT_TRUE(lista().hasFocus());
}

TEST_F(FinestraOsservazioniTest, OpensTheFieldOfTheCurrentRemarkByEnterButtonAndDoubleClick) {
    mostra(due);
    QTest::keyClick(&lista(), Qt::Key_Return);
    QTest::mouseClick(&trova<QPushButton>("apri"), Qt::LeftButton);
    const QRect voce = lista().visualItemRect(lista().item(0));
    QTest::mouseClick(lista().viewport(), Qt::LeftButton, {}, voce.center());
    QTest::mouseDClick(lista().viewport(), Qt::LeftButton, {}, voce.center());
    EXPECT_EQ(aperti, (std::vector<std::string>{"gammaN[2]", "gammaN[2]", "gammaN[2]"}));
}

TEST_F(FinestraOsservazioniTest, OpensNothingForARemarkWithoutAField) {
    mostra(due);
    QTest::keyClick(&lista(), Qt::Key_Down);
    EXPECT_FALSE(trova<QPushButton>("apri").isEnabled());
    QTest::keyClick(&lista(), Qt::Key_Return);
    EXPECT_TRUE(aperti.empty());
    QTest::keyClick(&lista(), Qt::Key_Up);
    EXPECT_TRUE(trova<QPushButton>("apri").isEnabled());
}

TEST_F(FinestraOsservazioniTest, OpensNothingWhileTheMainFormIsNotInUse) {
    mostra(due);
    principale.setEnabled(false);
    finestra.setEnabled(true);  // as the viewer of drawings leaves it
    EXPECT_FALSE(trova<QPushButton>("apri").isEnabled());
    QTest::keyClick(&lista(), Qt::Key_Return);
    EXPECT_TRUE(aperti.empty());
    principale.setEnabled(true);
    EXPECT_TRUE(trova<QPushButton>("apri").isEnabled());
}

TEST_F(FinestraOsservazioniTest, LeadsToThePageOfTheCurrentRemark) {
    mostra(due);
    QTest::mouseClick(&trova<QPushButton>("guida"), Qt::LeftButton);
    EXPECT_EQ(pagine, std::vector<std::string>{"strati"});
    EXPECT_EQ(finestra.property("paginaGuida"), "strati");
    finestra.mostra({}, "");
    EXPECT_FALSE(trova<QPushButton>("guida").isEnabled());
    EXPECT_EQ(finestra.property("paginaGuida"), "");
}

TEST_F(FinestraOsservazioniTest, KeepsTheCurrentRemarkWhereverItMovesTo) {
    mostra(due);
    lista().setCurrentRow(1);
    const auto primo = una("ks-mancante", Peso::pericolo, "manca ks", {"ksStrato[1]"});
    finestra.mostra({primo, due[0], due[1]}, "");
    EXPECT_EQ(lista().currentRow(), 2);
    finestra.mostra({primo, due[0]}, "");  // it is gone: the nearest place
    EXPECT_EQ(lista().currentRow(), 1);
    finestra.mostra({}, "");
    EXPECT_EQ(lista().count(), 0);
    EXPECT_FALSE(trova<QPushButton>("apri").isEnabled());
}

TEST_F(FinestraOsservazioniTest, BreaksALongTextIntoTheLinesThatItsWidthAsksFor) {
    std::string parole;
    for (int i = 0; i < 80; ++i) parole += "parola ";
    mostra({una("a", Peso::pericolo, "corta"), una("b", Peso::pericolo, parole)});
    const int corta = lista().visualItemRect(lista().item(0)).height();
    const int larga = lista().visualItemRect(lista().item(1)).height();
    EXPECT_GT(larga, 2 * corta);
    finestra.resize(finestra.width() / 2, finestra.height());
    QCoreApplication::processEvents();
    EXPECT_GT(lista().visualItemRect(lista().item(1)).height(), larga);
    EXPECT_LE(lista().visualItemRect(lista().item(1)).width(), lista().viewport()->width());
}

TEST_F(FinestraOsservazioniTest, ClosesByEscAndRemembersItsSize) {
    mostra(due);
    finestra.resize(700, 300);
    QTest::keyClick(&lista(), Qt::Key_Escape);
    EXPECT_FALSE(finestra.isVisible());
    const FinestraOsservazioni altra(principale, {.apribile = {}, .apri = {}, .guida = {}});
    EXPECT_EQ(altra.size(), QSize(700, 300));
}

TEST_F(FinestraOsservazioniTest, HasNoButtonForAHelpThatIsNotThere) {
    FinestraOsservazioni altra(principale, {.apribile = {}, .apri = {}, .guida = {}});
    altra.show();
    EXPECT_FALSE(test::controllo(altra, "guida").isVisible());
}

}  // namespace
}  // namespace korven::shell
