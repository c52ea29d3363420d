#include "shell/panels/layers_panel.hpp"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTableWidget>
#include <set>

#include "base/files.hpp"
#include "exchange/ags_text.hpp"
#include "exchange/csv_layers.hpp"
#include "exchange/file_text.hpp"
#include "project/codes.hpp"
#include "support/delivered_program.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

using test::controllo;
using Testi = std::vector<std::string>;

// The panel beside the layers of the small wall, and what its user does.
class Pannello : public ::testing::Test {
 protected:
    void conForma(const std::function<void(Base2_32&)>& fai) {
        const FileDiStrati file{[this](QWidget*) { return daLeggere; },
                                [this](QWidget*) { return daScrivere; }};
        programma.conPannelloStrati(dialogo, file, [&](Base2_32& f) {
            forma = &f;
            f.show();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
            fai(f);
        });
    }
    void premi(const char* nome) {
        QTest::mouseClick(&controllo<QPushButton>(*forma, nome), Qt::LeftButton);
    }
    // Presses a button of the panel and does something in the dialog that it opens.
    void premi(const char* nome, const std::function<void(QDialog&)>& nelDialogo) {
        const test::AllaProssimaFinestra<QDialog> aperto([&](QDialog& d) {
            nelDialogo(d);
            if (d.isVisible()) d.reject();
        });
        premi(nome);
        EXPECT_TRUE(aperto.fatto) << nome;
    }
    static void premiIn(QDialog& d, const char* nome) {
        QTest::mouseClick(&controllo<QPushButton>(d, nome), Qt::LeftButton);
    }
    void annullaNellaTabella() {
        QTest::keyClick(&controllo<QTableView>(*forma, "MSFlexGrid1"), Qt::Key_Z,
                        Qt::ControlModifier);
    }
    std::string descrizione(int riga) { return forma->modello().testo({riga, 7}); }
    // The first pattern that a search finds.
    static void scegli(QDialog& d, const QString& cercata) {
        controllo<QLineEdit>(d, "cerca").setText(cercata);
        auto& lista = controllo<QListWidget>(d, "campiture");
        for (int i = 0; i < lista.count(); ++i)
            if (!lista.item(i)->isHidden()) return lista.setCurrentRow(i);
        ADD_FAILURE() << cercata.toStdString();
    }

    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    test::CartellaProvvisoria cartella;
    test::ProgrammaConsegnato programma{1};
    test::DialogoFinto dialogo;
    std::optional<std::string> daLeggere;
    std::optional<FileDiStrati::Scritto> daScrivere;
    Base2_32* forma = nullptr;
};

TEST_F(Pannello, ShowsTheHatchOfTheCurrentRow) {
    conForma([](Base2_32& f) {
        ASSERT_TRUE(f.scrivi({2, 7}, "105C3 Argilla"));
        EXPECT_EQ(controllo<QLabel>(f, "nome").text(), "5 Argilla");
        EXPECT_EQ(controllo<QLabel>(f, "titolo").text(), "Strato 2");
        EXPECT_FALSE(controllo<QLabel>(f, "immagine").pixmap().isNull());
        ASSERT_TRUE(f.scrivi({3, 7}, "Argilla"));
        EXPECT_EQ(controllo<QLabel>(f, "nome").text(), "nessuna campitura");
        EXPECT_EQ(controllo<QLabel>(f, "titolo").text(), "Strato 3");
    });
}

TEST_F(Pannello, HandsCtrlZToTheTable) {
    conForma([this](Base2_32& f) {
        const std::string prima = descrizione(1);
        int provati = 0;
        for (auto* pezzo : controllo(f, "PannelloStrati").findChildren<QWidget*>()) {
            if (!pezzo->isVisible() || !pezzo->isEnabled() || pezzo->focusPolicy() == Qt::NoFocus)
                continue;
            ASSERT_TRUE(f.scrivi({1, 7}, "105 Limo"));
            pezzo->setFocus();
            QTest::keyClick(pezzo, Qt::Key_Z, Qt::ControlModifier);
            EXPECT_EQ(descrizione(1), prima) << pezzo->objectName().toStdString();
            ++provati;
        }
        EXPECT_GT(provati, 2);
    });
}

TEST_F(Pannello, FoldsAwayAndStaysSo) {
    conForma([](Base2_32& f) {
        EXPECT_TRUE(controllo(f, "importa").isVisible());
        const int largo = f.width();
        QTest::mouseClick(&controllo<QAbstractButton>(f, "PannelloStrati_mostra"), Qt::LeftButton);
        EXPECT_FALSE(controllo(f, "importa").isVisible());
        EXPECT_LT(f.width(), largo);
    });
    conForma([](Base2_32& f) { EXPECT_FALSE(controllo(f, "immagine").isVisible()); });
}

