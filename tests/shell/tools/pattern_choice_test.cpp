#include "shell/tools/pattern_choice.hpp"

#include <gtest/gtest.h>

#include <QListWidget>
#include <QPushButton>

#include "base/code_page.hpp"
#include "project/project_file.hpp"
#include "scene/scene.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"
#include "support/sample_projects.hpp"
#include "support/temporary_folder.hpp"

namespace korven::shell {
namespace {

using Forma = test::AllaProssimaFinestra<SceltaModello>;

class ScegliModello : public ::testing::Test {
 protected:
    std::optional<std::string> dopo(const std::function<void(QListWidget&, SceltaModello&)>& fai) {
        const Forma aperta([&](SceltaModello& forma) {
            fai(test::controllo<QListWidget>(forma, "lista"), forma);
        });
        return chiediModello({{"/a/uno.kvd", "uno", "Primo"}, {"/a/due.kvd", "due", "Secondo"}},
                             nullptr);
    }
    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
};

TEST_F(ScegliModello, OffersTheDefaultsAndEachPatternWithItsHeadings) {
    EXPECT_EQ(dopo([](QListWidget& lista, SceltaModello& forma) {
                  ASSERT_EQ(lista.count(), 3);
                  EXPECT_EQ(lista.item(0)->text(), "Valori iniziali");
                  EXPECT_EQ(lista.item(2)->text(), "due");
                  EXPECT_EQ(lista.item(2)->data(Qt::AccessibleTextRole), "due: Secondo");
                  EXPECT_EQ(lista.currentRow(), 0);
                  EXPECT_EQ(forma.focusWidget(), &lista);
                  forma.reject();
              }),
              std::nullopt);
}

TEST_F(ScegliModello, TakesTheDefaultsByEnterAlone) {
    EXPECT_EQ(
        dopo([](QListWidget& lista, SceltaModello&) { QTest::keyClick(&lista, Qt::Key_Return); }),
        "");
}

TEST_F(ScegliModello, TakesThePatternChosenByKeysOrButton) {
    EXPECT_EQ(dopo([](QListWidget& lista, SceltaModello& forma) {
                  QTest::keyClick(&lista, Qt::Key_Down);
                  QTest::mouseClick(&test::controllo<QPushButton>(forma, "Command1"),
                                    Qt::LeftButton);
              }),
              "/a/uno.kvd");
}

TEST_F(ScegliModello, TakesThePatternThatIsClickedTwice) {
    EXPECT_EQ(dopo([](QListWidget& lista, SceltaModello&) {
                  const QPoint dove = lista.visualItemRect(lista.item(2)).center();
                  QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, dove);
                  QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, dove);
              }),
              "/a/due.kvd");
}

TEST_F(ScegliModello, ShowsTheWallOfTheCurrentPattern) {
    const test::CartellaProvvisoria cartella;
    const std::string file = cartella / "muro.kvd";
    test::metti(file, base::inCp1252(project::testoProgetto(test::progettoSemplice())));
    SceltaModello forma({{file, "muro", ""}, {"/manca.kvd", "manca", ""}});
    auto& lista = test::controllo<QListWidget>(forma, "lista");
    const auto detto = [&] { return test::controllo(forma, "quadro").accessibleDescription(); };
    const QString vuoto = detto();
    lista.setCurrentRow(1);
    EXPECT_EQ(detto().toStdString(),
              scene::descrizione(live::calcola(commands::leggiModello(file)), {}));
    EXPECT_NE(detto(), vuoto);
    lista.setCurrentRow(2);
    EXPECT_EQ(detto(), vuoto);
}

TEST_F(ScegliModello, TakesNothingOnEsc) {
    EXPECT_EQ(
        dopo([](QListWidget&, SceltaModello& forma) { QTest::keyClick(&forma, Qt::Key_Escape); }),
        std::nullopt);
}

}  // namespace
}  // namespace korven::shell
