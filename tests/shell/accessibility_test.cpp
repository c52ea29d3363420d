// Every window of the program as those meet it who see nothing or use no mouse: each control that
// can take the focus has a name, and the tab key reaches each of them.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QButtonGroup>
#include <QMessageBox>
#include <QRadioButton>
#include <functional>
#include <set>

#include "help/pages.hpp"
#include "shell/dialogo_qt.hpp"
#include "shell/help/guida.hpp"
#include "shell/main/informazioni.hpp"
#include "shell/main/menu1.hpp"
#include "shell/main/selezling.hpp"
#include "shell/masks/grid_view.hpp"
#include "shell/pens/editacfg.hpp"
#include "shell/remarks/remarks_window.hpp"
#include "shell/report/conf_stampa.hpp"
#include "shell/report/form1.hpp"
#include "shell/rescue/rescue_form.hpp"
#include "shell/results/results_window.hpp"
#include "shell/run/temp_calc.hpp"
#include "shell/safety/safety_window.hpp"
#include "support/annex_ports.hpp"
#include "support/code_ports.hpp"
#include "support/comparison_ports.hpp"
#include "support/delivered_program.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/page_record.hpp"
#include "support/sample_offer.hpp"
#include "support/sample_remarks.hpp"
#include "support/small_help.hpp"
#include "support/study_ports.hpp"
#include "support/viewer_setup.hpp"

