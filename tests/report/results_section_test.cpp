#include <gtest/gtest.h>

#include "report/sections.hpp"
#include "support/report_text.hpp"
#include "support/wall_builder.hpp"

namespace korven::report {
namespace {

using test::contiene;

// Two stages on a wall of 3 m in 3 segments, two anchors defined.
results::DatiRelazione dueFasi() {
    results::DatiRelazione d;
    d.progetto =
        test::muro().lungo(3).tirante(0.5, 1000).tirante(1.25, 1000).fase({}).fase({}).dati();
    d.nNodi = 4;
    d.passo = 1;
    d.fasi.resize(2);
    d.fasi[1].yNodo[1] = 0.0123456;
    d.fasi[1].yNodo[2] = -0.00005;
    d.fasi[1].momentoNodo[2] = 4.56789;
    d.fasi[1].momentoNodo[3] = -0.05;
    return d;
}

std::vector<std::string> scritte(const results::DatiRelazione& d) {
    return test::righe([&](RigheRelazione& r) { sezioneRisultati(d, r); });
}

TEST(SezioneRisultati, WritesATableAStageWithCentimetresAndKilonewtonmetresTopDown) {
    EXPECT_EQ(
        scritte(dueFasi()),
        (std::vector<std::string>{
            "RISULTATI FASE 1", "#STARTTABLE", "Profondità [m]\tSpostamento [cm]\tMomento [kN m]",
            "0.00\t0.00\t0.00", "1.00\t0.00\t0.00", "2.00\t0.00\t0.00", "3.00\t0.00\t0.00",
            "#ENDTABLE", "", "RISULTATI FASE 2", "#STARTTABLE",
            "Profondità [m]\tSpostamento [cm]\tMomento [kN m]", "0.00\t1.23\t0.00",
            "1.00\t-.00\t45.67", "2.00\t0.00\t-.50", "3.00\t0.00\t0.00", "#ENDTABLE", ""}));
}

TEST(SezioneRisultati, TakesTheDepthOfANodeAsAProduct) {
    auto d = dueFasi();
    d.passo = 0.333;
    EXPECT_TRUE(contiene(scritte(d), "0.66\t0.00\t0.00"));  // 0.666, cut after the decimals
}

TEST(SezioneRisultati, ShowsTheForcesOfTheAnchorsInPlaceInTheLastStage) {
    auto d = dueFasi();
    d.progetto.tirantiFase[1] = 2;
    d.progetto.tirantiFase[2] = 1;
    d.tiroTirante[1] = 12.345;
    d.tiroTirante[2] = 99;
    const auto tutte = scritte(d);
    EXPECT_EQ((std::vector<std::string>{tutte.end() - 7, tutte.end()}),
              (std::vector<std::string>{"MASSIME TENSIONI APPLICATE AI TIRANTI", "", "#STARTTABLE",
                                        "Prof. tirante [m]\tTensione max. [kN]", "0.50\t123.45",
                                        "#ENDTABLE", ""}));
}

TEST(SezioneRisultati, HasNoForcesWhenTheLastStageHasNoAnchorThoughAnEarlierOneHas) {
    auto d = dueFasi();
    d.progetto.tirantiFase[1] = 2;
    EXPECT_FALSE(contiene(scritte(d), "MASSIME TENSIONI APPLICATE AI TIRANTI"));
}

TEST(SezioneRisultati, TranslatesTheTitleOfAStageButNotItsNumber) {
    const test::UnTesto tedesco("RISULTATI FASE", "ERGEBNISSE PHASE");
    EXPECT_TRUE(contiene(scritte(dueFasi()), "ERGEBNISSE PHASE 2"));
}

}  // namespace
}  // namespace korven::report
