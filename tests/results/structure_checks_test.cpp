#include "results/structure_checks.hpp"

#include <gtest/gtest.h>

#include "support/sample_sections.hpp"

namespace korven::results {
namespace {

// mrPos 100 t m, mrNeg -80 t m.
DatiRelazione relazione(const project::Sezione& sezione, double mMax, double mMin) {
    DatiRelazione d;
    d.progetto.sezione = sezione;
    d.chiusura = {.mrd2 = 800000000,
                  .mrd1 = -1000000000,
                  .mMaxTotale = mMax,
                  .mMinTotale = mMin,
                  .fsAzioni = 1.25};
    return d;
}

TEST(VerificaMomenti, ComparesTheFactoredMomentsWithTheCrossedResistances) {
    const auto c = verificaMomenti(relazione(structure::diaframmaSimmetrico(), 40, -70));
    ASSERT_TRUE(c);
    EXPECT_EQ(c->mrPos, 100);
    EXPECT_EQ(c->mrNeg, -80);
    EXPECT_EQ(c->mdMax, 50);
    EXPECT_EQ(c->mdMin, -87.5);
    EXPECT_TRUE(c->verificatoPos);
    EXPECT_TRUE(c->negativo);
    EXPECT_FALSE(c->verificatoNeg);
}

TEST(VerificaMomenti, DoesNotAcceptAMomentThatEqualsItsResistance) {
    const auto c = verificaMomenti(relazione(structure::diaframmaSimmetrico(), 80, -64));
    EXPECT_FALSE(c->verificatoPos);
    EXPECT_FALSE(c->verificatoNeg);
}

TEST(VerificheFallite, AreTheSentencesOfTheReportInItsOrder) {
    const auto sezione = structure::diaframmaSimmetrico();
    EXPECT_TRUE(verificheFallite(relazione(sezione, 40, -60)).empty());
    EXPECT_EQ(verificheFallite(relazione(sezione, 90, -70)),
              (std::vector<std::string_view>{
                  "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento positivo)",
                  "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento negativo)"}));
    EXPECT_EQ(verificheFallite(relazione(sezione, 90, 0)).size(), 1u);
}

TEST(VerificheFallite, NameTheShearFailuresOfTheLastStage) {
    auto sezione = structure::paliArmati();
    sezione.armDiamStaffe = 1;
    sezione.armPassoStaffe = 20;
    auto d = relazione(sezione, 1, 0);
    EXPECT_TRUE(verificheFallite(d).empty());
    d.Vmax = 1e6;
    const auto taglio = verificaAlTaglio(d);
    ASSERT_TRUE(taglio);
    EXPECT_EQ(taglio->taglioMassimo, 1e7);
    EXPECT_EQ(verificheFallite(d),
              (std::vector<std::string_view>{"Rottura delle bielle di calcestruzzo compresse",
                                             "Rottura dell'armatura d'anima"}));
}

TEST(VerificheFallite, AreNoneForASectionThatIsNotDefined) {
    const auto d = relazione({}, 90, -90);
    EXPECT_FALSE(verificaMomenti(d));
    EXPECT_FALSE(verificaAlTaglio(d));
    EXPECT_TRUE(verificheFallite(d).empty());
}

}  // namespace
}  // namespace korven::results
