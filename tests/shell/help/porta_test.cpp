#include "shell/help/porta.hpp"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QTableWidget>
#include <QWindow>

#include "commands/start/language_start.hpp"
#include "shell/help/browser.hpp"
#include "shell/help/guida.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/form_setup.hpp"
#include "support/small_help.hpp"

namespace korven::shell {
namespace {

class Porta : public ::testing::Test {
 protected:
    Porta() {
        commands::fileGuida = cartella / "module06ita.hlp";
        test::metti(commands::fileGuida, test::guidaPiccola());
        principale.setObjectName("menu1");
        principale.show();
    }
    ~Porta() override { commands::fileGuida.clear(); }

    QUrl indirizzo() { return test::controllo<QTextBrowser>(*porta.finestra(), "pagina").source(); }
    bool aperta() { return porta.finestra() != nullptr && porta.finestra()->isVisible(); }
    // The page that F1 in a control opens; empty if it opens none.
    std::string f1(QWidget& controllo) {
        if (aperta()) porta.finestra()->close();
        QTest::keyClick(&controllo, Qt::Key_F1);
        return aperta() ? indirizzo().toString().toStdString() : std::string();
    }
    // A form with one field.
    struct Forma : QDialog {
        explicit Forma(const char* nome, QWidget* padre = nullptr)
            : QDialog(padre), campo(new QLineEdit(this)) {
            setObjectName(nome);
        }
        QLineEdit* campo;
    };

