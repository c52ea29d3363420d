#include <gtest/gtest.h>

#include "review/margins.hpp"

namespace korven::review {
namespace {

using analysis::FineCorsa;
using analysis::ModoFine;
using equilibrium::EsitoFase;
using equilibrium::Instabile;
using project::DatiProgetto;
using safety::Causa;
using safety::Margine;

const DatiProgetto dueFasi = paratia({{.scavo = 2}, {.scavo = 4}});

Osservazioni osservate(Margine margine, const FineCorsa& corsa = {}) {
    margine.corsa = corsa;
    ElencoOsservazioni elenco;
    controlloEquilibrio(dueFasi, margine, elenco);
    return elenco.ordinate();
}

// The second stage is the one that is none.
Margine caduto(EsitoFase esito, Causa causa) {
    Margine m = margineSano(dueFasi);
    m.fasi[1].esito = esito;
    m.fasi[1].perche =
        safety::Diagnosi{.causa = causa, .fase = 2, .paratia = dueFasi.lunghezzaParatia};
    return m;
}

TEST(ControlloEquilibrio, SaysNothingOfAWallThatStandsAndWhoseRunComesToRest) {
    EXPECT_TRUE(osservate(margineSano(dueFasi)).empty());
    const FineCorsa conclusa{ModoFine::compiuta, 2};
    EXPECT_TRUE(osservate(margineSano(dueFasi), conclusa).empty());
}

// 2.57 t m are 25.7 kN m.
TEST(ControlloEquilibrio, TellsAMechanismAndTheLengthThatWouldHelp) {
    Margine m = caduto(EsitoFase::meccanismo, Causa::meccanismo);
    m.fasi[1].perche->moto = equilibrium::Meccanismo{false, 8.9, -1, 2.57};
    m.fasi[1].perche->parti.vallePassivo = {{4, 8.6}};
    m.fasi[1].perche->lunghezza = 10.42;
    const Osservazioni una = osservate(m);
    EXPECT_EQ(
        righe(una),
        Righe{
            "[impedisce] meccanismo: la paratia è un meccanismo nella fase 2: ruota attorno alla "
            "profondità di 8.90 m, la testa verso lo scavo; mancano 25.7 kN m/m; al limite: valle "
            "passivo 4.00-8.60 m; di solito aiuta una paratia più lunga: circa 10.42 m"});
    EXPECT_EQ(una[0].campi, (std::vector<std::string>{"profFase[2]", "lunghezzaParatia"}));
}

TEST(ControlloEquilibrio, NamesNoLengthWhereNoLongerWallStands) {
    Margine m = caduto(EsitoFase::meccanismo, Causa::meccanismo);
    m.fasi[1].perche->moto = equilibrium::Meccanismo{true, 0, 1, 1.2};
    EXPECT_EQ(righe(osservate(m)),
              Righe{"[impedisce] meccanismo: la paratia è un meccanismo nella fase 2: trasla verso "
                    "lo scavo; mancano 12.0 kN/m; controllare profondità di scavo, tiranti, "
                    "livelli dell'acqua e carichi in testa"});
}

TEST(ControlloEquilibrio, TellsDataWithoutACertainEquilibriumAndTheirField) {
    Margine m = caduto(EsitoFase::nonDefinito, Causa::nonDefinito);
    m.fasi[1].perche->instabile = {.che = Instabile::tirante, .tirante = 3, .valore = -50};
    const Osservazioni una = osservate(m);
    EXPECT_EQ(righe(una),
              Righe{"[pericolo] equilibrio-non-definito: l'equilibrio non è definito nella fase 2: "
                    "rigidezza negativa del tirante 3 (-500.0 kN/m/m)"});
    EXPECT_EQ(una[0].campi, std::vector<std::string>{"rigTirante[3]"});
    const std::pair<Instabile, const char*> campi[] = {{Instabile::parete, "rigidezzaEJ"},
                                                       {Instabile::modulo, "metodoKs"},
                                                       {Instabile::limiti, "metodoSpinte"}};
    for (const auto& [che, campo] : campi) {
        m.fasi[1].perche->instabile = {.che = che, .valore = -1};
        EXPECT_EQ(osservate(m)[0].campi, std::vector<std::string>{campo});
    }
}

TEST(ControlloEquilibrio, TellsDisplacementsThatAreNoNumber) {
    Margine m = caduto(EsitoFase::nessunNumero, Causa::nessunNumero);
    m.fasi[1].perche->newton = equilibrium::EsitoNewton::senzaMisura;
    EXPECT_EQ(righe(osservate(m)),
              Righe{"[pericolo] nessun-numero: nessun numero nella fase 2: spostamenti oltre mille "
                    "volte la lunghezza della paratia: nessun equilibrio utile; controllare "
                    "rigidezze e carichi"});
}

// The review of what is typed tells it.
TEST(ControlloEquilibrio, LeavesASoilWithoutAValueToTheReviewOfTheProject) {
    Margine m = margineSano(dueFasi);
    m.fasi[1].esito = EsitoFase::nonDefinito;
    m.fasi[1].rifiuto = analysis::RifiutoSuolo{};
    EXPECT_TRUE(osservate(m).empty());
}

TEST(ControlloEquilibrio, TellsOfAWallThatOnlyTheIterationDoesNotFindThatItStands) {
    Margine m = margineSano(dueFasi);
    m.fasi[0].estremi.spostamento = {-0.0031, 0, 1};
    EXPECT_EQ(righe(osservate(m, {ModoFine::oltreLimite, 1, 200})),
              Righe{"[impedisce] iterazione-che-oscilla: la paratia è in equilibrio nella fase 1, "
                    "con uno spostamento massimo di 3.1 mm: oscilla soltanto l'iterazione; il suo "
                    "equilibrio si calcola con korven32c equilibrio"});
    EXPECT_EQ(
        righe(osservate(m, {ModoFine::singolare, 1})),
        Righe{"[impedisce] iterazione-che-oscilla: la paratia è in equilibrio nella fase 1, con "
              "uno spostamento massimo di 3.1 mm: soltanto l'iterazione si ferma davanti a un "
              "sistema singolare; il suo equilibrio si calcola con korven32c equilibrio"});
    EXPECT_TRUE(osservate(m, {ModoFine::fermata, 1}).empty());
}

}  // namespace
}  // namespace korven::review
