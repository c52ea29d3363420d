#include "equilibrium/statics.hpp"

#include <gtest/gtest.h>

#include "equilibrium/extremes.hpp"
#include "support/sample_projects.hpp"

namespace korven::equilibrium {
namespace {

// A beam of 10 m on two hinges under 3 t/m2, pulled back by 20 t at 4 m. Its reaction at the head
// is 30 / 2 - 20 x 6 / 10 = 3 t: the shear falls from 3 to 3 - 12 = -9 just above the anchor, goes
// up to 11 just below it, and ends at 11 - 18 = -7.
FaseEquilibrio trave() {
    auto dati = test::muroNudo();
    dati.vincoloTesta = 2;
    dati.vincoloPiede = 2;
    dati.pressioneOrizz = 3;
    dati.nTiranti = 1;
    dati.profTirante[1] = 4;
    dati.pretTirante[1] = 20;
    dati.tirantiFase[1] = 1;
    return calcolaEquilibrio(dati, 20).at(0);
}

TEST(Statica, HasTheShearOnBothSidesOfAnAnchor) {
    const FaseEquilibrio f = trave();
    ASSERT_EQ(f.esito, EsitoFase::equilibrio);
    EXPECT_NEAR(f.taglioSopra[8], -9, 1e-6);
    EXPECT_NEAR(f.taglioSotto[8], 11, 1e-6);
    EXPECT_EQ(f.taglio[8], f.taglioSotto[8]);
    for (const std::size_t i : {0U, 4U, 12U, 20U}) EXPECT_EQ(f.taglioSopra[i], f.taglioSotto[i]);
    EXPECT_NEAR(f.taglioSotto[0], 3, 1e-6);
    EXPECT_NEAR(f.taglioSotto[4], -3, 1e-6);
    EXPECT_NEAR(f.taglioSopra[20], -7, 1e-6);
}

TEST(Statica, ChoosesTheShearThatIsLargerInSize) {
    EXPECT_EQ(maggiore(-9, 11), 11);
    EXPECT_EQ(maggiore(-9, 8), -9);
    EXPECT_EQ(maggiore(5, -5), 5);
}

TEST(Estremi, TellTheSideOfTheLargestShear) {
    const FaseEquilibrio f = trave();
    const Estremo T = estremi(f, 0.5).taglio;
    EXPECT_EQ(T.valore, f.taglioSotto[8]);
    EXPECT_EQ(T.z, 4);
    EXPECT_EQ(T.lato, Lato::sotto);
    EXPECT_EQ(lato(f, 8, f.taglioSopra[8]), Lato::sopra);
    EXPECT_EQ(lato(f, 4, f.taglioSopra[4]), Lato::unico);
    EXPECT_EQ(estremi(f, 0.5).spostamento.lato, Lato::unico);
}

}  // namespace
}  // namespace korven::equilibrium
