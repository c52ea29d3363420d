#include "results/run_outcome.hpp"

#include <gtest/gtest.h>

#include "analysis/segment_count.hpp"
#include "base/file_error.hpp"
#include "support/hand_written_results.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::results {
namespace {

using project::fileCorrente;
using project::Progetto;

TEST(LeggiEsito, TellsTheExtremesOfEachStageAndChangesNothingInMemory) {
    test::RisultatiAMano file(3);
    auto d = test::progettoSemplice();
    d.metodoSpinte = 2;
    file.scrivi(
        d,
        {test::faseScritta(
             {{"0.001", "0", "0"}, {"-.02", "1.5", "0"}, {"0.003", "-2.25", "0"}, {"0", "0", "0"}}),
         test::faseScritta(
             {{"0.05", "-.5", "0"}, {"0", "-1", "0"}, {"0", "-3", "0"}, {"0", "-.25", "0"}})},
        "8\r\n-9\r\n1.5\r\n-3\r\n1.4\r\n");
    Progetto = d;
    fileCorrente = file.cartella / "muro.kvd";
    const auto esito = leggiEsito();
    EXPECT_EQ(Progetto, d);
    EXPECT_EQ(esito.nSeg, 3);
    EXPECT_EQ(esito.fileRisultati, file.percorso());
    ASSERT_EQ(esito.fasi.size(), 2u);
    EXPECT_EQ(esito.fasi[0].fase, 1);
    EXPECT_EQ(esito.fasi[0].profFase, 2);
    EXPECT_EQ(esito.fasi[0].spostamentoMax, 0.02);  // the largest in size
    EXPECT_EQ(esito.fasi[0].momentoMax, 1.5);
    EXPECT_EQ(esito.fasi[0].momentoMin, -2.25);
    EXPECT_EQ(esito.fasi[1].momentoMax, -0.25);  // signed: there is no positive one
    EXPECT_EQ(esito.fasi[1].momentoMin, -3);
    EXPECT_EQ(esito.chiusura.mrd1, -9);
}

TEST(LeggiEsito, RefusesAFileOfAnotherMesh) {
    test::RisultatiAMano file(3);
    const auto d = test::progettoSemplice();
    file.scrivi(d, {test::faseFerma(4), test::faseFerma(4)});
    Progetto = d;
    fileCorrente = file.cartella / "muro.kvd";
    analysis::contenutoNSeg = "4";
    EXPECT_THROW((void)leggiEsito(), base::ErroreFile);
    analysis::contenutoNSeg = "niente";
    EXPECT_THROW((void)leggiEsito(), base::ErroreFile);
}

TEST(LeggiEsito, HoldsTheChecksOfTheSectionAndTheForcesThatTheReportShows) {
    test::RisultatiAMano file(3);
    auto d = test::progettoSemplice();
    d.sezione = structure::diaframmaSimmetrico();
    file.scrivi(d, {test::faseFerma(4), test::faseFerma(4)},
                "800000000\r\n-1000000000\r\n50\r\n-60\r\n1.4\r\n");
    Progetto = d;
    fileCorrente = file.cartella / "muro.kvd";
    const auto esito = leggiEsito();
    ASSERT_TRUE(esito.momenti);
    EXPECT_DOUBLE_EQ(esito.momenti->mdMax, 70);  // 1.4 x 50 t m, below the 100 of the section
    EXPECT_DOUBLE_EQ(esito.momenti->mrPos, 100);
    EXPECT_TRUE(esito.momenti->verificatoPos);
    EXPECT_DOUBLE_EQ(esito.momenti->mdMin, -84);  // beyond its 80
    EXPECT_FALSE(esito.momenti->verificatoNeg);
    EXPECT_FALSE(esito.taglio);  // no stirrups
    EXPECT_EQ(esito.fallite, std::vector<std::string_view>{
                                 "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento negativo)"});
    ASSERT_EQ(esito.tiranti.size(), 1u);  // in place, though the wall does not move
    EXPECT_EQ(esito.tiranti[0].profondita, d.profTirante[1]);
    EXPECT_EQ(esito.tiranti[0].tiroMassimo, d.pretTirante[1]);
}

}  // namespace
}  // namespace korven::results
