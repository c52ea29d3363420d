#include "safety/margin.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "support/wall_files.hpp"

namespace korven::safety {
namespace {

using equilibrium::EsitoFase;
using project::DatiProgetto;

DatiProgetto esempio(const std::string& nome) {
    return test::leggiMuro(std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd");
}

DatiProgetto muro(const std::string& nome) {
    return test::leggiMuro(std::string(KORVEN_WALLS) + "/" + nome + ".kvd");
}

Margine margineDi(const DatiProgetto& dati) {
    analysis::OsservatoreCorsa nessuno;
    return margine(dati, 50, nessuno);
}

// The factors by an independent calculation.
TEST(Margine, HoldsTheFactorOfEveryStageOfTheWallWithTwoRowsOfAnchors) {
    const DatiProgetto dati = esempio("diaframma_due_ordini");
    const Margine m = margineDi(dati);
    const double attesi[] = {2.98, 2.51, 1.96, 1.64};
    ASSERT_EQ(m.fasi.size(), 4u);
    EXPECT_TRUE(m.sta());
    EXPECT_FALSE(m.caduta());
    for (std::size_t i = 0; i < 4; ++i) {
        const MargineFase& f = m.fasi[i];
        EXPECT_EQ(f.fase, static_cast<int>(i) + 1);
        EXPECT_TRUE(f.inEquilibrio());
        EXPECT_NEAR(f.riduzione.F.value_or(0), attesi[i], 0.006);
        EXPECT_GT(f.passiva.quota.value_or(0), 0);
        EXPECT_EQ(static_cast<double>(f.confronto.tiri.size()), dati.tirantiFase[f.fase]);
    }
    // Two rows of anchors hold it without any embedment.
    EXPECT_EQ(m.lunghezza.esito, EsitoLunghezza::sempre);
    EXPECT_EQ(m.lunghezza.lunghezza, dati.profFase[4]);
    EXPECT_TRUE(m.maglia);
    EXPECT_TRUE(m.relazione);
    EXPECT_EQ(m.decisiva(), &m.fasi[3]);
}

TEST(Margine, SetsTheLargestNumbersOfAllStagesBesideThoseOfTheReport) {
    const Margine m = margineDi(esempio("diaframma_due_ordini"));
    double momento = 0, taglio = 0;
    for (const MargineFase& f : m.fasi) {
        momento = std::max(momento, std::fabs(f.confronto.momento.statica.valore));
        taglio = std::max(taglio, std::fabs(f.confronto.taglio.statica.valore));
    }
    EXPECT_EQ(std::fabs(m.momento.statica.valore), momento);
    EXPECT_EQ(std::fabs(m.taglio.statica.valore), taglio);
    EXPECT_LT(m.momento.scarto().value(), 1e-4);
    EXPECT_EQ(m.momento.relazione->fase, m.momento.statica.fase);
    EXPECT_EQ(m.momento.relazione->z, m.momento.statica.z);
}

TEST(Margine, OfARestrainedToeHasNoShortestWall) {
    const Margine m = margineDi(esempio("paratia_lunga_incastro"));
    EXPECT_TRUE(m.sta());
    EXPECT_EQ(m.lunghezza.esito, EsitoLunghezza::vincolata);
    for (const MargineFase& f : m.fasi) EXPECT_TRUE(f.riduzione.oltre) << f.fase;
    EXPECT_FALSE(m.decisiva());
}

TEST(Margine, OfAMechanismIsTheFactorItIsShortOfAndTheMovement) {
    const Margine m = margineDi(muro("meccanismo"));
    ASSERT_TRUE(m.caduta());
    EXPECT_EQ(m.caduta()->fase, 1);
    EXPECT_EQ(m.caduta()->esito, EsitoFase::meccanismo);
    ASSERT_TRUE(m.caduta()->perche);
    EXPECT_TRUE(m.caduta()->perche->moto);
    EXPECT_FALSE(m.caduta()->perche->parti.vallePassivo.empty());
    EXPECT_EQ(m.decisiva(), m.caduta());
    EXPECT_LT(m.caduta()->riduzione.F.value_or(1), 1);
    EXPECT_GT(m.caduta()->riduzione.F.value_or(0), 0.9);
    EXPECT_FALSE(m.caduta()->passiva.quota);
    EXPECT_FALSE(m.maglia);
    EXPECT_FALSE(m.relazione);
    EXPECT_GT(m.lunghezza.lunghezza.value_or(0), muro("meccanismo").lunghezzaParatia);
}

TEST(Margine, KnowsNothingOfTheStagesAfterOneWithoutEquilibrium) {
    DatiProgetto dati = esempio("palancola_mensola");
    ASSERT_GE(dati.nFasi, 1);
    const int prima = dati.nFasi;
    dati.nFasi = prima + 2;
    for (const int k : {prima + 1, prima + 2}) {
        dati.profFase[k] = 0.97 * dati.lunghezzaParatia;
        dati.faldaFase[k] = dati.faldaFase[prima];
        dati.tirantiFase[k] = dati.tirantiFase[prima];
    }
    const Margine m = margineDi(dati);
    ASSERT_EQ(m.fasi.size(), static_cast<std::size_t>(prima + 2));
    EXPECT_EQ(m.caduta()->fase, prima + 1);
    const MargineFase& dopo = m.fasi.back();
    EXPECT_EQ(dopo.fase, prima + 2);
    EXPECT_EQ(dopo.scavo, dati.profFase[prima + 2]);
    EXPECT_FALSE(dopo.esito);
    EXPECT_FALSE(dopo.riduzione.F);
    EXPECT_FALSE(dopo.riduzione.oltre);
    EXPECT_FALSE(dopo.passiva.quota);
    EXPECT_FALSE(dopo.riduzione.moto);
}

TEST(Margine, OfAWallThatOnlyTheIterationFlipsOnHasAllButTheReport) {
    const Margine m = margineDi(muro("oscilla_1"));
    EXPECT_TRUE(m.sta());
    EXPECT_TRUE(m.maglia);
    EXPECT_FALSE(m.relazione);
    EXPECT_FALSE(m.momento.relazione);
    EXPECT_NE(m.momento.statica.valore, 0);
}

TEST(Margine, ComparesNothingOfAllStagesWhereTheCertainMethodStopsBeforeTheReport) {
    DatiProgetto dati = esempio("trincea_puntellata");
    dati.rigTirante[1] = -1e-3;  // no spring, and so weak that the specified run does not mind
    const Margine m = margineDi(dati);
    ASSERT_TRUE(m.caduta());
    EXPECT_EQ(m.caduta()->esito, EsitoFase::nonDefinito);
    EXPECT_EQ(m.caduta()->perche.value().instabile.che, equilibrium::Instabile::tirante);
    EXPECT_TRUE(m.relazione);
    EXPECT_FALSE(m.momento.relazione);
    EXPECT_FALSE(m.maglia);
}

}  // namespace
}  // namespace korven::safety
