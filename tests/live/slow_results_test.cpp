#include "live/slow_results.hpp"

#include <gtest/gtest.h>

#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::live {
namespace {

DomandaLenta domanda(const project::Sezione& sezione, int nSeg) {
    DomandaLenta d;
    d.dati = test::progettoSemplice();
    d.dati.sezione = sezione;
    d.nSeg = nSeg;
    return d;
}

TEST(CalcolaLenti, GivesTheMarginAndTheDomainOfTheSection) {
    const auto risultati = calcolaLenti(domanda(structure::diaframmaSimmetrico(), 20));
    EXPECT_TRUE(risultati.margine);
    EXPECT_FALSE(risultati.dominio.empty());
}

TEST(CalcolaLenti, GivesTheDomainOfASectionWhoseWallIsNotKnown) {
    const auto risultati = calcolaLenti(domanda(structure::palancola(), 0));
    EXPECT_FALSE(risultati.margine);
    EXPECT_FALSE(risultati.dominio.empty());
}

TEST(CalcolaLenti, GivesTheMarginOfAWallWithoutASection) {
    const auto risultati = calcolaLenti(domanda({}, 20));
    EXPECT_TRUE(risultati.margine);
    EXPECT_TRUE(risultati.dominio.empty());
}

TEST(CalcolaLenti, PassesOverASectionWithMoreBarsThanAPileMayHave) {
    auto sezione = structure::paliArmati();
    sezione.armNumLong = 1e6;
    const auto risultati = calcolaLenti(domanda(sezione, 20));
    EXPECT_TRUE(risultati.dominio.empty());
}

}  // namespace
}  // namespace korven::live
