#include "safety/statics_beside_report.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"

namespace korven::safety {
namespace {

using project::DatiProgetto;

DatiProgetto esempio(const std::string& nome) {
    return test::leggiMuro(std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd");
}

DatiProgetto muro(const std::string& nome) {
    return test::leggiMuro(std::string(KORVEN_WALLS) + "/" + nome + ".kvd");
}

std::vector<ConfrontoFase> confronti(const DatiProgetto& dati, int nSeg = 50) {
    analysis::OsservatoreCorsa nessuno;
    const auto relazione = relazioneInMemoria(dati, nSeg, nessuno).numeri;
    EXPECT_TRUE(relazione);
    std::vector<ConfrontoFase> tutti;
    for (const auto& fase : equilibrium::calcolaEquilibrio(dati, nSeg)) {
        tutti.push_back(statica(fase, dati.lunghezzaParatia / nSeg));
        affianca(relazione->fasi.at(tutti.size() - 1), tutti.back());
    }
    return tutti;
}

TEST(Confronto, TellsHowFarTheReportIsOffInSize) {
    const Confronto c{.statica = {-200, 3, 1}, .relazione = results::NumeroRelazione{190, 3, 1}};
    EXPECT_DOUBLE_EQ(c.scarto().value(), 0.05);
    EXPECT_FALSE((Confronto{.statica = {-200, 3, 1}, .relazione = {}}.scarto()));
    EXPECT_FALSE(
        (Confronto{.statica = {}, .relazione = results::NumeroRelazione{1, 3, 1}}.scarto()));
}

// Of a wall without restraints and slack anchors both ways have the same moments.
TEST(Affianca, FindsTheReportOfAPlainWallRight) {
    for (const ConfrontoFase& fase : confronti(esempio("diaframma_due_ordini"))) {
        EXPECT_LT(fase.momento.scarto().value(), 1e-4) << fase.fase;
        EXPECT_EQ(fase.momento.statica.z, fase.momento.relazione->z);
        for (const ConfrontoTiro& tiro : fase.tiri)
            EXPECT_NEAR(tiro.statica, tiro.relazione.value().valore, 0.01) << fase.fase;
    }
}

// One unit of the last digit of a displacement is 10 t here.
TEST(Affianca, ShowsThatTheReportKnowsNothingOfTheForceOfAVeryStiffProp) {
    const auto fasi = confronti(muro("puntone_rigidissimo"));
    const ConfrontoTiro& tiro = fasi.back().tiri.at(0);
    EXPECT_NEAR(tiro.statica, 4.22, 0.005);
    EXPECT_NEAR(std::remainder(tiro.relazione.value().valore, 10), 0, 1e-6);
}

TEST(RelazioneInMemoria, HasNoNumbersOfAWallThatDoesNotComeToRest) {
    analysis::OsservatoreCorsa nessuno;
    const auto oscilla = relazioneInMemoria(muro("oscilla_1"), 50, nessuno);
    EXPECT_FALSE(oscilla.numeri);
    EXPECT_EQ(oscilla.fine.modo, analysis::ModoFine::oltreLimite);
    const auto singolare = relazioneInMemoria(muro("singolare_1"), 50, nessuno);
    EXPECT_FALSE(singolare.numeri);
    EXPECT_EQ(singolare.fine.modo, analysis::ModoFine::singolare);
    EXPECT_GT(singolare.fine.fase, 0);
}

TEST(RelazioneInMemoria, HasNoNumbersWhenTheObserverStopsTheRun) {
    class Ferma : public analysis::OsservatoreCorsa {
     public:
        [[nodiscard]] bool fermata() override { return true; }
    } ferma;
    const auto fermata = relazioneInMemoria(muro("banchina"), 50, ferma);
    EXPECT_FALSE(fermata.numeri);
    EXPECT_EQ(fermata.fine.modo, analysis::ModoFine::fermata);
}

TEST(Statica, StandsAloneWithoutAReport) {
    const DatiProgetto dati = muro("oscilla_1");
    const auto fasi = equilibrium::calcolaEquilibrio(dati, 50);
    const ConfrontoFase c = statica(fasi.front(), dati.lunghezzaParatia / 50);
    EXPECT_EQ(c.fase, 1);
    EXPECT_FALSE(c.momento.relazione);
    EXPECT_FALSE(c.taglio.scarto());
    EXPECT_NE(c.momento.statica.valore, 0);
}

}  // namespace
}  // namespace korven::safety
