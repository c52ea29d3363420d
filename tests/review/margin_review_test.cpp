#include <gtest/gtest.h>

#include "review/margins.hpp"

namespace korven::review {
namespace {

using project::DatiProgetto;
using safety::Margine;

Osservazioni osservate(const DatiProgetto& dati, const Margine& margine) {
    ElencoOsservazioni elenco;
    controlloMargine(dati, margine, elenco);
    return elenco.ordinate();
}

// One stage that is 4 m deep.
const DatiProgetto unaFase = paratia({{.scavo = 4}});

Righe conRiduzione(double F) {
    Margine m = margineSano(unaFase);
    m.fasi[0].riduzione = {.F = F};
    m.fasi[0].riduzione.moto = equilibrium::Meccanismo{false, 8.5, -1, 1};
    return righe(osservate(unaFase, m));
}

TEST(ControlloMargine, SaysNothingOfAWallFarFromItsLimits) {
    EXPECT_TRUE(osservate(unaFase, margineSano(unaFase)).empty());
}

TEST(ControlloMargine, TellsALowStrengthReductionWithItsMechanism) {
    EXPECT_EQ(conRiduzione(1.5), Righe{});
    EXPECT_EQ(
        conRiduzione(1.499),
        Righe{"[da vedere] riduzione-bassa: fase 1: Prof. [m] = 4: riduzione della resistenza F = "
              "1.49, sotto 1.50; con F maggiore: ruota attorno alla profondità di 8.50 m, la testa "
              "verso lo scavo; controllare infissione, tiranti e carichi"});
    EXPECT_EQ(conRiduzione(1.25).size(), 1u);
    EXPECT_EQ(conRiduzione(1.249),
              Righe{"[pericolo] riduzione-insufficiente: fase 1: Prof. [m] = 4: riduzione della "
                    "resistenza F = 1.24, sotto 1.25; con F maggiore: ruota attorno alla "
                    "profondità di 8.50 m, la testa verso lo scavo; allungare la paratia, "
                    "aggiungere un tirante o ridurre scavo e carichi"});
}

TEST(ControlloMargine, NamesTheFieldsOfTheStageAndTheLength) {
    Margine m = margineSano(unaFase);
    m.fasi[0].riduzione = {.F = 1.1};
    const Osservazioni uno = osservate(unaFase, m);
    ASSERT_EQ(uno.size(), 1u);
    EXPECT_EQ(uno[0].campi, (std::vector<std::string>{"profFase[1]", "lunghezzaParatia"}));
    EXPECT_EQ(uno[0].guida, "margine");
}

// Without a movement it is the friction of the ground above that ends, or a formula.
TEST(ControlloMargine, TellsAReductionThatTheSlopeLimits) {
    Margine m = margineSano(unaFase);
    m.fasi[0].riduzione = {.F = 1.4, .limitePendio = true};
    EXPECT_EQ(righe(osservate(unaFase, m)),
              Righe{"[da vedere] riduzione-bassa: fase 1: Prof. [m] = 4: riduzione della "
                    "resistenza F = 1.40, sotto 1.50; con F maggiore: l'angolo di attrito ridotto "
                    "è minore dell'inclinazione del terreno; controllare pendio e angoli di "
                    "attrito, non dipende dalla paratia"});
    m.fasi[0].riduzione.limitePendio = false;
    EXPECT_NE(
        osservate(unaFase, m)[0].testo.find("con F maggiore: i limiti del terreno non hanno più"),
        std::string::npos);
}

TEST(ControlloMargine, TellsTheWorstStageOnly) {
    const DatiProgetto dati = paratia({{.scavo = 2}, {.scavo = 4}, {.scavo = 3}});
    Margine m = margineSano(dati);
    for (const auto& [k, F] : {std::pair(0, 1.4), {1, 1.1}, {2, 1.2}})
        m.fasi[static_cast<std::size_t>(k)].riduzione = {.F = F};
    const Osservazioni una = osservate(dati, m);
    ASSERT_EQ(una.size(), 1u);
    EXPECT_EQ(una[0].testo.rfind("fase 2: Prof. [m] = 4: riduzione della resistenza F = 1.10,", 0),
              0u);
}

Righe conPassiva(double quota) {
    Margine m = margineSano(unaFase);
    m.fasi[0].passiva = {.quota = quota, .alLimite = {{4, 6.25}}};
    return righe(osservate(unaFase, m));
}

TEST(ControlloMargine, TellsHowMuchOfThePassiveSideIsUsedAndWhereItIsAtItsLimit) {
    EXPECT_EQ(conPassiva(0.80), Righe{});
    EXPECT_EQ(conPassiva(0.801),
              Righe{"[da vedere] passiva-molto-usata: fase 1: Prof. [m] = 4: resistenza passiva "
                    "mobilitata davanti alla paratia: 80.1 %, limite 80 %, al limite: valle "
                    "passivo 4.00-6.25 m: controllare l'infissione"});
    EXPECT_EQ(conPassiva(0.90).size(), 1u);
    EXPECT_EQ(conPassiva(0.901),
              Righe{"[pericolo] passiva-esaurita: fase 1: Prof. [m] = 4: resistenza passiva "
                    "mobilitata davanti alla paratia: 90.1 %, limite 90 %, al limite: valle "
                    "passivo 4.00-6.25 m: allungare la paratia o ridurre scavo e carichi"});
}

TEST(ControlloMargine, NamesNoDepthsWhereThePassiveSideIsNowhereAtItsLimit) {
    Margine m = margineSano(unaFase);
    m.fasi[0].passiva.quota = 0.85;
    EXPECT_EQ(
        righe(osservate(unaFase, m)),
        Righe{"[da vedere] passiva-molto-usata: fase 1: Prof. [m] = 4: resistenza passiva "
              "mobilitata davanti alla paratia: 85.0 %, limite 80 %: controllare l'infissione"});
}

Righe conSpostamento(double scavo, double y) {
    const DatiProgetto dati = paratia({{.scavo = scavo}});
    Margine m = margineSano(dati);
    m.fasi[0].estremi.spostamento = {y, 0.2, 1};
    return righe(osservate(dati, m));
}

// 4 m over 100 are 40 mm, over 50 they are 80 mm.
TEST(ControlloMargine, TellsDisplacementsThatAreLargeForTheirExcavation) {
    EXPECT_EQ(conSpostamento(4, 0.04), Righe{});
    EXPECT_EQ(conSpostamento(4, -0.05),
              Righe{"[da vedere] spostamento-grande: fase 1: Prof. [m] = 4: spostamento massimo "
                    "50.0 mm a 0.20 m di profondità, 1/80 dello scavo, più di 1/100: controllare "
                    "che cosa sta vicino alla paratia"});
    EXPECT_EQ(conSpostamento(4, 0.08).size(), 1u);
    EXPECT_EQ(conSpostamento(4, 0.1),
              Righe{"[pericolo] spostamento-eccessivo: fase 1: Prof. [m] = 4: spostamento massimo "
                    "100.0 mm a 0.20 m di profondità, 1/40 dello scavo, più di 1/50: controllare "
                    "rigidezza, tiranti, infissione e valori di ks"});
}

TEST(ControlloMargine, SaysNothingOfDisplacementsBesideALittleExcavation) {
    EXPECT_EQ(conSpostamento(0.99, 0.1), Righe{});
    EXPECT_EQ(conSpostamento(1, 0.1).size(), 1u);
}

Righe conPiede(double piede, double massimo) {
    Margine m = margineSano(unaFase);
    m.fasi[0].piede.spostamento = piede;
    m.fasi[0].estremi.spostamento = {massimo, 0, 1};
    return righe(osservate(unaFase, m));
}

TEST(ControlloMargine, TellsAToeThatGivesWay) {
    EXPECT_EQ(
        conPiede(0.006, 0.02),
        Righe{"[da vedere] piede-verso-lo-scavo: fase 1: Prof. [m] = 4: il piede si sposta di "
              "6.0 mm verso lo scavo, il 30 % dello spostamento massimo: il terreno davanti "
              "lo trattiene poco, controllare l'infissione"});
    EXPECT_EQ(conPiede(0.005, 0.02), Righe{});
    EXPECT_EQ(conPiede(0.006, 0.03), Righe{});
    EXPECT_EQ(conPiede(-0.006, -0.02), Righe{});
}

TEST(ControlloMargine, PassesOverStagesWithoutEquilibrium) {
    Margine m = margineSano(unaFase);
    m.fasi[0].esito = equilibrium::EsitoFase::meccanismo;
    m.fasi[0].riduzione = {.F = 0.9};
    EXPECT_TRUE(osservate(unaFase, m).empty());
}

}  // namespace
}  // namespace korven::review
