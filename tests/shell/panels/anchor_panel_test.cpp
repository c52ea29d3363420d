// The panel beside the table of anchors, in the form as the program opens it.

#include "shell/panels/anchor_panel.hpp"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTreeWidget>

#include "base/number_text.hpp"
#include "support/panel_bench.hpp"
#include "support/wall_builder.hpp"

namespace korven::shell {
namespace {

// 10 m of wall in sand, its anchor placed and stressed at 2 m, dug to 5 m.
project::DatiProgetto ancorato() {
    return test::muro()
        .lungo(10)
        .tirante(1.5, 500, 8)
        .tirante(3, 400, 5)
        .fase({.scavo = 2})
        .fase({.scavo = 2, .tiranti = 1})
        .fase({.scavo = 5, .tiranti = 1})
        .dati();
}

class PannelloDeiTiranti : public test::BancoPannelli {
 protected:
    void SetUp() override { progetto(ancorato()); }
    void apri(std::function<void()> azione) {
        apriMaschera(masks::NumeroMaschera::tiranti, std::move(azione));
    }
    void riempi() {
        const char* testi[] = {"195000", "4", "140", "12", "2.4", "30", "480"};
        controllo<QComboBox>("calcolo0").setEditText(testi[0]);
        for (int i = 1; i < 7; ++i) casella(i).setText(testi[i]);
    }
    QLineEdit& casella(int i) {
        return controllo<QLineEdit>(("calcolo" + std::to_string(i)).c_str());
    }
    void premi(const char* pulsante) {
        QTest::mouseClick(&controllo<QPushButton>(pulsante), Qt::LeftButton);
    }
    std::string testo(const char* etichetta) {
        return controllo<QLabel>(etichetta).text().toStdString();
    }
    std::string tiro(int fase, int colonna = 2) {
        return controllo<QTreeWidget>("tiriFasi")
            .topLevelItem(fase - 1)
            ->text(colonna)
            .toStdString();
    }
    int fasiMostrate() { return controllo<QTreeWidget>("tiriFasi").topLevelItemCount(); }
    // As the wall that is typed has it, computed anew.
    std::string tiroCalcolato(const project::DatiProgetto& dati, int fase) {
        const auto parete = live::calcola(dati);
        return base::testoDecimali(10 * parete.fase(fase)->tiri[0], 1);
    }
};

TEST_F(PannelloDeiTiranti, WritesTheStiffnessIntoTheRowInUseInOneStepThatCtrlZTakesBack) {
    apri([&] {
        cursore(2, 4);
        riempi();
        EXPECT_TRUE(testo("calcoloRigidezza").ends_with("= 2843.8\u00A0kN/m/m"));
        EXPECT_EQ(controllo<QPushButton>("scriviRigidezza").text(),
                  "Scrivi la rigidezza nella riga 2");
        premi("scriviRigidezza");
        EXPECT_EQ(cella(2, 2), "2843.8");
        EXPECT_EQ(vita.vivo().dati().rigTirante[2], 284.38);
        EXPECT_TRUE(casella(6).hasFocus());
        QTest::keyClick(&griglia(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(cella(2, 2), "4000");
        EXPECT_EQ(vita.vivo().dati().rigTirante[2], 400);
    });
}

TEST_F(PannelloDeiTiranti, SaysWhichTypeAStrutHasUntilItsRowHasIt) {
    apri([&] {
        cursore(2, 4);
        auto& nota = controllo<QLabel>("calcoloTipologia");
        EXPECT_FALSE(nota.isVisible());
        controllo<QComboBox>("calcoloGenere").setCurrentIndex(1);
        EXPECT_TRUE(nota.isVisible());
        EXPECT_TRUE(nota.text().startsWith("Riga 2: con la tipologia 0 "))
            << testo("calcoloTipologia");
        QTest::keyClick(&griglia(), Qt::Key_1);
        EXPECT_FALSE(nota.isVisible());
        controllo<QComboBox>("calcoloGenere").setCurrentIndex(0);
        EXPECT_FALSE(nota.isVisible());
    });
}

TEST_F(PannelloDeiTiranti, WritesThePrestress) {
    apri([&] {
        riempi();
        premi("scriviPretensione");
        EXPECT_EQ(cella(1, 3), "173.21");
        EXPECT_EQ(cella(1, 2), "5000");
        EXPECT_EQ(forma->focusWidget()->objectName(), "scriviPretensione");
    });
}

TEST_F(PannelloDeiTiranti, TakesItsInputsBackByCtrlZAndSaysWhich) {
    apri([&] {
        riempi();
        QTest::keyClicks(&casella(4), "5");
        EXPECT_EQ(casella(4).text(), "2.45");
        casella(2).setFocus();
        QTest::keyClick(&casella(2), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(casella(4).text(), "2.4");
        EXPECT_TRUE(casella(4).hasFocus());
        EXPECT_EQ(testo("Label1"),
                  "Annullato: campo Interasse s\n"
                  "Distanza tra due tiranti o puntoni lungo la paratia.");
        EXPECT_TRUE(testo("calcoloRigidezza").ends_with("= 2843.8\u00A0kN/m/m"));
        QTest::keyClick(&casella(4), Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(casella(4).text(), "2.45");
        QTest::keyClicks(&casella(6), "1");
        EXPECT_EQ(testo("Label1").find("Annullato"), std::string::npos);
        EXPECT_EQ(testo("Label1").find("Ripetuto"), std::string::npos);
    });
}

TEST_F(PannelloDeiTiranti, TakesBackItsChoicesAndAModulusOfTheList) {
    apri([&] {
        auto& genere = controllo<QComboBox>("calcoloGenere");
        auto& modulo = controllo<QComboBox>("calcolo0");
        genere.setCurrentIndex(2);
        modulo.setCurrentIndex(2);
        QTest::keyClick(&modulo, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(modulo.currentText(), "195000");
        QTest::keyClick(&modulo, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(genere.currentIndex(), 0);
        EXPECT_EQ(etichettaDi(casella(3)), "Lunghezza libera L [m]");
        EXPECT_TRUE(genere.hasFocus());
    });
}

TEST_F(PannelloDeiTiranti, TakesBackWhatItWroteAndKeepsTheKeyboard) {
    apri([&] {
        riempi();
        premi("scriviPretensione");
        ASSERT_EQ(cella(1, 3), "173.21");
        casella(6).setFocus();
        QTest::keyClick(&casella(6), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(cella(1, 3), "80");
        EXPECT_EQ(casella(6).text(), "480");
        EXPECT_TRUE(casella(6).hasFocus());
        EXPECT_TRUE(testo("Label1").starts_with("Annullato: cella "));
        QTest::keyClick(&casella(6), Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(cella(1, 3), "173.21");
    });
}

TEST_F(PannelloDeiTiranti, DoesAgainInTheOrderInWhichItTookBackAndSaysOneOfThem) {
    apri([&] {
        riempi();
        premi("scriviPretensione");
        const std::string prima = casella(1).text().toStdString();
        casella(1).setText(QStringLiteral("7"));
        const auto tasto = [&](Qt::Key quale) {
            QTest::keyClick(&casella(1), quale, Qt::ControlModifier);
            return testo("Label1").substr(0, testo("Label1").find('\n'));
        };
        EXPECT_EQ(tasto(Qt::Key_Z).rfind("Annullato: campo ", 0), 0U);
        EXPECT_EQ(casella(1).text().toStdString(), prima);
        EXPECT_EQ(tasto(Qt::Key_Z).rfind("Annullato: cella ", 0), 0U);
        EXPECT_EQ(cella(1, 3), "80");
        EXPECT_EQ(testo("Label1").find("campo "), std::string::npos);
        EXPECT_EQ(tasto(Qt::Key_Y).rfind("Ripetuto: cella ", 0), 0U);
        EXPECT_EQ(cella(1, 3), "173.21");
        EXPECT_EQ(casella(1).text().toStdString(), prima);
        EXPECT_EQ(tasto(Qt::Key_Y).rfind("Ripetuto: campo ", 0), 0U);
        EXPECT_EQ(casella(1).text(), "7");
        EXPECT_EQ(testo("Label1").find("cella "), std::string::npos);
        EXPECT_EQ(tasto(Qt::Key_Y), "Nulla da ripetere");
        EXPECT_EQ(testo("Label1").find("Ripetuto"), std::string::npos);
        casella(1).setText(QStringLiteral("8"));
        EXPECT_EQ(testo("Label1").find("Nulla"), std::string::npos);
    });
}

TEST_F(PannelloDeiTiranti, SaysNothingMoreOfItsInputsOnceTheTableIsAskedToTakeBack) {
    apri([&] {
        riempi();
        QTest::keyClick(&casella(2), Qt::Key_Z, Qt::ControlModifier);
        ASSERT_TRUE(testo("Label1").starts_with("Annullato: campo "));
        QTest::keyClick(&griglia(), Qt::Key_Z, Qt::ControlModifier);  // no step of its own
        EXPECT_EQ(testo("Label1").find("campo "), std::string::npos) << testo("Label1");
    });
}

TEST_F(PannelloDeiTiranti, HandsCtrlZToTheTableWhileNothingIsTypedIntoIt) {
    apri([&] { EXPECT_EQ(nonAnnullano("pannelloTiranti"), ""); });
}

TEST_F(PannelloDeiTiranti, TellsWhatTheColumnDoesNotTake) {
    apri([&] {
        riempi();
        casella(6).setText("900000");  // 324,760 kN, beyond what may be typed
        premi("scriviPretensione");
        EXPECT_EQ(cella(1, 3), "80");
        EXPECT_EQ(dialogo.messaggi.size(), 1U);
    });
}

TEST_F(PannelloDeiTiranti, WritesNothingWhileAnInputIsMissingAndSaysWhich) {
    apri([&] {
        riempi();
        casella(4).setText("0");
        EXPECT_EQ(testo("calcoloRigidezza"), "Interasse s [m]: deve essere maggiore di 0");
        EXPECT_FALSE(controllo<QPushButton>("scriviRigidezza").isEnabled());
        EXPECT_FALSE(controllo<QPushButton>("scriviPretensione").isEnabled());
        casella(4).setText("2");
        casella(2).clear();
        EXPECT_FALSE(controllo<QPushButton>("scriviRigidezza").isEnabled());
        EXPECT_TRUE(controllo<QPushButton>("scriviPretensione").isEnabled());
    });
}

TEST_F(PannelloDeiTiranti, NamesWhatTheChoicesAskFor) {
    apri([&] {
        riempi();
        controllo<QComboBox>("calcoloGenere").setCurrentIndex(2);
        controllo<QComboBox>("calcoloMisura").setCurrentIndex(1);
        EXPECT_TRUE(testo("calcoloRigidezza").starts_with("k = E A cos²α / (L/2 s) ="));
        EXPECT_TRUE(testo("calcoloArea").starts_with("A = n π d² / 4 ="));
        EXPECT_EQ(etichettaDi(casella(3)), "Distanza tra le paratie L [m]");
        EXPECT_EQ(etichettaDi(casella(6)), "Precarico di un puntone F [kN]");
    });
}

TEST_F(PannelloDeiTiranti, ShowsTheForceOfTheRowInEachStageWhileItIsTyped) {
    apri([&] {
        ASSERT_EQ(fasiMostrate(), 3);
        EXPECT_EQ(tiro(1), "–");
        EXPECT_EQ(tiro(1, 4), "non in opera");
        EXPECT_EQ(tiro(3), tiroCalcolato(ancorato(), 3));
        cursore(1, 3);
        QTest::keyClicks(&griglia(), "200");  // prestress, 20 t
        auto dati = ancorato();
        dati.pretTirante[1] = 20;
        EXPECT_EQ(tiro(2), tiroCalcolato(dati, 2));
        EXPECT_EQ(tiro(3), tiroCalcolato(dati, 3));
        EXPECT_NE(tiro(2), tiroCalcolato(ancorato(), 2));
        cursore(2, 1);
        EXPECT_EQ(tiro(3, 4), "non in opera");
    });
}

TEST_F(PannelloDeiTiranti, MarksTheLargestAndGivesTheForceOfOneAnchor) {
    auto dati = ancorato();
    dati.rigTirante[1] = 0;  // 80 kN/m in both stages
    progetto(dati);
    apri([&] {
        EXPECT_EQ(tiro(2, 3), "–");
        riempi();
        EXPECT_EQ(tiro(2, 2), "80.0");
        EXPECT_EQ(tiro(2, 3), "221.7");  // 80 * 2.4 / cos 30° = 221.70
        EXPECT_EQ(tiro(2, 4), "massimo");
        EXPECT_TRUE(controllo<QTreeWidget>("tiriFasi").topLevelItem(1)->font(2).bold());
        EXPECT_FALSE(controllo<QTreeWidget>("tiriFasi").topLevelItem(2)->font(2).bold());
    });
}

TEST_F(PannelloDeiTiranti, FollowsARowToThePlaceThatItWillHave) {
    apri([&] {
        const std::string prima = tiro(3);
        cursore(1, 1);
        QTest::keyClicks(&griglia(), "4");  // below the other one
        EXPECT_EQ(testo("tiriTitolo"),
                  "Tiro della riga 1 in ogni fase (alla conferma sarà il tirante 2)");
        EXPECT_EQ(tiro(3, 4), "non in opera");
        cursore(2, 1);
        EXPECT_NE(tiro(3), "–");
        EXPECT_NE(tiro(3), prima);
    });
}

TEST_F(PannelloDeiTiranti, ShowsNoForcesWhileTheTableIsNotComplete) {
    apri([&] {
        EXPECT_EQ(testo("tiriPerche"), "");
        cursore(3, 1);
        EXPECT_EQ(testo("tiriPerche"), "la riga è vuota");
        QTest::keyClicks(&griglia(), "6");
        EXPECT_EQ(fasiMostrate(), 0);
        EXPECT_EQ(testo("tiriPerche"),
                  "i tiri tornano quando la tabella è completa: riga 3: dati incompleti");
        QTest::keyClick(&griglia(), Qt::Key_Backspace);
        cursore(1, 1);
        EXPECT_EQ(fasiMostrate(), 3);
    });
}

TEST_F(PannelloDeiTiranti, SaysWhichStageDoesNotStand) {
    auto dati = ancorato();
    dati.profFase[3] = 10;
    progetto(dati);
    apri([&] {
        EXPECT_EQ(tiro(3, 4), "non in equilibrio");
        EXPECT_TRUE(testo("tiriPerche").starts_with("la paratia è un meccanismo nella fase 3"));
    });
}

TEST_F(PannelloDeiTiranti, HasItsInputsStillWhenTheFormOpensAgain) {
    apri([&] { riempi(); });
    apri([&] {
        EXPECT_EQ(casella(4).text(), "2.4");
        premi("scriviRigidezza");
        EXPECT_EQ(cella(1, 2), "2843.8");
    });
}

TEST_F(PannelloDeiTiranti, LeavesTheKeysToTheGridAndComesAfterItsControls) {
    apri([&] {
        EXPECT_TRUE(griglia().hasFocus());
        controllo<QPushButton>("Command1_4").setFocus();
        QTest::keyClick(forma->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(forma->focusWidget()->objectName(), "pannelloTiranti_mostra");
        riempi();
        controllo<QPushButton>("scriviRigidezza").setFocus();
        QTest::keyClick(forma->focusWidget(), Qt::Key_Return);
        EXPECT_EQ(cella(1, 2), "2843.8");
    });
}

TEST_F(PannelloDeiTiranti, IsGoneThroughByTheTabKeyAsItStands) {
    apri([&] {
        riempi();
        controllo<QComboBox>("calcoloGenere").setFocus();
        QStringList via;
        for (int i = 0; i < 11; ++i) {
            via << forma->focusWidget()->objectName();
            QTest::keyClick(forma->focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(via.join(' ').toStdString(),
                  "calcoloGenere calcolo0 calcolo1 calcoloMisura calcolo2 calcolo3 calcolo4 "
                  "calcolo5 scriviRigidezza calcolo6 scriviPretensione");
    });
}

TEST_F(PannelloDeiTiranti, HasItsInputsExplainedInTheStrip) {
    apri([&] {
        const std::string cella = testo("Label1");
        casella(4).setFocus();
        EXPECT_EQ(testo("Label1"), "Distanza tra due tiranti o puntoni lungo la paratia.");
        auto& striscia = controllo<QLabel>("Label1");
        striscia.setFocus();
        QTest::keyClick(&striscia, Qt::Key_Space);
        ASSERT_EQ(dialogo.messaggi.size(), 1U);
        EXPECT_EQ(dialogo.messaggi[0].testo,
                  "Distanza tra due tiranti o puntoni lungo la paratia.");
        EXPECT_EQ(dialogo.messaggi[0].titolo, "Interasse s [m]");
        controllo<QComboBox>("calcolo0").setFocus();
        EXPECT_TRUE(testo("Label1").starts_with("Modulo elastico dell'acciaio"));
        griglia().setFocus();
        EXPECT_EQ(testo("Label1"), cella);
    });
}

TEST_F(PannelloDeiTiranti, FoldsAwayAndStaysSo) {
    apri([&] {
        const int larga = forma->width(), tabella = griglia().width();
        QTest::mouseClick(&controllo<QAbstractButton>("pannelloTiranti_mostra"), Qt::LeftButton);
        EXPECT_FALSE(controllo<QLineEdit>("calcolo1").isVisible());
        EXPECT_LT(forma->width(), larga);
        QApplication::processEvents();
        EXPECT_GE(griglia().width(), tabella - 2);
    });
    apri([&] {
        EXPECT_FALSE(controllo<QLineEdit>("calcolo1").isVisible());
        QTest::keyClick(&controllo<QAbstractButton>("pannelloTiranti_mostra"), Qt::Key_Space);
        EXPECT_TRUE(controllo<QLineEdit>("calcolo1").isVisible());
    });
}

}  // namespace
}  // namespace korven::shell
