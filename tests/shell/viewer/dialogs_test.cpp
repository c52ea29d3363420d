#include "shell/viewer/dialogs.hpp"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "project/project_data.hpp"
#include "shell/report/destinations.hpp"
#include "shell/viewer/export.hpp"
#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

/// Works the dialog that is to appear.
void nelDialogo(const std::function<void(QFileDialog&)>& azione) {
    QTimer::singleShot(50, [azione] {
        auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialogo, nullptr);
        azione(*dialogo);
    });
}

class Dialoghi : public testing::Test {
 protected:
    Dialoghi() { project::fileCorrente = cartella / "muro.kvd"; }
    ~Dialoghi() override { project::fileCorrente.clear(); }

    QApplication& app = test::applicazione();
    const test::CartellaProvvisoria cartella;
    QPrinter stampante{QPrinter::HighResolution};
    PorteDesktop porte{[this]() -> QPrinter& { return stampante; }};
};

TEST_F(Dialoghi, ProposeTheNameBesideTheProject) {
    nelDialogo([this](QFileDialog& d) {
        EXPECT_EQ(d.nameFilters(), QStringList{"AutoCAD(*.DXF)"});
        EXPECT_EQ(d.directory().absolutePath().toStdString(), cartella.percorso());
        static_cast<QDialog&>(d).accept();
    });
    EXPECT_EQ(porte.fileDaSalvare(richiestaDxf()), cartella / "muro.DXF");
}

TEST_F(Dialoghi, AskBeforeAFileIsReplacedAndAgainForANameOnNo) {
    for (const char* nome : {"muro.DXF", "muro-relazione.pdf"}) {
        test::metti(cartella / nome, "");
        int nomi = 0, domande = 0;
        QTimer risposte;
        QObject::connect(&risposte, &QTimer::timeout, [&] {
            QWidget* finestra = QApplication::activeModalWidget();
            if (auto* box = qobject_cast<QMessageBox*>(finestra)) {
                EXPECT_TRUE(box->text().endsWith(QString::fromStdString(cartella / nome) + "?"));
                box->findChild<QPushButton*>(++domande == 1 ? "no" : "si")->click();
            } else if (auto* dialogo = qobject_cast<QFileDialog*>(finestra)) {
                ++nomi;
                static_cast<QDialog&>(*dialogo).accept();
            }
        });
        risposte.start(30);
        const auto richiesta = nome[4] == '.' ? richiestaDxf() : richiestaPdfRelazione();
        EXPECT_EQ(porte.fileDaSalvare(richiesta), cartella / nome);
        EXPECT_EQ(nomi, 2) << nome;
        EXPECT_EQ(domande, 2) << nome;
    }
}

TEST_F(Dialoghi, GiveANameTypedWithoutExtensionThatOfItsKind) {
    nelDialogo([](QFileDialog& d) {
        d.findChild<QLineEdit*>()->setText("tavola");
        static_cast<QDialog&>(d).accept();
    });
    EXPECT_EQ(porte.fileDaSalvare(richiestaImmagine()), cartella / "tavola.pdf");
    nelDialogo([](QFileDialog& d) {
        d.selectNameFilter("PNG (*.png)");
        emit d.filterSelected("PNG (*.png)");  // as a click on the filter does
        d.findChild<QLineEdit*>()->setText("tavola");
        static_cast<QDialog&>(d).accept();
    });
    EXPECT_EQ(porte.fileDaSalvare(richiestaImmagine()), cartella / "tavola.png");
}

TEST_F(Dialoghi, ReturnNothingWhenTheyAreCancelled) {
    nelDialogo([](QFileDialog& d) { d.reject(); });
    EXPECT_EQ(porte.fileDaSalvare(richiestaDxf()), std::nullopt);
}

TEST_F(Dialoghi, PrintToTheFileThatThePrinterSetUpNamed) {
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(QString::fromStdString(cartella / "stampa.pdf"));
    const auto carta = porte.stampante("prova");
    ASSERT_NE(carta, nullptr);
    carta->iniziaPagina();
    carta->finePagina();
    carta->fineStampa();
    EXPECT_TRUE(test::contenuto(cartella / "stampa.pdf").starts_with("%PDF"));
    EXPECT_NEAR(porte.foglioStampante().larghezza, 21, 0.02);
}

}  // namespace
}  // namespace korven::shell
