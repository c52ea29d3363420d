#include "shell/results/results_window.hpp"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QTabWidget>

#include "shell/qt_text.hpp"
#include "shell/results/curves_view.hpp"
#include "shell/tables/table_view.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"
#include "support/open_project.hpp"
#include "support/sample_sections.hpp"
#include "tables/node_table.hpp"
#include "tables/stage_table.hpp"

namespace korven::shell {
namespace {

class FinestraRisultatiTest : public ::testing::Test {
 protected:
    FinestraRisultatiTest() {
        principale.resize(300, 200);
        principale.show();
        forme.paginaGuida = [this](const std::string& pagina) { aperta = pagina; };
        collegaRisultati(forme, principale, vita);
    }
    FinestraRisultati& mostra() {
        forme.risultati();
        return *principale.findChild<FinestraRisultati*>();
    }
    VistaProspetto& tabella(const char* nome) {
        return test::controllo<VistaProspetto>(mostra(), nome);
    }
    void pagina(int quale) {
        test::controllo<QTabWidget>(mostra(), "pagine").setCurrentIndex(quale);
    }
    QString nota() {
        return test::controllo<QLabel>(mostra(), "nota").text().replace(QChar::Nbsp, QChar::Space);
    }

    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    test::ProgettoAperto aperto{test::progettoSemplice()};
    QWidget principale;
    VitaProgetto vita;
    commands::FormeProgramma forme;
    std::string aperta;
};

TEST_F(FinestraRisultatiTest, ShowsTheEnvelopeAndTheStageThatIsChosen) {
    vita.guarda();
    auto& scelta = test::controllo<QComboBox>(mostra(), "fase");
    ASSERT_EQ(scelta.count(), 3);
    EXPECT_EQ(scelta.itemText(0), QStringLiteral("Inviluppo delle fasi"));
    EXPECT_EQ(tabella("nodi").modello().prospetto(),
              tables::prospettoInviluppo(vita.vivo().parete()));
    scelta.setFocus();
    QTest::keyClick(&scelta, Qt::Key_End);
    EXPECT_EQ(vita.vivo().vista().fase, 2);
    EXPECT_EQ(tabella("nodi").modello().prospetto(),
              tables::prospettoNodi(vita.vivo().parete(), 2));
}

TEST_F(FinestraRisultatiTest, FollowsTheStageOfThePicture) {
    vita.guarda();
    mostra();
    vita.mostra({.fase = 1});
    EXPECT_EQ(test::controllo<QComboBox>(mostra(), "fase").currentIndex(), 1);
    EXPECT_EQ(tabella("nodi").modello().prospetto().titolo, "Nodi: Fase 1");
}

TEST_F(FinestraRisultatiTest, FollowsTheProjectUnderAModalForm) {
    vita.guarda();
    vita.mostra({.fase = 2});
    mostra();
    QDialog forma(&principale);
    forma.setModal(true);
    forma.show();
    const auto prima = tabella("nodi").modello().prospetto();
    project::Progetto.profFase[2] = 6;
    vita.guarda();
    EXPECT_NE(tabella("nodi").modello().prospetto(), prima);
    EXPECT_EQ(tabella("nodi").modello().prospetto(),
              tables::prospettoNodi(vita.vivo().parete(), 2));
    EXPECT_EQ(QApplication::activeModalWidget(), &forma);
}

TEST_F(FinestraRisultatiTest, ChoosesAStageFromTheTableOfStages) {
    vita.guarda();
    mostra();
    pagina(3);
    EXPECT_EQ(tabella("fasi").modello().prospetto(), tables::prospettoFasi(vita.vivo().parete()));
    emit tabella("fasi").activated(tabella("fasi").modello().index(1, 0));
    EXPECT_EQ(vita.vivo().vista().fase, 2);
}

TEST_F(FinestraRisultatiTest, WaitsForTheReportWithItsChecks) {
    project::Progetto.sezione = structure::diaframmaSimmetrico();
    vita.guarda();
    mostra();
    pagina(2);
    EXPECT_EQ(nota(), QStringLiteral("Calcolo in corso..."));
    ASSERT_TRUE(QTest::qWaitFor([&] { return vita.vivo().lenti() != nullptr; }, 30000));
    EXPECT_GE(tabella("verifiche").modello().rowCount(), 1);
    EXPECT_TRUE(nota().contains(QStringLiteral("Numeri e regole della relazione")))
        << nota().toStdString();
    project::Progetto.profFase[2] = 5.5;
    vita.guarda();  // what was known stays, in grey
    EXPECT_GE(tabella("verifiche").modello().rowCount(), 1);
    EXPECT_TRUE(tabella("verifiche")
                    .modello()
                    .data(tabella("verifiche").modello().index(0, 0), Qt::ForegroundRole)
                    .isValid());
}

TEST_F(FinestraRisultatiTest, ReadsTheCurvesAndTurnsTheStagesByKeys) {
    vita.guarda();
    mostra();
    pagina(4);
    auto& curve = test::controllo<VistaCurve>(mostra(), "curve");
    QTest::keyClick(&curve, Qt::Key_Home);
    EXPECT_EQ(nota(), curve.letto());
    EXPECT_TRUE(nota().startsWith(QStringLiteral("z 0.00 m: ")));
    QTest::keyClick(&curve, Qt::Key_PageDown);
    EXPECT_EQ(vita.vivo().vista().fase, 1);
    QTest::keyClick(&curve, Qt::Key_PageUp);
    QTest::keyClick(&curve, Qt::Key_PageUp);
    EXPECT_EQ(vita.vivo().vista().fase, 0);
}

TEST_F(FinestraRisultatiTest, WithoutAProjectSaysSo) {
    project::fileCorrente.clear();
    vita.guarda();
    mostra();
    EXPECT_EQ(nota(), QStringLiteral("Nessun progetto aperto"));
    EXPECT_FALSE(test::controllo<QComboBox>(mostra(), "fase").isEnabled());
}

TEST_F(FinestraRisultatiTest, OpensItsPageOfTheHelp) {
    vita.guarda();
    test::controllo<QWidget>(mostra(), "guida").setFocus();
    QTest::keyClick(&test::controllo<QWidget>(mostra(), "guida"), Qt::Key_Space);
    EXPECT_EQ(aperta, "finestra_risultati");
}

}  // namespace
}  // namespace korven::shell