TEST_F(Pannello, WritesTheCodeChosenFromPicturesAsOneStep) {
    conForma([this](Base2_32& f) {
        f.scrivi({1, 7}, "103 Argilla  grigia|fine.");
        premi("campitura", [](QDialog& d) {
            EXPECT_EQ(controllo<QListWidget>(d, "campiture").currentItem()->text(),
                      "3 Sabbia mediamente addensata");
            scegli(d, "torba");
            controllo<QComboBox>(d, "colore").setCurrentIndex(2);
            controllo<QSpinBox>(d, "grandezza_0").setValue(3);
            premiIn(d, "conferma");
        });
        EXPECT_EQ(descrizione(1), "307C3 Argilla  grigia|fine.");
        annullaNellaTabella();
        EXPECT_EQ(descrizione(1), "103 Argilla  grigia|fine.");
    });
}

TEST_F(Pannello, LaysASecondPatternOverTheFirst) {
    conForma([this](Base2_32& f) {
        f.scrivi({1, 7}, "Argilla");
        premi("campitura", [](QDialog& d) {
            scegli(d, "5 argilla");
            QTest::mouseClick(&controllo(d, "livello_1"), Qt::LeftButton, {}, QPoint(5, 5));
            EXPECT_FALSE(controllo<QAbstractButton>(d, "livello_0").isChecked());
            scegli(d, "torba");
            EXPECT_EQ(controllo<QLabel>(d, "nome_0").text(), "5 Argilla");
            EXPECT_EQ(controllo<QLabel>(d, "nome_1").text(), "7 Torba");
            controllo<QCheckBox>(d, "linea").setChecked(false);
            EXPECT_EQ(controllo<QLabel>(d, "descrizione").text(),
                      "Descrizione dello strato: -107105 Argilla");
            premiIn(d, "conferma");
        });
        EXPECT_EQ(descrizione(1), "-107105 Argilla");
    });
}

TEST_F(Pannello, LeavesTheRowWhenTheChoiceIsGivenUp) {
    conForma([this](Base2_32& f) {
        f.scrivi({1, 7}, "103 Sabbia");
        premi("campitura", [](QDialog& d) {
            scegli(d, "torba");
            premiIn(d, "annulla");
        });
        EXPECT_EQ(descrizione(1), "103 Sabbia");
    });
}

TEST_F(Pannello, LetsAHatchBeChosenByKeysAlone) {
    conForma([this](Base2_32& f) {
        for (const auto tasto : {Qt::Key_Return, Qt::Key_Enter}) {
            f.scrivi({1, 7}, "Sabbia");
            premi("campitura", [tasto](QDialog& d) {
                QTest::keyClicks(d.focusWidget(), "torba");
                QTest::keyClick(d.focusWidget(), Qt::Key_Down);
                EXPECT_EQ(d.focusWidget()->objectName(), "campiture");
                EXPECT_EQ(controllo<QListWidget>(d, "campiture").currentItem()->text(), "7 Torba");
                QTest::keyClick(d.focusWidget(), tasto);
                EXPECT_EQ(d.result(), QDialog::Accepted);
            });
            EXPECT_EQ(descrizione(1), "107 Sabbia");
        }
        premi("campitura", [](QDialog& d) {
            auto& lista = controllo<QListWidget>(d, "campiture");
            lista.setFocus();
            for (const auto tasto : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Down, Qt::Key_Up}) {
                const int prima = lista.currentRow();
                QTest::keyClick(&lista, tasto);
                EXPECT_NE(lista.currentRow(), prima) << tasto;
            }
            QTest::keyClick(&lista, Qt::Key_Escape);
        });
        EXPECT_EQ(descrizione(1), "107 Sabbia");
    });
}

TEST_F(Pannello, PutsTheLayersOfATableInPlaceOfTheRowsAsOneStep) {
    daLeggere = cartella / "strati.csv";
    test::metti(*daLeggere, "Prof.;Phi;Descrizione\n2,5;30;103 Sabbia\n7;24;105 Argilla\n");
    conForma([this](Base2_32& f) {
        const Testi prima = f.modello().valoriTesto();
        premi("importa", [](QDialog& d) {
            EXPECT_EQ(d.windowTitle(), "Importazione degli strati - strati.csv");
            auto& tabella = controllo<QTableWidget>(d, "strati");
            ASSERT_EQ(tabella.rowCount(), 2);
            EXPECT_EQ(tabella.item(0, 0)->text(), "2.5");
            EXPECT_EQ(tabella.item(0, 1)->text(), "");
            controllo<QCheckBox>(d, "tieniValori").setChecked(true);
            EXPECT_EQ(tabella.item(0, 1)->text(), "18") << "what the small wall has there";
            controllo<QCheckBox>(d, "tieniValori").setChecked(false);
            premiIn(d, "importa");
        });
        EXPECT_EQ(f.modello().valoriTesto(), (Testi{"2", "2.5", "", "", "30", "", "", "103 Sabbia",
                                                    "7", "", "", "24", "", "", "105 Argilla"}));
        EXPECT_TRUE(dialogo.messaggi.empty());
        annullaNellaTabella();
        EXPECT_EQ(f.modello().valoriTesto(), prima);
    });
}

