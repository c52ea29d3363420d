// The section form, control by control.

#include "shell/section/definej.hpp"

#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <memory>

#include "project/project_data.hpp"
#include "shell/section/definej_fields.hpp"
#include "shell/section/section_sketch_view.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

using project::Sezione;

constexpr const char* opzioni[] = {"Option1", "Option2", "Option3", "Option4"};
constexpr const char* riquadri[] = {"Frame1", "Frame2", "Frame5", "Frame6"};

class FormaSezione : public ::testing::Test {
 protected:
    FormaSezione() {
        test::applicazione();
        double valore = 1.5;
        for (const auto& campo : masks::campiSezione) sezione.*campo.valore = (valore += 0.25);
        sezione.tipoDiaframma = true;
    }
    void apri() {
        prima = sezione;
        forma = std::make_unique<DefinEJ>(sezione, modificato, nullptr);
        forma->show();
        forma->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(forma.get()));
    }
    template <class C = QWidget>
    C& trova(const char* nome) {
        return test::controllo<C>(*forma, nome);
    }
    void premi(const char* nome) {
        auto& bottone = trova(nome);
        QTest::mouseClick(&bottone, Qt::LeftButton, {}, QPoint(10, bottone.height() / 2));
    }
    void scrivi(const char* nome, const char* testo) {
        trova<QLineEdit>(nome).selectAll();
        QTest::keyClicks(&trova(nome), testo);
    }
    QString aiuto() { return trova<QLabel>("Labelhelp").text(); }
    // The place in `riquadri` of the frame that shows, -1 unless exactly one does.
    int mostrato() {
        int quale = -1, quanti = 0;
        for (int i = 0; i < 4; ++i)
            if (trova(riquadri[i]).isVisible()) quale = i, ++quanti;
        return quanti == 1 ? quale : -1;
    }

    Sezione sezione, prima;
    bool modificato = false;
    std::unique_ptr<DefinEJ> forma;
};

TEST_F(FormaSezione, TellsEachChangeOfTheSectionThatStandsInIt) {
    apri();
    int digitate = 0;
    QObject::connect(forma.get(), &DefinEJ::digitata, [&] { ++digitate; });
    scrivi("Text6", "9");
    EXPECT_GE(digitate, 1);
    const int scritte = digitate;
    premi("Option3");
    EXPECT_GT(digitate, scritte);
    EXPECT_TRUE(forma->letta().tipoPalancola);
    EXPECT_EQ(sezione, prima);  // nothing is stored before the form is confirmed
}

TEST_F(FormaSezione, HasItsCaptions) {
    apri();
    EXPECT_EQ(forma->windowTitle(), "Calcolo di EJ e verifica strutturale");
    const std::pair<const char*, const char*> scelte[] = {{"Option1", "Diaframma continuo"},
                                                          {"Option2", "Pali affiancati"},
                                                          {"Option3", "Palancola"},
                                                          {"Option4", "Pali armati affiancati"}};
    for (const auto& [nome, testo] : scelte) EXPECT_EQ(trova<QRadioButton>(nome).text(), testo);
    const std::pair<const char*, const char*> titoli[] = {
        {"Frame1", "Diaframma continuo [mm]"},
        {"Frame2", "Pali affiancati [mm]"},
        {"Frame5", "Palancola [mm] (misurati sull'asse del profilato)"},
        {"Frame6", "Pali armati affiancati [mm]"},
        {"Frame4", "Caratteristiche dei materiali"}};
    for (const auto& [nome, testo] : titoli) EXPECT_EQ(trova<QGroupBox>(nome).title(), testo);
    EXPECT_EQ(trova<QPushButton>("Command1").text(), "&Conferma");
    EXPECT_EQ(trova<QPushButton>("Command2").text(), "&Annulla");
    const auto etichette = [this](const char* riquadro) {
        QStringList testi;
        for (const auto* e : trova(riquadro).findChildren<QLabel*>()) testi << e->text();
        return testi;
    };
    for (const char* testo : {"LATO MONTE", "LATO VALLE"})
        EXPECT_EQ(etichette("Frame1").count(QLatin1String(testo)), 1) << testo;
    EXPECT_TRUE(etichette("Frame6").contains(QString::fromUtf8("N° ferri:")));
    for (const char* testo : {"Acciaio", "CLS", "Fck [N/mm²]", "Fyk [N/mm²]", "E [N/mm²]"})
        EXPECT_EQ(etichette("Frame4").count(QString::fromUtf8(testo)), 1) << testo;
}

