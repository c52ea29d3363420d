#include <gtest/gtest.h>

#include "project/codes.hpp"
#include "review/bench.hpp"
#include "support/wall_builder.hpp"

namespace korven::review {
namespace {

using project::MetodoSpinte;
using project::ModoTensioni;
using Righe = std::vector<std::string>;

const std::string dueVolte =
    ": con attrito sotto l'acqua le tensioni totali contano l'acqua due volte, nel peso del "
    "terreno e come spinta: usare le tensioni efficaci, o Phi = 0 con la coesione non drenata";

// Layers to 4 and 20 m around a wall of 12 m, water behind at 3 m, in front at 3 and 5 m.
Righe inTotali(const Modifica& modifica) {
    return righeDi(conModifica([&](DatiProgetto& d) {
                       d.modoTensioni = valore(ModoTensioni::totali);
                       modifica(d);
                   }),
                   {"tensioni-totali-con-attrito"});
}

TEST(ControlloTensioni, TellsTotalStressesWithFrictionUnderWater) {
    EXPECT_EQ(inTotali([](auto&) {}),
              Righe{"opzione delle tensioni = totali, strati 1, 2: Phi [°] = 30, 34" + dueVolte});
    EXPECT_EQ(inTotali([](auto& d) { d.phiStrato[1] = 0; }),
              Righe{"opzione delle tensioni = totali, strato 2: Phi [°] = 34" + dueVolte});
    EXPECT_EQ(inTotali([](auto& d) { d.phiStrato[1] = d.phiStrato[2] = 0; }), Righe{});
    EXPECT_EQ(righe(test::progettoSemplice()), Righe{});
}

TEST(ControlloTensioni, LooksAtTheLayersThatTheWaterReaches) {
    const auto acqua = [](double monte, double valle) {
        return inTotali([&](DatiProgetto& d) {
            d.phiStrato[2] = 0;
            d.faldaMonte = monte;
            d.faldaFase[1] = d.faldaFase[2] = valle;
        });
    };
    const Righe prima = {"opzione delle tensioni = totali, strato 1: Phi [°] = 30" + dueVolte};
    EXPECT_EQ(acqua(3.9, 50), prima);
    EXPECT_EQ(acqua(4, 50), Righe{});  // sand above the water, clay below
    const auto asciutto = [](double falda) {
        return inTotali([&](auto& d) { d.faldaMonte = d.faldaFase[1] = d.faldaFase[2] = falda; });
    };
    EXPECT_EQ(asciutto(12), Righe{});
    EXPECT_EQ(asciutto(11.9),
              Righe{"opzione delle tensioni = totali, strato 2: Phi [°] = 34" + dueVolte});
}

TEST(ControlloTensioni, CountsWaterInFrontFromTheExcavationOn) {
    const auto davanti = [](double scavo) {
        return righeDi(conModifica([&](DatiProgetto& d) {
                           d.modoTensioni = valore(ModoTensioni::totali);
                           d.phiStrato[2] = 0;
                           d.faldaMonte = d.faldaFase[2] = 50;
                           d.profFase[1] = scavo;
                           d.faldaFase[1] = 1;
                       }),
                       {"tensioni-totali-con-attrito"});
    };
    EXPECT_EQ(davanti(3.5),
              Righe{"opzione delle tensioni = totali, strato 1: Phi [°] = 30" + dueVolte});
    EXPECT_EQ(davanti(4), Righe{});  // the first layer is dug away where the water stands
}

TEST(ControlloTensioni, TellsUndrainedStrengthsThatNothingReads) {
    aspetta({{[](DatiProgetto& d) {
                  d.suStrato[1] = 3;
                  d.suStrato[2] = 4.5;
              },
              {"strati 1, 2: Su [kN/m²] = 30, 45: nessun calcolo legge la resistenza non drenata, "
               "solo la stratigrafia la disegna: nei calcoli in tensioni totali scriverla come "
               "coesione"}}});
}

TEST(ControlloTensioni, TellsCohesionAndSlopeThatBellLeavesOut) {
    const auto con = [](MetodoSpinte metodo, double coesione, double pendenza) {
        return righeDi(conModifica([&](DatiProgetto& d) {
                           d.metodoSpinte = valore(metodo);
                           d.coesione[2] = coesione;
                           d.inclinazioneMonte = pendenza;
                       }),
                       {"coesione-con-bell", "pendio-con-bell"});
    };
    EXPECT_EQ(con(MetodoSpinte::bell, 0, 0), Righe{});
    EXPECT_EQ(con(MetodoSpinte::bell, 0.5, 0),
              Righe{"metodo delle spinte = Bell, strato 2: Coes. [kN/m²] = 5: con Bell la coesione "
                    "non entra nelle spinte: usare Coulomb o Rankine"});
    EXPECT_EQ(
        con(MetodoSpinte::bell, 0, 5),
        Righe{"metodo delle spinte = Bell, Inclinazione del terreno a monte del diaframma [°] = "
              "5: con Bell la pendenza non entra nelle spinte attiva e passiva: usare "
              "Coulomb o Rankine"});
    for (const auto altro : {MetodoSpinte::coulomb, MetodoSpinte::rankine})
        EXPECT_EQ(con(altro, 0.5, 5), Righe{});
}

// For 30 degrees Coulomb's coefficient passes that at rest at a slope of 14.6: at 15 degrees
// k0 = 0.5 / 1.2588 = 0.397, ka = 0.75 / (1 + root(0.5 * 0.2588 / 0.9659))^2 = 0.402.
TEST(ControlloTensioni, TellsASlopeAtWhichTheGroundAtRestIsBelowTheActiveState) {
    const auto pendio = [](double beta, double metodo) {
        return righeDi(conModifica([&](DatiProgetto& d) {
                           d.inclinazioneMonte = beta;
                           d.metodoSpinte = metodo;
                           d.phiStrato[2] = 44;
                       }),
                       {"k0-sotto-ka"});
    };
    const std::string detto =
        ": coesione a parte, il terreno a monte è in stato attivo già senza spostamenti";
    EXPECT_EQ(pendio(14.5, 1), Righe{});
    EXPECT_EQ(pendio(15, 1),
              Righe{"Inclinazione del terreno a monte del diaframma [°] = 15, strato 1: Phi [°] = "
                    "30: il coefficiente a riposo (0.397) è minore di quello attivo (0.402)" +
                    detto});
    EXPECT_EQ(pendio(20, 2)[0],
              "Inclinazione del terreno a monte del diaframma [°] = 20, strato 1: Phi [°] = 30: il "
              "coefficiente a riposo (0.373) è minore di quello attivo (0.414)" +
                  detto);
    EXPECT_EQ(pendio(0, 1), Righe{});
    EXPECT_EQ(righeDi(conModifica([](DatiProgetto& d) { d.phiStrato[1] = 0; }), {"k0-sotto-ka"}),
              Righe{});
}

// phi = 30 degrees, 10 degrees of slope: 0.5 / 1.1736 and 0.5 * 1.1736.
TEST(ControlloTensioni, TellsTheCoefficientAtRestOfARisingGround) {
    const auto pendio = [](double beta) {
        return righeDi(conModifica([&](DatiProgetto& d) { d.inclinazioneMonte = beta; }),
                       {"riposo-del-pendio"});
    };
    EXPECT_EQ(pendio(10),
              Righe{"Inclinazione del terreno a monte del diaframma [°] = 10, strato 1: Phi [°] = "
                    "30: con il terreno che sale il coefficiente a riposo è 0.426 (Kézdi), per EN "
                    "1997-1, 9.5.2, sarebbe 0.587: dove il terreno a monte è elastico pressioni, "
                    "momenti e forze sono minori, dalla parte non sicura; confrontare con "
                    "inclinazione nulla e il peso del terreno sopra la testa come sovraccarico a "
                    "monte"});
    EXPECT_EQ(pendio(0), Righe{});
    EXPECT_EQ(pendio(-10), Righe{});  // it rises where the ground falls
}

}  // namespace
}  // namespace korven::review