TEST_F(Pannello, SaysWhatWasImportedAndLeadsToTheCellsThatAreStillEmpty) {
    daLeggere = cartella / "strati.csv";
    test::metti(*daLeggere, "Prof.;Gamma;Phi;Descrizione\n2,5;18;30;103 Sabbia\n7;19;24;105 A\n");
    project::Progetto.metodoKs = project::valore(project::MetodoKs::bowles);
    conForma([this](Base2_32& f) {
        const auto striscia = [&f] { return controllo<QLabel>(f, "Label1").text().toStdString(); };
        EXPECT_FALSE(controllo(f, "vaiVuota").isEnabled());
        EXPECT_EQ(striscia().find("vuot"), std::string::npos);
        premi("importa", [](QDialog& d) { premiIn(d, "importa"); });
        EXPECT_TRUE(striscia().starts_with(
            "Strati importati da «" + *daLeggere +
            "»: 2. Celle vuote nella riga 1: Gamma Sat. [kN/m³], Coes. [kN/m²]. Altre righe con "
            "celle vuote: 1. La conferma legge una cella vuota come 0.\n"))
            << striscia();
        EXPECT_EQ(f.modello().corrente(), (masks::PostoGriglia{1, 3}));
        for (const auto& posto : {masks::PostoGriglia{1, 5}, {2, 3}, {2, 5}, {1, 3}}) {
            premi("vaiVuota");
            EXPECT_EQ(f.modello().corrente(), posto);
        }
        f.scrivi({1, 3}, "20");
        EXPECT_TRUE(striscia().starts_with("Celle vuote nella riga 1: Coes. [kN/m²]. Altre "))
            << striscia();
        for (const auto& posto : {masks::PostoGriglia{1, 5}, {2, 3}, {2, 5}}) f.scrivi(posto, "1");
        EXPECT_FALSE(controllo(f, "vaiVuota").isEnabled());
        EXPECT_EQ(striscia(), f.modello().aiuto());
    });
}

TEST_F(Pannello, TakesTheLayersOfAHoleFromTheWallsHead) {
    daLeggere = cartella / "scavo.ags";
    test::metti(*daLeggere, test::gruppoLoca({{"BH1", "101.35"}, {"BH2", "99.00"}}) +
                                test::gruppoGeol({{"BH1", "0.00", "3.40", "Firm CLAY"},
                                                  {"BH2", "0.00", "2.00", "Fill"},
                                                  {"BH2", "2.00", "9.00", "Dense SAND"}}));
    conForma([this](Base2_32& f) {
        premi("importa", [](QDialog& d) {
            auto& tabella = controllo<QTableWidget>(d, "strati");
            EXPECT_EQ(tabella.rowCount(), 1);
            controllo<QComboBox>(d, "foro").setCurrentIndex(1);
            EXPECT_EQ(tabella.rowCount(), 2);
            controllo<QComboBox>(d, "modo").setCurrentIndex(1);
            auto& testa = controllo<QLineEdit>(d, "testa");
            testa.setText("novanta");
            EXPECT_EQ(tabella.rowCount(), 0);
            EXPECT_FALSE(controllo(d, "importa").isEnabled());
            EXPECT_EQ(controllo<QPlainTextEdit>(d, "messaggi").toPlainText(),
                      "Non si può importare:\ntesta della paratia: «novanta» non è un numero");
            testa.setText("97.5");
            EXPECT_TRUE(controllo<QCheckBox>(d, "mettiCodice").isChecked());
            premiIn(d, "importa");
        });
        EXPECT_EQ(f.modello().valoriTesto(), (Testi{"2", "0.5", "", "", "", "", "", "0 Fill", "7.5",
                                                    "", "", "", "", "", "0 Dense SAND"}));
    });
}

TEST_F(Pannello, TakesNothingOfAFileWithAFault) {
    daLeggere = cartella / "strati.csv";
    test::metti(*daLeggere, "Prof.;Phi\n2,5;trenta\n");
    conForma([this](Base2_32& f) {
        const Testi prima = f.modello().valoriTesto();
        premi("importa", [](QDialog& d) {
            EXPECT_FALSE(controllo(d, "importa").isEnabled());
            EXPECT_EQ(controllo<QPlainTextEdit>(d, "messaggi").toPlainText(),
                      "Non si può importare:\n"
                      "riga 2, colonna 2: «trenta» non è un numero (Phi [°])");
        });
        EXPECT_EQ(f.modello().valoriTesto(), prima);
        daLeggere = cartella / "manca.csv";
        premi("importa");
        ASSERT_EQ(dialogo.messaggi.size(), 1U);
        EXPECT_EQ(dialogo.messaggi[0].icona, base::Icona::avviso);
        daLeggere = std::nullopt;
        premi("importa");
        EXPECT_EQ(f.modello().valoriTesto(), prima);
    });
}

