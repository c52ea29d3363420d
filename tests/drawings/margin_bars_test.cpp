#include "drawings/margin_bars.hpp"

#include <algorithm>

#include "plot/sheet.hpp"
#include "support/drawing_by_pen.hpp"

namespace korven::drawings {
namespace {

// Bars in a place from x 10 to 18 and y 5 to 12; the axis runs from 10.9 to 16.7.
class BarreMargine : public test::ProvaPlot {
 protected:
    BarreMargine() { configura(test::penneNere()); }

    void disegna() const {
        plot::apriFoglio({}, "");
        disegnaBarre(barre, 10, 5, 18, 12);
        plot::plotMuovi(0, 0, plot::fineDisegno);
    }

    [[nodiscard]] static const plot::TestoPlot& testo(const std::string& quale) {
        const auto& testi = plot::statoPlot.archivio.testi();
        return *std::find_if(testi.begin(), testi.end(),
                             [&](const auto& t) { return t.testo == quale; });
    }
    // Upright lines at x that reach into the height from y1 to y2.
    [[nodiscard]] static long attraverso(double x, double y1, double y2) {
        long quante = 0;
        plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento& s) {
            if (std::fabs(s.x1 - x) < 1e-6 && std::fabs(s.x2 - x) < 1e-6 &&
                std::max(s.y1, s.y2) > y1 && std::min(s.y1, s.y2) < y2)
                ++quante;
        });
        return quante;
    }
    // The outline of the only bar, that of stage 1.
    [[nodiscard]] std::string contorno(FineBarra fine) {
        barre.barre = {{.fase = 1, .valore = 9, .fine = fine, .numero = "9.00"}};
        disegna();
        const auto linee = test::polilinee(15, 2);
        return linee.size() == 1 ? linee[0] : std::string("not one line");
    }

    Barre barre{.titolo = "PROVA", .massimo = 100, .passo = 20, .limiti = {80}, .barre = {}};
};

TEST_F(BarreMargine, DrawATitleSmallerThatIsWiderThanTheirPlace) {
    disegna();
    EXPECT_DOUBLE_EQ(testo("PROVA").altezza, 0.28);
    barre.titolo = "UN TITOLO MOLTO PIU LARGO DEL POSTO CHE HA NEL DISEGNO";
    disegna();
    const plot::TestoPlot& largo = testo(barre.titolo);
    EXPECT_NEAR(plot::larghezzaTesto(largo.altezza, barre.titolo), 8, 1e-6);
}

TEST_F(BarreMargine, InterruptALimitWhereANumberStands) {
    barre.barre = {{.fase = 1, .valore = 75, .numero = "75"},
                   {.fase = 2, .valore = 20, .numero = "20"}};
    disegna();
    const plot::TestoPlot& numero = testo("75");
    const double limite = 10.9 + 0.8 * 5.8;
    ASSERT_LT(numero.x, limite);
    ASSERT_GT(numero.x + plot::larghezzaTesto(numero.altezza, "75"), limite);
    EXPECT_EQ(attraverso(limite, numero.y - 0.15, numero.y + numero.altezza + 0.15), 0);
    EXPECT_GT(attraverso(limite, numero.y - 1.5, numero.y - 0.5), 0);
}

TEST_F(BarreMargine, TellAKnownValueBeyondTheAxisFromOneWithoutEnd) {
    const auto punti = [](const std::string& linea) {
        return std::count(linea.begin(), linea.end(), ',') + 1;
    };
    EXPECT_EQ(punti(contorno(FineBarra::chiusa)), 4);
    EXPECT_EQ(punti(contorno(FineBarra::freccia)), 5);
    EXPECT_EQ(punti(contorno(FineBarra::interrotta)), 6);
}

}  // namespace
}  // namespace korven::drawings
