#include "shell/annex/annex_window.hpp"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <atomic>
#include <filesystem>
#include <thread>

#include "base/file_error.hpp"
#include "project/output_guard.hpp"
#include "shell/annex/document_view.hpp"
#include "shell/qt_text.hpp"
#include "support/annex_ports.hpp"
#include "support/code_ports.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/open_project.hpp"
#include "support/sample_document.hpp"
#include "support/sample_sections.hpp"
#include "support/temporary_folder.hpp"

namespace korven::shell {
namespace {

namespace fs = std::filesystem;

class FinestraAllegatoTest : public ::testing::Test {
 protected:
    FinestraAllegatoTest() {
        base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
        principale.resize(300, 200);
        principale.show();
        vita.guarda();
        finestra.resize(700, 700);
    }
    ~FinestraAllegatoTest() override { base::impostaCartellaProgramma({}); }

    CalcoloAllegato prepara() {
        ++preparati;
        auto documento = test::documentoCompleto();
        documento.titolo = "Allegato " + std::to_string(preparati);
        return [this, documento](const std::atomic<bool>& fermata) -> ComposizioneAllegato {
            while (trattenuto && !fermata) std::this_thread::yield();
            if (guasto) throw base::ErroreFile("muro.kvd", 0, "guasto");
            return [documento] { return documento; };
        };
    }
    // Opens the window, or asks it for something, and waits for the pages.
    void apri() {
        finestra.mostraDavanti();
        aspetta();
    }
    void aspetta() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !inPreparazione(); }, 30000));
    }
    // The user's next input.
    void cambia() {
        project::Progetto.sovraccMonte += 0.5;
        vita.guarda();
    }
    bool inPreparazione() { return test::controllo<QWidget>(finestra, "attesa").isVisible(); }
    VistaDocumento& vista() { return test::controllo<VistaDocumento>(finestra, "anteprima"); }
    QSpinBox& pagina() { return test::controllo<QSpinBox>(finestra, "pagina"); }
    QString nota() { return test::controllo<QLabel>(finestra, "nota").text(); }
    void premi(const char* pulsante) { test::controllo<QPushButton>(finestra, pulsante).click(); }

    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    test::ProgettoAperto aperto{test::progettoSemplice()};
    test::CartellaProvvisoria cartella;
    test::DialogoFinto dialogo;
    std::shared_ptr<test::SalvataggioDiProva> salvataggio =
        std::make_shared<test::SalvataggioDiProva>();
    int preparati = 0;
    std::atomic<bool> guasto = false;
    std::atomic<bool> trattenuto = false;  // the computation, until it is let go or stopped
    std::vector<std::string> stampati;
    factors::Catalogo catalogo = test::dueNorme();
    std::vector<std::string> norme;  // that each annex was made with
    factors::NaturaCarichi natura;   // of the last one
    QWidget principale;
    VitaProgetto vita;
    std::string guida;
    FinestraAllegato finestra{
        principale, vita,
        PorteAllegato{dialogo,
                      [this](const auto& norma) {
                          norme.push_back(norma ? norma->norma.nome : "");
                          natura = norma ? norma->natura : factors::NaturaCarichi();
                          return prepara();
                      },
                      [this] { return catalogo; }, salvataggio,
                      [this](const document::Documento& d) { stampati.push_back(d.titolo); }},
        [this](const std::string& nome) { guida = nome; }};
};

TEST_F(FinestraAllegatoTest, MakesTheAnnexWhenItIsOpenedAndNotAgainBeforeTheProjectChanges) {
    apri();
    EXPECT_EQ(preparati, 1);
    EXPECT_GT(vista().pagine(), 3);
    EXPECT_EQ(pagina().maximum(), vista().pagine());
    EXPECT_EQ(nota(), "");
    finestra.close();
    apri();
    EXPECT_EQ(preparati, 1);
}

