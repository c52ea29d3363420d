// The main form, its commands and the remarks that follow them.

#include "shell/remarks/live_remarks.hpp"

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QToolButton>

#include "base/code_page.hpp"
#include "masks/editing.hpp"
#include "project/project_file.hpp"
#include "shell/live/live_view.hpp"
#include "shell/main/menu1.hpp"
#include "shell/remarks/remarks_window.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/form_setup.hpp"
#include "support/plain_masks.hpp"
#include "support/progress_double.hpp"
#include "support/sample_projects.hpp"

namespace korven::shell {
namespace {

class OsservazioniViveTest : public ::testing::Test {
 protected:
    OsservazioniViveTest() {
        maschere.leggiMaschere(test::maschereSemplici(ambiente.lavori));
        forme.maschera = [this](masks::Maschere& m) {
            aperte.emplace_back(m.corrente().titolo, m.inizio());
            if (modifica) modifica();
            m.rilasciaForm();
            m.selezionaMaschera(1);
        };
        forme.paginaGuida = [](const std::string&) {};
        collegaOsservazioni(forme, finestra, vita);
        finestra.collega(programma());
        finestra.show();
    }
    commands::Programma& programma() {
        if (!programma_)
            programma_ = std::make_unique<commands::Programma>(dialogo, nomi, finestra, avanzamento,
                                                               maschere, forme);
        return *programma_;
    }
    void apri(const project::DatiProgetto& dati) {
        const std::string file = ambiente.lavori / "muro.kvd";
        test::metti(file, base::inCp1252(project::testoProgetto(dati)));
        nomi.aperti.push_back(file);
        finestra.esegui(commands::voceMenu("FileApri"));
    }
    QToolButton& conteggio() { return test::controllo<QToolButton>(finestra, "osservazioni"); }
    [[nodiscard]] bool diventa(const QString& testo) {
        return QTest::qWaitFor([&] { return conteggio().text() == testo; }, 30000);
    }
    FinestraOsservazioni* elenco() {
        for (auto* w : QApplication::topLevelWidgets())
            if (auto* trovata = dynamic_cast<FinestraOsservazioni*>(w);
                trovata != nullptr && trovata->isVisible())
                return trovata;
        return nullptr;
    }

    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    test::AmbienteDocumento ambiente;
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    test::AvanzamentoFinto avanzamento;
    masks::Maschere maschere;
    commands::FormeProgramma forme;
    std::vector<std::pair<std::string, std::optional<masks::PostoForma>>> aperte;
    std::function<void()> modifica;
    VitaProgetto vita;
    Menu1 finestra;
    std::unique_ptr<commands::Programma> programma_;
};

TEST_F(OsservazioniViveTest, AreNotCountedBeforeAProjectIsOpen) {
    EXPECT_FALSE(conteggio().isVisible());
    finestra.aggiorna();
    EXPECT_FALSE(conteggio().isVisible());
}

TEST_F(OsservazioniViveTest, AreCountedAtOnceAndThoseOnResultsSoonAfter) {
    auto dati = test::progettoSemplice();
    dati.lunghezzaParatia = 8;
    apri(dati);
    EXPECT_EQ(conteggio().text(), "…");
    EXPECT_TRUE(conteggio().isVisible());
    EXPECT_FALSE(conteggio().font().bold());
    EXPECT_TRUE(diventa("1 da vedere"));
    EXPECT_FALSE(conteggio().font().bold());
}

TEST_F(OsservazioniViveTest, FollowWhatIsEdited) {
    apri(test::progettoSemplice());
    ASSERT_TRUE(diventa("nessuna osservazione"));
    modifica = [] {
        project::Progetto.gammaN[1] = 0;
        project::modificato = true;
    };
    finestra.esegui(commands::voceMenu("EditStratigrafia"));
    EXPECT_EQ(conteggio().text(), "1 pericolo …");
    EXPECT_TRUE(conteggio().font().bold());
    EXPECT_EQ(conteggio().accessibleName(), conteggio().text());
}

TEST_F(OsservazioniViveTest, FollowWhatIsTypedIntoAForm) {
    apri(test::progettoSemplice());
    ASSERT_TRUE(diventa("nessuna osservazione"));
    modifica = [this] {
        masks::preparaMaschera(maschere, masks::NumeroMaschera::fasi, project::Progetto, 0);
        auto testi = maschere.valoriTesto();
        testi[5] = "40";  // excavation of stage 2, below the wall
        vita.digita(maschere.corrente(), {masks::NumeroMaschera::fasi, {}, testi});
        EXPECT_TRUE(QTest::qWaitFor([&] { return conteggio().font().bold(); }, 30000));
    };
    finestra.esegui(commands::voceMenu("EditFasi"));
    EXPECT_TRUE(diventa("nessuna osservazione"));  // the form was left
}

TEST_F(OsservazioniViveTest, AreListedAfterAClickOnTheirNumberAndAfterCtrlK) {
    apri(test::progettoSemplice());
    QTest::mouseClick(&conteggio(), Qt::LeftButton);
    ASSERT_NE(elenco(), nullptr);
    elenco()->close();
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    QTest::keyClick(&finestra, Qt::Key_K, Qt::ControlModifier);
    EXPECT_NE(elenco(), nullptr);
}

TEST_F(OsservazioniViveTest, LeadToTheirFieldAndAreGoneFromTheListOnceItIsMended) {
    auto dati = test::progettoSemplice();
    dati.gammaN[2] = 0;
    apri(dati);
    QTest::mouseClick(&conteggio(), Qt::LeftButton);
    ASSERT_NE(elenco(), nullptr);
    auto& lista = test::controllo<QListWidget>(*elenco(), "lista");
    ASSERT_GE(lista.count(), 1);
    modifica = [] {
        project::Progetto.gammaN[2] = 1.9;
        project::modificato = true;
    };
    QTest::keyClick(&lista, Qt::Key_Return);
    ASSERT_EQ(aperte.size(), 1u);
    EXPECT_EQ(aperte[0].first, "S");
    EXPECT_EQ(aperte[0].second, (masks::PostoForma{2, 2}));
    EXPECT_EQ(lista.count(), 0);
    EXPECT_TRUE(diventa("nessuna osservazione"));
}

TEST_F(OsservazioniViveTest, SayThatNoProjectIsOpen) {
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    QTest::keyClick(&finestra, Qt::Key_K, Qt::ControlModifier);
    ASSERT_NE(elenco(), nullptr);
    EXPECT_EQ(test::controllo<QLabel>(*elenco(), "conteggio").text(), "Nessun progetto aperto");
}

}  // namespace
}  // namespace korven::shell
