#include "analysis/stiffness_update.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "support/dialog_double.hpp"
#include "support/sample_sections.hpp"

namespace korven::analysis {
namespace {

using base::Risposta;
using project::Sezione;
using test::DialogoFinto;

using structure::MomentiResistenti;
using structure::paliTubolari;

const double ejTubi = 40999;  // what the section offers

TEST(AggiornaEJ, DoesNothingForASectionThatIsNotValid) {
    Sezione s = paliTubolari();
    s.fck = 0;
    DialogoFinto dialogo(Risposta::si);
    double rigidezzaEJ = 0;
    MomentiResistenti MRd;
    MRd[1] = -7;
    aggiornaEJ(s, 0, rigidezzaEJ, MRd, dialogo);
    EXPECT_EQ(rigidezzaEJ, 0);
    rigidezzaEJ = 5000;
    aggiornaEJ(s, 0, rigidezzaEJ, MRd, dialogo);
    EXPECT_EQ(rigidezzaEJ, 5000);
    EXPECT_EQ(MRd[1], -7);
    EXPECT_EQ(MRd[2], 0);
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST(AggiornaEJ, FillsAnUndefinedStiffnessWithoutAQuestion) {
    DialogoFinto dialogo(Risposta::no);
    double rigidezzaEJ = 0;
    MomentiResistenti MRd;
    aggiornaEJ(paliTubolari(), 0, rigidezzaEJ, MRd, dialogo);
    EXPECT_EQ(rigidezzaEJ, ejTubi);
    EXPECT_TRUE(dialogo.domande.empty());
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST(AggiornaEJ, ComputesTheResistancesOfAValidSectionWhateverTheAnswer) {
    DialogoFinto dialogo(Risposta::no);
    double rigidezzaEJ = 1;
    MomentiResistenti MRd, attesi;
    aggiornaEJ(paliTubolari(), 20, rigidezzaEJ, MRd, dialogo);
    structure::momentiResistenti(paliTubolari(), 20, attesi);
    EXPECT_EQ(MRd, attesi);
    EXPECT_LT(MRd[1], 0);
    EXPECT_GT(MRd[2], 0);
}

TEST(AggiornaEJ, AsksWhenTheTypedStiffnessDiffersAndTakesTheNewOneOnYes) {
    DialogoFinto dialogo(Risposta::si);
    double rigidezzaEJ = 41000;
    MomentiResistenti MRd;
    aggiornaEJ(paliTubolari(), 0, rigidezzaEJ, MRd, dialogo);
    EXPECT_EQ(rigidezzaEJ, ejTubi);
    ASSERT_EQ(dialogo.domande.size(), 1u);
    EXPECT_EQ(dialogo.domande[0].testo,
              "Volete sostituire Il valore di EJ correntemente definito con quello ricalcolato in "
              "base alle caratteristiche strutturali del diaframma?");
    EXPECT_EQ(dialogo.domande[0].titolo, "ATTENZIONE!");
    EXPECT_EQ(dialogo.informazioni,
              (std::vector<std::string>{"EJ del progetto [kN m²]: 410000\n"
                                        "EJ calcolato dalla sezione [kN m²]: 409990"}));
    EXPECT_EQ(dialogo.pulsanti[0], base::Pulsanti::siNo);
    EXPECT_EQ(dialogo.domande[0].icona, base::Icona::domanda);
}

TEST(AggiornaEJ, KeepsTheTypedStiffnessOnNoAndAsksAgainAtEveryRun) {
    for (Risposta risposta : {Risposta::no, Risposta::annulla}) {
        DialogoFinto dialogo(risposta);
        double rigidezzaEJ = 5000;
        MomentiResistenti MRd;
        for (int corsa = 1; corsa <= 3; ++corsa) {
            aggiornaEJ(paliTubolari(), 0, rigidezzaEJ, MRd, dialogo);
            EXPECT_EQ(rigidezzaEJ, 5000);
            EXPECT_EQ(dialogo.domande.size(), static_cast<std::size_t>(corsa));
        }
    }
}

TEST(AggiornaEJ, AsksNothingWhenTheTypedStiffnessIsTheWholePart) {
    DialogoFinto dialogo(Risposta::si);
    double rigidezzaEJ = ejTubi;
    MomentiResistenti MRd;
    aggiornaEJ(paliTubolari(), 0, rigidezzaEJ, MRd, dialogo);
    EXPECT_EQ(rigidezzaEJ, ejTubi);
    EXPECT_TRUE(dialogo.domande.empty());
}

// Tubes of 20 mm every metre: EJ = pi/4 (30000 x 9^4 + 200000 (10^4 - 9^4)) = 6.9e8 N mm2.
TEST(AggiornaEJ, StiffnessBelowOneUnitLeavesAnUndefinedOneUndefined) {
    Sezione s = paliTubolari();
    s.paliDiamEst = 2;
    s.paliDiamInt = 1.8;
    s.paliInterasse = 100;
    DialogoFinto dialogo(Risposta::si);
    double rigidezzaEJ = 0;
    MomentiResistenti MRd;
    aggiornaEJ(s, 0, rigidezzaEJ, MRd, dialogo);
    EXPECT_EQ(rigidezzaEJ, 0);
    EXPECT_TRUE(dialogo.domande.empty());
    rigidezzaEJ = 12;  // a yes takes the 0 too
    aggiornaEJ(s, 0, rigidezzaEJ, MRd, dialogo);
    EXPECT_EQ(rigidezzaEJ, 0);
    EXPECT_EQ(dialogo.domande.size(), 1u);
}

TEST(AggiornaEJ, NeverOffersAStiffnessThatIsNotFinite) {
    Sezione s = paliTubolari();
    s.paliDiamEst = 1e100;
    s.paliDiamInt = 1e99;
    DialogoFinto dialogo(Risposta::si);
    for (double digitato : {0.0, 5000.0}) {
        double rigidezzaEJ = digitato;
        MomentiResistenti MRd;
        aggiornaEJ(s, 0, rigidezzaEJ, MRd, dialogo);
        EXPECT_EQ(rigidezzaEJ, digitato);
        EXPECT_TRUE(std::isfinite(MRd[1]) && std::isfinite(MRd[2]));
    }
    EXPECT_TRUE(dialogo.domande.empty());
}

}  // namespace
}  // namespace korven::analysis