TEST_F(FinestraAllegatoTest, HasAChapterOnTheCodeThatIsChosen) {
    apri();
    auto& norma = test::controllo<QComboBox>(finestra, "norma");
    auto& monte = test::controllo<QCheckBox>(finestra, "monte");
    ASSERT_EQ(norma.count(), 3) << "none, and two";
    EXPECT_FALSE(monte.isVisible());
    norma.setCurrentIndex(2);
    emit norma.activated(2);
    aspetta();
    EXPECT_TRUE(monte.isVisible());
    monte.click();
    aspetta();
    EXPECT_EQ(norme, (std::vector<std::string>{"", "una", "una"}));
    EXPECT_EQ(natura.monte, factors::Natura::permanente);
    EXPECT_EQ(natura.testa, factors::Natura::variabile);
    finestra.close();
    apri();
    EXPECT_EQ(norme.size(), 3U) << "it is there already";
    EXPECT_EQ(norma.currentIndex(), 2);
}

// The last choice counts, whatever is being computed of the one before.
TEST_F(FinestraAllegatoTest, FollowsAChoiceThatIsMadeMeanwhile) {
    trattenuto = true;
    finestra.mostraDavanti();
    auto& norma = test::controllo<QComboBox>(finestra, "norma");
    norma.setCurrentIndex(1);
    emit norma.activated(1);
    trattenuto = false;
    aspetta();
    EXPECT_EQ(norme, (std::vector<std::string>{"", "due"}));
    EXPECT_EQ(vista().impaginato().documento->titolo, "Allegato 2");
    EXPECT_EQ(nota(), "");
}

TEST_F(FinestraAllegatoTest, LetsGoOfACodeThatItsFileNoLongerHas) {
    apri();
    auto& norma = test::controllo<QComboBox>(finestra, "norma");
    norma.setCurrentIndex(2);
    emit norma.activated(2);
    aspetta();
    finestra.close();
    catalogo.norme.pop_back();
    apri();
    EXPECT_EQ(norma.currentIndex(), 0);
    EXPECT_EQ(norme.back(), "");
    EXPECT_EQ(preparati, 3);
}

TEST_F(FinestraAllegatoTest, SaysThatTheProjectHasChangedAndMakesItAnewOnRequest) {
    apri();
    cambia();
    EXPECT_TRUE(nota().startsWith(QStringLiteral("Il progetto è cambiato")))
        << nota().toStdString();
    EXPECT_EQ(preparati, 1) << "the pages do not run away under the eyes of their reader";
    premi("aggiorna");
    aspetta();
    EXPECT_EQ(preparati, 2);
    EXPECT_EQ(nota(), "");
}

// What takes longer is computed meanwhile, and looked at stage by stage: the project is the same.
TEST_F(FinestraAllegatoTest, IsAsItWasWhenSlowResultsComeInOrAnotherStageIsShown) {
    apri();
    ASSERT_TRUE(QTest::qWaitFor([this] { return vita.vivo().lenti() != nullptr; }, 30000));
    live::Vista vista = vita.vivo().vista();
    vista.fase = vista.fase == 1 ? 2 : 1;
    const int prima = vita.vivo().versione();
    vita.mostra(vista);
    EXPECT_GT(vita.vivo().versione(), prima);
    EXPECT_EQ(nota(), "");
    finestra.close();
    apri();
    EXPECT_EQ(preparati, 1);
}

TEST_F(FinestraAllegatoTest, HandsOutNoPagesOfAProjectThatIsNoLongerTheOpenOne) {
    apri();
    project::fileCorrente = "altro.kvd";
    emit vita.cambiata();
    EXPECT_EQ(vista().pagine(), 0);
    EXPECT_EQ(vista().accessibleDescription(), QString());
    EXPECT_EQ(pagina().value(), 0);
    EXPECT_EQ(nota(), "L'allegato di questo progetto non è ancora preparato: Aggiorna lo prepara.");
    for (const char* pulsante : {"pdf", "doc", "stampa"})
        EXPECT_FALSE(test::controllo<QPushButton>(finestra, pulsante).isEnabled()) << pulsante;
    premi("aggiorna");
    aspetta();
    EXPECT_GT(vista().pagine(), 3);
    EXPECT_EQ(nota(), "");
    premi("stampa");
    EXPECT_EQ(stampati, (std::vector<std::string>{"Allegato 2"}));
    premi("pdf");
    EXPECT_EQ(salvataggio->chiesta.nome, "altro-allegato.pdf");
}

