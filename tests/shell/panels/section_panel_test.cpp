#include "shell/panels/section_panel.hpp"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <filesystem>

#include "profiles/catalogue.hpp"
#include "shell/live/live_view.hpp"
#include "shell/panels/domain_view.hpp"
#include "shell/panels/profile_chooser.hpp"
#include "shell/panels/profile_entry.hpp"
#include "support/delivered_program.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/sample_sections.hpp"
#include "support/user_folder.hpp"

namespace korven::shell {
namespace {

using project::Parte;
using project::Sezione;
using test::controllo;

// The form of the section of the small wall with its panel, as the program opens it.
class PannelloSezioneTest : public ::testing::Test {
 protected:
    PannelloSezioneTest() {
        project::Progetto = test::progettoSemplice();
        project::Progetto.sezione = structure::diaframmaSimmetrico();
        project::Progetto.rigidezzaEJ = 0;
        project::fileCorrente = "/muro.kvd";
        vita.guarda();
    }
    ~PannelloSezioneTest() override {
        project::Progetto = {};
        project::fileCorrente.clear();
    }
    void apri() {
        forma = std::make_unique<DefinEJ>(project::Progetto.sezione, modificato, nullptr);
        forma->affianca(pannelloSezione(vita, dialogo)(*forma));
        QObject::connect(forma.get(), &DefinEJ::digitata, &vita,
                         [this] { vita.digita(forma->letta()); });
        forma->show();
        forma->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(forma.get()));
    }
    template <class C = QWidget>
    C& trova(const char* nome) {
        return controllo<C>(*forma, nome);
    }
    void scrivi(const char* nome, const char* testo) {
        trova<QLineEdit>(nome).setFocus();
        trova<QLineEdit>(nome).selectAll();
        QTest::keyClicks(&trova(nome), testo);
    }
    QString cella(int riga, int colonna) {
        return trova<QTableView>("verifiche").model()->index(riga, colonna).data().toString();
    }

    test::ProgrammaConsegnato programma{1};
    test::CartellaUtente utente;
    test::DialogoFinto dialogo;
    VitaProgetto vita;
    bool modificato = false;
    std::unique_ptr<DefinEJ> forma;
};

TEST_F(PannelloSezioneTest, FollowsEachKeyWithStiffnessAndChecks) {
    apri();
    const QString prima = trova<QLabel>("valori").text(), MRd = cella(0, 4);
    EXPECT_TRUE(prima.startsWith("EJ della sezione: "));
    EXPECT_TRUE(cella(0, 1).endsWith("verificata")) << "in sight in a narrow panel";
    scrivi("Text7", "900");
    EXPECT_NE(trova<QLabel>("valori").text(), prima);
    EXPECT_GT(cella(0, 4).toDouble(), MRd.toDouble());
    scrivi("Text7", "0");
    EXPECT_TRUE(trova<QLabel>("valori").text().endsWith("Mancano: spessore del diaframma."));
    EXPECT_EQ(trova<QTableView>("verifiche").model()->rowCount(), 0);
    EXPECT_TRUE(trova<VistaDominio>("dominio").dominio().empty());
}

TEST_F(PannelloSezioneTest, HandsCtrlZToTheForm) {
    apri();
    const QString prima = trova<QLineEdit>("Text7").text();
    int provati = 0;
    for (auto* pezzo : trova("PannelloSezione").findChildren<QWidget*>()) {
        if (!pezzo->isVisible() || !pezzo->isEnabled() || pezzo->focusPolicy() == Qt::NoFocus)
            continue;
        scrivi("Text7", "33");
        pezzo->setFocus();
        QTest::keyClick(pezzo, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(trova<QLineEdit>("Text7").text(), prima) << pezzo->objectName().toStdString();
        ++provati;
    }
    EXPECT_GT(provati, 2);
}

TEST_F(PannelloSezioneTest, ShowsTheDomainOnceTypingRests) {
    apri();
    scrivi("Text7", "900");
    const auto& dominio = trova<VistaDominio>("dominio");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dominio.dominio().empty(); }));
    EXPECT_FALSE(dominio.accessibleDescription().isEmpty());
    EXPECT_EQ(trova<QTableView>("fasi").model()->rowCount(), 2);
    Sezione scritta = project::Progetto.sezione;
    scritta.spessoreDiaframma = 90;
    EXPECT_EQ(dominio.dominio().back().Nd, structure::dominioNM(scritta).back().Nd);
}

