#include "dossier/specified_run.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "analysis/staged_run.hpp"
#include "project/codes.hpp"
#include "support/restless_wall.hpp"
#include "support/sample_projects.hpp"

namespace korven::dossier {
namespace {

class Conta : public analysis::OsservatoreCorsa {
 public:
    void inizio(int) override { ++inizi; }
    void iterazione(const analysis::StatoIterazione&) override { ++iterazioni; }
    [[nodiscard]] bool fermata() override { return iterazioni >= limite; }
    void fine(const analysis::FaseCalcolata&) override { ++fini; }
    void caduta(const analysis::FaseCalcolata&) override { ++cadute; }
    int limite = 1000, inizi = 0, iterazioni = 0, fini = 0, cadute = 0;
};

TEST(CorsaAffiancataTest, TellsIterationsAndDifferencesOfEachStage) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    Conta altro;
    CorsaAffiancata corsa(parete, altro);
    const auto esito = analysis::calcolaFasi(parete.dati, 40, corsa);
    ASSERT_EQ(corsa.fasi().size(), 2U);
    EXPECT_EQ(corsa.fasi()[0].iterazioni + corsa.fasi()[1].iterazioni, altro.iterazioni);
    EXPECT_EQ(altro.inizi, 2);
    EXPECT_EQ(altro.fini, 2);
    const CorsaFase& f = corsa.fasi()[1];
    EXPECT_EQ(f.fase, 2);
    EXPECT_TRUE(f.convergente);
    double scarto = 0;
    for (int i = 1; i <= 41; ++i)
        scarto = std::max(scarto, std::fabs(esito.fasi[1].risultati.yNodo[i] -
                                            parete.fase(2)->y[static_cast<std::size_t>(i) - 1]));
    EXPECT_EQ(f.scartoSpostamento->valore, scarto);
    EXPECT_LT(f.scartoSpostamento->valore, 1e-5);
    EXPECT_LT(f.scartoMomento->valore, 0.01 * std::fabs(parete.estremi.momento().valore));
}

// The report's shear below an anchor is extrapolated from the two nodes under it, and above it that
// less the anchor's force: the largest difference is told where it is, with both values.
TEST(CorsaAffiancataTest, TellsTheDifferenceInShearOnBothSidesOfAnAnchor) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    Conta altro;
    CorsaAffiancata corsa(parete, altro);
    const auto esito = analysis::calcolaFasi(parete.dati, 40, corsa);
    const Scarto& s = *corsa.fasi()[1].scartoTaglio;
    const auto& taglio = esito.fasi[1].risultati.taglioNodo;
    const double sotto = 2 * taglio[7] - taglio[8];  // the anchor at 1.5 m is on node 6
    const double vero = parete.fase(2)->taglio[5];   // the larger, which is below the anchor
    ASSERT_GT(vero, 0);
    EXPECT_GE(s.valore, std::fabs(sotto - vero) - 1e-12);
    EXPECT_EQ(s.valore, std::fabs(s.corsa - s.equilibrio));
    EXPECT_GT(s.valore, 0);
    EXPECT_LT(s.valore, 0.1 * std::fabs(parete.estremi.taglio.valore));
    EXPECT_FALSE(corsa.fasi()[0].scartoTaglio->valore > s.valore);
}

// With a fixed toe the run has another moment at the last node, and the same everywhere else.
TEST(CorsaAffiancataTest, TellsADifferenceOfOneNodeFromOneOfTheCurves) {
    auto dati = test::progettoSemplice();
    dati.vincoloPiede = valore(project::VincoloPiede::incastro);
    const auto parete = live::calcola(dati, 40);
    Conta altro;
    CorsaAffiancata corsa(parete, altro);
    const auto esito = analysis::calcolaFasi(parete.dati, 40, corsa);
    const Scarto& s = *corsa.fasi()[1].scartoMomento;
    EXPECT_EQ(s.z, parete.dati.lunghezzaParatia);
    double altrove = 0;
    for (int i = 1; i <= 40; ++i)
        altrove =
            std::max(altrove, std::fabs(esito.fasi[1].risultati.momentoNodo[i] -
                                        parete.fase(2)->momento[static_cast<std::size_t>(i) - 1]));
    EXPECT_EQ(s.altrove, altrove);
    EXPECT_TRUE(s.unNodo());
    EXPECT_FALSE((Scarto{.valore = 1, .altrove = 0.05}.unNodo()));
    EXPECT_TRUE((Scarto{.valore = 1, .altrove = 0.049}.unNodo()));
}

TEST(CorsaAffiancataTest, TellsOfAStageWithoutRestItsIterationsAlone) {
    const auto parete = live::calcola(test::progettoSenzaPace(), 10);
    Conta altro;
    altro.limite = 30;
    CorsaAffiancata corsa(parete, altro);
    (void)analysis::calcolaFasi(parete.dati, 10, corsa);
    ASSERT_EQ(corsa.fasi().size(), 1U);
    EXPECT_EQ(corsa.fasi()[0].iterazioni, 30);
    EXPECT_FALSE(corsa.fasi()[0].convergente);
    EXPECT_FALSE(corsa.fasi()[0].scartoSpostamento);
    EXPECT_EQ(altro.cadute, 1);
}

}  // namespace
}  // namespace korven::dossier
