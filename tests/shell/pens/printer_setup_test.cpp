#include "shell/pens/printer_setup.hpp"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

#include "drawings/section_drawing.hpp"
#include "project/project_data.hpp"
#include "shell/program_printer.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/plot_setup.hpp"

namespace korven::shell {
namespace {

class Stampante : public ::testing::Test {
 protected:
    QApplication& app = test::applicazione();
    test::DialogoFinto dialogo;
    QPrinter stampante{QPrinter::HighResolution};
};

TEST_F(Stampante, IsMadeOnlyWhenItIsNeededAndOnce) {
    StampanteProgramma programma;
    QPrinter& prima = programma.stampante();
    EXPECT_EQ(&programma.stampante(), &prima);
}

TEST_F(Stampante, IsSetUpInTheDialogOfTheSystem) {
    test::AllaProssimaFinestra<QPrintDialog> utente([](QPrintDialog& aperto) {
        EXPECT_EQ(aperto.windowTitle(), "Configura Stampante");
        const auto* bottoni = aperto.findChild<QDialogButtonBox*>();
        ASSERT_NE(bottoni, nullptr);
        EXPECT_EQ(bottoni->button(QDialogButtonBox::Ok)->text(), "OK") << "nothing is printed here";
        aperto.reject();
    });
    impostaStampante(stampante, true, dialogo, nullptr);
    EXPECT_TRUE(utente.fatto);
    EXPECT_TRUE(dialogo.messaggi.empty());
    EXPECT_TRUE(stampante.outputFileName().isEmpty());
}

TEST_F(Stampante, WritesToTheFileThatTheDialogNamed) {
    const test::CartellaProvvisoria cartella;
    const QString file = QString::fromStdString(cartella / "stampa.pdf");
    stampante.setOutputFileName(file);
    test::AllaProssimaFinestra<QPrintDialog> utente([](QPrintDialog& aperto) { aperto.accept(); });
    impostaStampante(stampante, true, dialogo, nullptr);
    EXPECT_TRUE(utente.fatto);
    EXPECT_EQ(stampante.outputFileName(), file);
    EXPECT_EQ(stampante.outputFormat(), QPrinter::PdfFormat);
}

TEST_F(Stampante, IsABoxAndTheChoiceOfASheetWhereThereIsNoPrinter) {
    stampante.setPageSize(QPageSize(QPageSize::A4));
    test::AllaProssimaFinestra<QPageSetupDialog> utente([this](QPageSetupDialog& aperto) {
        EXPECT_EQ(dialogo.messaggi.size(), 1U) << "told before";
        EXPECT_EQ(aperto.windowTitle(), "Configura Stampante");
        for (auto* lista : aperto.findChildren<QComboBox*>())
            if (const int a3 = lista->findText("A3"); a3 >= 0) lista->setCurrentIndex(a3);
        aperto.accept();
    });
    impostaStampante(stampante, false, dialogo, nullptr);
    EXPECT_TRUE(utente.fatto);
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(dialogo.messaggi.front().titolo, "ATTENZIONE!");
    EXPECT_EQ(stampante.pageLayout().pageSize().id(), QPageSize::A3);
}

TEST_F(Stampante, KeepsItsSheetWhenTheUserGivesUp) {
    stampante.setPageSize(QPageSize(QPageSize::A5));
    test::AllaProssimaFinestra<QPageSetupDialog> utente(
        [](QPageSetupDialog& aperto) { aperto.reject(); });
    impostaStampante(stampante, false, dialogo, nullptr);
    EXPECT_TRUE(utente.fatto);
    EXPECT_EQ(stampante.pageLayout().pageSize().id(), QPageSize::A5);
}

class Disegni : public test::ProvaPlot {
 protected:
    Disegni() {
        collegaDisegni(forme, principale, dialogo, [this]() -> QPrinter& {
            ++chiesta;
            return programma.stampante();
        });
    }
    QApplication& app = test::applicazione();
    test::DialogoFinto dialogo;
    StampanteProgramma programma;
    QWidget principale;
    commands::FormeProgramma forme;
    int chiesta = 0;
};

TEST_F(Disegni, AskForThePrinterWithTheFirstDrawingAndNotBefore) {
    EXPECT_EQ(chiesta, 0);
    drawings::disegnaSezione(project::Progetto);
    EXPECT_GT(chiesta, 0);
}

TEST_F(Disegni, AppearInTheViewerUntilItIsClosed) {
    principale.show();
    drawings::disegnaSezione(project::Progetto);
    EXPECT_FALSE(principale.isEnabled());
    bool visto = false;
    QTimer::singleShot(0, &principale, [&visto] {
        for (auto* finestra : QApplication::topLevelWidgets())
            if (finestra->objectName() == "GRAFICA" && finestra->isVisible()) {
                visto = true;
                finestra->close();
            }
    });
    forme.grafica();
    EXPECT_TRUE(visto);
    EXPECT_TRUE(principale.isEnabled());
}

TEST_F(Disegni, HaveTheFormOfTheirPens) {
    test::AllaProssimaFinestra<QDialog> utente([](QDialog& aperta) {
        EXPECT_EQ(aperta.objectName(), "Editacfg");
        aperta.reject();
    });
    forme.editacfg();
    EXPECT_TRUE(utente.fatto);
}

TEST_F(Disegni, AskTheSystemWhetherItHasAPrinter) {
    test::AllaProssimaFinestra<QDialog> utente([](QDialog& aperto) { aperto.reject(); });
    forme.impostaStampante();
    EXPECT_TRUE(utente.fatto);
    EXPECT_EQ(chiesta, 1);
}

}  // namespace
}  // namespace korven::shell