TEST_F(PannelloSezioneTest, GreysWhatWaitsForTheReportAndSaysSoInItsPlace) {
    apri();
    const auto grigie = [this] {
        const auto* modello = trova<QTableView>("verifiche").model();
        return modello->index(0, 3).data(Qt::ForegroundRole).isValid();
    };
    const auto& origine = trova<QLabel>("origine");
    ASSERT_TRUE(QTest::qWaitFor([&] { return vita.vivo().lenti() != nullptr; }, 30000));
    EXPECT_FALSE(grigie());
    EXPECT_EQ(origine.text(), "Azioni della relazione.");
    const QRect posto = origine.geometry();
    scrivi("Text7", "900");
    EXPECT_TRUE(grigie());
    EXPECT_EQ(origine.text(), "Calcolo in corso...");
    EXPECT_EQ(origine.toolTip(), "Azioni della soluzione di equilibrio.");
    QTest::qWait(1);
    EXPECT_EQ(origine.geometry(), posto);
    ASSERT_TRUE(QTest::qWaitFor([&] { return vita.vivo().lenti() != nullptr; }, 30000));
    EXPECT_FALSE(grigie());
    EXPECT_EQ(origine.text(), "Azioni della relazione.");
    EXPECT_EQ(origine.geometry(), posto);
}

TEST_F(PannelloSezioneTest, ComesAfterTheButtonsOfTheForm) {
    apri();
    trova("Command2").setFocus();
    QStringList giro;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(forma->focusWidget(), Qt::Key_Tab);
        giro << forma->focusWidget()->objectName();
        if (giro.back() == "Option1") break;
    }
    EXPECT_EQ(giro.front(), "verifiche");
    EXPECT_TRUE(giro.contains("catalogo"));
    EXPECT_TRUE(giro.contains("aggiungi"));
    EXPECT_EQ(giro.back(), "Option1");
}

// Runs what its user does in a dialog that a button opens.
template <class Dialogo, class Fa>
bool nelDialogo(QWidget& pulsante, Fa fa) {
    const test::AllaProssimaFinestra<Dialogo> vista([&](Dialogo& d) { fa(d); });
    QTest::mouseClick(&pulsante, Qt::LeftButton);
    return vista.fatto;
}

