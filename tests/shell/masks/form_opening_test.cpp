// The forms of the editing commands, with the masks and texts as they are delivered.

#include "shell/masks/form_opening.hpp"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include "commands/desktop_program.hpp"
#include "masks/column_keys.hpp"
#include "project/project_data.hpp"
#include "shell/masks/base1.hpp"
#include "shell/masks/base2_32.hpp"
#include "shell/qt_text.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/form_setup.hpp"
#include "support/progress_double.hpp"

namespace korven::shell {
namespace {

using project::Progetto;

void premi(const QWidget& forma, const char* pulsante) {
    QTest::mouseClick(&test::controllo<QPushButton>(forma, pulsante), Qt::LeftButton);
}

class FormeDelleMaschere : public ::testing::Test {
 protected:
    void SetUp() override {
        apriIn(1);
        project::azzera(Progetto);
        project::fileCorrente = "muro.kvd";
        project::modificato = false;
        collegaMaschere(forme, dialogo, nullptr);
    }
    void TearDown() override {
        project::azzera(Progetto);
        project::fileCorrente.clear();
        project::modificato = false;
        testi.reset();
        base::impostaCartellaProgramma("");
    }
    void apriIn(int lingua) {
        base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
        testi.reset();  // gone before the next: at its end it chooses Italian
        testi = std::make_unique<test::TestiConsegnati>(lingua);
        maschere.leggiMaschereProgramma();
    }
    // Calls an editing command and does something to its form.
    template <class Forma>
    void edita(std::string_view comando, std::function<void(Forma&)> azione) {
        conForma<Forma>([&](auto& p) { p.esegui(commands::voceMenu(comando)); }, azione);
    }
    // The same at a field.
    template <class Forma>
    void editaDa(std::string_view campo, std::function<void(Forma&)> azione) {
        const auto posto = masks::postoDelCampo(campo);
        ASSERT_TRUE(posto);
        conForma<Forma>([&](auto& p) { p.editaDa(*posto); }, azione);
    }
    template <class Forma>
    void conForma(const std::function<void(commands::Programma&)>& chiama,
                  std::function<void(Forma&)> azione) {
        const test::AllaProssimaFinestra<QDialog> finestra([&](QDialog& aperta) {
            auto* forma = dynamic_cast<Forma*>(&aperta);
            ASSERT_NE(forma, nullptr) << "a form of the other kind";
            azione(*forma);
        });
        commands::Programma programma(dialogo, nomi, principale, avanzamento, maschere, forme);
        chiama(programma);
        EXPECT_TRUE(finestra.fatto);
    }

    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    std::unique_ptr<test::TestiConsegnati> testi;
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    test::FinestraFinta principale;
    test::AvanzamentoFinto avanzamento;
    masks::Maschere maschere;
    commands::FormeProgramma forme;
};

TEST_F(FormeDelleMaschere, SayInTheStripWhatIsOddAboutAHeadingWhileItIsTyped) {
    Progetto.titoli[1] = "#12";
    edita<Base1>("EditTitoli", [](Base1& forma) {
        auto& striscia = test::controllo<QLabel>(forma, "Labelhelp");
        auto& prima = test::controllo<QLineEdit>(forma, "Text1_0");
        EXPECT_TRUE(striscia.text().startsWith("comincia con #: "))
            << striscia.text().toStdString();
        prima.selectAll();
        QTest::keyClicks(&prima, QString(29, QLatin1Char('m')));
        EXPECT_TRUE(striscia.text().startsWith(
            "nei disegni esce dal foglio: numero di caratteri che ci stanno (28)\n"))
            << striscia.text().toStdString();
        QTest::keyClick(&prima, Qt::Key_Backspace);
        EXPECT_FALSE(striscia.text().contains("foglio:")) << striscia.text().toStdString();
        premi(forma, "Command1_1");
    });
}

TEST_F(FormeDelleMaschere, BeginAtTheFieldThatIsAskedFor) {
    Progetto.titoli[1] = std::string(90, 'x');  // too long, and not to be told at once
    editaDa<Base1>("titoli[3]", [](Base1& forma) {
        EXPECT_EQ(forma.focusWidget()->objectName(), "Text1_2");
        premi(forma, "Command1_1");
    });
    editaDa<Base1>("metodoSpinte", [](Base1& forma) {
        EXPECT_EQ(forma.focusWidget()->objectName(), "Combo1_5");
        premi(forma, "Command1_1");
    });
    editaDa<Base1>("sovraccMonte", [](Base1& forma) {
        EXPECT_EQ(forma.focusWidget()->objectName(), "Text1_4");
        const auto& campo = test::controllo<QLineEdit>(forma, "Text1_4");
        EXPECT_EQ(campo.selectedText(), campo.text());
        premi(forma, "Command1_1");
    });
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(FormeDelleMaschere, BeginAtTheCellThatIsAskedForWithTheRowsAboveInSight) {
    Progetto.nStrati = 20;
    editaDa<Base2_32>("phiStrato[3]", [](Base2_32& forma) {
        const auto& griglia = test::controllo<QTableView>(forma, "MSFlexGrid1");
        EXPECT_EQ(griglia.currentIndex().row(), 2);
        EXPECT_EQ(griglia.currentIndex().column(), 3);
        EXPECT_EQ(griglia.rowAt(0), 0);
        QTest::keyClick(&test::controllo<QTableView>(forma, "MSFlexGrid1"), '9');
        EXPECT_EQ(forma.modello().testo({3, 4}), "9");
        premi(forma, "Command1_1");
    });
    editaDa<Base2_32>("ksStrato[20]", [](Base2_32& forma) {
        const auto& griglia = test::controllo<QTableView>(forma, "MSFlexGrid1");
        EXPECT_TRUE(
            griglia.viewport()->rect().contains(griglia.visualRect(griglia.currentIndex())));
        premi(forma, "Command1_1");
    });
}

TEST_F(FormeDelleMaschere, GiveANewProjectRealCodesAtTheFirstConfirmOfTheWall) {
    edita<Base1>("EditParatia", [](Base1& forma) {
        EXPECT_EQ(test::controllo<QComboBox>(forma, "Combo1_5").currentText(), "Coulomb");
        premi(forma, "Command1_0");
    });
    EXPECT_EQ(Progetto.metodoSpinte, 1);
    EXPECT_EQ(Progetto.vincoloTesta, 1);
    EXPECT_EQ(Progetto.gammaAcqua, 1);
    EXPECT_TRUE(project::modificato);
    project::modificato = false;
    edita<Base1>("EditParatia", [](Base1& forma) { premi(forma, "Command1_0"); });
    EXPECT_FALSE(project::modificato) << "nothing changed";
}

TEST_F(FormeDelleMaschere, TakeTheWallInTheUnitsOfTheUser) {
    edita<Base1>("EditParatia", [](Base1& forma) {
        const std::pair<const char*, const char*> valori[] = {
            {"Text1_0", "12.5"}, {"Text1_1", "1e3"}, {"Text1_4", "20"}, {"Text1_10", ""}};
        for (const auto& [nome, valore] : valori) {
            auto& casella = test::controllo<QLineEdit>(forma, nome);
            casella.setFocus();
            casella.clear();
            QTest::keyClicks(&casella, valore);
        }
        test::controllo<QComboBox>(forma, "Combo1_1").setCurrentIndex(2);
        premi(forma, "Command1_0");
    });
    EXPECT_EQ(Progetto.lunghezzaParatia, 12.5);
    EXPECT_EQ(Progetto.rigidezzaEJ, 100);
    EXPECT_EQ(Progetto.sovraccMonte, 2);
    EXPECT_EQ(Progetto.vincoloPiede, 3);
    EXPECT_EQ(Progetto.gammaAcqua, 0) << "an empty number";
}

TEST_F(FormeDelleMaschere, TakeHeadingsAndTheStageOfTheDiagrams) {
    edita<Base1>("EditTitoli", [](Base1& forma) {
        auto& titolo = test::controllo<QLineEdit>(forma, "Text1_1");
        QTest::keyClicks(&titolo, "Lotto ");
        QTest::sendKeyEvent(QTest::Click, &titolo, Qt::Key_Egrave, QString::fromUtf8("è"), {});
        auto& fase = test::controllo<QLineEdit>(forma, "Text1_6");
        fase.clear();
        QTest::keyClicks(&fase, "3");
        premi(forma, "Command1_0");
    });
    EXPECT_EQ(Progetto.titoli[2], "Lotto è");
    EXPECT_EQ(project::faseGrafico, 3);
    project::faseGrafico = 0;
}

TEST_F(FormeDelleMaschere, TakeATableTypedFromNothing) {
    edita<Base2_32>("EditFasi", [](Base2_32& forma) {
        auto* griglia = &test::controllo<QTableView>(forma, "MSFlexGrid1");
        for (const char* valore : {"3", "0", "10", "5"}) {
            QTest::keyClicks(griglia, valore);
            QTest::keyClick(griglia, Qt::Key_Return);
        }
        premi(forma, "Command1_0");
    });
    EXPECT_EQ(Progetto.nFasi, 1);
    EXPECT_EQ(Progetto.profFase[1], 3);
    EXPECT_EQ(Progetto.sovraccFase[1], 1);
    EXPECT_EQ(Progetto.faldaFase[1], 5);
    EXPECT_TRUE(project::modificato);
}

TEST_F(FormeDelleMaschere, LetALayerBeWithoutDescription) {
    edita<Base2_32>("EditStratigrafia", [](Base2_32& forma) {
        QTest::keyClicks(&test::controllo(forma, "MSFlexGrid1"), "30");
        premi(forma, "Command1_0");
    });
    EXPECT_EQ(Progetto.nStrati, 1);
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(FormeDelleMaschere, TakeBackNothingWhenTheyAreCancelled) {
    edita<Base1>("EditParatia", [](Base1& forma) { premi(forma, "Command1_1"); });
    edita<Base2_32>("EditTiranti", [](Base2_32& forma) {
        QTest::keyClicks(&test::controllo(forma, "MSFlexGrid1"), "30");
        premi(forma, "Command1_1");
    });
    EXPECT_EQ(Progetto.metodoSpinte, 0);
    EXPECT_EQ(Progetto.nTiranti, 0);
    EXPECT_FALSE(project::modificato);
}

TEST_F(FormeDelleMaschere, OpenTheHelpThatTheCommandsHave) {
    std::vector<int> aperti;
    forme.guida = [&](int contesto) { aperti.push_back(contesto); };
    collegaMaschere(forme, dialogo, nullptr);
    edita<Base1>("EditParatia", [](Base1& forma) {
        premi(forma, "Command1_2");
        EXPECT_EQ(forma.property("contestoGuida").toInt(), 6);
        forma.reject();
    });
    edita<Base2_32>("EditStratigrafia", [](Base2_32& forma) {
        premi(forma, "Command1_4");
        forma.reject();
    });
    EXPECT_EQ(aperti, (std::vector<int>{6, 5}));
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(FormeDelleMaschere, ShowTheReferenceWithoutAHelp) {
    edita<Base1>("EditParatia", [](Base1& forma) {
        premi(forma, "Command1_2");
        forma.reject();
    });
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(dialogo.messaggi[0].testo, "6 EDITDIA");
}

TEST_F(FormeDelleMaschere, TranslateALabelUpToItsUnit) {
    apriIn(3);
    edita<Base1>("EditParatia", [](Base1& forma) {
        const QString etichetta = test::controllo<QLabel>(forma, "Label1_7").text();
        EXPECT_TRUE(etichetta.startsWith("Longueur")) << etichetta.toStdString();
        EXPECT_TRUE(etichetta.contains(" [m] ..."));
        EXPECT_FALSE(etichetta.contains("  [m]"));
        forma.reject();
    });
}

// What the user of each language sees of the five forms has room.
TEST_F(FormeDelleMaschere, ClipNoCaptionInAnyLanguage) {
    for (int lingua = 1; lingua <= 6; ++lingua) {
        apriIn(lingua);
        for (const char* comando :
             {"EditTitoli", "EditParatia", "EditStratigrafia", "EditTiranti", "EditFasi"})
            edita<QDialog>(comando, [&](QDialog& forma) {
                for (const auto* etichetta : forma.findChildren<QLabel*>()) {
                    EXPECT_GE(etichetta->width(), etichetta->minimumSizeHint().width())
                        << lingua << etichetta->text().toStdString();
                }
                for (const auto* pulsante : forma.findChildren<QPushButton*>())
                    EXPECT_GE(pulsante->width(), pulsante->sizeHint().width())
                        << lingua << pulsante->text().toStdString();
                for (const auto* scelta : forma.findChildren<QComboBox*>())
                    EXPECT_GE(scelta->width(), scelta->sizeHint().width())
                        << lingua << scelta->currentText().toStdString();
                auto* striscia = forma.findChild<QLabel*>("Labelhelp");
                if (striscia == nullptr) striscia = forma.findChild<QLabel*>("Label1");
                ASSERT_NE(striscia, nullptr);
                for (const auto& campo : maschere.corrente().campi) {
                    striscia->setText(qt(masks::aiutoMostrato(campo.aiuto)));
                    EXPECT_GE(striscia->height(),
                              striscia->QLabel::heightForWidth(striscia->width()))
                        << lingua << campo.aiuto;
                }
                forma.reject();
            });
    }
}

}  // namespace
}  // namespace korven::shell
