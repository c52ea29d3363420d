#include "base/pointer_guard.hpp"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "support/dialog_double.hpp"

namespace korven::base {
namespace {

using enum Puntatore;
using Forme = std::vector<Puntatore>;

TEST(GuardiaPuntatore, ShowsTheHourglassAsLongAsItLives) {
    test::DialogoFinto dialogo;
    {
        const GuardiaPuntatore guardia(dialogo);
        EXPECT_EQ(dialogo.puntatori, Forme{clessidra});
    }
    EXPECT_EQ(dialogo.puntatori, (Forme{clessidra, normale}));
}

TEST(GuardiaPuntatore, GivesTheHourglassBackWhereTheProgramWaitsForItsUser) {
    test::DialogoFinto dialogo;
    { const GuardiaPuntatore guardia(dialogo, normale); }
    EXPECT_EQ(dialogo.puntatori, (Forme{normale, clessidra}));
}

TEST(GuardiaPuntatore, PutsItsFormBackAfterAnotherGuard) {
    test::DialogoFinto dialogo;
    {
        GuardiaPuntatore fuori(dialogo);
        { const GuardiaPuntatore dentro(dialogo); }
        fuori.rimetti();
        EXPECT_EQ(dialogo.puntatori.back(), clessidra);
    }
    EXPECT_EQ(dialogo.puntatori.back(), normale);
}

TEST(GuardiaPuntatore, EndsWithTheErrorThatEndsTheWork) {
    test::DialogoFinto dialogo;
    try {
        const GuardiaPuntatore guardia(dialogo);
        throw std::runtime_error("disk");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(dialogo.puntatori.back(), normale);
    }
}

}  // namespace
}  // namespace korven::base