TEST_F(FinestraAllegatoTest, LooksAgainWhichProjectIsOpenBeforeItsPagesLeaveTheWindow) {
    for (const char* pulsante : {"pdf", "doc", "stampa"}) {
        project::fileCorrente = "muro.kvd";
        apri();
        premi("aggiorna");
        aspetta();
        salvataggio->chiesta = {};
        project::fileCorrente = "altro.kvd";  // by a command that changes nothing else
        premi(pulsante);
        EXPECT_EQ(salvataggio->chiesta.nome, "") << pulsante;
        EXPECT_EQ(vista().pagine(), 0) << pulsante;
    }
    EXPECT_TRUE(stampati.empty());
}

TEST_F(FinestraAllegatoTest, GivesUpTheWorkForAProjectThatIsNoLongerTheOpenOne) {
    trattenuto = true;
    finestra.mostraDavanti();
    project::fileCorrente = "altro.kvd";
    emit vita.cambiata();
    EXPECT_FALSE(inPreparazione());
    EXPECT_EQ(vista().pagine(), 0);
    trattenuto = false;
    premi("aggiorna");
    aspetta();
    premi("stampa");
    EXPECT_EQ(stampati, (std::vector<std::string>{"Allegato 2"}));
}

TEST_F(FinestraAllegatoTest, KeepsItsPagesWhileARunLendsItsNameToTheResults) {
    apri();
    project::progettiProtetti.corrente = project::fileCorrente;
    project::fileCorrente = "muro.OUT";
    emit vita.cambiata();
    EXPECT_GT(vista().pagine(), 3);
    project::progettiProtetti.corrente.clear();
}

TEST_F(FinestraAllegatoTest, TurnsItsPagesByKeysAndByNumber) {
    apri();
    const int quante = vista().pagine();
    QTest::keyClick(&vista(), Qt::Key_PageDown);
    EXPECT_EQ(pagina().value(), 2);
    QTest::keyClick(&vista(), Qt::Key_End);
    EXPECT_EQ(pagina().value(), quante);
    QTest::keyClick(&vista(), Qt::Key_PageDown);
    EXPECT_EQ(pagina().value(), quante);
    QTest::keyClick(&vista(), Qt::Key_PageUp);
    EXPECT_EQ(pagina().value(), quante - 1);
    QTest::keyClick(&vista(), Qt::Key_Home);
    EXPECT_EQ(pagina().value(), 1);
    pagina().setValue(3);
    EXPECT_EQ(vista().pagina(), 3);
}

