#include "device/graphics_session.hpp"

#include <gtest/gtest.h>

#include <QtGlobal>

namespace korven::device {
namespace {

// As where the plugin that draws without a screen is missing or can't be read.
TEST(SessioneGraficaDeathTest, LetsQtSayWhyItEndsTheProgramButNothingElse) {
    const auto finisce = [] {
        const SessioneGrafica sessione;
        qWarning("un avviso");
        qFatal("manca la piattaforma");
    };
    EXPECT_DEATH(finisce(), "^manca la piattaforma\n$");
}

}  // namespace
}  // namespace korven::device
