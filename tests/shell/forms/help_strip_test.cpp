#include "shell/forms/help_strip.hpp"

#include <gtest/gtest.h>

#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

TEST(StrisciaAiutoTest, EndsNoLineBetweenANumberAndItsUnit) {
    test::applicazione();
    const QString testo = QStringLiteral("Peso saturo; di solito 20 kN/m³ sotto la falda.");
    const QString legato = QStringLiteral("Peso saturo; di solito 20\u00A0kN/m³ sotto la falda.");
    StrisciaAiuto striscia({testo}, {}, nullptr);
    striscia.mostra(testo, QStringLiteral("letto come 2 m"));
    EXPECT_EQ(striscia.text(), QStringLiteral("letto come 2\u00A0m\n") + legato);
    EXPECT_EQ(striscia.accessibleName(), striscia.text());
}

}  // namespace
}  // namespace korven::shell