TEST_F(FinestraAllegatoTest, FitsThePagesToTheWindowAndMakesThemLargerByKeys) {
    apri();
    auto& zoom = test::controllo<QComboBox>(finestra, "zoom");
    EXPECT_EQ(vista().horizontalScrollBar()->maximum(), 0) << "as wide as the window at first";
    const double larga = vista().percento();
    zoom.setCurrentIndex(0);
    emit zoom.activated(0);
    EXPECT_LT(vista().percento(), larga);
    pagina().setValue(2);
    for (const Qt::Key tasto : {Qt::Key_Plus, Qt::Key_Equal}) {
        const double prima = vista().percento();
        QTest::keyClick(&vista(), tasto, Qt::ControlModifier);
        EXPECT_GT(vista().percento(), prima);
    }
    EXPECT_EQ(vista().pagina(), 2) << "the place that is looked at stays";
    EXPECT_EQ(zoom.currentIndex(), -1);
    emit zoom.activated(zoom.findText(QStringLiteral("200 %")));
    EXPECT_NEAR(vista().percento(), 200, 0.01);
    EXPECT_GT(vista().horizontalScrollBar()->maximum(), 0);
    for (int i = 0; i < 40; ++i) QTest::keyClick(&vista(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(vista().percento(), 20, 0.01);
}

TEST_F(FinestraAllegatoTest, ReadsTheTextsOfThePageToThoseWhoDoNotSeeIt) {
    apri();
    EXPECT_TRUE(vista().accessibleDescription().startsWith(
        QStringLiteral("pagina 1 / %1").arg(vista().pagine())));
    EXPECT_TRUE(vista().accessibleDescription().contains(QStringLiteral("Che cosa si calcola")));
    int figura = 0;
    for (int i = 1; i <= vista().pagine(); ++i) {
        vista().vaiA(i);
        if (vista().accessibleDescription().contains(
                QStringLiteral("Il momento cresce con la profondità.")))
            ++figura;
    }
    EXPECT_EQ(figura, 1) << "what the drawings show is told";
}

TEST_F(FinestraAllegatoTest, SavesPdfAndDocUnderTheNameOfTheProject) {
    apri();
    salvataggio->nomi = {cartella / "a.pdf", cartella / "a.doc"};
    premi("pdf");
    EXPECT_TRUE(salvataggio->chiesta.nome.ends_with("-allegato.pdf")) << salvataggio->chiesta.nome;
    EXPECT_TRUE(test::contenuto(cartella / "a.pdf").starts_with("%PDF-"));
    EXPECT_TRUE(nota().contains(QStringLiteral("a.pdf")));
    premi("doc");
    EXPECT_TRUE(salvataggio->chiesta.nome.ends_with("-allegato.doc"));
    EXPECT_TRUE(test::contenuto(cartella / "a.doc").starts_with("PK"));
    EXPECT_EQ(salvataggio->scritti.size(), 2U);
}

TEST_F(FinestraAllegatoTest, AsksAgainForANameThatCannotBeWritten) {
    apri();
    salvataggio->nomi = {cartella / "non/c'è/a.pdf", cartella / "b.pdf"};
    premi("pdf");
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_TRUE(fs::exists(cartella / "b.pdf"));
}

TEST_F(FinestraAllegatoTest, PrintsTheDocumentThatIsShown) {
    apri();
    premi("stampa");
    EXPECT_EQ(stampati, (std::vector<std::string>{"Allegato 1"}));
}

TEST_F(FinestraAllegatoTest, KeepsThePagesOfBeforeWhereTheyCannotBeMadeAnew) {
    apri();
    const int prima = vista().pagine();
    guasto = true;
    cambia();
    premi("aggiorna");
    aspetta();
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(vista().pagine(), prima);
    EXPECT_TRUE(nota().startsWith(QStringLiteral("Il progetto è cambiato")));
}

TEST_F(FinestraAllegatoTest, ComputesBesideTheFormsAndShowsThePagesOfBeforeMeanwhile) {
    apri();
    trattenuto = true;
    cambia();
    premi("aggiorna");
    EXPECT_TRUE(inPreparazione());
    EXPECT_EQ(nota(), "");
    EXPECT_FALSE(test::controllo<QPushButton>(finestra, "aggiorna").isEnabled());
    premi("stampa");
    EXPECT_EQ(stampati, (std::vector<std::string>{"Allegato 1"}));
    cambia();
    trattenuto = false;
    aspetta();
    EXPECT_TRUE(nota().startsWith(QStringLiteral("Il progetto è cambiato")))
        << "since the work was begun";
    premi("stampa");
    EXPECT_EQ(stampati.back(), "Allegato 2");
}

TEST_F(FinestraAllegatoTest, CanBeStoppedAndBegunAnew) {
    trattenuto = true;
    finestra.mostraDavanti();
    EXPECT_TRUE(inPreparazione());
    premi("ferma");
    EXPECT_FALSE(inPreparazione());
    EXPECT_TRUE(nota().startsWith(QStringLiteral("La preparazione è stata fermata")));
    EXPECT_EQ(vista().pagine(), 0);
    trattenuto = false;
    premi("aggiorna");
    aspetta();
    EXPECT_EQ(nota(), "");
    EXPECT_GT(vista().pagine(), 3);
    premi("stampa");
    EXPECT_EQ(stampati, (std::vector<std::string>{"Allegato 2"}));
}

TEST_F(FinestraAllegatoTest, OpensItsPageOfTheHelp) {
    apri();
    premi("guida");
    EXPECT_EQ(guida, "finestra_allegato");
}

}  // namespace
}  // namespace korven::shell