TEST_F(PannelloSezioneTest, TakesABarForTheDiameterWithTheCursorAsOneStep) {
    apri();
    trova("Text4").setFocus();
    EXPECT_TRUE(nelDialogo<ScegliProfilo>(trova("catalogo"), [](ScegliProfilo& d) {
        EXPECT_EQ(controllo<QComboBox>(d, "riempie").currentText(),
                  "diametro delle armature a valle");
        QTest::keyClicks(&controllo(d, "cerca"), "32");
        EXPECT_EQ(controllo<QTableWidget>(d, "profili").rowCount(), 1);
        EXPECT_FALSE(controllo(d, "elimina").isEnabled());
        QTest::mouseClick(&controllo(d, "prendi"), Qt::LeftButton);
    }));
    EXPECT_EQ(trova<QLineEdit>("Text4").text(), "32");
    EXPECT_EQ(forma->letta().diametroValle, 3.2);
    EXPECT_EQ(forma->focusWidget()->objectName(), "Text4");
    QTest::keyClick(forma->focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(trova<QLineEdit>("Text4").text(), "24");
    EXPECT_EQ(forma->letta(), project::Progetto.sezione);
}

TEST_F(PannelloSezioneTest, TakesBothDiametersOfATubeBackAtOnce) {
    project::Progetto.sezione = structure::paliTubolari();
    vita.guarda();
    apri();
    for (const auto tasto : {Qt::Key_Return, Qt::Key_Enter}) {
        EXPECT_TRUE(nelDialogo<ScegliProfilo>(trova("catalogo"), [tasto](ScegliProfilo& d) {
            QTest::keyClicks(&controllo(d, "cerca"), "508 12.5");
            ASSERT_EQ(controllo<QTableWidget>(d, "profili").rowCount(), 1);
            QTest::keyClick(&controllo(d, "cerca"), Qt::Key_Down);
            EXPECT_EQ(d.focusWidget()->objectName(), "profili");
            QTest::keyClick(d.focusWidget(), tasto);
        }));
        EXPECT_EQ(trova<QLineEdit>("Text11").text(), "508");
        EXPECT_EQ(trova<QLineEdit>("Text12").text(), "483");
        QTest::keyClick(forma->focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(forma->letta(), project::Progetto.sezione);
    }
    QTest::keyClick(forma->focusWidget(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(forma->letta().paliDiamInt, 48.3);
}

TEST_F(PannelloSezioneTest, LeavesTheFormAloneWhenTheChooserIsLeft) {
    apri();
    EXPECT_TRUE(nelDialogo<ScegliProfilo>(trova("catalogo"), [](ScegliProfilo& d) {
        QTest::keyClick(&controllo(d, "cerca"), Qt::Key_Escape);
    }));
    EXPECT_EQ(forma->letta(), project::Progetto.sezione);
}

TEST_F(PannelloSezioneTest, KeepsWhatIsTypedAndGivesItBackAndDeletesIt) {
    project::Progetto.sezione = structure::palancola();
    vita.guarda();
    apri();
    EXPECT_TRUE(nelDialogo<NuovoProfilo>(trova("aggiungi"), [](NuovoProfilo& d) {
        EXPECT_TRUE(controllo<QLabel>(d, "misure").text().startsWith("b = 200"));
        QTest::keyClicks(&controllo(d, "nome"), "la mia");
        QTest::mouseClick(&controllo(d, "conferma"), Qt::LeftButton);
        EXPECT_TRUE(d.isVisible());
        EXPECT_EQ(controllo<QLabel>(d, "perche").text(), "manca la fonte");
        EXPECT_EQ(d.focusWidget()->objectName(), "fonte");
        QTest::keyClicks(&controllo(d, "fonte"), "tavola 3");
        QTest::mouseClick(&controllo(d, "conferma"), Qt::LeftButton);
        EXPECT_FALSE(d.isVisible());
    }));
    ASSERT_TRUE(std::filesystem::exists(profiles::fileProfiliUtente()));
    scrivi("Text16", "999");
    const auto scegli = [this](const char* nome) {
        return nelDialogo<ScegliProfilo>(trova("catalogo"), [=, this](ScegliProfilo& d) {
            EXPECT_EQ(controllo<QTableWidget>(d, "profili").rowCount(), 1);
            dialogo.risposte.push_back(base::Risposta::si);
            QTest::mouseClick(&controllo(d, nome), Qt::LeftButton);
            if (d.isVisible()) {
                EXPECT_EQ(controllo<QTableWidget>(d, "profili").rowCount(), 0);
                EXPECT_FALSE(controllo(d, "prendi").isEnabled());
                d.reject();
            }
        });
    };
    EXPECT_TRUE(scegli("prendi"));
    EXPECT_EQ(forma->letta(), project::Progetto.sezione);
    EXPECT_TRUE(scegli("elimina"));
    EXPECT_EQ(profiles::leggiCatalogo().profili.size(), 170U);
}

TEST_F(PannelloSezioneTest, HasNothingToKeepOfAnEmptySection) {
    project::Progetto.sezione = {};
    vita.guarda();
    apri();
    QTest::mouseClick(&trova("aggiungi"), Qt::LeftButton);
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
}

// The cursor is on the choice of types, and the catalogue has no section of this one.
TEST_F(PannelloSezioneTest, BeginsWithTheBarsWhereThereAreNoSections) {
    apri();
    EXPECT_TRUE(nelDialogo<ScegliProfilo>(trova("catalogo"), [](ScegliProfilo& d) {
        EXPECT_EQ(controllo<QComboBox>(d, "riempie").currentText(),
                  "diametro delle armature a monte");
        EXPECT_EQ(controllo<QTableWidget>(d, "profili").rowCount(), 11);
        EXPECT_FALSE(controllo(d, "nota").isVisible());
        controllo<QComboBox>(d, "riempie").setCurrentIndex(0);
        EXPECT_EQ(controllo<QTableWidget>(d, "profili").rowCount(), 0);
        EXPECT_TRUE(controllo<QLabel>(d, "nota").text().startsWith("Nessun profilo."));
        EXPECT_FALSE(controllo(d, "prendi").isEnabled());
        d.reject();
    }));
}

TEST_F(PannelloSezioneTest, TellsTheRowsThatAreNone) {
    std::filesystem::create_directories(utente.percorso());
    test::metti(profiles::fileProfiliUtente(), "non è una riga\n");
    apri();
    EXPECT_TRUE(nelDialogo<ScegliProfilo>(trova("catalogo"), [](ScegliProfilo& d) {
        EXPECT_TRUE(controllo<QLabel>(d, "nota").text().startsWith(
            "Righe non lette: 1. profili_utente.txt, riga 1: "));
        d.reject();
    }));
}

}  // namespace
}  // namespace korven::shell
