#include "shell/file_dialogs_qt.hpp"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <filesystem>

#include "shell/qt_text.hpp"
#include "support/desktop_bench.hpp"
#include "support/temporary_folder.hpp"

namespace korven::shell {
namespace {

using Dialogo = test::AllaProssimaFinestra<QFileDialog>;

class DialoghiFile : public ::testing::Test {
 protected:
    DialoghiFile() { QDir::setCurrent(QString::fromStdString(lavori.percorso())); }
    ~DialoghiFile() override { QDir::setCurrent(prima); }

    static void scrivi(QFileDialog& dialogo, const char* nome) {
        auto* riga = dialogo.findChild<QLineEdit*>();
        riga->setText(nome);
        QTest::keyClick(riga, Qt::Key_Return);
    }
    QString prima = QDir::currentPath();
    test::CartellaProvvisoria lavori;
    DialogoFileQt dialoghi;
};

TEST_F(DialoghiFile, TakeTheNameOfAProjectThatDoesNotExistYet) {
    QString titolo;
    const Dialogo dialogo([&](QFileDialog& d) {
        titolo = d.windowTitle();
        scrivi(d, "muro");
    });
    EXPECT_EQ(dialoghi.apri(""), lavori / "muro.kvd");
    EXPECT_EQ(titolo, "Apri un progetto o scrivi il nome di uno nuovo");
}

TEST_F(DialoghiFile, AskForTheNameOfANewProjectWithAProposal) {
    const Dialogo dialogo([&](QFileDialog& d) {
        EXPECT_EQ(d.windowTitle(), "Nome del nuovo progetto");
        EXPECT_EQ(d.objectName(), "nuovo");
        EXPECT_EQ(d.findChild<QLineEdit*>()->text(), "muro_copia.kvd");
        scrivi(d, "variante");
    });
    EXPECT_EQ(dialoghi.nuovo("muro_copia.kvd"), lavori / "variante.kvd");
    EXPECT_TRUE(dialogo.fatto);
}

TEST_F(DialoghiFile, ShowTheNamesOfProjectsWhole) {
    const std::string lungo = "una_paratia_con_un_nome_lungo.kvd";
    test::metti(lavori / lungo, "");
    int nome = 0, serve = 0;
    bool tipo = true;
    const Dialogo dialogo([&](QFileDialog& d) {
        const auto* elenco = d.findChild<QTreeView*>("treeView");
        tipo = !elenco->isColumnHidden(2);
        nome = elenco->columnWidth(0);
        serve = elenco->fontMetrics().horizontalAdvance(qt(lungo)) + elenco->iconSize().width();
        d.reject();
    });
    EXPECT_EQ(dialoghi.apri(""), "");
    EXPECT_FALSE(tipo);
    EXPECT_GT(serve, 0);
    EXPECT_GT(nome, serve);
}

// A label without its list would show the "&" of the access key.
TEST_F(DialoghiFile, LeadFromEachLabelToItsListByAnAccessKey) {
    const auto guarda = [](QFileDialog& d) {
        int etichette = 0;
        for (const QLabel* etichetta : d.findChildren<QLabel*>()) {
            if (!etichetta->text().contains(QLatin1Char('&'))) continue;
            ++etichette;
            EXPECT_NE(etichetta->buddy(), nullptr) << etichetta->text().toStdString();
        }
        EXPECT_EQ(etichette, 3);
        QTest::keyClick(&d, Qt::Key_Escape);
    };
    {
        const Dialogo dialogo(guarda);
        EXPECT_EQ(dialoghi.apri(""), "");
    }
    const Dialogo dialogo(guarda);
    EXPECT_EQ(dialoghi.salva("muro.kvd"), std::nullopt);
}

// The dialog that a desktop may put in the place of Qt's opens nothing but files that exist.
TEST_F(DialoghiFile, AreQtsOwnWhereANewNameMayBeTypedToOpen) {
    bool nativoApri = true, nativoSalva = false;
    {
        const Dialogo dialogo([&](QFileDialog& d) {
            nativoApri = !d.testOption(QFileDialog::DontUseNativeDialog);
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        EXPECT_EQ(dialoghi.apri(""), "");
    }
    const Dialogo dialogo([&](QFileDialog& d) {
        nativoSalva = !d.testOption(QFileDialog::DontUseNativeDialog);
        QTest::keyClick(&d, Qt::Key_Escape);
    });
    EXPECT_EQ(dialoghi.salva("muro.kvd"), std::nullopt);
    EXPECT_FALSE(nativoApri);
    EXPECT_TRUE(nativoSalva);
}

TEST_F(DialoghiFile, BeginWhereTheLastNameWasChosen) {
    std::filesystem::create_directory(lavori / "nuovi");
    const std::string nome = lavori / "nuovi/muro";
    {
        const Dialogo dialogo([&](QFileDialog& d) { scrivi(d, nome.c_str()); });
        EXPECT_EQ(dialoghi.apri(""), nome + ".kvd");
    }
    const Dialogo dialogo([](QFileDialog& d) { scrivi(d, "muro.kvd"); });
    EXPECT_EQ(dialoghi.salva("muro.kvd"), nome + ".kvd");
}

TEST_F(DialoghiFile, LeaveTheQuestionWhetherToReplaceAFileToTheCommand) {
    test::metti(lavori / "muro.kvd", "x");
    QString proposto;
    const Dialogo dialogo([&](QFileDialog& d) {
        proposto = d.findChild<QLineEdit*>()->text();
        QTest::keyClick(d.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    EXPECT_EQ(dialoghi.salva("muro.kvd"), lavori / "muro.kvd");
    EXPECT_EQ(proposto, "muro.kvd");
}

TEST_F(DialoghiFile, ShowTheFilesOfThePatternWhateverTheirCase) {
    for (const char* nome : {"a.kvd", "b.KVD", "c.Kvd", "d.kVd", "e.kvdx", "f.txt"})
        test::metti(lavori / nome, "x");
    QString filtro;
    const Dialogo dialogo([&](QFileDialog& d) {
        filtro = d.nameFilters().value(0);
        QTest::keyClick(&d, Qt::Key_Escape);
    });
    EXPECT_EQ(dialoghi.apri(""), "");
    const QString modello = filtro.section('(', 1).section(')', 0, 0);
    EXPECT_EQ(filtro.section(" (", 0, 0), "Korven 32");
    const QDir cartella(QString::fromStdString(lavori.percorso()));
    EXPECT_EQ(cartella.entryList({modello}, QDir::Files | QDir::CaseSensitive, QDir::Name),
              (QStringList{"a.kvd", "b.KVD", "c.Kvd", "d.kVd"}));
}

// A short name in a folder with a point would else be read as an extension of that folder.
TEST_F(DialoghiFile, EndANameWithoutAnExtensionInThatOfTheProjects) {
    std::filesystem::create_directory(lavori / "v.1");
    QDir::setCurrent(QString::fromStdString(lavori / "v.1"));
    {
        const Dialogo dialogo([](QFileDialog& d) { scrivi(d, "a"); });
        EXPECT_EQ(dialoghi.apri(""), lavori / "v.1/a.kvd");
    }
    const Dialogo dialogo([](QFileDialog& d) { scrivi(d, "b"); });
    EXPECT_EQ(dialoghi.salva(""), lavori / "v.1/b.kvd");
}

TEST_F(DialoghiFile, ShowNothingButProjects) {
    QStringList filtri;
    const auto guarda = [&](QFileDialog& d) {
        filtri = d.nameFilters();
        QTest::keyClick(&d, Qt::Key_Escape);
    };
    {
        const Dialogo dialogo(guarda);
        EXPECT_EQ(dialoghi.apri(""), "");
        EXPECT_EQ(filtri.size(), 1);
    }
    const Dialogo dialogo(guarda);
    EXPECT_EQ(dialoghi.salva("muro.kvd"), std::nullopt);
    EXPECT_EQ(filtri.size(), 1);
}

TEST_F(DialoghiFile, AskBeforeAnotherTextFileIsReplaced) {
    test::metti(lavori / "altro.txt", "x");
    int domande = 0;
    QString testo;
    // The name without an extension means the file with one; No leads back to the dialog.
    QTimer risposte;
    QObject::connect(&risposte, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (box != nullptr) {
            testo = box->text();
            QTest::mouseClick(box->findChild<QPushButton*>(++domande == 1 ? "no" : "si"),
                              Qt::LeftButton);
        } else if (dialogo != nullptr) {
            scrivi(*dialogo, "altro");
        }
    });
    risposte.start(20);
    EXPECT_EQ(chiediNomeTxt(nullptr, lavori / "muro.txt"), lavori / "altro.txt");
    EXPECT_EQ(domande, 2);
    EXPECT_TRUE(testo.endsWith(qt(lavori / "altro.txt") + "?")) << testo.toStdString();
}

TEST_F(DialoghiFile, AnswerNothingAtEsc) {
    const auto esci = [](QFileDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); };
    {
        const Dialogo dialogo(esci);
        EXPECT_EQ(dialoghi.apri(""), "");
    }
    const Dialogo dialogo(esci);
    EXPECT_EQ(dialoghi.salva("muro.kvd"), std::nullopt);
}

}  // namespace
}  // namespace korven::shell
