#include "plot/strokes.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace korven::plot {
namespace {

constexpr double nessuno = std::numeric_limits<double>::quiet_NaN();
constexpr Colore rossa = 0x0000FF;
constexpr double infinito = std::numeric_limits<double>::infinity();

TEST(Segmento, IsAnotherWhenAnyOfItsNumbersIs) {
    const Segmento s{1, 2, 3, 4, rossa, 0.1};
    EXPECT_EQ(s, (Segmento{1, 2, 3, 4, rossa, 0.1}));
    for (const Segmento& altro :
         {Segmento{9, 2, 3, 4, rossa, 0.1}, Segmento{1, 9, 3, 4, rossa, 0.1},
          Segmento{1, 2, 9, 4, rossa, 0.1}, Segmento{1, 2, 3, 9, rossa, 0.1},
          Segmento{1, 2, 3, 4, nero, 0.1}, Segmento{1, 2, 3, 4, rossa, 0.9}})
        EXPECT_NE(s, altro);
}

TEST(TestoPlot, IsAnotherWhenAnythingOfItIs) {
    const TestoPlot t{1, 2, 0.3, 90, conteggioCentrato, "muro", rossa, "Arial"};
    EXPECT_EQ(t, (TestoPlot{1, 2, 0.3, 90, conteggioCentrato, "muro", rossa, "Arial"}));
    for (const TestoPlot& altro :
         {TestoPlot{9, 2, 0.3, 90, conteggioCentrato, "muro", rossa, "Arial"},
          TestoPlot{1, 9, 0.3, 90, conteggioCentrato, "muro", rossa, "Arial"},
          TestoPlot{1, 2, 0.9, 90, conteggioCentrato, "muro", rossa, "Arial"},
          TestoPlot{1, 2, 0.3, 0, conteggioCentrato, "muro", rossa, "Arial"},
          TestoPlot{1, 2, 0.3, 90, conteggioSimbolo, "muro", rossa, "Arial"},
          TestoPlot{1, 2, 0.3, 90, conteggioCentrato, "mura", rossa, "Arial"},
          TestoPlot{1, 2, 0.3, 90, conteggioCentrato, "muro", nero, "Arial"},
          TestoPlot{1, 2, 0.3, 90, conteggioCentrato, "muro", rossa, "Courier"}})
        EXPECT_NE(t, altro);
}

TEST(Disegnabile, IsOnlyWhatHasAPlaceAndASize) {
    EXPECT_TRUE(disegnabile(Segmento{1, 2, 3, 4, nero, 0}));
    for (const double male : {nessuno, infinito, -infinito}) {
        EXPECT_FALSE(disegnabile(Segmento{male, 2, 3, 4, nero, 0}));
        EXPECT_FALSE(disegnabile(Segmento{1, male, 3, 4, nero, 0}));
        EXPECT_FALSE(disegnabile(Segmento{1, 2, male, 4, nero, 0}));
        EXPECT_FALSE(disegnabile(Segmento{1, 2, 3, male, nero, 0}));
        EXPECT_FALSE(disegnabile(Segmento{1, 2, 3, 4, nero, male}));
    }
    const auto testo = [](double x, double y, double altezza, double angolo) {
        return TestoPlot{x, y, altezza, angolo, 0, "muro", nero, ""};
    };
    EXPECT_TRUE(disegnabile(testo(1, 2, 0.3, 90)));
    for (const double male : {nessuno, infinito, -infinito}) {
        EXPECT_FALSE(disegnabile(testo(male, 2, 0.3, 90)));
        EXPECT_FALSE(disegnabile(testo(1, male, 0.3, 90)));
        EXPECT_FALSE(disegnabile(testo(1, 2, male, 90)));
        EXPECT_FALSE(disegnabile(testo(1, 2, 0.3, male)));
    }
}

}  // namespace
}  // namespace korven::plot
