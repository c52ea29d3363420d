#include <gtest/gtest.h>

#include "review/margins.hpp"

namespace korven::review {
namespace {

using project::DatiProgetto;
using safety::Margine;

// 20 m in 50 segments: a node each 0.4 m.
DatiProgetto conLivelli(double scavo, double faldaValle, double faldaMonte, double strato) {
    return test::muro()
        .lungo(20)
        .falda(faldaMonte)
        .strato({.fondo = strato})
        .strato({.fondo = 25})
        .fase({.scavo = scavo, .falda = faldaValle})
        .dati();
}

Righe conErrore(const DatiProgetto& dati, double momento, double taglio = 0) {
    Margine m = margineSano(dati);
    m.maglia = safety::ErroreMaglia{};
    m.maglia->momentoPositivo.quota = momento;
    m.maglia->taglio.quota = taglio;
    ElencoOsservazioni elenco;
    controlloMaglia(dati, m, elenco);
    return righe(elenco.ordinate());
}

TEST(ControlloMaglia, TellsALevelThatTheNodesMoveWhereTheMeshIsTooCoarse) {
    // 4.1 m counts from 4.4 m on, 6.9 m from 7.2 m, 3.05 m from 3.2 m.
    EXPECT_EQ(conErrore(conLivelli(4.1, 30, 30, 8), 0.062),
              Righe{"[da vedere] scavo-spostato-dai-nodi: fase 1: Prof. [m] = 4.1: conta dal nodo "
                    "a 4.40 m, 0.30 m più in basso; con questa maglia, per tutte le cause "
                    "insieme, il momento è falsato di 6.2 %: "
                    "aumentare i segmenti"});
    EXPECT_EQ(conErrore(conLivelli(4, 6.9, 30, 8), 0.02, 0.07),
              Righe{"[da vedere] falda-tra-due-nodi: fase 1: Prof. falda [m] = 6.9: cade tra due "
                    "nodi, 0.30 m sopra quello a 7.20 m; con questa maglia, per tutte le cause "
                    "insieme, il taglio è falsato di 7.0 %: "
                    "aumentare i segmenti"});
    EXPECT_EQ(
        conErrore(conLivelli(4, 30, 3.05, 8), 0.062)
            .at(0)
            .rfind("[da vedere] falda-tra-due-nodi: Profondità falda a monte del diaframma [m] "
                   "= 3.05: cade tra due nodi, 0.15 m sopra quello a 3.20 m",
                   0),
        0u);
    EXPECT_EQ(conErrore(conLivelli(4, 30, 30, 8.15), 0.062),
              Righe{"[da vedere] strato-spostato-dai-nodi: strato 1: Prof. [m] = 8.15: lo strato "
                    "che segue conta dal nodo a 8.40 m, 0.25 m più in basso; con questa maglia, "
                    "per tutte le cause "
                    "insieme, il momento è falsato di 6.2 %: aumentare i segmenti"});
}

TEST(ControlloMaglia, SaysNothingOfAMeshThatIsFineEnough) {
    EXPECT_EQ(conErrore(conLivelli(4.1, 6.9, 3.05, 8.15), 0.05, 0.049), Righe{});
}

TEST(ControlloMaglia, SaysNothingOfLevelsNearTheirNodeOrBesideTheWall) {
    EXPECT_EQ(conErrore(conLivelli(4.31, 7.11, 0, 8.35), 0.2), Righe{});
    EXPECT_EQ(conErrore(conLivelli(4.4, 30, -1, 8), 0.2), Righe{});
    EXPECT_EQ(conErrore(conLivelli(20.1, 30, 30, 22.1), 0.2), Righe{});
}

TEST(ControlloMaglia, TellsTheLevelOfAKindThatMovesMost) {
    DatiProgetto dati = conLivelli(4.1, 30, 30, 8);
    test::aggiungiFase(dati, {.scavo = 5.65});
    const Righe una = conErrore(dati, 0.1);
    ASSERT_EQ(una.size(), 1u);
    EXPECT_NE(una[0].find("fase 2: Prof. [m] = 5.65: conta dal nodo a 6.00 m"), std::string::npos);
}

TEST(ControlloMaglia, TellsOneKindOnlyTheExcavationFirst) {
    EXPECT_EQ(conErrore(conLivelli(4.1, 6.9, 3.05, 8.15), 0.1)
                  .at(0)
                  .rfind("[da vedere] scavo-spostato-dai-nodi", 0),
              0u);
    EXPECT_EQ(conErrore(conLivelli(4.1, 6.9, 3.05, 8.15), 0.1).size(), 1u);
    EXPECT_EQ(conErrore(conLivelli(4, 6.9, 3.05, 8.15), 0.1)
                  .at(0)
                  .rfind("[da vedere] strato-spostato-dai-nodi", 0),
              0u);
}

TEST(ControlloMaglia, SaysNothingWhereTheErrorIsNotKnown) {
    const DatiProgetto dati = conLivelli(4.1, 6.9, 3.05, 8.15);
    ElencoOsservazioni elenco;
    controlloMaglia(dati, margineSano(dati), elenco);
    EXPECT_TRUE(elenco.ordinate().empty());
}

}  // namespace
}  // namespace korven::review
