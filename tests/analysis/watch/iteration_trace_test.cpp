#include "analysis/watch/iteration_trace.hpp"

#include <gtest/gtest.h>

namespace korven::analysis {
namespace {

constexpr auto el = StatoLato::elastico;
constexpr auto at = StatoLato::attivo;
constexpr auto pa = StatoLato::passivo;

void passo(TracciaIterazioni& traccia, int iterazione, const std::vector<StatiNodo>& stati,
           const std::vector<TiranteInOpera>& tiranti = {}, int fase = 1) {
    StatoIterazione stato;
    stato.fase = fase;
    stato.iterazione = iterazione;
    stato.passoNodi = 0.25;
    stato.stati = stati;
    stato.tiranti = tiranti;
    traccia.registra(stato);
}

TEST(TracciaIterazioni, SaysSoWhenNothingChanges) {
    TracciaIterazioni traccia;
    passo(traccia, 1, {{el, el}}, {{1, true}});
    passo(traccia, 2, {{el, el}}, {{1, true}});
    EXPECT_TRUE(traccia.nodi().empty());
    EXPECT_TRUE(traccia.tiranti().empty());
    EXPECT_EQ(traccia.righe(),
              std::vector<std::string>{"nessun nodo e nessun tirante cambia stato"});
    EXPECT_EQ(traccia.iterazioni(), 2);
}

TEST(TracciaIterazioni, CountsTheChangesOfEachSideAndKeepsTheLast) {
    TracciaIterazioni traccia;
    passo(traccia, 1, {{el, el}, {el, el}, {el, el}});
    passo(traccia, 2, {{el, el}, {at, el}, {el, pa}});
    passo(traccia, 3, {{el, el}, {el, el}, {el, pa}});
    passo(traccia, 4, {{el, el}, {pa, el}, {el, pa}});
    const auto nodi = traccia.nodi();
    ASSERT_EQ(nodi.size(), 2u);
    EXPECT_EQ(nodi[0].nodo, 2);
    EXPECT_EQ(nodi[0].profondita, 0.25);
    EXPECT_TRUE(nodi[0].monte);
    EXPECT_EQ(nodi[0].cambi, 3);
    EXPECT_EQ(nodi[0].ultimaIterazione, 4);
    EXPECT_EQ(traccia.righe(),
              (std::vector<std::string>{
                  "nodo 2 (0.25 m), lato monte: elastico -> passivo, cambi: 3, ultimo "
                  "all'iterazione 4",
                  "nodo 3 (0.5 m), lato valle: elastico -> passivo, cambi: 1, ultimo "
                  "all'iterazione 2"}));
}

TEST(TracciaIterazioni, JoinsNeighboursOfOneSideThatChangeBetweenTheSameStates) {
    TracciaIterazioni traccia;
    // Nodes 1 to 4 uphill, 4 the other way round; 2 and 4 downhill are no neighbours; 5 alone.
    passo(traccia, 1, {{el, el}, {el, el}, {el, el}, {at, el}, {el, el}});
    passo(traccia, 2, {{at, el}, {at, pa}, {el, el}, {el, pa}, {pa, el}});
    passo(traccia, 3, {{at, el}, {el, pa}, {at, el}, {el, pa}, {pa, el}});
    passo(traccia, 4, {{at, el}, {at, pa}, {at, el}, {el, pa}, {pa, el}});
    EXPECT_EQ(traccia.righe(),
              (std::vector<std::string>{
                  "nodi 1-4 (0-0.75 m), lato monte: elastico <-> attivo, cambi: 1-3, ultimo alle "
                  "iterazioni 2-4",
                  "nodo 2 (0.25 m), lato valle: elastico -> passivo, cambi: 1, ultimo "
                  "all'iterazione 2",
                  "nodo 4 (0.75 m), lato valle: elastico -> passivo, cambi: 1, ultimo "
                  "all'iterazione 2",
                  "nodo 5 (1 m), lato monte: elastico -> passivo, cambi: 1, ultimo "
                  "all'iterazione 2"}));
}

TEST(TracciaIterazioni, TellsAWallThatFlipsEverywhereInTwoLines) {
    TracciaIterazioni traccia;
    const std::vector<StatiNodo> fermi(249), mossi(249, {at, pa});
    passo(traccia, 1, fermi);
    passo(traccia, 2, mossi);
    EXPECT_EQ(traccia.righe(),
              (std::vector<std::string>{
                  "nodi 1-249 (0-62 m), lato monte: elastico -> attivo, cambi: 1, ultimo "
                  "all'iterazione 2",
                  "nodi 1-249 (0-62 m), lato valle: elastico -> passivo, cambi: 1, ultimo "
                  "all'iterazione 2"}));
}

TEST(TracciaIterazioni, TellsAnchorsThatDropOutAndComeBack) {
    TracciaIterazioni traccia;
    passo(traccia, 1, {{el, el}}, {{5, true}, {9, true}});
    passo(traccia, 2, {{el, el}}, {{5, true}, {9, false}});
    EXPECT_EQ(traccia.righe(), std::vector<std::string>{
                                   "tirante 2 (nodo 9): esce, cambi: 1, ultimo all'iterazione 2"});
    passo(traccia, 3, {{el, el}}, {{5, true}, {9, true}});
    EXPECT_EQ(
        traccia.righe(),
        std::vector<std::string>{"tirante 2 (nodo 9): rientra, cambi: 2, ultimo all'iterazione 3"});
}

TEST(TracciaIterazioni, LeavesOutWhatCameToRestBeforeTheIterationAskedFor) {
    TracciaIterazioni traccia;
    passo(traccia, 1, {{el, el}, {el, el}}, {{1, true}});
    passo(traccia, 2, {{at, el}, {el, el}}, {{1, false}});
    passo(traccia, 3, {{at, el}, {el, pa}}, {{1, false}});
    EXPECT_EQ(traccia.nodi(3).size(), 1u);
    EXPECT_EQ(traccia.nodi(3)[0].nodo, 2);
    EXPECT_TRUE(traccia.tiranti(3).empty());
    EXPECT_EQ(traccia.nodi(2).size(), 2u);
    EXPECT_EQ(traccia.tiranti(2).size(), 1u);
}

TEST(TracciaIterazioni, BeginsANewRecordWithTheFirstIterationOfAStage) {
    TracciaIterazioni traccia;
    passo(traccia, 1, {{el, el}, {el, el}});
    passo(traccia, 2, {{at, el}, {el, el}});
    passo(traccia, 1, {{el, el}, {el, el}}, {{1, true}}, 2);
    EXPECT_EQ(traccia.fase(), 2);
    EXPECT_EQ(traccia.iterazioni(), 1);
    EXPECT_TRUE(traccia.nodi().empty());
}

}  // namespace
}  // namespace korven::analysis