namespace korven::shell {
namespace {

using Controlli = std::set<QWidget*>;

std::string nomeDi(const QWidget* controllo) {
    return controllo == nullptr ? "nothing"
                                : std::string(controllo->metaObject()->className()) + " " +
                                      controllo->objectName().toStdString();
}

// A part of another control, which lends it the focus: the line of a combo box, the area of a list.
bool parteDiUnAltro(const QWidget& controllo) {
    return controllo.focusProxy() != nullptr ||
           qobject_cast<const QAbstractScrollArea*>(controllo.parentWidget()) != nullptr;
}

// Of buttons that exclude each other the tab key reaches the one that is chosen.
bool nonScelto(const QWidget& controllo) {
    const auto* bottone = qobject_cast<const QRadioButton*>(&controllo);
    return bottone != nullptr && !bottone->isChecked();
}

Controlli conFuoco(const QWidget& finestra, Qt::FocusPolicy politica) {
    Controlli trovati;
    for (auto* controllo : finestra.findChildren<QWidget*>())
        if (controllo->window() == &finestra && controllo->isVisible() && controllo->isEnabled() &&
            (controllo->focusPolicy() & politica) != 0 && !parteDiUnAltro(*controllo))
            trovati.insert(controllo);
    return trovati;
}

QString nomeAccessibile(QWidget& controllo) {
    auto* vista = QAccessible::queryAccessibleInterface(&controllo);
    return vista != nullptr ? vista->text(QAccessible::Name) : QString();
}

// The grid of a form keeps the tab key for its cells and lets go by Ctrl+Tab.
void premiTab(QWidget& controllo) {
    const bool tabella = dynamic_cast<VistaGriglia*>(&controllo) != nullptr;
    QTest::keyClick(&controllo, Qt::Key_Tab, tabella ? Qt::ControlModifier : Qt::NoModifier);
}

Controlli raggiunti(QWidget& finestra) {
    Controlli tutti;
    for (QWidget* dove = finestra.focusWidget(); dove != nullptr && tutti.insert(dove).second;
         dove = finestra.focusWidget())
        premiTab(*dove);
    return tutti;
}

void controlla(QWidget& finestra, bool senzaControlli = false) {
    SCOPED_TRACE(nomeDi(&finestra));
    finestra.show();
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    EXPECT_FALSE(finestra.windowTitle().isEmpty());
    const Controlli tutti = conFuoco(finestra, Qt::StrongFocus);
    EXPECT_EQ(tutti.empty(), senzaControlli);
    for (auto* controllo : tutti)
        EXPECT_FALSE(nomeAccessibile(*controllo).trimmed().isEmpty()) << nomeDi(controllo);
    const Controlli visitati = raggiunti(finestra);
    for (auto* controllo : conFuoco(finestra, Qt::TabFocus))
        EXPECT_TRUE(visitati.contains(controllo) || nonScelto(*controllo))
            << "not reached: " << nomeDi(controllo);
}

// The windows with the texts and data that are delivered, in German, where a missing name would not
// be hidden by an Italian key.
class Accessibilita : public ::testing::Test {
 protected:
    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    test::ProgrammaConsegnato programma{2};
    test::DialogoFinto dialogo;
};

TEST_F(Accessibilita, OfTheFormsThatAMaskDescribes) {
    programma.perOgniMaschera(dialogo, [](QWidget& forma) { controlla(forma); });
    programma.conPannelliVivi(dialogo, [](QWidget& forma) { controlla(forma); });
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(Accessibilita, OfThePanelOfTheLayersAndItsDialogs) {
    programma.conPannelloStrati(dialogo, {}, [](QWidget& forma) { controlla(forma); });
    test::ProgrammaConsegnato::perOgniDialogoStrati([](QWidget& finestra) { controlla(finestra); });
}

TEST_F(Accessibilita, OfThePanelOfTheSectionAndItsDialogs) {
    test::ProgrammaConsegnato::conPannelloSezione(dialogo, [](QWidget& f) { controlla(f); });
}

TEST_F(Accessibilita, OfTheSectionFormInEachOfItsTypes) {
    test::ProgrammaConsegnato::perOgniTipoDiSezione([](QWidget& forma) { controlla(forma); });
}

TEST_F(Accessibilita, OfTheFormsOfTheDevices) {
    DialoghiEditacfg porte;
    Editacfg penne(porte, dialogo, nullptr);
    controlla(penne);
    ConfStampa stampa({"Courier New", "Arial"}, {}, dialogo, nullptr);
    controlla(stampa);
}

TEST_F(Accessibilita, OfTheWindowsAroundTheProject) {
    Menu1 menu1;
    controlla(menu1,
              true);  // its menus have access keys, and the picture does what one of them does
    EXPECT_FALSE(nomeAccessibile(test::controllo(menu1, "Image1")).isEmpty());
    Selezling lingue({5, 3, 2, 1, 4, 6});
    controlla(lingue);
    Informazioni informazioni("File corrente: /MURO", nullptr);
    controlla(informazioni);
    FinestraOsservazioni osservazioni(menu1, test::azioniOsservazioni());
    osservazioni.mostra(test::osservazioniMiste(), "2 pericoli");
    controlla(osservazioni);
    VitaProgetto vita;
    FinestraRisultati risultati(menu1, vita, [](const std::string&) {});
    controlla(risultati);
    FinestraSicurezza sicurezza(menu1, vita, [](const std::string&) {});
    controlla(sicurezza);
    FinestraAllegato allegato(menu1, vita, test::porteAllegato(dialogo), [](const std::string&) {});
    controlla(allegato);
    FinestraConfronto confronto(menu1, vita, test::porteConfronto(dialogo),
                                [](const std::string&) {});
    controlla(confronto);
    FinestraNorme norme(menu1, vita, test::porteNorme(dialogo), [](const std::string&) {});
    controlla(norme);
    FinestraStudio studio(menu1, vita, test::porteStudio(dialogo), [](const std::string&) {});
    controlla(studio);
    const test::OffertaDiProva prova;
    const auto offerta = prova.offerta();
    FormaRecupero recupero(offerta, nullptr);
    controlla(recupero);
    TempCalc corsa(nullptr);
    controlla(corsa);
    FinestraGuida guida(help::leggiGuida("m.hlp", test::guidaPiccola()));
    controlla(guida);
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "muro.TAB", test::markup({"#RESET", "testo", "#ENDDOCUMENT"}));
    Form1 anteprima;
    anteprima.mostra(cartella / "muro.TAB");
    controlla(anteprima);
}

TEST_F(Accessibilita, OfTheBoxes) {
    DialogoQt box;
    const test::AllaProssimaFinestra<QMessageBox> domanda([](QMessageBox& b) {
        controlla(b);
        b.reject();
    });
    static_cast<void>(
        box.domanda("Testo?", "ACHTUNG!", base::Pulsanti::siNoAnnulla, base::Icona::domanda));
    EXPECT_TRUE(domanda.fatto);
}

class AccessibilitaVisore : public test::ProvaVisore {};

TEST_F(AccessibilitaVisore, OfTheViewerOfDrawings) {
    disegna();
    controlla(forma());
}

}  // namespace
}  // namespace korven::shell
