#include "dossier/specified_run.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "analysis/staged_run.hpp"
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
    EXPECT_EQ(f.scartoSpostamento, scarto);
    EXPECT_LT(*f.scartoSpostamento, 1e-5);
    EXPECT_LT(*f.scartoMomento, 0.01 * std::fabs(parete.estremi.momento().valore));
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
