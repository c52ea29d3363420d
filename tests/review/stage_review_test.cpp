#include <gtest/gtest.h>

#include "review/bench.hpp"
#include "support/wall_builder.hpp"

namespace korven::review {
namespace {

TEST(ControlloTiranti, NamesWhatIsOddAboutAnchors) {
    aspetta({
        {[](DatiProgetto& d) { d.profTirante[1] = 12.5; },
         {"tirante 1: Prof. [m] = 12.5: è più profondo della paratia"}},
        {[](DatiProgetto& d) { d.profTirante[1] = -1; },
         {"tirante 1: Prof. [m] = -1: è sopra la testa della paratia"}},
        {[](DatiProgetto& d) {
             test::aggiungiTirante(d, 1, 500);
             d.tirantiFase[2] = 2;
         },
         {"tirante 2: Prof. [m] = 1: è più in alto del precedente"}},
        {[](DatiProgetto& d) { d.rigTirante[1] = -500; },
         {"tirante 1: Rigidezza [kN/m] = -5000: valore negativo"}},
        {[](DatiProgetto& d) { d.pretTirante[1] = -5; },
         {"tirante 1: Pretens. [kN] = -50: valore negativo"}},
        {[](DatiProgetto& d) { d.rigTirante[1] = d.pretTirante[1] = 0; },
         {"tirante 1: Rigidezza [kN/m] = 0: senza rigidezza né pretensione il tirante non "
          "agisce"}},
        {[](DatiProgetto& d) { d.rigTirante[1] = 0; }, {}},
        {[](DatiProgetto& d) {
             d.rigTirante[1] = 0;
             d.pretTirante[1] = -5;
         },
         {"tirante 1: Pretens. [kN] = -50: senza rigidezza e con pretensione negativa un tirante a "
          "sola trazione non agisce mai"}},
        {[](DatiProgetto& d) {  // a strut that pushes from both sides
             d.rigTirante[1] = 0;
             d.pretTirante[1] = -5;
             d.tipoTirante[1] = 1;
         },
         {"puntone 1: Pretens. [kN] = -50: valore negativo"}},
    });
    EXPECT_TRUE(righeDi(conModifica([](DatiProgetto& d) { d.profTirante[1] = 12; }),
                        {"tirante-sotto-il-piede"})
                    .empty());
}

TEST(ControlloFasi, NamesWhatIsOddAboutTheAnchorsOfAStage) {
    aspetta({
        {[](DatiProgetto& d) { d.tirantiFase[2] = 2; },
         {"fase 2: Numero tot. tiranti = 2: più tiranti di quelli definiti: gli altri non "
          "agiscono, "
          "definirli nella tabella dei tiranti o correggere il numero"}},
        {[](DatiProgetto& d) {  // a row that the table keeps beyond its count does not act
             d.tirantiFase[2] = 2;
             d.profTirante[2] = 3;
             d.rigTirante[2] = 800;
         },
         {"fase 2: Numero tot. tiranti = 2: più tiranti di quelli definiti: gli altri non "
          "agiscono, "
          "definirli nella tabella dei tiranti o correggere il numero"}},
        {[](DatiProgetto& d) { d.tirantiFase[1] = -1; },
         {"fase 1: Numero tot. tiranti = -1: valore negativo"}},
        {[](DatiProgetto& d) { d.tirantiFase[2] = 0.5; },
         {"tirante 1: Prof. [m] = 1.5: nessuna fase lo mette in opera: non agisce",
          "fase 2: Numero tot. tiranti = 0.5: il numero di tiranti non è intero"}},
        {[](DatiProgetto& d) {
             d.tirantiFase[1] = 1;
             d.tirantiFase[2] = 0;
         },
         {"fase 2: Numero tot. tiranti = 0: i tiranti sono meno che nella fase precedente"}},
    });
}

TEST(ControlloFasi, RefusesMoreAnchorsThanTheTableHoldsAsTheRunDoes) {
    for (const double troppi : {21.0, 25.0, 1e15}) {
        const auto d = conModifica([&](DatiProgetto& p) { p.tirantiFase[2] = troppi; });
        EXPECT_EQ(righe(d).size(), 1u);
        EXPECT_TRUE(righe(d)[0].starts_with("! fase 2: Numero tot. tiranti = "));
        EXPECT_TRUE(righe(d)[0].ends_with(": più tiranti di quanti ne tiene la tabella (20)"));
        EXPECT_FALSE(laCorsaRiesce(d)) << troppi;
    }
    EXPECT_TRUE(laCorsaRiesce(conModifica([](DatiProgetto& p) { p.tirantiFase[2] = 20; })));
    EXPECT_TRUE(laCorsaRiesce(conModifica([](DatiProgetto& p) { p.tirantiFase[1] = -1e15; })));
}

TEST(ControlloFasi, NamesStagesOutOfOrderAndExcavationsBelowTheWall) {
    aspetta({
        {[](DatiProgetto& d) { d.profFase[1] = d.faldaFase[1] = 6; },
         {"fase 2: Prof. [m] = 5: lo scavo è meno profondo che nella fase precedente"}},
        {[](DatiProgetto& d) { d.profFase[2] = d.faldaFase[2] = 12; },
         {"fase 2: Prof. [m] = 12: lo scavo raggiunge o supera il piede della paratia"}},
        {[](DatiProgetto& d) { d.profFase[1] = d.faldaFase[1] = 5; }, {}},
        {[](DatiProgetto& d) { d.profFase[1] = -1; },
         {"fase 1: Prof. [m] = -1: lo scavo è sopra la testa della paratia"}},
        {[](DatiProgetto& d) { d.sovraccFase[2] = -2; },
         {"fase 2: Sovracc. [kN/m²] = -20: valore negativo"}},
    });
}

}  // namespace
}  // namespace korven::review
