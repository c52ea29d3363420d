#include "shell/live/live_view.hpp"

#include <gtest/gtest.h>

#include "support/document_ports.hpp"
#include "support/form_setup.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::shell {
namespace {

class VitaProgettoTest : public ::testing::Test {
 protected:
    VitaProgettoTest() {
        QObject::connect(&vita, &VitaProgetto::cambiata, [this] { ++cambi; });
    }
    void apri() {
        project::Progetto = test::progettoSemplice();
        project::fileCorrente = "muro.kvd";
        vita.guarda();
    }

    QApplication& app = test::applicazione();
    test::AmbienteDocumento ambiente;
    VitaProgetto vita;
    int cambi = 0;
};

TEST_F(VitaProgettoTest, SaysNothingWithoutAProject) {
    vita.guarda();
    EXPECT_EQ(cambi, 0);
    EXPECT_FALSE(vita.vivo().aperto());
}

TEST_F(VitaProgettoTest, HasTheWallAtOnceAndTheMarginWhenTypingRests) {
    apri();
    EXPECT_EQ(cambi, 1);
    EXPECT_TRUE(vita.vivo().parete().sta());
    EXPECT_EQ(vita.vivo().lenti(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return vita.vivo().lenti() != nullptr; }, 30000));
    EXPECT_EQ(cambi, 2);
    EXPECT_TRUE(vita.vivo().lenti()->margine->sta());
    vita.guarda();
    EXPECT_EQ(cambi, 2);
}

TEST_F(VitaProgettoTest, TellsOfAnotherStageAndOfASectionThatIsTyped) {
    apri();
    vita.mostra({.fase = 1});
    EXPECT_EQ(cambi, 2);
    vita.mostra({.fase = 1});
    EXPECT_EQ(cambi, 2);
    vita.digita(structure::diaframmaSimmetrico());
    EXPECT_EQ(cambi, 3);
    EXPECT_EQ(vita.vivo().dati().sezione, structure::diaframmaSimmetrico());
}

}  // namespace
}  // namespace korven::shell
