#include "shell/comparison/comparison_window.hpp"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <filesystem>

#include "project/output_guard.hpp"
#include "project/project_file.hpp"
#include "shell/annex/document_view.hpp"
#include "shell/qt_text.hpp"
#include "shell/tables/table_view.hpp"
#include "support/annex_ports.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/open_project.hpp"
#include "support/sample_sections.hpp"
#include "support/temporary_folder.hpp"

namespace korven::shell {
namespace {

namespace fs = std::filesystem;

class FinestraConfrontoTest : public ::testing::Test {
 protected:
    FinestraConfrontoTest() {
        base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
        project::fileCorrente = muro;
        scrivi(muro, project::Progetto);
        principale.resize(300, 200);
        principale.show();
        vita.guarda();
        finestra.resize(1000, 560);
    }
    ~FinestraConfrontoTest() override { base::impostaCartellaProgramma({}); }

    static void scrivi(const std::string& percorso, const project::DatiProgetto& dati) {
        test::metti(percorso, project::testoProgetto(dati));
    }
    void scava(double metri) {
        project::Progetto.profFase[2] += metri;
        vita.guarda();
    }
    [[nodiscard]] bool aspetta(const std::function<bool()>& vero) {
        return QTest::qWaitFor(vero, 30000);
    }
    /// The window as it opens, with the first answer.
    void apri() {
        finestra.mostraDavanti();
        ASSERT_TRUE(aspetta([&] { return pdf().isEnabled(); }));
    }
    VistaProspetto& tabella(const char* nome) {
        return test::controllo<VistaProspetto>(finestra, nome);
    }
    std::size_t righe(const char* nome) { return tabella(nome).modello().prospetto().righe.size(); }
    QString testo(const char* nome) {
        return test::controllo<QLabel>(finestra, nome).text().replace(QChar::Nbsp, QChar::Space);
    }
    QPushButton& pdf() { return test::controllo<QPushButton>(finestra, "pdf"); }
    void premi(const char* pulsante) { test::controllo<QPushButton>(finestra, pulsante).click(); }

    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    test::CartellaProvvisoria cartella;
    std::string muro = cartella / "muro.kvd", altro = cartella / "altro.kvd";
    test::ProgettoAperto aperto{test::progettoSemplice()};
    test::DialogoFinto dialogo;
    std::shared_ptr<test::SalvataggioDiProva> salvataggio =
        std::make_shared<test::SalvataggioDiProva>();
    std::string scelto, guida;
    QWidget principale;
    VitaProgetto vita;
    FinestraConfronto finestra{principale, vita,
                               PorteConfronto{dialogo, [this] { return scelto; }, salvataggio},
                               [this](const std::string& nome) { guida = nome; }};
};

TEST_F(FinestraConfrontoTest, ComparesTheOpenProjectWithItsFileAtFirst) {
    apri();
    EXPECT_EQ(righe("campi"), 0U);
    EXPECT_GT(righe("risultati"), 5U);
    EXPECT_TRUE(testo("frasi").contains(QStringLiteral("muro.kvd (salvato)")));
    EXPECT_TRUE(testo("frasi").contains(QStringLiteral("Nessuna differenza.")));
}

TEST_F(FinestraConfrontoTest, FollowsTheProjectWhileItIsTypedAndSaved) {
    apri();
    scava(0.5);
    ASSERT_TRUE(aspetta([&] { return !pdf().isEnabled(); })) << "what is shown is of before";
    EXPECT_EQ(righe("campi"), 0U);
    EXPECT_EQ(testo("nota"), "Calcolo in corso...");
    ASSERT_TRUE(aspetta([&] { return righe("campi") == 1; }));
    EXPECT_TRUE(pdf().isEnabled());
    EXPECT_FALSE(testo("frasi").contains(QStringLiteral("Nessuna differenza.")));
    EXPECT_GT(righe("fasi"), 5U);
    scrivi(muro, project::Progetto);
    finestra.guarda();
    ASSERT_TRUE(aspetta([&] { return righe("campi") == 0 && pdf().isEnabled(); }));
    EXPECT_TRUE(testo("frasi").contains(QStringLiteral("Nessuna differenza.")));
}

TEST_F(FinestraConfrontoTest, ComparesWithAnotherProjectAndBackAgain) {
    apri();
    auto dati = project::Progetto;
    dati.lunghezzaParatia += 1;
    scrivi(altro, dati);
    scelto = altro;
    auto& con = test::controllo<QComboBox>(finestra, "con");
    for (int volta = 0; volta < 2; ++volta) {
        premi("altro");
        EXPECT_EQ(con.count(), 2) << "the same one stands there once";
        EXPECT_EQ(con.currentText(), qt(altro));
    }
    ASSERT_TRUE(aspetta([&] { return righe("campi") == 1; }));
    EXPECT_TRUE(testo("frasi").startsWith(QStringLiteral("Prima: altro.kvd: ")))
        << testo("frasi").toStdString();
    con.setCurrentIndex(0);
    emit con.activated(0);
    ASSERT_TRUE(aspetta([&] { return righe("campi") == 0 && pdf().isEnabled(); }));
}

TEST_F(FinestraConfrontoTest, StaysWithWhatItComparesWhereNoOtherProjectIsNamed) {
    apri();
    premi("altro");
    EXPECT_EQ(test::controllo<QComboBox>(finestra, "con").count(), 1);
    EXPECT_TRUE(pdf().isEnabled());
}

TEST_F(FinestraConfrontoTest, SaysWhyThereIsNothingToCompareAndComesBackWhenThereIs) {
    apri();
    fs::remove(muro);
    finestra.guarda();
    ASSERT_TRUE(aspetta([&] { return !pdf().isEnabled(); }));
    EXPECT_TRUE(
        testo("frasi").startsWith(QStringLiteral("Il progetto non è ancora stato salvato")));
    EXPECT_EQ(tabella("risultati").modello().prospetto().note.size(), 1U);
    scrivi(muro, project::Progetto);
    finestra.guarda();
    ASSERT_TRUE(aspetta([&] { return pdf().isEnabled(); }));
    EXPECT_GT(righe("risultati"), 5U);
}

TEST_F(FinestraConfrontoTest, ShowsBothWallsAndTellsThemToThoseWhoDoNotSee) {
    apri();
    test::controllo<QTabWidget>(finestra, "pagine").setCurrentIndex(4);
    auto& curve = test::controllo<VistaDocumento>(finestra, "anteprima");
    EXPECT_EQ(curve.pagine(), 1);
    EXPECT_EQ(curve.horizontalScrollBar()->maximum(), 0) << "as wide as the window";
    EXPECT_GT(curve.impaginato().formato.larghezza, 2 * curve.impaginato().formato.altezza);
    EXPECT_EQ(curve.verticalScrollBar()->value(), 0) << "seen from its upper end";
    EXPECT_TRUE(curve.accessibleDescription().contains(QStringLiteral("Le pareti A, muro.kvd")))
        << curve.accessibleDescription().toStdString();
    EXPECT_EQ(testo("nota"), "");
}

TEST_F(FinestraConfrontoTest, SavesThePdfButOverNoneOfTheTwoProjects) {
    auto dati = project::Progetto;
    dati.lunghezzaParatia += 1;
    scrivi(altro, dati);
    scelto = altro;
    apri();
    premi("altro");
    ASSERT_TRUE(aspetta([&] { return righe("campi") == 1 && pdf().isEnabled(); }));
    const auto prima = test::contenuto(altro), dopo = test::contenuto(muro);
    salvataggio->nomi = {altro, muro, cartella / "c.pdf"};
    premi("pdf");
    EXPECT_EQ(dialogo.messaggi.size(), 2U);
    EXPECT_EQ(test::contenuto(altro), prima);
    EXPECT_EQ(test::contenuto(muro), dopo);
    EXPECT_EQ(salvataggio->chiesta.nome, "muro-confronto.pdf");
    EXPECT_TRUE(test::contenuto(cartella / "c.pdf").starts_with("%PDF-"));
    EXPECT_EQ(salvataggio->scritti.size(), 1U);
    EXPECT_TRUE(testo("nota").contains(QStringLiteral("c.pdf")));
}

TEST_F(FinestraConfrontoTest, ComputesNothingWhileItIsClosed) {
    apri();
    finestra.close();
    scava(0.5);
    QTest::qWait(300);
    EXPECT_EQ(righe("campi"), 0U);
    finestra.mostraDavanti();
    ASSERT_TRUE(aspetta([&] { return righe("campi") == 1; }));
}

TEST_F(FinestraConfrontoTest, OpensItsPageOfTheHelp) {
    finestra.mostraDavanti();
    premi("guida");
    EXPECT_EQ(guida, "finestra_confronto");
}

}  // namespace
}  // namespace korven::shell
