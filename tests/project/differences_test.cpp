#include "project/differences.hpp"

#include <gtest/gtest.h>

#include "support/sample_projects.hpp"

namespace korven::project {
namespace {

using Elenco = std::vector<Differenza>;

TEST(Differenze, AreNoneBetweenEqualProjects) {
    EXPECT_EQ(differenze(test::progettoSemplice(), test::progettoSemplice()), Elenco{});
}

TEST(Differenze, AreToldInTheShownUnitAndWithTheNamesOfCodes) {
    const DatiProgetto prima = test::progettoSemplice();
    DatiProgetto dopo = prima;
    dopo.metodoSpinte = 3;
    dopo.lunghezzaParatia = 12.5;
    dopo.pretTirante[1] = 5.7;
    dopo.titoli[2] = "Lotto 2";
    dopo.sezione.fck = 31.5;
    const Elenco trovate = differenze(prima, dopo);
    ASSERT_EQ(trovate.size(), 5u);
    EXPECT_EQ(trovate[0].cosa, "metodo delle spinte");
    EXPECT_EQ(trovate[0].dopo, "Bell");
    EXPECT_EQ(trovate[1].cosa, "lunghezza della paratia [m]");
    EXPECT_EQ(trovate[1].dopo, "12.5");
    EXPECT_EQ(trovate[2].cosa, "pretensione del tirante 1 [kN/m]");
    EXPECT_EQ(trovate[2].dopo, "57");
    EXPECT_EQ(trovate[3].cosa, "titolo 2");
    EXPECT_EQ(trovate[3].dopo, "Lotto 2");
    EXPECT_EQ(trovate[4].dopo, "31.5");
    for (const auto& d : trovate) EXPECT_NE(d.prima, d.dopo) << d.cosa;
}

TEST(Differenze, OfTheTypeOfTheSectionAreYesAndNo) {
    const DatiProgetto prima = test::progettoSemplice();
    DatiProgetto dopo = prima;
    dopo.sezione.tipoPali = !prima.sezione.tipoPali;
    const Elenco trovate = differenze(prima, dopo);
    ASSERT_EQ(trovate.size(), 1u);
    EXPECT_EQ(trovate[0].cosa, "Pali affiancati");
    EXPECT_EQ(trovate[0].prima, prima.sezione.tipoPali ? "sì" : "no");
    EXPECT_EQ(trovate[0].dopo, prima.sezione.tipoPali ? "no" : "sì");
}

TEST(Differenze, HoldTheRowsThatOnlyOneOfThemHas) {
    DatiProgetto prima;
    DatiProgetto dopo;
    dopo.nTiranti = 1;
    dopo.profTirante[1] = 1.5;
    dopo.rigTirante[1] = 200;
    prima.pretTirante[1] = 7;  // beyond the count
    const Elenco trovate = differenze(prima, dopo);
    EXPECT_EQ(trovate, (Elenco{{"numero dei tiranti", "0", "1"},
                               {"profondità del tirante 1 [m]", "", "1.5"},
                               {"rigidezza del tirante 1 [kN/m/m]", "", "2000"},
                               {"pretensione del tirante 1 [kN/m]", "", "0"},
                               {"tipo del tirante 1", "", "Solo traz."}}));
    EXPECT_EQ(differenze(dopo, prima)[1], (Differenza{"profondità del tirante 1 [m]", "1.5", ""}));
}

TEST(Differenze, CallAStrutWhatItIsInEveryStateThatHasIt) {
    DatiProgetto prima;
    prima.nTiranti = 1;
    prima.profTirante[1] = 1.5;
    DatiProgetto dopo = prima;
    dopo.profTirante[1] = 2;
    dopo.tipoTirante[1] = 1;
    // A type that changes makes neither of it.
    EXPECT_EQ(differenze(prima, dopo)[0].cosa, "profondità del tirante 1 [m]");
    prima.tipoTirante[1] = 1;
    EXPECT_EQ(differenze(prima, dopo)[0].cosa, "profondità del puntone 1 [m]");
    prima.nTiranti = 0;
    prima.tipoTirante[1] = 0;  // beyond the count
    EXPECT_EQ(differenze(prima, dopo)[1].cosa, "profondità del puntone 1 [m]");
}

TEST(Differenze, CountOnlyAsFarAsTheFileHoldsANumber) {
    const DatiProgetto prima = test::progettoSemplice();
    DatiProgetto dopo = prima;
    dopo.lunghezzaParatia += 4e-8;
    EXPECT_EQ(differenze(prima, dopo), Elenco{});
    dopo.lunghezzaParatia += 1e-7;
    EXPECT_EQ(differenze(prima, dopo).size(), 1u);
}

}  // namespace
}  // namespace korven::project
