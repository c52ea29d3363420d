#include "shell/main/menu1.hpp"

#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <set>

#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"
#include "support/main_form_bench.hpp"

namespace korven::shell {
namespace {

using project::fileCorrente;
using project::modificato;
using Menu1Test = test::BancoMenu1;

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
              "  &Sicurezza\n  &Allegato\n  Con&fronta con\n  Nor&me\n  St&udio\n  -\n  Nu&ovo\n  "
              "&Duplica\n  "
              "R&ecenti\n  -\n  Lin&gua\n  "
              "&Tasti\n"
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