TEST_F(FormaSezione, BeginsAtAFieldOfTheTypeChosenOrOfTheMaterials) {
    const auto fuocoDa = [this](double Sezione::*campo) {
        forma = std::make_unique<DefinEJ>(sezione, modificato, nullptr);
        forma->comincia(masks::campoSezione(campo));
        forma->show();
        forma->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(forma.get()));
        return forma->focusWidget()->objectName();
    };
    EXPECT_EQ(fuocoDa(&Sezione::diametroMonte), "Text3");
    EXPECT_EQ(trova<QLineEdit>("Text3").selectedText(), trova<QLineEdit>("Text3").text());
    EXPECT_EQ(fuocoDa(&Sezione::fck), "Text18");
    EXPECT_EQ(fuocoDa(&Sezione::armNumLong), "Option1") << "a type that is not chosen";
}

TEST_F(FormaSezione, TakesItsCaptionsFromTheLanguage) {
    const test::TestiConsegnati tedesco(2);
    apri();
    EXPECT_EQ(trova<QRadioButton>("Option3").text(), "Spundwand");
    EXPECT_EQ(trova<QPushButton>("Command2").text(), "Abb&rechen");
}

TEST_F(FormaSezione, HasTheControlOfEachFieldInItsFrame) {
    const std::pair<const char*, std::vector<const char*>> attesi[] = {
        {"Frame1", {"Text5", "Text6", "Text1", "Text2", "Text3", "Text4", "Text7"}},
        {"Frame2", {"Text11", "Text12", "Text10"}},
        {"Frame5", {"Text16", "Text17", "Text9", "Text13", "Text19"}},
        {"Frame6", {"Text20", "Text21", "Text22", "Text23", "Text24", "Text25", "Text26"}},
        {"Frame4", {"Text8", "Text14", "Text15", "Text18"}}};
    apri();
    for (const auto& [riquadro, nomi] : attesi) {
        EXPECT_EQ(static_cast<std::size_t>(trova(riquadro).findChildren<QLineEdit*>().size()),
                  nomi.size());
        for (const char* nome : nomi)
            EXPECT_NE(trova(riquadro).findChild<QLineEdit*>(QLatin1String(nome)), nullptr) << nome;
    }
}

TEST_F(FormaSezione, ShowsEachValueInTheControlOfItsField) {
    const std::pair<const char*, double Sezione::*> campi[] = {
        {"Text5", &Sezione::copriferroMonte},
        {"Text6", &Sezione::copriferroValle},
        {"Text1", &Sezione::interasseMonte},
        {"Text2", &Sezione::interasseValle},
        {"Text3", &Sezione::diametroMonte},
        {"Text4", &Sezione::diametroValle},
        {"Text7", &Sezione::spessoreDiaframma},
        {"Text11", &Sezione::paliDiamEst},
        {"Text12", &Sezione::paliDiamInt},
        {"Text10", &Sezione::paliInterasse},
        {"Text16", &Sezione::palancolaBase},
        {"Text17", &Sezione::palancolaLargAla},
        {"Text9", &Sezione::palancolaAltAla},
        {"Text13", &Sezione::palancolaSpessore},
        {"Text19", &Sezione::palancolaSpessAla},
        {"Text20", &Sezione::armInterasse},
        {"Text21", &Sezione::armDiamLong},
        {"Text22", &Sezione::armDiamPalo},
        {"Text23", &Sezione::armPassoStaffe},
        {"Text24", &Sezione::armDiamStaffe},
        {"Text25", &Sezione::armNumLong},
        {"Text26", &Sezione::armCopriferro},
        {"Text8", &Sezione::modEacciaio},
        {"Text14", &Sezione::modEcls},
        {"Text15", &Sezione::fyk},
        {"Text18", &Sezione::fck}};
    ASSERT_EQ(std::size(campi), masks::numeroCampiSezione);
    apri();
    for (const auto& [nome, campo] : campi) {
        const bool materiale =
            masks::campiSezione[masks::campoSezione(campo)].riquadro() == project::Parte::materiali;
        EXPECT_EQ(trova<QLineEdit>(nome).text().toDouble(), sezione.*campo * (materiale ? 1 : 10))
            << nome;
    }
}