    QApplication& app = test::applicazione();
    const test::CartellaProvvisoria cartella;
    test::DialogoFinto dialogo;
    QWidget principale;
    PortaGuida& porta = *new PortaGuida(principale, dialogo);
};

TEST_F(Porta, OpensThePageOfAContextInOneWindowAlone) {
    porta.apri(3);
    ASSERT_TRUE(aperta());
    EXPECT_EQ(indirizzo(), QUrl("guida:/apri"));
    const FinestraGuida* prima = porta.finestra();
    porta.apri(28, {"campo7", "campoText1"});
    EXPECT_EQ(porta.finestra(), prima);
    EXPECT_EQ(indirizzo(), QUrl("guida:/visore#campoText1"));
}

TEST_F(Porta, OpensThePageOfANameAndTheContentsForANameWithoutAPage) {
    porta.apriPagina("strati");
    EXPECT_EQ(indirizzo(), QUrl("guida:/strati"));
    porta.apriPagina("nessuna");
    EXPECT_EQ(indirizzo(), QUrl("guida:/inizio"));
}

TEST_F(Porta, OpensByF1ThePageThatAWindowNamesForWhatItShows) {
    Forma forma("osservazioni", &principale);
    forma.show();
    forma.setProperty("paginaGuida", "strati");
    EXPECT_EQ(f1(*forma.campo), "guida:/strati");
}

TEST_F(Porta, OpensTheContentsForAContextWithoutAPage) {
    porta.apri(150);
    EXPECT_EQ(indirizzo(), QUrl("guida:/inizio"));
    porta.apri(3);
    porta.sommario();
    EXPECT_EQ(indirizzo(), QUrl("guida:/inizio"));
}

TEST_F(Porta, ReadsTheFileOnlyWhenItIsNeeded) {
    EXPECT_EQ(porta.finestra(), nullptr);
    porta.apri(3);
    test::metti(commands::fileGuida, "x");
    porta.apri(28);
    EXPECT_EQ(indirizzo(), QUrl("guida:/visore"));
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(Porta, SaysWhereABrokenFileIsBrokenAndGoesOn) {
    test::metti(commands::fileGuida, "KORVEN 32 HLP 1\r\n@capitolo A\r\nx\r\n");
    porta.apri(3);
    EXPECT_FALSE(aperta());
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    const std::string& testo = dialogo.messaggi.front().testo;
    EXPECT_NE(testo.find("module06ita.hlp"), std::string::npos) << testo;
    EXPECT_NE(testo.find("3"), std::string::npos) << testo;
    EXPECT_NE(testo.find("attesa una riga @capitolo o @pagina"), std::string::npos) << testo;
    test::metti(commands::fileGuida, test::guidaPiccola());
    porta.apri(3);
    EXPECT_TRUE(aperta());
}

TEST_F(Porta, OpensAtF1ThePageThatTheFormNames) {
    Forma forma("qualunque");
    forma.setProperty("contestoGuida", 5);
    EXPECT_EQ(f1(*forma.campo), "guida:/strati");
    forma.campo->setProperty("campoGuida", 4);
    EXPECT_EQ(f1(*forma.campo), "guida:/strati#campo4");
    Forma sopra("altra", &forma);  // a form of its own above it, without a page
    EXPECT_EQ(f1(*sopra.campo), "guida:/strati");
}

TEST_F(Porta, KnowsFormsAndFieldsByTheirNames) {
    Forma forma("GRAFICA");
    EXPECT_EQ(f1(*forma.campo), "guida:/visore");
    forma.campo->setObjectName("Text1_2");
    EXPECT_EQ(f1(*forma.campo), "guida:/visore#campoText1");
}

TEST_F(Porta, GoesToTheColumnOfAGrid) {
    Forma forma("base2_32_5");
    forma.setProperty("contestoGuida", 5);
    QTableWidget griglia(3, 7, &forma);
    griglia.setCurrentCell(0, 2);
    EXPECT_EQ(f1(griglia), "guida:/strati#campo4");
    griglia.setCurrentCell(0, 1);
    EXPECT_EQ(f1(griglia), "guida:/strati");
}

TEST_F(Porta, LeavesF1OfTheFieldFormAlone) {
    Forma forma("base1_6");
    forma.setProperty("contestoGuida", 5);
    EXPECT_EQ(f1(*forma.campo), "");
}

TEST_F(Porta, LeavesOtherKeysAlone) {
    Forma forma("GRAFICA");
    QTest::keyClick(forma.campo, Qt::Key_F1, Qt::ShiftModifier);
    QTest::keyClick(forma.campo, Qt::Key_F2);
    EXPECT_FALSE(aperta());
}

TEST_F(Porta, OpensTheContentsWhereNoPageIsNamed) {
    Forma forma("qualunque");
    EXPECT_EQ(f1(*forma.campo), "guida:/inizio");
}

TEST_F(Porta, OpensThePageOfAHighlightedItemOfTheBar) {
    QMenuBar barra(&principale);
    QAction* voce = barra.addAction("Apri");
    voce->setProperty("voceGuida", 3);
    barra.show();
    barra.setActiveAction(voce);
    EXPECT_EQ(f1(barra), "guida:/apri");
}

// Clicks into the search field as the system would: a window that is shut out gets nothing.
bool rispondeAlMouse(QWidget& finestra, QWidget& campo) {
    finestra.findChild<QTextBrowser*>("pagina")->setFocus();
    QTest::mouseClick(finestra.windowHandle(), Qt::LeftButton, {},
                      campo.mapTo(&finestra, campo.rect().center()));
    return finestra.focusWidget() == &campo;
}

TEST_F(Porta, StaysUsableBesideAModalForm) {
    Forma forma("qualunque");
    forma.setProperty("contestoGuida", 5);
    bool risponde = false, altraRisponde = true;
    QTimer::singleShot(0, [&] {
        QTest::keyClick(forma.campo, Qt::Key_F1);
        auto& cerca = test::controllo<QLineEdit>(*porta.finestra(), "cerca");
        risponde = rispondeAlMouse(*porta.finestra(), cerca);
        // The same window without the door is shut out.
        FinestraGuida altra(help::leggiGuida("m.hlp", test::guidaPiccola()));
        altra.show();
        altraRisponde = rispondeAlMouse(altra, test::controllo<QLineEdit>(altra, "cerca"));
        forma.accept();
    });
    EXPECT_EQ(forma.exec(), QDialog::Accepted);
    EXPECT_TRUE(risponde);
    EXPECT_FALSE(altraRisponde);
    EXPECT_TRUE(aperta());
}

TEST_F(Porta, StaysUsableWhenFormsAndBoxesComeAndGoWhileItIsOpen) {
    porta.apri(3);
    auto& cerca = test::controllo<QLineEdit>(*porta.finestra(), "cerca");
    std::vector<bool> risponde;
    const auto prova = [&] {
        QTest::qWait(20);  // the door follows when the event queue is served
        risponde.push_back(rispondeAlMouse(*porta.finestra(), cerca));
    };
    prova();
    QTimer::singleShot(0, [&] {
        prova();
        auto* forma = QApplication::activeModalWidget();
        QTimer::singleShot(0, [&] {
            prova();
            QApplication::activeModalWidget()->close();
        });
        QMessageBox(QMessageBox::NoIcon, "titolo", "testo", QMessageBox::Ok, forma).exec();
        prova();
        forma->close();
    });
    Forma("qualunque").exec();
    prova();
    EXPECT_EQ(risponde, (std::vector<bool>{true, true, true, true, true}));
    EXPECT_TRUE(aperta());
}

// As it comes over the window that is used, which may be the help. Two windows that belong to each
// other never come to an end of it.
TEST_F(Porta, DoesNotBelongToABoxOverItself) {
    porta.apri(3);
    QDialog box(porta.finestra());
    QDialog altro(&box);
    box.open();
    QApplication::processEvents();
    altro.open();
    QApplication::processEvents();
    EXPECT_EQ(porta.finestra()->windowHandle()->transientParent(), principale.windowHandle());
}

TEST_F(Porta, DoesNotPlugInWhereThereIsNoHelpFile) {
    commands::FormeProgramma forme;
    commands::fileGuida = cartella / "manca.hlp";
    collegaGuida(forme, principale);
    EXPECT_FALSE(forme.guida);
    EXPECT_FALSE(forme.sommario);
}

TEST_F(Porta, PlugsIntoTheCommandsOfTheProgram) {
    commands::FormeProgramma forme;
    QWidget altra;
    altra.show();
    collegaGuida(forme, altra);
    ASSERT_TRUE(forme.guida && forme.sommario);
    forme.guida(3);
    QWidget* sua = nullptr;
    for (QWidget* finestra : QApplication::topLevelWidgets())
        if (finestra->objectName() == "guida" && finestra->isVisible()) sua = finestra;
    ASSERT_NE(sua, nullptr);
    auto& pagina = test::controllo<QTextBrowser>(*sua, "pagina");
    EXPECT_EQ(pagina.source(), QUrl("guida:/apri"));
    forme.sommario();
    EXPECT_EQ(pagina.source(), QUrl("guida:/inizio"));
}

}  // namespace
}  // namespace korven::shell
