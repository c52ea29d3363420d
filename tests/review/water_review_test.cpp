#include <gtest/gtest.h>

#include "review/bench.hpp"
#include "review/remark_list.hpp"

namespace korven::review {
namespace {

using Righe = std::vector<std::string>;

// A wall of 12 m, its stages 2 and 5 m deep; the levels behind and in the stages.
Righe con(double monte, double prima, double seconda) {
    return righe(conModifica([&](DatiProgetto& d) {
        d.faldaMonte = monte;
        d.faldaFase[1] = prima;
        d.faldaFase[2] = seconda;
    }));
}

const std::string monte = "Profondità falda a monte del diaframma [m] = ";
const std::string zero =
    ": acqua fino alla testa della paratia da entrambi i lati, come risulta quando i livelli non "
    "sono scritti: scriverli; se non c'è falda, scrivere più di 12 m";
const std::string davanti =
    ": l'acqua è più alta davanti che dietro e spinge la paratia verso il terreno: se non è "
    "voluto, correggere il livello di valle; se non c'è falda, scrivere più di 12 m";
const std::string nelloScavo =
    ": l'acqua davanti sta sopra il fondo dello scavo e sostiene la paratia: vale solo se lo scavo "
    "resta pieno d'acqua, altrimenti scrivere almeno la profondità dello scavo";

TEST(ControlloAcqua, TellsLevelsThatNobodyTyped) {
    EXPECT_EQ(con(0, 0, 0), Righe{monte + "0, fasi 1, 2: Prof. falda [m] = 0, 0" + zero});
    EXPECT_EQ(con(0, 2, 0), Righe{monte + "0, fase 2: Prof. falda [m] = 0" + zero});
    EXPECT_EQ(con(0, 2, 5), Righe{});  // ground water at the surface, lowered in front
}

TEST(ControlloAcqua, LetsGroundWaterReachTheSurfaceBeforeAnythingIsDug) {
    const auto primaDelloScavo = [](double seconda) {
        return righe(conModifica([&](DatiProgetto& d) {
            d.faldaMonte = d.profFase[1] = d.faldaFase[1] = 0;
            d.faldaFase[2] = seconda;
        }));
    };
    EXPECT_EQ(primaDelloScavo(5), Righe{});
    EXPECT_EQ(primaDelloScavo(0), Righe{monte + "0, fasi 1, 2: Prof. falda [m] = 0, 0" + zero});
}

TEST(ControlloAcqua, TellsWaterHigherInFrontThanBehindWhereTheWallFeelsIt) {
    EXPECT_EQ(con(4, 3, 5), Righe{"fase 1: Prof. falda [m] = 3, " + monte + "4" + davanti});
    EXPECT_EQ(con(5, 5, 5), Righe{});
    EXPECT_EQ(con(1000, 12, 50), Righe{});  // both below the toe
    EXPECT_EQ(con(1000, 11.9, 50),
              Righe{"fase 1: Prof. falda [m] = 11.9, " + monte + "1000" + davanti});
    EXPECT_EQ(con(1000, 0, 50), (Righe{"fase 1: Prof. falda [m] = 0, " + monte + "1000" + davanti,
                                       "fase 1: Prof. falda [m] = 0" + nelloScavo}));
}

TEST(ControlloAcqua, TellsWaterThatStandsInTheExcavation) {
    EXPECT_EQ(con(1, 1.9, 4), Righe{"fasi 1, 2: Prof. falda [m] = 1.9, 4" + nelloScavo});
    EXPECT_EQ(con(1, 2, 4.5), Righe{"fase 2: Prof. falda [m] = 4.5" + nelloScavo});
    EXPECT_EQ(con(1, 2, 5), Righe{});
}

TEST(ControlloAcqua, SaysNothingOfAWallWithoutLength) {
    DatiProgetto d = test::progettoSemplice();
    d.lunghezzaParatia = d.faldaMonte = d.faldaFase[1] = d.faldaFase[2] = 0;
    ElencoOsservazioni elenco;
    controlloAcqua(d, elenco);
    EXPECT_TRUE(elenco.ordinate().empty());
}

}  // namespace
}  // namespace korven::review