TEST_F(FormaSezione, ShowsTheFrameOfTheStoredTypeAndTheMaterials) {
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) sezione.*project::tipiSezione[j] = i == j;
        apri();
        EXPECT_EQ(mostrato(), i);
        EXPECT_TRUE(trova<QRadioButton>(opzioni[i]).isChecked());
        EXPECT_TRUE(trova("Frame4").isVisible());
    }
}

TEST_F(FormaSezione, ShowsTheFrameOfTheOptionThatIsClicked) {
    apri();
    for (const int i : {3, 1, 2, 0}) {
        premi(opzioni[i]);
        EXPECT_EQ(mostrato(), i);
        for (int j = 0; j < 4; ++j) EXPECT_EQ(trova<QRadioButton>(opzioni[j]).isChecked(), i == j);
        EXPECT_TRUE(trova("Frame4").isVisible());
    }
    EXPECT_EQ(sezione, prima);
    EXPECT_FALSE(modificato);
}

TEST_F(FormaSezione, ChangesTheTypeByTheArrowKeys) {
    apri();
    QTest::keyClick(forma->focusWidget(), Qt::Key_Right);
    EXPECT_EQ(mostrato(), 1);
}

TEST_F(FormaSezione, StoresTheFieldsOfAllFramesAlike) {
    apri();
    scrivi("Text7", "900");
    premi("Option3");
    scrivi("Text16", "345.5");
    scrivi("Text18", "35");
    premi("Option4");
    scrivi("Text25", "8");
    scrivi("Text22", "non so");
    premi("Command1");
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(forma->result(), QDialog::Accepted);
    EXPECT_TRUE(modificato);
    Sezione attesa = prima;
    attesa.tipoDiaframma = false;
    attesa.tipoPaliArmati = true;
    attesa.spessoreDiaframma = 90;
    attesa.palancolaBase = 34.55;
    attesa.fck = 35;
    attesa.armNumLong = 0.8;
    attesa.armDiamPalo = 0;
    EXPECT_EQ(sezione, attesa);
}

TEST_F(FormaSezione, LeavesModificatoAloneWhenNothingWasEdited) {
    apri();
    premi("Option2");
    premi("Option1");
    premi("Command1");
    EXPECT_FALSE(forma->isVisible());
    EXPECT_FALSE(modificato);
    EXPECT_EQ(sezione, prima);
}

TEST_F(FormaSezione, KeepsNothingWhenTheUserGivesUp) {
    for (const bool conEsc : {false, true}) {
        apri();
        scrivi("Text7", "900");
        premi("Option2");
        if (conEsc)
            QTest::keyClick(&trova("Text11"), Qt::Key_Escape);
        else
            premi("Command2");
        EXPECT_FALSE(forma->isVisible());
        EXPECT_EQ(sezione, prima);
        EXPECT_FALSE(modificato);
    }
}

TEST_F(FormaSezione, ConfirmsByEnterFromAField) {
    apri();
    scrivi("Text7", "900");
    QTest::keyClick(&trova("Text7"), Qt::Key_Return);
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(sezione.spessoreDiaframma, 90);
}

TEST_F(FormaSezione, HasTheAccessKeysOfItsButtons) {
    apri();
    EXPECT_EQ(trova<QPushButton>("Command1").shortcut(), QKeySequence("Alt+C"));
    EXPECT_EQ(trova<QPushButton>("Command2").shortcut(), QKeySequence("Alt+A"));
}

