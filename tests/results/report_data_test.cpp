#include "results/report_data.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "support/hand_written_results.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"

namespace korven::results {
namespace {

using project::DatiProgetto;
using test::aggiungiTirante;
using test::faseFerma;
using test::faseScritta;
using test::RisultatiAMano;

// A wall of 8 m in 4 segments of 2 m: nodes at 0, 2, 4, 6 and 8 m.
DatiProgetto muroQuattroSegmenti(int nFasi) {
    DatiProgetto d = test::progettoSemplice();
    d.lunghezzaParatia = 8;
    d.nTiranti = d.nFasi = 0;
    for (int k = 1; k <= nFasi; ++k) test::aggiungiFase(d, {.scavo = 1.0 * k, .falda = 3.0 + k});
    return d;
}

// Only displacements matter to the anchors.
std::string spostata(std::string_view y1, std::string_view y2, std::string_view y3,
                     std::string_view y4, std::string_view y5) {
    return faseScritta(
        {{y1, "0", "0"}, {y2, "0", "0"}, {y3, "0", "0"}, {y4, "0", "0"}, {y5, "0", "0"}});
}

std::string tagliata(std::string_view t1, std::string_view t2, std::string_view t3,
                     std::string_view t4, std::string_view t5) {
    return faseScritta(
        {{"0", "0", t1}, {"0", "0", t2}, {"0", "0", t3}, {"0", "0", t4}, {"0", "0", t5}});
}

DatiRelazione letti(const RisultatiAMano& file, DatiProgetto memoria) {
    return leggiRisultati(file.percorso(), memoria);
}

TEST(TiroFinale, IsThePrestressAndTheStiffnessTimesTheWayBeyondThePlaceWhereItWasSet) {
    EXPECT_DOUBLE_EQ(tiroFinale(5, 500, 0.012, 0.002), 10);
    EXPECT_DOUBLE_EQ(tiroFinale(5, 500, 0.012, -0.002), 12);
}

TEST(TiroFinale, IsThePrestressAloneForANodeThatNeverPassedThatPlace) {
    EXPECT_EQ(tiroFinale(5, 500, 0.002, 0.002), 5);
    EXPECT_EQ(tiroFinale(5, 500, -0.01, 0.002), 5);
}

TEST(LeggiRisultati, ReadsTheStagesAndTheClosingNumbersAfterTheHead) {
    RisultatiAMano file(4);
    const auto d = muroQuattroSegmenti(2);
    file.scrivi(d, {faseFerma(5), spostata("0.001", "0.002", "-.0005", "0", "0.25")},
                "800000000\r\n-1000000000\r\n50\r\n-12.5\r\n1.4\r\n");
    const auto dati = letti(file, d);
    EXPECT_EQ(dati.nNodi, 5);
    EXPECT_EQ(dati.passo, 2);
    ASSERT_EQ(dati.fasi.size(), 2u);
    EXPECT_EQ(dati.fasi[1].yNodo[3], -0.0005);
    EXPECT_EQ(dati.fasi[1].yNodo[5], 0.25);
    EXPECT_EQ(dati.chiusura.mrd2, 800000000);
    EXPECT_EQ(dati.chiusura.mrd1, -1000000000);
    EXPECT_EQ(dati.chiusura.mMaxTotale, 50);
    EXPECT_EQ(dati.chiusura.mMinTotale, -12.5);
    EXPECT_EQ(dati.chiusura.fsAzioni, 1.4);
}

TEST(LeggiRisultati, KeepsTheSixHeadingsOfTheProjectInMemory) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(1);
    for (int i = 1; i <= 6; ++i) d.titoli[i] = "vecchio";
    file.scrivi(d, {faseFerma(5)});
    for (int i = 1; i <= 6; ++i) d.titoli[i] = "nuovo " + std::to_string(i);
    const auto dati = leggiRisultati(file.percorso(), d);
    for (int i = 1; i <= 6; ++i) {
        EXPECT_EQ(dati.progetto.titoli[i], "nuovo " + std::to_string(i));
        EXPECT_EQ(d.titoli[i], "nuovo " + std::to_string(i));
    }
}

TEST(LeggiRisultati, TurnsRankineAndBellIntoCoulombInMemoryToo) {
    for (const double metodo : {2.0, 3.0}) {
        RisultatiAMano file(4);
        auto d = muroQuattroSegmenti(1);
        d.metodoSpinte = metodo;
        file.scrivi(d, {faseFerma(5)});
        const auto dati = leggiRisultati(file.percorso(), d);
        EXPECT_EQ(dati.progetto.metodoSpinte, 1);
        EXPECT_EQ(d.metodoSpinte, 1);
    }
}

TEST(LeggiRisultati, LeavesTheWaterLevelOfTheLastStageInFaldaValle) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(3);
    d.faldaValle = 1.25;
    file.scrivi(d, {faseFerma(5), faseFerma(5), faseFerma(5)});
    const auto dati = leggiRisultati(file.percorso(), d);
    EXPECT_EQ(d.faldaValle, 6);
    EXPECT_EQ(dati.progetto.faldaValle, 6);
}

