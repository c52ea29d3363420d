#include "shell/grafica_dialogs.hpp"

#include <QFileDialog>
#include <QLineEdit>
#include <QPrinter>
#include <QTimer>
#include <functional>

#include "project/project_data.hpp"
#include "shell/grafica_export.hpp"
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

TEST_F(Dialoghi, ProposeTheNameBesideTheProjectAndTakeItWithoutAQuestion) {
    test::metti(cartella / "muro.DXF", "");
    nelDialogo([this](QFileDialog& d) {
        EXPECT_EQ(d.nameFilters(), QStringList{"AutoCAD(*.DXF)"});
        EXPECT_TRUE(d.testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_EQ(d.directory().absolutePath().toStdString(), cartella.percorso());
        static_cast<QDialog&>(d).accept();
    });
    EXPECT_EQ(porte.fileDaSalvare(richiestaDxf()), cartella / "muro.DXF");
}

TEST_F(Dialoghi, GiveANameTypedWithoutExtensionThatOfItsKind) {
    nelDialogo([](QFileDialog& d) {
        EXPECT_FALSE(d.testOption(QFileDialog::DontConfirmOverwrite));
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
