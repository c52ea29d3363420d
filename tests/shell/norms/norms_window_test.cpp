#include "shell/norms/norms_window.hpp"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

#include "shell/qt_text.hpp"
#include "shell/tables/table_view.hpp"
#include "support/code_ports.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/open_project.hpp"
#include "support/temporary_folder.hpp"

namespace korven::shell {
namespace {

class FinestraNormeTest : public ::testing::Test {
 protected:
    FinestraNormeTest() {
        base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
        project::fileCorrente = cartella / "muro.kvd";
        principale.resize(300, 200);
        principale.show();
        vita.guarda();
    }
    ~FinestraNormeTest() override { base::impostaCartellaProgramma({}); }

    [[nodiscard]] bool aspetta(const std::function<bool()>& vero) {
        return QTest::qWaitFor(vero, 30000);
    }
    /// The window as it opens, with the first answer.
    void apri() {
        finestra.mostraDavanti();
        ASSERT_TRUE(aspetta([&] { return pulsante("pdf").isEnabled(); }));
    }
    VistaProspetto& tabella(const char* nome) {
        return test::controllo<VistaProspetto>(finestra, nome);
    }
    std::size_t righe(const char* nome) { return tabella(nome).modello().prospetto().righe.size(); }
    QString testo(const char* nome) {
        return test::controllo<QLabel>(finestra, nome).text().replace(QChar::Nbsp, QChar::Space);
    }
    QPushButton& pulsante(const char* nome) { return test::controllo<QPushButton>(finestra, nome); }

    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    test::CartellaProvvisoria cartella;
    test::ProgettoAperto aperto{test::progettoSemplice()};
    test::DialogoFinto dialogo;
    std::shared_ptr<test::SalvataggioDiProva> salvataggio =
        std::make_shared<test::SalvataggioDiProva>();
    factors::Catalogo catalogo = test::dueNorme();
    std::string guida;
    QWidget principale;
    VitaProgetto vita;
    FinestraNorme finestra{principale, vita,
                           PorteNorme{dialogo, [this] { return catalogo; }, salvataggio},
                           [this](const std::string& nome) { guida = nome; }};
};

TEST_F(FinestraNormeTest, ShowsTheCombinationsOfTheFirstCode) {
    apri();
    EXPECT_EQ(test::controllo<QComboBox>(finestra, "norma").currentText(), "Due");
    EXPECT_EQ(righe("effetti"), 3U) << "two and their envelope";
    EXPECT_EQ(righe("fattori"), 2U);
    EXPECT_EQ(righe("fonti"), 2 * factors::vociFattori().size());
    EXPECT_TRUE(testo("frasi").startsWith(QStringLiteral("Tutte le combinazioni sono in equilib")))
        << testo("frasi").toStdString();
    EXPECT_GT(tabella("note").modello().prospetto().note.size(), 3U);
    EXPECT_EQ(testo("nota"), "");
}

TEST_F(FinestraNormeTest, ComputesAnotherCodeAndLoadsOfAnotherKind) {
    apri();
    auto& norma = test::controllo<QComboBox>(finestra, "norma");
    norma.setCurrentIndex(1);
    emit norma.activated(1);
    ASSERT_TRUE(aspetta([&] { return righe("effetti") == 2 && pulsante("pdf").isEnabled(); }));
    EXPECT_TRUE(testo("frasi").contains(QStringLiteral("a monte: variabile")));
    test::controllo<QCheckBox>(finestra, "monte").click();
    ASSERT_TRUE(
        aspetta([&] { return testo("frasi").contains(QStringLiteral("a monte: permanente")); }));
}

TEST_F(FinestraNormeTest, FollowsTheProjectWhileItIsTyped) {
    apri();
    const auto prima = tabella("effetti").modello().prospetto();
    project::Progetto.profFase[2] += 0.5;
    vita.guarda();
    ASSERT_TRUE(aspetta([&] { return !(tabella("effetti").modello().prospetto() == prima); }));
    EXPECT_EQ(righe("effetti"), 3U);
}

TEST_F(FinestraNormeTest, ReadsTheFilesAgainWhenItIsShownAndTellsTheirFaults) {
    apri();
    finestra.close();
    catalogo.guaste = {{"combinazioni_utente.txt", 7, "numero"}};
    finestra.mostraDavanti();
    EXPECT_TRUE(testo("frasi").contains(QStringLiteral("combinazioni_utente.txt")));
    EXPECT_TRUE(testo("frasi").contains(QStringLiteral("7")));
    EXPECT_EQ(righe("effetti"), 0U);
    EXPECT_FALSE(pulsante("pdf").isEnabled());
    EXPECT_FALSE(pulsante("xlsx").isEnabled());
}

TEST_F(FinestraNormeTest, SavesItsTablesButNotOverTheProject) {
    apri();
    test::metti(project::fileCorrente, "muro");
    salvataggio->nomi = {project::fileCorrente, cartella / "c.pdf"};
    pulsante("pdf").click();
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_EQ(test::contenuto(project::fileCorrente), "muro");
    EXPECT_EQ(salvataggio->chiesta.nome, "muro-combinazioni.pdf");
    EXPECT_TRUE(test::contenuto(cartella / "c.pdf").starts_with("%PDF-"));
    salvataggio->nomi = {cartella / "c.xlsx"};
    pulsante("xlsx").click();
    EXPECT_TRUE(test::contenuto(cartella / "c.xlsx").starts_with("PK"));
    EXPECT_TRUE(testo("nota").contains(QStringLiteral("c.xlsx")));
}

TEST_F(FinestraNormeTest, OpensItsPageOfTheHelp) {
    finestra.mostraDavanti();
    pulsante("guida").click();
    EXPECT_EQ(guida, "finestra_norme");
}

}  // namespace
}  // namespace korven::shell
