// Walls of which the specified run alone tells less than the truth: it passes what has no margin
// and refuses what stands. What is expected of each comes from an independent calculation.

#include <gtest/gtest.h>

#include <cmath>

#include "equilibrium/extremes.hpp"
#include "safety/diagnosis.hpp"
#include "safety/shortest_wall.hpp"
#include "safety/strength_reduction.hpp"
#include "support/wall_files.hpp"

namespace korven::safety {
namespace {

using equilibrium::EsitoFase;

project::DatiProgetto muro(const std::string& nome) {
    return test::leggiMuro(std::string(KORVEN_WALLS) + "/" + nome + ".kvd");
}

equilibrium::Estremi estremi(const project::DatiProgetto& dati) {
    const auto fasi = equilibrium::calcolaEquilibrio(dati, 50);
    EXPECT_EQ(fasi.size(), static_cast<std::size_t>(dati.nFasi));
    EXPECT_EQ(fasi.back().esito, EsitoFase::equilibrio);
    return equilibrium::estremi(fasi, dati.lunghezzaParatia / 50);
}

double millimetri(const project::DatiProgetto& dati) {
    return 1000 * std::fabs(estremi(dati).spostamento.valore);
}

double kilonewtonMetri(const project::DatiProgetto& dati) {
    return 10 * std::fabs(estremi(dati).momento().valore);
}

TEST(MuriRaccontati, StandThoughTheIterationFlipsOrFindsThemSingular) {
    const std::pair<const char*, double> attesi[] = {
        {"oscilla_1", 2.75},   {"oscilla_2", 3.46},   {"oscilla_3", 3.06},
        {"singolare_1", 2.14}, {"singolare_2", 10.2}, {"singolare_3", 1.88},
    };
    for (const auto& [nome, spostamento] : attesi) {
        const auto dati = muro(nome);
        EXPECT_NEAR(millimetri(dati), spostamento, 0.005 * spostamento) << nome;
        const Diagnosi d = diagnosi(dati, 50, dati.nFasi);
        EXPECT_EQ(d.causa, Causa::oscilla) << nome;
        EXPECT_GT(d.spostamento, 0) << nome;
    }
}

TEST(MuriRaccontati, HaveTheMomentsOfTheSpecifiedRunWhereItEnds) {
    EXPECT_NEAR(kilonewtonMetri(muro("acqua_1000")), 60.9, 0.05);
    EXPECT_NEAR(kilonewtonMetri(muro("acqua_a_zero")), 33.8, 0.05);
    EXPECT_NEAR(kilonewtonMetri(muro("acqua_fase_a_zero")), 1.7, 0.05);
    EXPECT_NEAR(kilonewtonMetri(muro("tensioni_totali_sabbia")), 58, 0.5);
    EXPECT_NEAR(millimetri(muro("banchina")), 100, 1);
    EXPECT_NEAR(millimetri(muro("quasi_meccanismo")), 910, 5);
}

TEST(MuriRaccontati, HaveTheMarginThatTheReportHides) {
    EXPECT_NEAR(riduzione(muro("acqua_1000"), 50, 1).F.value_or(0), 2.03, 0.006);
    EXPECT_NEAR(riduzione(muro("banchina"), 50, 2).F.value_or(0), 1.03, 0.006);
    EXPECT_NEAR(riduzione(muro("quasi_meccanismo"), 50, 1).F.value_or(0), 1.00, 0.006);
}

// 20 cm shorter the quay wall stands, 40 cm shorter it does not.
TEST(MuriRaccontati, TellHowMuchShorterTheQuayWallMayBe) {
    const auto dati = muro("banchina");
    const LunghezzaMinima l = lunghezzaMinima(dati, 50);
    ASSERT_TRUE(l.lunghezza);
    EXPECT_LT(*l.lunghezza, dati.lunghezzaParatia - 0.2);
    EXPECT_GT(*l.lunghezza, dati.lunghezzaParatia - 0.4);
}

// The same wall is 12 cm longer in `quasi_meccanismo`.
TEST(MuriRaccontati, TellOfAMechanismHowMuchLongerItMustBe) {
    const auto dati = muro("meccanismo");
    const Diagnosi d = diagnosi(dati, 50, 1);
    EXPECT_EQ(d.causa, Causa::meccanismo);
    ASSERT_TRUE(d.moto);
    EXPECT_FALSE(d.moto->traslazione);
    ASSERT_TRUE(d.lunghezza);
    EXPECT_NEAR(*d.lunghezza, dati.lunghezzaParatia + 0.12, 0.011);
}

// Of a prop of 1E9 kN/m a displacement that is rounded to seven decimals knows nothing: half a
// digit is 50 kN.
TEST(MuriRaccontati, HaveTheForceOfAVeryStiffProp) {
    const auto dati = muro("puntone_rigidissimo");
    const auto fasi = equilibrium::calcolaEquilibrio(dati, 50);
    ASSERT_EQ(fasi.size(), 2u);
    ASSERT_EQ(fasi[1].tiri.size(), 1u);
    // The force is what the balance of the nodes leaves over.
    double resto = dati.forzaTesta;
    const double h = dati.lunghezzaParatia / 50;
    for (std::size_t i = 0; i <= 50; ++i)
        resto += (i == 0 || i == 50 ? h / 2 : h) *
                 (fasi[1].monte[i] + fasi[1].valle[i] + fasi[1].acqua[i] + fasi[1].costante);
    EXPECT_NEAR(fasi[1].tiri[0], resto, 1e-6);
}

// The quay wall 40 cm shorter stands in its first stage and falls in its second.
TEST(Diagnosi, IsOfALaterStageThatFallsWhereTheOneAskedAboutStands) {
    auto dati = muro("banchina");
    EXPECT_EQ(diagnosi(dati, 50, 1).causa, Causa::oscilla);
    EXPECT_EQ(diagnosi(dati, 50, 1).fase, 1);
    dati.lunghezzaParatia -= 0.4;
    const Diagnosi d = diagnosi(dati, 50, 1);
    EXPECT_EQ(d.causa, Causa::meccanismo);
    EXPECT_EQ(d.fase, 2);
}

TEST(Diagnosi, OfAMechanismNamesItsPartsAtTheirLimits) {
    const auto dati = muro("meccanismo");
    const Diagnosi d = diagnosi(dati, 50, 1);
    EXPECT_EQ(d.paratia, dati.lunghezzaParatia);
    EXPECT_FALSE(d.parti.monteAttivo.empty());
    EXPECT_FALSE(d.parti.vallePassivo.empty());
}

TEST(Diagnosi, NamesDataThatAreNoStableWall) {
    auto dati = muro("banchina");
    dati.rigidezzaEJ = -1000;
    const Diagnosi d = diagnosi(dati, 50, 1);
    EXPECT_EQ(d.causa, Causa::nonDefinito);
    EXPECT_EQ(d.instabile.che, equilibrium::Instabile::parete);
}

TEST(Diagnosi, HasAWordForEveryCause) {
    const std::pair<Causa, std::string_view> parole[] = {
        {Causa::eseguito, "eseguito"},
        {Causa::rifiutato, "rifiutato"},
        {Causa::meccanismo, "meccanismo"},
        {Causa::oscilla, "oscilla"},
        {Causa::fermato, "fermato"},
        {Causa::nonDefinito, "non_definito"},
        {Causa::nessunNumero, "nessun_numero"},
    };
    for (const auto& [causa, attesa] : parole) EXPECT_EQ(parola(causa), attesa);
}

}  // namespace
}  // namespace korven::safety
