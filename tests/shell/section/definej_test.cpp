// The section form, control by control.

#include "shell/section/definej.hpp"

#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "base/bound_units.hpp"
#include "project/project_data.hpp"
#include "shell/section/definej_fields.hpp"
#include "shell/section/section_sketch_view.hpp"
#include "support/form_setup.hpp"
#include "support/section_form_bench.hpp"

namespace korven::shell {
namespace {

using project::Sezione;
using test::opzioniSezione;
using test::riquadriSezione;
using FormaSezione = test::BancoSezione;

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
        EXPECT_TRUE(trova<QRadioButton>(opzioniSezione[i]).isChecked());
        EXPECT_TRUE(trova("Frame4").isVisible());
    }
}

TEST_F(FormaSezione, ShowsTheFrameOfTheOptionThatIsClicked) {
    apri();
    for (const int i : {3, 1, 2, 0}) {
        premi(opzioniSezione[i]);
        EXPECT_EQ(mostrato(), i);
        for (int j = 0; j < 4; ++j)
            EXPECT_EQ(trova<QRadioButton>(opzioniSezione[j]).isChecked(), i == j);
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

TEST_F(FormaSezione, TellsInItsStripWhatTheFieldMeans) {
    apri();
    EXPECT_TRUE(aiuto().startsWith("Il tipo di sezione"));
    for (std::size_t i = 0; i < masks::numeroCampiSezione; ++i) {
        const auto riquadro = static_cast<std::size_t>(masks::campiSezione[i].riquadro());
        if (riquadro < 4) premi(opzioniSezione[riquadro]);
        auto& campo = trova<QLineEdit>(campiForma[i].controllo);
        campo.setFocus();
        EXPECT_EQ(aiuto().toStdString(), base::unitaUnite(campiForma[i].aiuto));
        if (riquadro < 4) {
            auto* schizzo = trova(riquadriSezione[riquadro]).findChild<VistaSchizzo*>();
            EXPECT_EQ(schizzo->evidenziato(), i);
        }
    }
    premi("Option4");
    EXPECT_TRUE(aiuto().startsWith("Il tipo di sezione"));
    trova("Text25").setFocus();
    EXPECT_TRUE(aiuto().contains("un decimo del numero scritto"));
}

TEST_F(FormaSezione, HasANameAndAHelpPage) {
    apri();
    EXPECT_EQ(forma->property("contestoGuida").toInt(), 7);
    for (const auto& campo : campiForma)
        EXPECT_FALSE(trova(campo.controllo).accessibleName().isEmpty()) << campo.controllo;
    EXPECT_EQ(trova("Text2").accessibleName(), "Interasse ferri LATO VALLE");
    for (const char* riquadro : riquadriSezione)
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

}  // namespace
}  // namespace korven::shell
