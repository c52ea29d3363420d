#include "shell/safety/safety_window.hpp"

#include <gtest/gtest.h>

#include <QLabel>

#include "live/limit_wall.hpp"
#include "shell/qt_text.hpp"
#include "shell/safety/mechanism_view.hpp"
#include "shell/tables/table_view.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"
#include "support/open_project.hpp"
#include "tables/margin_table.hpp"

namespace korven::shell {
namespace {

class FinestraSicurezzaTest : public ::testing::Test {
 protected:
    FinestraSicurezzaTest() {
        principale.resize(300, 200);
        principale.show();
        collegaSicurezza(forme, principale, vita);
    }
    FinestraSicurezza& mostra() {
        forme.sicurezza();
        return *principale.findChild<FinestraSicurezza*>();
    }
    VistaProspetto& margine() { return test::controllo<VistaProspetto>(mostra(), "margine"); }
    QString testo(const char* nome) {
        return test::controllo<QLabel>(mostra(), nome).text().replace(QChar::Nbsp, QChar::Space);
    }
    [[nodiscard]] bool noto() {
        return QTest::qWaitFor([&] { return vita.vivo().lenti() != nullptr; }, 30000);
    }
    [[nodiscard]] bool grigio() {
        return margine()
            .modello()
            .data(margine().modello().index(0, 0), Qt::ForegroundRole)
            .isValid();
    }

    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    test::ProgettoAperto aperto{test::progettoSemplice()};
    QWidget principale;
    VitaProgetto vita;
    commands::FormeProgramma forme;
};

TEST_F(FinestraSicurezzaTest, WaitsForTheMarginAndThenTellsIt) {
    vita.guarda();
    mostra();
    EXPECT_EQ(testo("verdetto"), QStringLiteral("Calcolo in corso..."));
    ASSERT_TRUE(noto());
    const safety::Margine& m = *vita.vivo().lenti()->margine;
    EXPECT_EQ(testo("verdetto"), qt(tables::verdetto(m)));
    EXPECT_EQ(margine().modello().prospetto(), tables::prospettoMargine(m));
    EXPECT_TRUE(testo("frasi").contains(qt(tables::frasi(m)[0])));
    EXPECT_FALSE(grigio());
}

TEST_F(FinestraSicurezzaTest, KeepsWhatWasKnownInGreyWhileItIsComputedAnew) {
    vita.guarda();
    mostra();
    ASSERT_TRUE(noto());
    const auto prima = margine().modello().prospetto();
    project::Progetto.profFase[2] = 5.5;
    vita.guarda();
    EXPECT_EQ(testo("verdetto"), QStringLiteral("Calcolo in corso..."));
    EXPECT_EQ(margine().modello().prospetto(), prima);
    EXPECT_TRUE(grigio());
    ASSERT_TRUE(noto());
    EXPECT_NE(margine().modello().prospetto(), prima);
    EXPECT_FALSE(grigio());
}

TEST_F(FinestraSicurezzaTest, PicturesTheMechanismAndSaysIt) {
    vita.guarda();
    mostra();
    ASSERT_TRUE(noto());
    auto& figura = test::controllo<VistaMeccanismo>(mostra(), "meccanismo");
    EXPECT_TRUE(figura.accessibleDescription().startsWith(testo("verdetto")));
    const QImage conMoto = figura.grab().toImage();
    // What is red is no wall that falls: its caption says under which soil it does.
    const safety::Margine& margine = *vita.vivo().lenti()->margine;
    const auto limite = live::pareteAlLimite(vita.vivo().parete(), margine);
    figura.mostra(limite, testo("verdetto"), {});
    EXPECT_NE(figura.grab().toImage(), conMoto);
    figura.mostra(limite, testo("verdetto"), tables::didascaliaMeccanismo(margine));
    EXPECT_EQ(figura.grab().toImage(), conMoto);
    figura.mostra({}, testo("verdetto"));
    EXPECT_NE(figura.grab().toImage(), conMoto);
}

TEST_F(FinestraSicurezzaTest, SaysWhyThereIsNothingToCompute) {
    project::Progetto = test::progettoVuoto();
    vita.guarda();
    mostra();
    EXPECT_EQ(testo("verdetto"),
              QStringLiteral("Niente da calcolare: ") + qt(vita.vivo().parete().rifiuto));
    EXPECT_EQ(margine().modello().rowCount(), 0);
    EXPECT_EQ(testo("frasi"), QString());
}

TEST_F(FinestraSicurezzaTest, TellsAMechanismAtOnce) {
    project::Progetto.tirantiFase[2] = 0;
    project::Progetto.profFase[2] = 9;
    vita.guarda();
    mostra();
    ASSERT_TRUE(noto());
    EXPECT_TRUE(
        testo("verdetto").startsWith(QStringLiteral("La paratia è un meccanismo nella fase 2")))
        << testo("verdetto").toStdString();
}

}  // namespace
}  // namespace korven::shell