TEST(LeggiRisultati, SetsFaldaValleStageByStageSoThatABrokenSecondStageLeavesTheFirstOnesLevel) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(3);
    d.faldaFase[1] = 4;
    d.faldaFase[2] = 5;
    d.faldaFase[3] = 9;
    file.scrivi(d, {faseFerma(5), "sigmaVv\r\nrotto\r\n"}, "");
    EXPECT_THROW((void)leggiRisultati(file.percorso(), d), base::ErroreFile);
    EXPECT_EQ(d.faldaValle, 5);
}

TEST(LeggiRisultati, TakesTheLargestDisplacementOfAnAnchorOverAllStages) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(3);
    aggiungiTirante(d, 2, 500, 5);
    for (int k = 1; k <= 3; ++k) d.tirantiFase[k] = 1;
    file.scrivi(d, {spostata("0", "0.004", "0", "0", "0"), spostata("0", "0.012", "0", "0", "0"),
                    spostata("0", "0.001", "0", "0", "0")});
    EXPECT_DOUBLE_EQ(letti(file, d).tiroTirante[1], 5 + 500 * 0.012);
}

TEST(LeggiRisultati, ShowsThePrestressOfAnAnchorThatWasOnlyPushedBackOfEitherKind) {
    for (const double tipo : {0.0, 1.0}) {
        RisultatiAMano file(4);
        auto d = muroQuattroSegmenti(2);
        aggiungiTirante(d, 2, 500, 5, tipo);
        d.tirantiFase[2] = 1;
        file.scrivi(d,
                    {spostata("0", "0.01", "0", "0", "0"), spostata("0", "0.004", "0", "0", "0")});
        EXPECT_EQ(letti(file, d).tiroTirante[1], 5) << tipo;
    }
}

TEST(LeggiRisultati, ShowsThePrestressOfAnAnchorOfTheFirstStageWhoseNodeIsNegativeThroughout) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(1);
    aggiungiTirante(d, 2, 500, 5);
    d.tirantiFase[1] = 1;
    file.scrivi(d, {spostata("0", "-.003", "0", "0", "0")});
    EXPECT_EQ(letti(file, d).tiroTirante[1], 5);
}

TEST(LeggiRisultati, SetsAnAnchorOnTheWallAsTheStageBeforeLeftIt) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(2);
    aggiungiTirante(d, 2, 500, 5);
    d.tirantiFase[2] = 1;
    file.scrivi(d, {spostata("0", "0.01", "0", "0", "0"), spostata("0", "0.018", "0", "0", "0")});
    EXPECT_DOUBLE_EQ(letti(file, d).tiroTirante[1], 5 + 500 * (0.018 - 0.01));
}

TEST(LeggiRisultati, CountsStagesBeforeAnAnchorCameNeitherForItsMaximumNorTwice) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(2);
    aggiungiTirante(d, 2, 500, 5);
    d.tirantiFase[2] = 1;
    // The wall was further out before the anchor was there than it ever did with it.
    file.scrivi(d, {spostata("0", "0.03", "0", "0", "0"), spostata("0", "0.02", "0", "0", "0")});
    EXPECT_EQ(letti(file, d).tiroTirante[1], 5);
}

TEST(LeggiRisultati, SetsAnAnchorThatLeftAndCameBackOnTheWallAnewButKeepsItsMaximum) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(4);
    aggiungiTirante(d, 2, 500, 5);
    d.tirantiFase[1] = 1;
    d.tirantiFase[2] = 0;
    d.tirantiFase[3] = 1;
    d.tirantiFase[4] = 1;
    // In place in stage 1 up to 0.020; away in stage 2, where the wall goes to 0.006; set there
    // again in stage 3. The maximum is that of stage 1.
    file.scrivi(d, {spostata("0", "0.02", "0", "0", "0"), spostata("0", "0.006", "0", "0", "0"),
                    spostata("0", "0.009", "0", "0", "0"), spostata("0", "0.01", "0", "0", "0")});
    EXPECT_DOUBLE_EQ(letti(file, d).tiroTirante[1], 5 + 500 * (0.02 - 0.006));
}

TEST(LeggiRisultati, TakesTheDeeperNodeForAnAnchorHalfWayBetweenTwo) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(1);
    aggiungiTirante(d, 5, 1000, 0);
    d.tirantiFase[1] = 1;
    file.scrivi(d, {spostata("0", "0", "0.002", "0.003", "0")});
    EXPECT_DOUBLE_EQ(letti(file, d).tiroTirante[1], 3);
}

