// The form of pens and colours, control by control.

#include "shell/pens/editacfg.hpp"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <filesystem>
#include <optional>

#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/plot_setup.hpp"

namespace korven::shell {
namespace {

class PorteScritte : public PorteEditacfg {
 public:
    std::optional<plot::Colore> scegliColore(QWidget*, plot::Colore presente) override {
        presenti.push_back(presente);
        return colore;
    }
    std::optional<std::string> chiediTesto(QWidget*, const std::string& titolo,
                                           const std::string& domanda,
                                           const std::string& proposta) override {
        domande.push_back(titolo + '|' + domanda + '|' + proposta);
        return nome;
    }
    std::optional<plot::Colore> colore;
    std::optional<std::string> nome;
    std::vector<plot::Colore> presenti;
    std::vector<std::string> domande;
};

class Penne : public test::ProvaPlot {
 protected:
    Penne() { apri(); }

    void apri() {
        forma = std::make_unique<Editacfg>(porte, dialogo, nullptr);
        forma->show();
    }
    template <class C = QWidget>
    C& trova(const char* nome) {
        return test::controllo<C>(*forma, nome);
    }
    QListWidget& penne() { return trova<QListWidget>("List1"); }
    QRadioButton& opzione(int i) {
        return trova<QRadioButton>(("Option1_" + std::to_string(i)).c_str());
    }
    void scrivi(const char* nome, const char* testo) {
        trova<QLineEdit>(nome).selectAll();
        QTest::keyClicks(&trova(nome), testo);
    }
    void premi(const char* nome) { QTest::mouseClick(&trova(nome), Qt::LeftButton); }
    [[nodiscard]] plot::ConfigurazionePlot scritta() const {
        return plot::leggiConfigurazione(programma / "module06ita.cfg");
    }