TEST_F(Pannello, WritesTheLayersSoThatTheyReadBack) {
    daScrivere = {cartella / "fuori.csv", exchange::csvPuntoEVirgola};
    conForma([this](Base2_32& f) {
        f.scrivi({1, 7}, "105C3 Argilla; \"grassa\"");
        premi("esporta");
        const auto letti =
            exchange::leggiCsv(exchange::testoDiFile(base::leggiFile(daScrivere->percorso)));
        ASSERT_TRUE(letti.riuscita());
        Testi celle{std::to_string(letti.righe.size())};
        for (const auto& riga : letti.righe) celle.insert(celle.end(), riga.begin(), riga.end());
        EXPECT_EQ(celle, f.modello().valoriTesto());
        EXPECT_TRUE(dialogo.messaggi.empty());
        EXPECT_TRUE(controllo<QLabel>(f, "Label1")
                        .text()
                        .toStdString()
                        .starts_with("Strati scritti in «" + daScrivere->percorso +
                                     "»: " + celle[0] + "."));
    });
}

// What an office wrote in one language is read in another one.
TEST_F(Pannello, ReadsInEveryLanguageWhatItWroteInAnyOther) {
    const exchange::RigheStrati scritte{{"3.5", "18", "19.5", "30", "0", "5000", "103C3 Sabbia"},
                                        {"12", "19", "", "24", "10", "", "without a code"}};
    std::set<std::string> nomi;
    for (int lingua = 1; lingua <= 6; ++lingua) {
        const test::TestiConsegnati testi(lingua);
        for (const auto& segni : {exchange::csvPuntoEVirgola, exchange::csvVirgola}) {
            base::impostaLingua(lingua);
            const std::string testo = exchange::testoCsv(scritte, segni);
            nomi.insert(testo.substr(0, testo.find('\r')));
            for (int letta = 1; letta <= 6; ++letta) {
                base::impostaLingua(letta);
                const auto letti = exchange::leggiCsv(exchange::testoDiFile(testo));
                EXPECT_EQ(letti.righe, scritte) << lingua << letta << testo;
                EXPECT_EQ(letti.avvertenze, Testi{});
                EXPECT_TRUE(letti.descrizioniConCodice);
            }
        }
    }
    EXPECT_GE(nomi.size(), 10U) << "names are those of the language";
}

TEST_F(Pannello, ReadsThicknessesAndWordsOfEveryLanguage) {
    const test::TestiConsegnati testi(1);
    for (const char* nomi : {"Dicke [m];Kohäs.;Beschreibung", "Épaisseur;Cohés. [kPa];description",
                             "espessura;coes.;DESCRIÇÃO", "Espesor (m);Cohes;Descripción"}) {
        const auto letti = exchange::leggiCsv(std::string(nomi) + "\n2;5;x\n");
        EXPECT_EQ(letti.righe, (exchange::RigheStrati{{"2", "", "", "", "5", "", "x"}})) << nomi;
        EXPECT_FALSE(letti.descrizioniConCodice);
    }
}

TEST_F(Pannello, WritesNoLayersThatWouldNotReadBackOrOverTheProject) {
    daScrivere = {cartella / "fuori.csv", exchange::csvVirgola};
    conForma([this](Base2_32& f) {
        f.scrivi({1, 1}, "");
        premi("esporta");
        ASSERT_EQ(dialogo.messaggi.size(), 1U);
        EXPECT_EQ(dialogo.messaggi[0].testo,
                  "Gli strati non si possono scrivere:\r\n"
                  "riga 1, colonna 1: manca la profondità dello strato");
        f.sostituisci({}, "x");
        premi("esporta");
        EXPECT_EQ(dialogo.messaggi[1].testo, "Non ci sono strati da scrivere.");
        EXPECT_FALSE(base::esisteFile(daScrivere->percorso));
        f.sostituisci({{"3"}}, "x");
        test::metti(cartella / "muro.kvd", "dati");
        project::fileCorrente = daScrivere->percorso = cartella / "muro.kvd";
        premi("esporta");
        project::fileCorrente.clear();
        EXPECT_EQ(dialogo.messaggi.size(), 3U);
        EXPECT_EQ(base::leggiFile(daScrivere->percorso), "dati");
        daScrivere->percorso = cartella / "manca/fuori.csv";
        premi("esporta");
        EXPECT_EQ(dialogo.messaggi.size(), 4U);
    });
}

}  // namespace
}  // namespace korven::shell
