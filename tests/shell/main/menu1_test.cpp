#include "shell/main/menu1.hpp"

#include <gtest/gtest.h>

#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <set>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "project/project_file.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/form_setup.hpp"
#include "support/plain_masks.hpp"
#include "support/progress_double.hpp"
#include "support/sample_projects.hpp"

namespace korven::shell {
namespace {

using base::Risposta;
using project::fileCorrente;
using project::modificato;

class Menu1Test : public ::testing::Test {
 protected:
    Menu1Test() {
        forme.informazioni = [this](const std::string& riga) { informazioni.push_back(riga); };
        forme.guida = [this](int contesto) { aiuti.push_back(contesto); };
        forme.sommario = [] {};
        tutteLeMaschere.leggiMaschere(test::maschereSemplici(ambiente.lavori));
        forme.maschera = [this](masks::Maschere& m) {
            maschere.push_back(m.corrente().titolo);
            m.conferma(m.valoriCombo(), m.valoriTesto());
        };
    }
    void apri() {
        programma = std::make_unique<commands::Programma>(dialogo, nomi, finestra, avanzamento,
                                                          tutteLeMaschere, forme);
        finestra.collega(*programma);
        finestra.show();
    }
    QAction* voce(const char* nome) {
        for (auto* azione : finestra.findChildren<QAction*>(nome)) return azione;
        return nullptr;
    }
    QString stato() { return finestra.findChild<QLabel*>("stato")->text(); }
    std::string scriviMuro(const char* nome = "muro.kvd") {
        const std::string file = ambiente.lavori / nome;
        test::metti(file, base::inCp1252(project::testoProgetto(test::progettoSemplice())));
        return file;
    }
    void lascia(const std::string& file) {
        QMimeData dati;
        dati.setUrls({QUrl::fromLocalFile(QString::fromStdString(file))});
        QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
        entra.setAccepted(false);
        QCoreApplication::sendEvent(&finestra, &entra);
        accettato = entra.isAccepted();
        if (!accettato) return;
        QDropEvent cade(QPointF(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&finestra, &cade);
        QTest::qWait(20);
    }

    test::AmbienteDocumento ambiente;
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    test::AvanzamentoFinto avanzamento;
    commands::FormeProgramma forme;
    std::unique_ptr<commands::Programma> programma;
    Menu1 finestra;
    std::vector<std::string> informazioni;
    std::vector<int> aiuti;
    std::vector<std::string> maschere;
    masks::Maschere tutteLeMaschere;
    bool accettato = false;
};

// Captions of a menu and all below it, a line each, two blanks a level; "-" for a parting line.
void elenca(const QList<QAction*>& azioni, int livello, QString& testo) {
    for (const auto* azione : azioni) {
        testo += QString(2 * livello, ' ') + (azione->isSeparator() ? "-" : azione->text()) + "\n";
        if (azione->menu() != nullptr) elenca(azione->menu()->actions(), livello + 1, testo);
    }
}

TEST_F(Menu1Test, HasItsMenuInItalian) {
    apri();
    QString menu;
    elenca(finestra.menuBar()->actions(), 0, menu);
    EXPECT_EQ(menu,
              "&Archivi\n  &Apri\n  &Salva\n  &Configura Stampante\n  &Help\n"
              "&Edizione\n  &Stratigrafia\n  &Parametri Diaframma\n  &Descrizione Struttura\n"
              "  &Caratteristiche Tiranti\n  &Fasi di Scavo\n  &Titoli\n  &Help\n"
              "&Stampa\n  &Grafica\n    &Momenti\n    &Spostamenti\n    &Taglio\n    &Pressioni\n"
              "    &Elemento Strutturale\n    &Descrizione stratigrafica\n"
              "  &Tabulati\n    Visualizza &Anteprima Tabulati\n    Stampa &Rapida Tabulati\n"
              "    &Esporta Tabulati in Formato DOC\n    Esporta Tabulati in Formato &TXT\n"
              "  &Configura\n  &Help\n"
              "St&rumenti\n  An&nulla\n  &Ripeti\n  -\n  &Controlli\n  R&isultati\n"
              "  &Sicurezza\n  -\n  Nu&ovo\n  &Duplica\n  R&ecenti\n  -\n  Lin&gua\n  &Tasti\n"
              "&Uscita\n&Help\n  &Sommario\n  &Info\n");
}

TEST_F(Menu1Test, HasItsMenuInGerman) {
    const test::TestiConsegnati tedesco(2);
    apri();
    QString menu;
    elenca(finestra.menuBar()->actions(), 0, menu);
    EXPECT_TRUE(
        menu.startsWith("&Datei\n  Ö&ffnen\n  &Speichern\n  &Drucker einrichten\n  &Hilfe\n"
                        "&Bearbeiten\n"))
        << menu.toStdString();
    for (const char* italiano : {"Archivi", "Edizione", "Stampa", "Uscita", "Tiranti", "Momenti"})
        EXPECT_FALSE(menu.contains(italiano)) << italiano;
}

void controllaTasti(const QList<QAction*>& azioni, int lingua) {
    std::set<QChar> tasti;
    for (const auto* azione : azioni) {
        if (azione->isSeparator()) continue;
        const auto segno = azione->text().indexOf('&');
        ASSERT_GE(segno, 0) << azione->text().toStdString();
        EXPECT_TRUE(tasti.insert(azione->text().at(segno + 1).toUpper()).second)
            << "language " << lingua << ": " << azione->text().toStdString();
        if (azione->menu() != nullptr) controllaTasti(azione->menu()->actions(), lingua);
    }
}

TEST_F(Menu1Test, HasAnAccessKeyOfItsOwnForEachItemOfAMenuInEveryLanguage) {
    for (int lingua = 1; lingua <= 6; ++lingua) {
        const test::TestiConsegnati testi(lingua);
        apri();
        controllaTasti(finestra.menuBar()->actions(), lingua);
    }
}

TEST_F(Menu1Test, OpensWholeOnASmallScreen) {
    const QSize schermo = finestra.screen()->availableSize();
    ASSERT_LT(schermo.width(), 900) << "the screen of the tests is no small one";
    const test::UtenteNuovo nuovo;  // as if no form had been closed before
    const Menu1 nuova;
    EXPECT_LT(nuova.width(), schermo.width());
    EXPECT_LT(nuova.height(), schermo.height());
}

TEST_F(Menu1Test, LetsNobodyChooseACommandWhoseFormIsMissing) {
    apri();
    EXPECT_TRUE(voce("EditFasi")->isEnabled());
    EXPECT_TRUE(voce("FileApri")->isEnabled());
    EXPECT_FALSE(voce("StampaVideo")->isEnabled());
    finestra.esegui(commands::voceMenu("StampaVideo"));
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(Menu1Test, ShowsTheKeysOfAnItemBesideIt) {
    apri();
    for (const auto& riga : commands::albero())
        EXPECT_EQ(voce(std::string(riga.nome).c_str())->shortcut().toString().toStdString(),
                  riga.tasti)
            << riga.nome;
}

// While the menu is closed the keys ask for themselves, each time anew.
TEST_F(Menu1Test, TakesFormsBackByKeysAndSaysInItsMenuWhich) {
    forme.maschera = [](masks::Maschere& m) { m.conferma({}, {"Altro muro"}); };
    apri();
    fileCorrente = ambiente.lavori / "muro.kvd";
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    auto* menu = voce("strumenti")->menu();
    const auto mostrate = [&] {
        menu->popup(QPoint(10, 10));
        QStringList testi;
        for (const char* nome : {"annulla", "ripeti"})
            testi += (voce(nome)->isEnabled() ? "" : "off ") + voce(nome)->text();
        menu->close();
        return testi.join(", ").toStdString();
    };
    QTest::keyClick(&finestra, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(mostrate(), "off An&nulla, off &Ripeti");
    finestra.esegui(commands::voceMenu("EditTitoli"));
    EXPECT_EQ(mostrate(), "An&nulla: Titoli, off &Ripeti");
    QTest::keyClick(&finestra, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(project::Progetto.titoli[1], "");
    EXPECT_EQ(test::controllo<QLabel>(finestra, "stato").text(), "Annullato: Titoli");
    EXPECT_EQ(mostrate(), "off An&nulla, &Ripeti: Titoli");
    QTest::keyClick(&finestra, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(project::Progetto.titoli[1], "Altro muro");
    QTest::keyClick(&finestra, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&finestra, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(project::Progetto.titoli[1], "Altro muro");
}

TEST_F(Menu1Test, LeavesTheKeysOfItsHistoryToTheFormThatIsOpen) {
    forme.maschera = [](masks::Maschere& m) { m.conferma({}, {"Altro muro"}); };
    forme.sezione = [&] {
        test::AllaProssimaFinestra<QDialog> utente([](QDialog& aperta) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&aperta));
            QTest::keyClick(&aperta, Qt::Key_Z, Qt::ControlModifier);
            aperta.close();
        });
        QDialog(&finestra).exec();
        EXPECT_TRUE(utente.fatto);
    };
    apri();
    fileCorrente = ambiente.lavori / "muro.kvd";
    finestra.esegui(commands::voceMenu("EditTitoli"));
    finestra.esegui(commands::voceMenu("EditRigidezza"));
    EXPECT_EQ(project::Progetto.titoli[1], "Altro muro");
}

TEST_F(Menu1Test, DuplicatesNoProjectWhereNoneIsOpen) {
    apri();
    finestra.esegui(commands::voceMenu("duplica"));
    EXPECT_TRUE(nomi.proposteNuovo.empty());
    fileCorrente = ambiente.lavori / "muro.kvd";
    nomi.nuovi = {ambiente.lavori / "altro"};
    finestra.esegui(commands::voceMenu("duplica"));
    EXPECT_EQ(finestra.windowTitle(), "KORVEN 32 - altro");
    EXPECT_TRUE(finestra.findChild<QLabel*>("modifiche")->isVisible());
}

TEST_F(Menu1Test, OpensARecentProjectFromTheMenuThatListsThem) {
    apri();
    const std::string muro = scriviMuro(), altro = scriviMuro("altro.kvd");
    auto* menu = voce("recenti")->menu();
    const auto mostrate = [&] {
        menu->popup(QPoint(10, 10));
        menu->close();
        QStringList testi;
        for (const auto* azione : menu->actions())
            testi += (azione->isEnabled() ? "" : "off ") + azione->text().section(" - ", 0, 0);
        return testi.join(", ");
    };
    EXPECT_EQ(mostrate(), "off nessun progetto recente");
    programma->documento().apri(muro);
    programma->documento().apri(altro);
    EXPECT_EQ(mostrate(), "&1 altro.kvd, &2 muro.kvd, , &Dimentica l'elenco");
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::no};
    menu->actions()[1]->trigger();
    EXPECT_EQ(fileCorrente, altro);
    menu->actions()[1]->trigger();
    EXPECT_EQ(fileCorrente, muro);
    EXPECT_FALSE(finestra.findChild<QLabel*>("modifiche")->isVisible());
    EXPECT_EQ(mostrate(), "&1 muro.kvd, &2 altro.kvd, , &Dimentica l'elenco");
    EXPECT_TRUE(menu->actions()[2]->isSeparator());
    menu->actions()[3]->trigger();
    EXPECT_EQ(mostrate(), "off nessun progetto recente");
}

TEST_F(Menu1Test, ShowsTheGuardOfEachEditorWithoutAProject) {
    apri();
    for (const char* nome :
         {"EditStratigrafia", "EditParatia", "EditTiranti", "EditFasi", "EditTitoli"})
        voce(nome)->trigger();
    EXPECT_EQ(dialogo.messaggi.size(), 5u);
    EXPECT_EQ(dialogo.messaggi[1].testo,
              "Non e' possibile editare dati prima di aver aperto un file.");
    EXPECT_TRUE(maschere.empty());
}

TEST_F(Menu1Test, BeginsEditsAndSavesAProjectFromTheKeyboard) {
    apri();
    QTest::qWait(10);
    nomi.aperti = {ambiente.lavori / "muro"};
    QTest::keyClick(&finestra, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(finestra.windowTitle(), "KORVEN 32 - muro");
    EXPECT_EQ(stato(),
              "Nuovo progetto, non ancora salvato: " + QString::fromStdString(fileCorrente) +
                  " (un'altra cartella si sceglie con Salva)");
    voce("EditFasi")->trigger();
    EXPECT_EQ(maschere, std::vector<std::string>{"F"});
    EXPECT_TRUE(modificato);
    EXPECT_TRUE(finestra.findChild<QLabel*>("modifiche")->isVisible());
    nomi.salvati = {fileCorrente};
    QTest::keyClick(&finestra, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(std::filesystem::exists(ambiente.lavori / "muro.kvd"));
    EXPECT_TRUE(stato().startsWith("File scritto: "));
    EXPECT_FALSE(modificato);
    EXPECT_FALSE(finestra.findChild<QLabel*>("modifiche")->isVisible());
}

TEST_F(Menu1Test, ShowsTheAboutBoxAtAClickOnItsPicture) {
    apri();
    auto* immagine = finestra.findChild<QWidget*>("Image1");
    QTest::mouseClick(immagine, Qt::LeftButton);
    fileCorrente = "/lavori/muro.kvd";
    voce("about")->trigger();
    EXPECT_EQ(informazioni, (std::vector<std::string>{"", "File corrente: /LAVORI/MURO"}));
}

TEST_F(Menu1Test, OpensADroppedProjectAfterTheQuestionAboutUnsavedWork) {
    apri();
    const std::string muro = scriviMuro();
    lascia(muro);
    EXPECT_EQ(fileCorrente, muro);
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::no};
    const std::string altro = scriviMuro("altro.KVD");
    lascia(altro);
    EXPECT_EQ(fileCorrente, muro);
    lascia(altro);
    EXPECT_EQ(fileCorrente, ambiente.lavori / "altro.kvd");
    EXPECT_EQ(dialogo.domande.size(), 2u);
}

TEST_F(Menu1Test, TakesNothingElseThatIsDropped) {
    apri();
    test::metti(ambiente.lavori / "nota.txt", "x");
    lascia(ambiente.lavori / "nota.txt");
    EXPECT_FALSE(accettato);
    lascia(ambiente.lavori / "manca.kvd");
    EXPECT_FALSE(accettato);
    EXPECT_TRUE(fileCorrente.empty());
}

TEST_F(Menu1Test, TakesNoDropWhileADrawingIsShown) {
    apri();
    const std::string muro = scriviMuro();
    finestra.setEnabled(false);  // as the viewer does
    lascia(muro);
    EXPECT_FALSE(accettato);
    finestra.setEnabled(true);
    lascia(muro);
    EXPECT_TRUE(accettato);
    EXPECT_EQ(fileCorrente, muro);
}

// What the rescue at the end of the program finds: the project that was open, and unsaved.
TEST_F(Menu1Test, KeepsTheUnsavedProjectWhenADroppedFileIsNone) {
    apri();
    const std::string muro = scriviMuro();
    lascia(muro);
    modificato = true;
    dialogo.risposte = {Risposta::no};
    const std::string rotto = ambiente.lavori / "rotto.kvd";
    test::metti(rotto, "due\r\n");
    EXPECT_THROW(programma->documento().apri(rotto), base::ErroreFile);
    EXPECT_EQ(fileCorrente, muro);
    EXPECT_TRUE(modificato);
    EXPECT_EQ(project::Progetto, test::progettoSemplice());
}

TEST_F(Menu1Test, StaysOpenOnCancelFromTheExitAndFromItsCloseBox) {
    apri();
    fileCorrente = ambiente.lavori / "muro.kvd";
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::annulla, Risposta::no};
    voce("fine")->trigger();
    EXPECT_TRUE(finestra.isVisible());
    EXPECT_FALSE(finestra.close());
    EXPECT_TRUE(finestra.isVisible());
    EXPECT_TRUE(finestra.close());
    EXPECT_FALSE(finestra.isVisible());
    EXPECT_EQ(dialogo.domande.size(), 3u);
}

TEST_F(Menu1Test, AsksOnceWhenTheExitClosesTheForm) {
    apri();
    fileCorrente = ambiente.lavori / "muro.kvd";
    modificato = true;
    dialogo.risposte = {Risposta::no};
    voce("fine")->trigger();
    EXPECT_FALSE(finestra.isVisible());
    EXPECT_EQ(dialogo.domande.size(), 1u);
}

TEST_F(Menu1Test, ClosesWithoutASecondQuestionWhenTheSessionEnds) {
    apri();
    fileCorrente = ambiente.lavori / "muro.kvd";
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::no};
    EXPECT_FALSE(finestra.sessioneFinisce(true));
    EXPECT_TRUE(finestra.sessioneFinisce(true));
    EXPECT_TRUE(finestra.close());
    EXPECT_EQ(dialogo.domande.size(), 2u);
}

TEST_F(Menu1Test, AsksAgainWhenTheSessionGoesOnAndTheProjectWithIt) {
    apri();
    fileCorrente = ambiente.lavori / "muro.kvd";
    modificato = true;
    dialogo.risposte = {Risposta::no, Risposta::annulla, Risposta::no, Risposta::annulla};
    EXPECT_TRUE(finestra.sessioneFinisce(true));
    voce("EditFasi")->trigger();  // another program has called the end off
    EXPECT_FALSE(finestra.close());
    EXPECT_TRUE(finestra.sessioneFinisce(true));
    EXPECT_TRUE(finestra.sessioneFinisce(false));  // nobody to ask: rescued, and not answered
    EXPECT_FALSE(finestra.close());
    EXPECT_EQ(dialogo.domande.size(), 4u);
}

TEST_F(Menu1Test, OpensItsFirstMenuAtF10AndGoesOnFromThere) {
    apri();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    QTest::keyClick(&finestra, Qt::Key_F10);
    ASSERT_EQ(QApplication::activePopupWidget(), voce("archivi")->menu());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Right);
    ASSERT_EQ(QApplication::activePopupWidget(), voce("edizione")->menu());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);  // its first item
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo,
              "Non e' possibile editare i dati prima di aver aperto un file.");
}

TEST_F(Menu1Test, ShowsTheHelpOfTheHighlightedItemAtF1) {
    apri();
    auto* menu = voce("archivi")->menu();
    menu->popup(QPoint(10, 10));
    menu->setActiveAction(voce("FileSalva"));
    QTest::keyClick(menu, Qt::Key_F1);
    EXPECT_EQ(aiuti, std::vector<int>{4});
    EXPECT_FALSE(menu->isVisible());
}

}  // namespace
}  // namespace korven::shell