    QApplication& app = test::applicazione();
    PorteScritte porte;
    test::DialogoFinto dialogo;
    std::unique_ptr<Editacfg> forma;
};

TEST_F(Penne, LeaveRoomForTheRestOfTheFormOnASmallScreen) {
    auto configurazione = scritta();
    configurazione.penne[1].etichetta = std::string(100, 'M');
    plot::scriviConfigurazione(programma / "module06ita.cfg", configurazione);
    apri();
    EXPECT_LE(forma->minimumSizeHint().width(), forma->screen()->availableSize().width());
}

TEST_F(Penne, AreShownInAFormWithItsCaptions) {
    EXPECT_EQ(forma->windowTitle(), "SELEZIONE COLORI");
    EXPECT_EQ(penne().count(), plot::numeroPenne);
    EXPECT_EQ(penne().item(29)->text(), "Penna 30");
    EXPECT_EQ(opzione(0).text(), "Non disegnato");
    EXPECT_EQ(opzione(3).text(), "Blu");
    EXPECT_EQ(trova<QGroupBox>("Frame2").title(), "Margini (cm)");
    EXPECT_EQ(trova<QPushButton>("Command2").text(), "&Annulla");
    QStringList etichette;
    for (const auto* e : forma->findChildren<QLabel*>()) etichette << e->text();
    for (const char* testo : {"Spessore (mm)", "Sinistro", "Superiore"})
        EXPECT_TRUE(etichette.contains(QLatin1String(testo))) << testo;
}

TEST_F(Penne, AreShownWithColourWidthAndFontWhenTheyAreSelected) {
    EXPECT_TRUE(opzione(1).isChecked()) << "the first one at once";
    penne().setCurrentRow(3);
    EXPECT_TRUE(opzione(3).isChecked());
    EXPECT_EQ(trova<QLineEdit>("Text1").text(), "0.4");
    EXPECT_EQ(trova<QListWidget>("List2").currentItem()->text(), "Courier New");
    penne().setCurrentRow(2);
    EXPECT_TRUE(opzione(0).isChecked());
}

TEST_F(Penne, AreNotChangedByLookingAtThem) {
    for (int i = 0; i < plot::numeroPenne; ++i) penne().setCurrentRow(i);
    premi("Command1");
    EXPECT_EQ(scritta(), test::configurazioneDiProva());
}

TEST_F(Penne, AreChangedByTheControlsAndWrittenOnConfirmation) {
    penne().setCurrentRow(3);
    QTest::mouseClick(&opzione(1), Qt::LeftButton, {}, QPoint(8, opzione(1).height() / 2));
    scrivi("Text1", "0.35");
    trova<QListWidget>("List2").setCurrentItem(
        trova<QListWidget>("List2").findItems("Arial", Qt::MatchExactly).front());
    scrivi("Text2", "1.5");
    scrivi("Text3", "2");
    premi("Command1");
    EXPECT_FALSE(forma->isVisible());
    plot::ConfigurazionePlot attesa = test::configurazioneDiProva();
    attesa.penne[4] = {"Penna 4", 1, 0.35, "Arial"};
    attesa.margineSinistro = 1.5;
    attesa.margineSuperiore = 2;
    EXPECT_EQ(scritta(), attesa);
    EXPECT_EQ(plot::statoPlot.scostamentoX, 1.5);
    EXPECT_EQ(plot::statoPlot.scostamentoY, 2);
}

TEST_F(Penne, KeepNothingWhenTheUserGivesUp) {
    for (const bool conEsc : {false, true}) {
        apri();
        scrivi("Text1", "3");
        scrivi("Text2", "4");
        if (conEsc)
            QTest::keyClick(forma.get(), Qt::Key_Escape);
        else
            premi("Command2");
        EXPECT_FALSE(forma->isVisible());
        EXPECT_EQ(scritta(), test::configurazioneDiProva());
        EXPECT_EQ(plot::statoPlot.scostamentoX, 0);
    }
}

TEST_F(Penne, GetAnotherColourValueAndNameByADoubleClick) {
    porte.colore = plot::daRgb(1, 2, 3);
    porte.nome = "Notte & nebbia";
    QTest::mouseDClick(&opzione(3), Qt::LeftButton);
    EXPECT_EQ(porte.presenti, std::vector{plot::daRgb(0, 0, 255)});
    EXPECT_EQ(porte.domande, std::vector<std::string>{"DESCRIZIONE COLORI|Nome colore:|Blu"});
    EXPECT_EQ(opzione(3).text(), "Notte && nebbia") << "painted anew, the sign no access key";
    premi("Command1");
    EXPECT_EQ(scritta().colori[3], (plot::ColoreConfigurato{"Notte & nebbia", 0x030201}));
}

TEST_F(Penne, PaintTheOptionInItsColour) {
    porte.colore = plot::daRgb(10, 200, 30);
    QTest::mouseDClick(&opzione(3), Qt::LeftButton);
    const QImage campione = opzione(3).icon().pixmap(28, 14).toImage();
    EXPECT_EQ(campione.pixelColor(14, 7), QColor(10, 200, 30));
    EXPECT_TRUE(opzione(0).icon().isNull());
}

TEST_F(Penne, GetAnotherColourByKeyboardToo) {
    porte.colore = 77;
    QTest::keyClick(&opzione(5), Qt::Key_F2);
    premi("Command1");
    EXPECT_EQ(scritta().colori[5], (plot::ColoreConfigurato{"Colore 5", 77})) << "name kept";
}

TEST_F(Penne, AskForNoNameWhenTheColourIsTheSameOrNoneWasChosen) {
    QTest::mouseDClick(&opzione(3), Qt::LeftButton);
    porte.colore = plot::daRgb(0, 0, 255);
    QTest::mouseDClick(&opzione(3), Qt::LeftButton);
    EXPECT_EQ(porte.presenti.size(), 2U);
    EXPECT_TRUE(porte.domande.empty());
}

TEST_F(Penne, OpenNoColourChooserForThePenThatDrawsNothing) {
    QTest::mouseDClick(&opzione(0), Qt::LeftButton);
    QTest::keyClick(&opzione(0), Qt::Key_F2);
    EXPECT_TRUE(porte.presenti.empty());
}

TEST_F(Penne, StayOpenWhenTheFileCannotBeWritten) {
    std::filesystem::remove(programma / "module06ita.cfg");
    std::filesystem::create_directory(programma / "module06ita.cfg");
    premi("Command1");
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(dialogo.messaggi.front().titolo, "ATTENZIONE!");
    EXPECT_TRUE(forma->isVisible());
}

TEST_F(Penne, StayOpenWithABoxThatNamesTheFieldAndItsRange) {
    const std::string prima = test::contenuto(programma / "module06ita.cfg");
    const auto finisceCon = [](const std::string& testo, const char* limiti) {
        return testo.starts_with("Vi e' un errore di digitazione") && testo.ends_with(limiti);
    };
    scrivi("Text3", "500");
    premi("Command1");
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(dialogo.messaggi[0].titolo, "Superiore");
    EXPECT_TRUE(finisceCon(dialogo.messaggi[0].testo, "\r\n-10; 100")) << dialogo.messaggi[0].testo;
    EXPECT_EQ(trova<QLineEdit>("Text3").selectedText(), "500");
    penne().setCurrentRow(3);
    scrivi("Text1", "101");
    penne().setCurrentRow(7);
    premi("Command1");
    ASSERT_EQ(dialogo.messaggi.size(), 2U);
    EXPECT_EQ(dialogo.messaggi[1].titolo, "Spessore (mm): Penna 4");
    EXPECT_TRUE(finisceCon(dialogo.messaggi[1].testo, "\r\n0; 100"));
    EXPECT_EQ(penne().currentRow(), 3) << "the pen whose width it is";
    EXPECT_EQ(trova<QLineEdit>("Text1").selectedText(), "101");
    EXPECT_TRUE(forma->isVisible());
    EXPECT_EQ(test::contenuto(programma / "module06ita.cfg"), prima);
}

TEST_F(Penne, TellWhatANumberIsReadAsWhileItIsTyped) {
    auto& striscia = trova<QLabel>("Labelhelp");
    scrivi("Text1", "0,5");
    EXPECT_TRUE(striscia.text().startsWith("letto come 0: il segno decimale è il punto\n"))
        << striscia.text().toStdString();
    scrivi("Text1", "0.5");
    EXPECT_FALSE(striscia.text().contains("letto come"));
    scrivi("Text2", "1.2.3");
    EXPECT_TRUE(striscia.text().startsWith("letto come 1.2\n"));
    EXPECT_TRUE(striscia.text().contains("da -10 a 100"));
}

TEST_F(Penne, HaveANameOnEveryControl) {
    for (const char* nome : {"List1", "List2", "Text1", "Text2", "Text3"})
        EXPECT_FALSE(trova(nome).accessibleName().isEmpty()) << nome;
}

}  // namespace
}  // namespace korven::shell
