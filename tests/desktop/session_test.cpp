#include "desktop/session.hpp"

#include <gtest/gtest.h>

#include <QPrinter>
#include <QTest>

#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/rescue_setup.hpp"

namespace korven::desktop {
namespace {

// Nobody gives a command: the file that is missing comes back by itself.
TEST(Sessione, KeepsUnsavedWorkSafeNowAndThen) {
    test::applicazione();
    const test::AmbienteRecupero ambiente;
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    PorteSessione porte{.dialogo = dialogo,
                        .nomi = nomi,
                        .stampante = []() -> QPrinter& { throw std::logic_error("no printer"); },
                        .outdoc = "",
                        .riavvia = [] {}};
    EXPECT_EQ(porte.alSicuroOgni, 60000);
    porte.alSicuroOgni = 1;
    const Sessione sessione(porte);
    const auto scritto = [&] {
        return test::contenuto(ambiente.recuperato) ==
               commands::byteRecupero(project::Progetto, ambiente.muro);
    };
    EXPECT_FALSE(std::filesystem::exists(ambiente.recuperato));
    EXPECT_TRUE(QTest::qWaitFor(scritto));
    std::filesystem::remove(ambiente.recuperato);
    EXPECT_TRUE(QTest::qWaitFor(scritto));
    commands::recuperoTenuto = {};
}

}  // namespace
}  // namespace korven::desktop