TEST_F(FormaSezione, GoesThroughItsFieldsInTheOrderInWhichTheyAreRead) {
    const std::vector<const char*> attesi[] = {
        {"Text5", "Text6", "Text1", "Text2", "Text3", "Text4", "Text7"},
        {"Text11", "Text12", "Text10"},
        {"Text16", "Text17", "Text9", "Text13", "Text19"},
        {"Text22", "Text20", "Text25", "Text21", "Text26", "Text24", "Text23"}};
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) sezione.*project::tipiSezione[j] = i == j;
        apri();
        QStringList giro{QLatin1String(opzioni[i])};
        for (const char* nome : attesi[i]) giro << QLatin1String(nome);
        giro << "Text15"
             << "Text8"
             << "Text18"
             << "Text14"
             << "Command1"
             << "Command2";
        for (const QString& nome : giro) {
            EXPECT_EQ(forma->focusWidget()->objectName(), nome);
            QTest::keyClick(forma->focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(forma->focusWidget()->objectName(), giro.front()) << "around again";
    }
}

TEST_F(FormaSezione, GoesUpAndDownByTheArrowKeys) {
    apri();
    trova("Text5").setFocus();
    QTest::keyClick(forma->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(forma->focusWidget()->objectName(), "Text6");
    QTest::keyClick(forma->focusWidget(), Qt::Key_Up);
    EXPECT_EQ(forma->focusWidget()->objectName(), "Text5");
}

TEST_F(FormaSezione, TellsInItsStripWhatTheFieldMeans) {
    apri();
    EXPECT_TRUE(aiuto().startsWith("Il tipo di sezione"));
    for (std::size_t i = 0; i < masks::numeroCampiSezione; ++i) {
        const auto riquadro = static_cast<std::size_t>(masks::campiSezione[i].riquadro());
        if (riquadro < 4) premi(opzioni[riquadro]);
        auto& campo = trova<QLineEdit>(campiForma[i].controllo);
        campo.setFocus();
        EXPECT_EQ(aiuto().toStdString(), campiForma[i].aiuto);
        if (riquadro < 4) {
            auto* schizzo = trova(riquadri[riquadro]).findChild<VistaSchizzo*>();
            EXPECT_EQ(schizzo->evidenziato(), i);
        }
    }
    premi("Option4");
    EXPECT_TRUE(aiuto().startsWith("Il tipo di sezione"));
    trova("Text25").setFocus();
    EXPECT_TRUE(aiuto().contains("un decimo del numero scritto"));
}

TEST_F(FormaSezione, RedrawsTheSketchWhileANumberIsTyped) {
    apri();
    auto& schizzo = *trova("Frame1").findChild<VistaSchizzo*>();
    const auto scritta = [&] {
        for (const auto& quota : schizzo.schizzo().quote)
            if (quota.campo == masks::campoSezione(&Sezione::spessoreDiaframma))
                return quota.scritta;
        return std::string();
    };
    scrivi("Text7", "75");
    EXPECT_EQ(scritta(), "H = 75");
    QTest::keyClicks(&trova("Text7"), "0");
    EXPECT_EQ(scritta(), "H = 750");
    EXPECT_EQ(sezione, prima) << "typing stores nothing";
}

TEST_F(FormaSezione, TakesAClickOnADimensionToItsField) {
    apri();
    auto& schizzo = *trova("Frame1").findChild<VistaSchizzo*>();
    for (const auto& quota : schizzo.schizzo().quote) {
        QTest::mouseClick(&schizzo, Qt::LeftButton, {},
                          schizzo.postoTesto(quota).center().toPoint());
        EXPECT_EQ(forma->focusWidget()->objectName(), campiForma[quota.campo].controllo);
    }
    QTest::mouseClick(&schizzo, Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(forma->focusWidget()->objectName(),
              campiForma[schizzo.schizzo().quote.back().campo].controllo);
}

TEST_F(FormaSezione, PaintsTheDimensionOfTheFocusInAnotherColour) {
    apri();
    auto& schizzo = *trova("Frame1").findChild<VistaSchizzo*>();
    const auto colorati = [&] {
        const QImage immagine = schizzo.grab().toImage();
        int quanti = 0;
        for (int y = 0; y < immagine.height(); ++y)
            for (int x = 0; x < immagine.width(); ++x) {
                const QColor c = immagine.pixelColor(x, y);
                quanti += c.red() > 150 && c.green() < 110 && c.blue() < 90;
            }
        return quanti;
    };
    EXPECT_EQ(colorati(), 0) << "the focus is on the options";
    trova("Text7").setFocus();
    EXPECT_GT(colorati(), 50);
}

TEST_F(FormaSezione, HasANameAndAHelpPage) {
    apri();
    EXPECT_EQ(forma->property("contestoGuida").toInt(), 7);
    for (const auto& campo : campiForma)
        EXPECT_FALSE(trova(campo.controllo).accessibleName().isEmpty()) << campo.controllo;
    EXPECT_EQ(trova("Text2").accessibleName(), "Interasse ferri LATO VALLE");
    for (const char* riquadro : riquadri)
        EXPECT_FALSE(trova(riquadro).findChild<VistaSchizzo*>()->accessibleName().isEmpty());
}

TEST_F(FormaSezione, OpensOnTheProjectFromItsCommand) {
    commands::FormeProgramma forme;
    collegaSezione(forme, nullptr);
    const project::DatiProgetto salvato = project::Progetto;
    project::azzeraProgetto();
    project::modificato = false;
    test::AllaProssimaFinestra<DefinEJ> utente([](DefinEJ& aperta) {
        test::controllo<QLineEdit>(aperta, "Text7").setText("600");
        test::controllo<QPushButton>(aperta, "Command1").click();
    });
    forme.sezione();
    EXPECT_TRUE(utente.fatto);
    EXPECT_EQ(project::Progetto.sezione.spessoreDiaframma, 60);
    EXPECT_TRUE(project::modificato);
    project::Progetto = salvato;
    project::modificato = false;
}

TEST_F(FormaSezione, TellsWhatANumberIsReadAsWhileItIsTyped) {
    apri();
    trova("Text7").setFocus();
    const QString spiegazione = aiuto();
    scrivi("Text7", "80,5");
    EXPECT_EQ(aiuto(), "letto come 80: il segno decimale è il punto\n" + spiegazione);
    scrivi("Text7", "80.5");
    EXPECT_EQ(aiuto(), spiegazione);
}

TEST_F(FormaSezione, TakesFieldsAndTheTypeBackByKeysAndDoesThemAgain) {
    apri();
    const QString spessore = trova<QLineEdit>("Text7").text();
    trova("Text7").setFocus();
    scrivi("Text7", "800");
    premi("Option2");
    trova("Text11").setFocus();
    scrivi("Text11", "273");
    const auto tasto = [this](Qt::Key quale) {
        QTest::keyClick(forma->focusWidget(), quale, Qt::ControlModifier);
    };
    project::Sezione seguita;
    QObject::connect(forma.get(), &DefinEJ::digitata, [&] { seguita = forma->letta(); });
    tasto(Qt::Key_Z);
    EXPECT_NE(trova<QLineEdit>("Text11").text(), "273");
    EXPECT_EQ(seguita.paliDiamEst, sezione.paliDiamEst);
    EXPECT_TRUE(aiuto().startsWith("Annullato: campo diametro esterno dei pali\n"));
    tasto(Qt::Key_Z);
    EXPECT_EQ(mostrato(), 0);
    EXPECT_TRUE(trova<QRadioButton>("Option1").isChecked());
    EXPECT_TRUE(trova("Option1").hasFocus());
    EXPECT_TRUE(aiuto().startsWith("Annullato: tipo di sezione\n"));
    tasto(Qt::Key_Z);
    EXPECT_EQ(trova<QLineEdit>("Text7").text(), spessore);
    EXPECT_TRUE(trova("Text7").hasFocus());
    tasto(Qt::Key_Z);
    EXPECT_TRUE(aiuto().startsWith("Nulla da annullare\n"));
    for (int i = 0; i < 3; ++i) tasto(Qt::Key_Y);
    EXPECT_EQ(mostrato(), 1);
    EXPECT_EQ(trova<QLineEdit>("Text7").text(), "800");
    EXPECT_EQ(trova<QLineEdit>("Text11").text(), "273");
    EXPECT_TRUE(trova("Text11").hasFocus());
    EXPECT_TRUE(aiuto().startsWith("Ripetuto: campo diametro esterno dei pali\n"));
}

}  // namespace
}  // namespace korven::shell
