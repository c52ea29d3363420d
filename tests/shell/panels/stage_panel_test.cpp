// The panel beside the table of stages, in the form as the program opens it.

#include "shell/panels/stage_panel.hpp"

#include <gtest/gtest.h>

#include <QLabel>

#include "base/code_page.hpp"
#include "panels/stage_words.hpp"
#include "support/panel_bench.hpp"
#include "support/wall_builder.hpp"

namespace korven::shell {
namespace {

class PannelloDelleFasi : public test::BancoPannelli {
 protected:
    void SetUp() override { progetto(muro()); }
    static project::DatiProgetto muro() {
        return test::muro().lungo(10).fase({.scavo = 1}).fase({.scavo = 3}).dati();
    }
    void apri(const std::function<void()>& azione) {
        apriMaschera(masks::NumeroMaschera::fasi, azione);
    }
    SchizzoFase& schizzo() { return controllo<SchizzoFase>("schizzoFase"); }
    QString righe() { return controllo<QLabel>("paroleFase").text(); }
    std::string parole() { return righe().replace(QChar::Nbsp, QChar::Space).toStdString(); }
};

TEST_F(PannelloDelleFasi, ShowsTheStageOfTheRowInUse) {
    apri([&] {
        EXPECT_EQ(schizzo().fase(), 1);
        EXPECT_EQ(parole(), base::conMaiuscola(panels::paroleFase(live::calcola(muro()), 1)));
        cursore(2, 1);
        EXPECT_EQ(schizzo().fase(), 2);
        EXPECT_EQ(parole(), base::conMaiuscola(panels::paroleFase(live::calcola(muro()), 2)));
        EXPECT_EQ(schizzo().accessibleDescription().toStdString(), parole());
        // No line ends within "kN m/m".
        EXPECT_TRUE(righe().contains(QStringLiteral("\u00a0kN\u00a0m/m a ")));
    });
}

TEST_F(PannelloDelleFasi, KeepsTheLastRowsStageOnAnEmptyRow) {
    apri([&] {
        for (const int riga : {3, 9}) {
            cursore(riga, 1);
            EXPECT_EQ(schizzo().fase(), 2);
            EXPECT_EQ(parole(), "La riga è vuota; " + panels::paroleFase(live::calcola(muro()), 2));
        }
    });
}

TEST_F(PannelloDelleFasi, HandsCtrlZToTheTable) {
    apri([&] { EXPECT_EQ(nonAnnullano("pannelloFasi"), ""); });
}

TEST_F(PannelloDelleFasi, ShowsNothingWhereNoRowHasData) {
    auto vuoto = muro();
    vuoto.nFasi = 0;
    progetto(vuoto);
    apri([&] {
        EXPECT_FALSE(schizzo().fase());
        EXPECT_EQ(parole(), "La riga è vuota");
    });
}

TEST_F(PannelloDelleFasi, FollowsWhatIsTyped) {
    apri([&] {
        cursore(2, 1);
        const QImage prima = schizzo().grab().toImage();
        QTest::keyClicks(&griglia(), "4");
        auto dati = muro();
        dati.profFase[2] = 4;
        EXPECT_EQ(parole(), base::conMaiuscola(panels::paroleFase(live::calcola(dati), 2)));
        EXPECT_NE(schizzo().grab().toImage(), prima);
    });
}

TEST_F(PannelloDelleFasi, KeepsTheLastSketchAndSaysWhatIsInTheWay) {
    apri([&] {
        cursore(2, 4);
        QTest::keyClick(&griglia(), Qt::Key_Backspace);
        QTest::keyClick(&griglia(), Qt::Key_Backspace);
        EXPECT_EQ(schizzo().fase(), 2);
        EXPECT_TRUE(
            parole().starts_with("Com'era prima delle modifiche in corso (riga 2: dati "
                                 "incompleti): fase 2 in equilibrio"))
            << parole();
        cursore(3, 1);
        QTest::keyClicks(&griglia(), "5");
        EXPECT_EQ(schizzo().fase(), 2);
        EXPECT_TRUE(parole().starts_with("Riga 2: dati incompleti; fase 2 in equilibrio"))
            << parole();
    });
}

TEST_F(PannelloDelleFasi, IsDrawnOnDarkDesktopsToo) {
    apri([&] {
        const QColor chiaro = schizzo().grab().toImage().pixelColor(1, 1);
        QPalette notte;
        notte.setColor(QPalette::Window, Qt::black);
        notte.setColor(QPalette::WindowText, Qt::white);
        schizzo().setPalette(notte);
        EXPECT_LT(schizzo().grab().toImage().pixelColor(1, 1).lightness(), chiaro.lightness());
    });
}

TEST_F(PannelloDelleFasi, TakesNoKeysFromTheGrid) {
    apri([&] {
        EXPECT_TRUE(griglia().hasFocus());
        EXPECT_EQ(schizzo().focusPolicy(), Qt::NoFocus);
        QTest::mouseClick(&schizzo(), Qt::LeftButton);
        EXPECT_TRUE(griglia().hasFocus());
    });
}

}  // namespace
}  // namespace korven::shell
