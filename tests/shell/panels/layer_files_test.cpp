#include "shell/panels/layer_files.hpp"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFileDialog>
#include <QListView>

#include "project/project_data.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"
#include "support/temporary_folder.hpp"

namespace korven::shell {
namespace {

using Dialogo = test::AllaProssimaFinestra<QFileDialog>;

class FileDegliStrati : public ::testing::Test {
 protected:
    void SetUp() override { project::fileCorrente = cartella / "muro.kvd"; }
    void TearDown() override { project::fileCorrente.clear(); }
    QApplication& app = test::applicazione();
    test::CartellaProvvisoria cartella;
    FileDiStrati file = fileDiStratiDesktop();
};

TEST_F(FileDegliStrati, AreOfferedWhateverTheCaseOfTheirEndingUnderAPatternThatPeopleRead) {
    for (const char* nome : {"prima.csv", "SECONDA.CSV", "terza.Ags", "altro.doc"})
        test::metti(cartella / nome, "x");
    QString tipo;
    QStringList offerti;
    const Dialogo dialogo([&](QFileDialog& d) {
        tipo = d.findChild<QComboBox*>("fileTypeCombo")->currentText();
        const auto& lista = *d.findChild<QListView*>("listView");
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return lista.model()->rowCount(lista.rootIndex()) == 3; }));
        for (int i = 0; i < lista.model()->rowCount(lista.rootIndex()); ++i)
            offerti << lista.model()->index(i, 0, lista.rootIndex()).data().toString();
        d.reject();
    });
    EXPECT_FALSE(file.daLeggere(nullptr));
    EXPECT_EQ(tipo, "Tabelle e indagini (*.csv, *.txt, *.ags)");
    offerti.sort();
    EXPECT_EQ(offerti, (QStringList{"SECONDA.CSV", "prima.csv", "terza.Ags"}));
}

}  // namespace
}  // namespace korven::shell
