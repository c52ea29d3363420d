#include "shell/report/conf_stampa.hpp"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <filesystem>

#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/plot_setup.hpp"

namespace korven::shell {
namespace {

class Stampa : public test::ProvaPlot {
 protected:
    void apri(const QStringList& caratteri = {"Arial", "Courier New", "Symbol"}) {
        forma = std::make_unique<ConfStampa>(
            caratteri, [this](QWidget*) { return copieScelte; }, dialogo, nullptr);
        forma->show();
    }
    template <class C = QLineEdit>
    C& trova(const char* nome) {
        return test::controllo<C>(*forma, nome);
    }
    void premi(const char* nome) { QTest::mouseClick(&trova<QPushButton>(nome), Qt::LeftButton); }
    std::string carattere() {
        return trova<QListWidget>("List1").currentItem()->text().toStdString();
    }

    QApplication& app = test::applicazione();
    test::DialogoFinto dialogo;
    std::optional<int> copieScelte;
    std::unique_ptr<ConfStampa> forma;
    const std::string file = programma / "printer.cfg";
};

constexpr const char* campiPerOrdine[] = {"Text1", "Text2", "Text3", "Text4",
                                          "Text5", "Text6", "Text7", "Text8"};

TEST_F(Stampa, ShowsTheDefaultsWithoutAFile) {
    apri();
    const char* attesi[] = {"0", "0", "0", "70", "10", "", "", "0"};
    for (std::size_t i = 0; i < std::size(attesi); ++i)
        EXPECT_EQ(trova(campiPerOrdine[i]).text(), attesi[i]) << campiPerOrdine[i];
    EXPECT_EQ(carattere(), "Courier New");
}

TEST_F(Stampa, HasItsCaptions) {
    apri();
    EXPECT_EQ(forma->windowTitle(), "Impostazioni di stampa");
    EXPECT_EQ(trova<QPushButton>("Command1").text(), "&Imposta");
    EXPECT_EQ(trova<QPushButton>("Command2").text(), "&Stampa");
    EXPECT_EQ(trova<QPushButton>("Command3").text(), "&Annulla");
    const std::pair<const char*, const char*> etichette[] = {{"Text1", "Margine sinistro (car.)"},
                                                             {"Text2", "Margine superiore (righe)"},
                                                             {"Text3", "Margine inferiore (righe)"},
                                                             {"Text4", "Lunghezza pagina (righe)"},
                                                             {"Text5", "Altezza caratteri (punti)"},
                                                             {"Text6", "Intestazione"},
                                                             {"Text7", "Piè di pagina"},
                                                             {"List1", "Set di caratteri"},
                                                             {"Text8", "Offset superiore (righe)"}};
    for (const auto& [nome, testo] : etichette) {
        const QWidget* di = &trova<QWidget>(nome);
        const auto tutte = forma->findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(tutte.begin(), tutte.end(), [&, t = testo](const QLabel* e) {
            return e->buddy() == di && e->text() == QString::fromUtf8(t);
        })) << nome;
        EXPECT_EQ(di->accessibleName(), testo);
    }
}

TEST_F(Stampa, WritesItsFileWhenItIsLeftByPrint) {
    apri();
    const char* scritti[] = {"5", "2.9", "3", "66", "12", "Muro nord", "pag.", "1.5"};
    for (std::size_t i = 0; i < std::size(scritti); ++i) {
        trova(campiPerOrdine[i]).selectAll();
        QTest::keyClicks(&trova(campiPerOrdine[i]), scritti[i]);
    }
    trova<QListWidget>("List1").setCurrentRow(2);
    premi("Command2");
    EXPECT_FALSE(forma->isVisible());
    EXPECT_TRUE(forma->stampata());
    EXPECT_EQ(test::contenuto(file),
              "5\r\n2\r\n3\r\n66\r\n12\r\nMuro nord\r\npag.\r\nSymbol\r\n1.5\r\n");
    EXPECT_EQ(plot::statoPlot.penna.carattere, "Symbol");
}

TEST_F(Stampa, WritesBackAFileOfEightLinesWithNine) {
    const std::string otto = "5\r\n2\r\n3\r\n66\r\n12\r\nMuro\r\n\r\nSymbol\r\n";
    test::metti(file, otto);
    apri();
    EXPECT_EQ(trova("Text8").text(), "0");
    premi("Command2");
    EXPECT_EQ(test::contenuto(file), otto + "0\r\n");
}

TEST_F(Stampa, StoresNothingWhenItIsCancelledOrClosed) {
    for (const bool chiusa : {false, true}) {
        apri();
        QTest::keyClicks(&trova("Text1"), "9");
        if (chiusa)
            forma->close();
        else
            premi("Command3");
        EXPECT_FALSE(forma->stampata());
        EXPECT_FALSE(std::filesystem::exists(file));
    }
}

TEST_F(Stampa, OpensWithCourierNewWhenThePrinterLacksTheSavedFont) {
    test::metti(file, "0\r\n0\r\n0\r\n70\r\n10\r\n\r\n\r\nManca\r\n0\r\n");
    apri();
    EXPECT_EQ(carattere(), "Courier New");
    apri({"Zeta", "Arial"});
    EXPECT_EQ(carattere(), "Zeta") << "the first in the printer's order";
}

TEST_F(Stampa, KeepsTheNumberOfCopiesOfThePrinterDialog) {
    apri();
    EXPECT_EQ(forma->copie(), 1);
    copieScelte = 3;
    premi("Command1");
    EXPECT_EQ(forma->copie(), 3);
    copieScelte = std::nullopt;  // cancelled
    premi("Command1");
    EXPECT_EQ(forma->copie(), 3);
}

TEST_F(Stampa, StaysOpenWhenTheFileCannotBeWritten) {
    apri();
    std::filesystem::create_directory(file);
    premi("Command2");
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_TRUE(forma->isVisible());
}

}  // namespace
}  // namespace korven::shell
