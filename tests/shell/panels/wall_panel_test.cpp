// The panel beside the fields of the wall, in the form as the program opens it.

#include "shell/panels/wall_panel.hpp"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

#include "base/bound_units.hpp"
#include "base/code_page.hpp"
#include "scene/scene.hpp"
#include "shell/form_sizes.hpp"
#include "shell/masks/base1.hpp"
#include "shell/panels/stage_sketch.hpp"
#include "support/panel_bench.hpp"
#include "support/wall_builder.hpp"

namespace korven::shell {
namespace {

class PannelloDellaParatia : public test::BancoPannelli {
 protected:
    static project::DatiProgetto muro(double lungo) {
        return test::muro().lungo(lungo).fase({.scavo = 1}).fase({.scavo = 3}).dati();
    }
    void apri(const std::function<void(FormaMaschera&)>& azione) {
        masks::preparaMaschera(maschere, masks::NumeroMaschera::paratia, project::Progetto, 0);
        const test::AllaProssimaFinestra<FormaMaschera> finestra([&](FormaMaschera& scheda) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&scheda));
            azione(scheda);
            scheda.reject();
        });
        mostraForm(maschere, dialogo, {}, nullptr, &vita, pannelli);
        EXPECT_TRUE(finestra.fatto);
        maschere.rilasciaForm();
    }
    // What the picture of stage 2 comes to; no line ends between a number and its unit.
    static std::string dette(const project::DatiProgetto& dati) {
        return base::unitaUnite(
            base::conMaiuscola(scene::descrizione(live::calcola(dati), {.fase = 2})));
    }
    static std::string parole(FormaMaschera& scheda) {
        return test::controllo<QLabel>(scheda, "paroleParatia").text().toStdString();
    }
};

TEST_F(PannelloDellaParatia, FollowsEachKeyInTheStageOfTheMainForm) {
    progetto(muro(10));
    vita.mostra({.fase = 2});
    apri([&](FormaMaschera& scheda) {
        auto& schizzo = test::controllo<SchizzoFase>(scheda, "schizzoFase");
        EXPECT_EQ(schizzo.fase(), 2);
        EXPECT_EQ(parole(scheda), dette(muro(10)));
        const QImage prima = schizzo.grab().toImage();
        auto& lunghezza = test::controllo<QLineEdit>(scheda, "Text1_0");
        ASSERT_EQ(lunghezza.text(), "10");
        lunghezza.setText("12");
        EXPECT_EQ(parole(scheda), dette(muro(12)));
        EXPECT_EQ(base::unitaUnite(schizzo.accessibleDescription().toStdString()), parole(scheda));
        EXPECT_NE(schizzo.grab().toImage(), prima);
        vita.mostra({.fase = 1});
        EXPECT_EQ(schizzo.fase(), 1);
        lunghezza.setText("doz");
        EXPECT_TRUE(parole(scheda).starts_with("Com'era prima delle modifiche in corso"))
            << parole(scheda);
    });
}

TEST_F(PannelloDellaParatia, LeavesTheFieldsTheirWidthOrBeginsFolded) {
    progetto(muro(10));
    apri([&](FormaMaschera& scheda) {
        const auto& campi = *scheda.findChild<QScrollArea*>();
        ASSERT_TRUE(campi.isAncestorOf(&test::controllo(scheda, "Text1_0")));
        EXPECT_EQ(campi.horizontalScrollBar()->maximum(), 0);
        const QSize massima = misuraMassima(scheda);
        EXPECT_LE(scheda.width(), massima.width());
        // With the panel there would be no room on a screen of 800 pixels.
        const bool posto = massima.width() >= 1000;
        EXPECT_EQ(test::controllo(scheda, "schizzoFase").isVisible(), posto) << massima.width();
    });
}

}  // namespace
}  // namespace korven::shell
