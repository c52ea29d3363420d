#include "shell/study/study_window.hpp"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>

#include "shell/annex/document_view.hpp"
#include "shell/qt_text.hpp"
#include "shell/tables/table_view.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/open_project.hpp"
#include "support/study_ports.hpp"
#include "support/temporary_folder.hpp"

namespace korven::shell {
namespace {

class FinestraStudioTest : public ::testing::Test {
 protected:
    FinestraStudioTest() {
        base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
        project::fileCorrente = cartella / "muro.kvd";
        principale.resize(300, 200);
        principale.show();
        vita.guarda();
        finestra.mostraDavanti();
    }
    ~FinestraStudioTest() override { base::impostaCartellaProgramma({}); }

    template <class Controllo>
    Controllo& c(const char* nome) {
        return test::controllo<Controllo>(finestra, nome);
    }
    QString nota() { return c<QLabel>("nota").text().replace(QChar::Nbsp, QChar::Space); }
    void scegli(const char* scelta, const QString& dato) {
        auto& suo = c<QComboBox>(scelta);
        ASSERT_GE(suo.findData(dato), 0) << dato.toStdString();
        suo.setCurrentIndex(suo.findData(dato));
    }
    /// The length from 10 to `fino` by steps.
    void varia(const QString& fino, const QString& passo) {
        scegli("campo1", QStringLiteral("lunghezzaParatia"));
        c<QLineEdit>("numero1_1").setText(QStringLiteral("10"));
        c<QLineEdit>("numero1_2").setText(fino);
        c<QLineEdit>("numero1_3").setText(passo);
    }
    [[nodiscard]] bool finito() {
        return QTest::qWaitFor([&] { return c<QPushButton>("calcola").isEnabled(); }, 60000);
    }
    void calcola() {
        c<QPushButton>("calcola").click();
        ASSERT_TRUE(finito());
    }
    std::size_t righe() { return c<VistaProspetto>("varianti").modello().prospetto().righe.size(); }

    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    test::CartellaProvvisoria cartella;
    test::ProgettoAperto aperto{test::progettoSemplice()};
    test::DialogoFinto dialogo;
    std::shared_ptr<test::SalvataggioDiProva> salvataggio =
        std::make_shared<test::SalvataggioDiProva>();
    std::vector<project::DatiProgetto> prese;
    std::string guida;
    QWidget principale;
    VitaProgetto vita;
    FinestraStudio finestra{principale, vita,
                            PorteStudio{dialogo, salvataggio,
                                        [this](const project::DatiProgetto& dati) {
                                            prese.push_back(dati);
                                            return true;
                                        }},
                            [this](const std::string& nome) { guida = nome; }};
};

TEST_F(FinestraStudioTest, SaysWhatIsMissingBeforeAnythingVaries) {
    EXPECT_FALSE(c<QPushButton>("esporta").isEnabled());
    c<QPushButton>("calcola").click();
    EXPECT_EQ(nota(), "Scegliere almeno un campo che varia.");
    varia("x", "1");
    c<QPushButton>("calcola").click();
    EXPECT_TRUE(nota().contains(QStringLiteral("x"))) << nota().toStdString();
    EXPECT_EQ(righe(), 0U);
}

TEST_F(FinestraStudioTest, ComputesAGridWithTableChartAndSummary) {
    varia("12", "0.5");
    calcola();
    EXPECT_EQ(righe(), 5U);
    EXPECT_FALSE(c<VistaProspetto>("riassunto").modello().prospetto().note.empty());
    EXPECT_EQ(c<VistaDocumento>("anteprima").pagine(), 1);
    auto& pagine = c<QTabWidget>("pagine");
    EXPECT_FALSE(pagine.isTabVisible(pagine.indexOf(&c<VistaProspetto>("distribuzioni"))));
    auto& risultato = c<QComboBox>("risultato");
    EXPECT_EQ(risultato.currentText(), "Spostamento massimo [mm]");
    EXPECT_TRUE(c<QPushButton>("esporta").isEnabled());
}

TEST_F(FinestraStudioTest, ComputesSamplesByALaw) {
    c<QComboBox>("modo").setCurrentIndex(1);
    scegli("campo1", QStringLiteral("lunghezzaParatia"));
    c<QLineEdit>("numero1_1").setText(QStringLiteral("11"));
    c<QLineEdit>("numero1_2").setText(QStringLiteral("0.2"));
    EXPECT_FALSE(c<QLineEdit>("numero1_3").isVisible());
    calcola();
    EXPECT_EQ(righe(), 1000U);
    auto& pagine = c<QTabWidget>("pagine");
    for (const char* nome : {"distribuzioni", "correlazioni"}) {
        auto& tabella = c<VistaProspetto>(nome);
        EXPECT_TRUE(pagine.isTabVisible(pagine.indexOf(&tabella))) << nome;
        EXPECT_GT(tabella.modello().rowCount(), 0) << nome;
    }
}

TEST_F(FinestraStudioTest, StopsAndKeepsWhatIsDone) {
    varia("12", "0.00003");
    c<QPushButton>("calcola").click();
    EXPECT_TRUE(c<QPushButton>("ferma").isVisible());
    EXPECT_FALSE(c<QPushButton>("calcola").isEnabled());
    ASSERT_TRUE(QTest::qWaitFor([&] { return c<QProgressBar>("avanzamento").value() > 0; }, 60000));
    c<QPushButton>("ferma").click();
    ASSERT_TRUE(finito());
    EXPECT_GT(righe(), 0U);
    EXPECT_TRUE(c<VistaProspetto>("riassunto")
                    .modello()
                    .prospetto()
                    .note[0]
                    .starts_with("Lo studio è stato fermato"));
}

TEST_F(FinestraStudioTest, TakesAVariantIntoTheProjectAfterAQuestion) {
    varia("12", "0.5");
    calcola();
    c<QPushButton>("prendi").click();
    EXPECT_EQ(nota(), "Scegliere prima una variante nella tabella.");
    auto& tabella = c<VistaProspetto>("varianti");
    tabella.setCurrentIndex(tabella.model()->index(1, 0));
    dialogo.risposte = {base::Risposta::no, base::Risposta::si};
    c<QPushButton>("prendi").click();
    EXPECT_TRUE(prese.empty());
    emit tabella.activated(tabella.model()->index(1, 0));
    ASSERT_EQ(prese.size(), 1U);
    EXPECT_EQ(prese[0].lunghezzaParatia, 10.5);
    EXPECT_EQ(nota(), "La variante è nel progetto: Annulla la toglie.");
}

TEST_F(FinestraStudioTest, SavesItsVariantsButNotOverTheProject) {
    varia("12", "0.5");
    calcola();
    test::metti(project::fileCorrente, "muro");
    salvataggio->nomi = {project::fileCorrente, cartella / "s.csv"};
    c<QPushButton>("esporta").click();
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(test::contenuto(project::fileCorrente), "muro");
    EXPECT_EQ(salvataggio->chiesta.nome, "muro-studio.pdf");
    EXPECT_TRUE(test::contenuto(cartella / "s.csv").starts_with("variante,lunghezzaParatia [m],"));
    salvataggio->nomi = {cartella / "s.pdf"};
    c<QPushButton>("esporta").click();
    ASSERT_EQ(dialogo.messaggi.size(), 1U) << dialogo.messaggi.back().testo;
    EXPECT_TRUE(test::contenuto(cartella / "s.pdf").starts_with("%PDF-"));
    salvataggio->nomi = {cartella / "s.xlsx"};
    c<QPushButton>("esporta").click();
    EXPECT_TRUE(test::contenuto(cartella / "s.xlsx").starts_with("PK"));
}

TEST_F(FinestraStudioTest, SaysThatResultsAreOlderThanWhatIsTyped) {
    varia("12", "0.5");
    calcola();
    EXPECT_EQ(nota(), "");
    const QString vecchi =
        QStringLiteral("Questi risultati sono di prima di una modifica: Calcola li rinnova.");
    c<QLineEdit>("numero1_2").setText(QStringLiteral("13"));
    EXPECT_EQ(nota(), vecchi);
    c<QLineEdit>("numero1_2").setText(QStringLiteral("12"));
    EXPECT_EQ(nota(), "");
    project::Progetto.sovraccMonte += 1;
    vita.guarda();
    EXPECT_EQ(nota(), vecchi);
    calcola();
    EXPECT_EQ(nota(), "");
}

TEST_F(FinestraStudioTest, TakesAnErrorBackWithWhatWasWrong) {
    varia("x", "1");
    c<QPushButton>("calcola").click();
    EXPECT_TRUE(nota().contains(QStringLiteral("x")));
    c<QLineEdit>("numero1_2").setText(QStringLiteral("12"));
    EXPECT_EQ(nota(), "Scegliere a sinistra che cosa varia, poi Calcola.");
}

TEST_F(FinestraStudioTest, KeepsTheNumbersOfARangeFromThoseOfALaw) {
    varia("12", "0.5");
    c<QComboBox>("modo").setCurrentIndex(1);
    EXPECT_EQ(c<QLineEdit>("numero1_1").text(), "");
    c<QLineEdit>("numero1_1").setText(QStringLiteral("11"));
    c<QComboBox>("modo").setCurrentIndex(0);
    EXPECT_EQ(c<QLineEdit>("numero1_1").text(), "10");
    c<QComboBox>("modo").setCurrentIndex(1);
    EXPECT_EQ(c<QLineEdit>("numero1_1").text(), "11");
}

TEST_F(FinestraStudioTest, WarnsOfAVariantThatFalls) {
    c<QComboBox>("modo").setCurrentIndex(0);
    varia("12", "0.5");
    c<QLineEdit>("numero1_1").setText(QStringLiteral("0"));
    c<QLineEdit>("numero1_3").setText(QStringLiteral("12"));
    calcola();
    auto& tabella = c<VistaProspetto>("varianti");
    tabella.setCurrentIndex(tabella.model()->index(0, 0));
    dialogo.risposte = {base::Risposta::no};
    c<QPushButton>("prendi").click();
    EXPECT_TRUE(prese.empty());
    EXPECT_TRUE(dialogo.informazioni.back().find("Nessun calcolo accetta") != std::string::npos);
}

TEST_F(FinestraStudioTest, KeepsWhatIsChosenWhileTheProjectIsTyped) {
    varia("12", "0.5");
    project::Progetto.sovraccMonte += 1;
    vita.guarda();
    EXPECT_EQ(c<QComboBox>("campo1").currentData().toString(), "lunghezzaParatia");
    EXPECT_EQ(c<QLineEdit>("numero1_2").text(), "12");
}

TEST_F(FinestraStudioTest, OpensItsPageOfTheHelp) {
    c<QPushButton>("guida").click();
    EXPECT_EQ(guida, "finestra_studio");
}

}  // namespace
}  // namespace korven::shell
