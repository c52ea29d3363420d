#include "shell/rescue/rescue_form.hpp"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTreeWidget>

#include "shell/rescue/rescue_state.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"
#include "support/sample_offer.hpp"

namespace korven::shell {
namespace {

using commands::SceltaRecupero;

class FormaRecuperoTest : public ::testing::Test {
 protected:
    QApplication& app = test::applicazione();
    test::OffertaDiProva prova;
};

QString testo(QWidget& forma, const char* nome) {
    return forma.findChild<QLabel*>(QLatin1String(nome))->text();
}
QString quando(QWidget& forma, const char* stato) {
    return forma.findChild<StatoProgetto*>(QLatin1String(stato))
        ->findChild<QLabel*>(QStringLiteral("quando"))
        ->text();
}
bool predefinito(QWidget& forma, const char* nome) {
    return forma.findChild<QPushButton*>(QLatin1String(nome))->isDefault();
}

TEST_F(FormaRecuperoTest, ListsAllDifferencesOfTheTwoStates) {
    const auto offerta = prova.offerta();
    FormaRecupero forma(offerta, nullptr);
    const auto& elenco = *forma.findChild<QTreeWidget*>();
    ASSERT_EQ(elenco.topLevelItemCount(), static_cast<int>(offerta.differenze.size()));
    EXPECT_EQ(testo(forma, "quante"),
              QStringLiteral("Differenze: %1").arg(offerta.differenze.size()));
    const auto* lunghezza = elenco.topLevelItem(1);
    EXPECT_EQ(lunghezza->text(0), "lunghezza della paratia [m]");
    EXPECT_EQ(lunghezza->text(2), "14.5");
    const auto* nuovo = elenco.findItems("profondità del tirante", Qt::MatchStartsWith).first();
    EXPECT_EQ(nuovo->text(1), "–");  // the file has no such row
    EXPECT_EQ(nuovo->text(2), "4");
}

TEST_F(FormaRecuperoTest, SaysSinceWhenEachStateIsAndInWhichFile) {
    const auto offerta = prova.offerta();
    FormaRecupero forma(offerta, nullptr);
    // The day depends on where the test runs.
    const QRegularExpression istante(
        QStringLiteral("^(Salvato|Messo in salvo): "
                       "2026-09-2[0-2] [0-2]\\d:[0-5]\\d$"));
    for (const char* stato : {"statoFile", "statoRecuperato"})
        EXPECT_TRUE(istante.match(quando(forma, stato)).hasMatch())
            << quando(forma, stato).toStdString();
    EXPECT_NE(quando(forma, "statoFile").right(5), quando(forma, "statoRecuperato").right(5));
    EXPECT_EQ(forma.findChild<QWidget*>(QStringLiteral("statoFile"))
                  ->findChild<QLabel*>(QStringLiteral("file"))
                  ->text()
                  .toStdString(),
              offerta.progetto);
}

TEST_F(FormaRecuperoTest, HandsOverTheChoiceOfEachButton) {
    const std::pair<const char*, SceltaRecupero> bottoni[] = {{"prendi", SceltaRecupero::prendi},
                                                              {"tieni", SceltaRecupero::tieni},
                                                              {"dopo", SceltaRecupero::dopo}};
    for (const auto& [nome, scelta] : bottoni) {
        commands::FormeProgramma forme;
        QWidget principale;
        collegaRecupero(forme, principale);
        const test::AllaProssimaFinestra<QDialog> scelto([nome = nome](QDialog& forma) {
            forma.findChild<QPushButton*>(QLatin1String(nome))->click();
        });
        EXPECT_EQ(forme.recupero(prova.offerta()), scelta) << nome;
        EXPECT_TRUE(scelto.fatto);
    }
}

TEST_F(FormaRecuperoTest, DecidesNothingByEscAndTakesTheLaterStateByEnter) {
    for (const auto& [tasto, scelta] : {std::pair{Qt::Key_Escape, SceltaRecupero::dopo},
                                        std::pair{Qt::Key_Return, SceltaRecupero::prendi}}) {
        const auto offerta = prova.offerta();
        FormaRecupero forma(offerta, nullptr);
        forma.show();
        QTest::keyClick(&forma, tasto);
        EXPECT_FALSE(forma.isVisible());
        EXPECT_EQ(forma.scelta(), scelta);
    }
}

TEST_F(FormaRecuperoTest, WarnsWhereTheFileWasSavedAfterwardsAndLeavesItByEnter) {
    const auto prima = prova.offerta();
    FormaRecupero usuale(prima, nullptr);
    EXPECT_FALSE(testo(usuale, "spiegazione").contains("salvato dopo"));
    EXPECT_TRUE(predefinito(usuale, "prendi"));
    prova.salvato = 1790000060;
    const auto dopo = prova.offerta();
    FormaRecupero forma(dopo, nullptr);
    EXPECT_TRUE(testo(forma, "spiegazione").contains("Il file del progetto è stato salvato dopo."));
    EXPECT_TRUE(predefinito(forma, "dopo"));
}

TEST_F(FormaRecuperoTest, TellsOfOlderFilesAndOfAProjectThatWasNeverSaved) {
    prova.salvato = std::nullopt;
    prova.altri = 2;
    const auto offerta = prova.offerta();
    FormaRecupero forma(offerta, nullptr);
    EXPECT_TRUE(testo(forma, "spiegazione").contains("Altri file di recupero, meno recenti: 2"));
    EXPECT_EQ(quando(forma, "statoFile"), "Mai salvato, ancora vuoto");
    EXPECT_EQ(forma.findChild<QPushButton*>(QStringLiteral("tieni"))->text(),
              "&Tieni il progetto vuoto");
}

TEST_F(FormaRecuperoTest, SaysThatAProjectBegunWithAPatternIsNotEmpty) {
    prova.salvato = std::nullopt;
    auto offerta = prova.offerta();
    offerta.copiato = true;
    FormaRecupero forma(offerta, nullptr);
    EXPECT_EQ(quando(forma, "statoFile"), "Mai salvato");
    EXPECT_EQ(forma.findChild<QPushButton*>(QStringLiteral("tieni"))->text(),
              "&Tieni il progetto copiato");
}

}  // namespace
}  // namespace korven::shell