TEST(LeggiRisultati, ReadsZeroForAnAnchorBeyondTheToe) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(2);
    aggiungiTirante(d, 30, 1000, 7);
    d.tirantiFase[1] = d.tirantiFase[2] = 1;
    file.scrivi(d, {spostata("1", "1", "1", "1", "1"), spostata("2", "2", "2", "2", "2")});
    EXPECT_EQ(letti(file, d).tiroTirante[1], 7);
}

TEST(LeggiRisultati, TakesTheShearOfTheLastStageAlone) {
    RisultatiAMano file(4);
    const auto d = muroQuattroSegmenti(2);
    file.scrivi(d, {tagliata("1", "90", "-95", "3", "0"), tagliata("1", "4", "-6.5", "3", "0")});
    EXPECT_EQ(letti(file, d).Vmax, 6.5);
}

TEST(LeggiRisultati, FindsTheShearAboveAnAnchorThatIsExactlyAtANode) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(1);
    aggiungiTirante(d, 2, 0, 10);
    d.tirantiFase[1] = 1;
    // At the anchor's node 2 x 3 - 1 = 5 below it, and 5 - 10 = -5 above it; its own 99 is gone.
    file.scrivi(d, {tagliata("0", "99", "3", "1", "0")});
    EXPECT_EQ(letti(file, d).Vmax, 5);
}

TEST(LeggiRisultati, UsesThePlaceWhereTheAnchorWasSetForTheShearAboveIt) {
    RisultatiAMano file(4);
    auto d = muroQuattroSegmenti(2);
    aggiungiTirante(d, 2, 1000, 10);
    d.tirantiFase[2] = 1;
    file.scrivi(d, {spostata("0", "0.01", "0", "0", "0"), faseScritta({{"0", "0", "0"},
                                                                       {"0.015", "0", "0"},
                                                                       {"0", "0", "0"},
                                                                       {"0", "0", "0"},
                                                                       {"0", "0", "0"}})});
    // 10 + 1000 (0.015 - 0.01)
    EXPECT_DOUBLE_EQ(letti(file, d).Vmax, 15);
}

TEST(LeggiRisultati, RefusesAFileOfAnotherMeshAndSaysWhatToDo) {
    RisultatiAMano file(4);
    const auto d = muroQuattroSegmenti(2);
    file.scrivi(d, {faseFerma(5), faseFerma(5)});
    for (const char* altri : {"3", "5", "50"}) {
        analysis::contenutoNSeg = altri;
        try {
            (void)letti(file, d);
            ADD_FAILURE() << altri;
        } catch (const base::ErroreFile& errore) {
            EXPECT_EQ(errore.percorso(), file.percorso());
            EXPECT_NE(errore.atteso().find("nseg.txt"), std::string::npos);
            EXPECT_NE(errore.atteso().find("ripetere il calcolo"), std::string::npos);
        }
    }
}

TEST(LeggiRisultati, RefusesAnUnusableNumberOfSegments) {
    RisultatiAMano file(4);
    const auto d = muroQuattroSegmenti(1);
    file.scrivi(d, {faseFerma(5)});
    analysis::contenutoNSeg = "due";
    EXPECT_THROW((void)letti(file, d), base::ErroreFile);
}

TEST(LeggiRisultati, RefusesAFileCutShortAtAnyByte) {
    RisultatiAMano file(4);
    const auto d = muroQuattroSegmenti(1);
    file.scrivi(d, {faseFerma(5)}, "800000000\r\n-1000000000\r\n50\r\n-12.5\r\n1.4");
    const std::string intero = test::contenuto(file.percorso());
    for (std::size_t taglio = 0; taglio < intero.size(); ++taglio) {
        test::metti(file.percorso(), std::string_view(intero).substr(0, taglio));
        EXPECT_THROW((void)letti(file, d), base::ErroreFile) << intero.substr(0, taglio);
    }
}

TEST(LeggiRisultati, AcceptsALastLineWithoutItsEnd) {
    RisultatiAMano file(4);
    const auto d = muroQuattroSegmenti(1);
    file.scrivi(d, {faseFerma(5)}, "0\r\n0\r\n0\r\n0\r\n1.4");
    EXPECT_EQ(letti(file, d).chiusura.fsAzioni, 1.4);
    file.scrivi(d, {faseFerma(5)}, "0\n0\n0\n0\n1.5\n");  // another factor, but whole
    EXPECT_EQ(letti(file, d).chiusura.fsAzioni, 1.5);
}

}  // namespace
}  // namespace korven::results
