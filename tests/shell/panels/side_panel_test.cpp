#include "shell/panels/side_panel.hpp"

#include <gtest/gtest.h>

#include <QToolButton>

#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

class Pannello : public PannelloLaterale {
 public:
    Pannello() : PannelloLaterale("prova", "Prova") { riempi(nullptr, new QWidget); }
};

TEST(PannelloLaterale, SaysOverItsButtonWhatAPressDoes) {
    test::applicazione();
    const test::UtenteNuovo utente;
    Pannello pannello;
    auto& bottone = test::controllo<QToolButton>(pannello, "prova_mostra");
    if (!pannello.aperto()) bottone.click();
    EXPECT_EQ(bottone.toolTip(), "Nascondi il pannello");
    bottone.click();
    EXPECT_FALSE(pannello.aperto());
    EXPECT_EQ(bottone.toolTip(), "Mostra il pannello");
    EXPECT_EQ(bottone.accessibleName(), "Mostra il pannello: Prova");
}

}  // namespace
}  // namespace korven::shell
