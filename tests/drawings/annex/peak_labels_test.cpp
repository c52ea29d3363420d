#include "drawings/annex/peak_labels.hpp"

#include <gtest/gtest.h>

#include "drawings/annex/paper.hpp"
#include "support/scene_parts.hpp"

namespace korven::drawings {
namespace {

using scene::Linea;
using scene::Punto;
using scene::Riquadro;
using scene::Testo;

template <class F>
std::vector<F> figure(const std::vector<scene::Primitiva>& primitive) {
    scene::Scena s;
    s.primitive = primitive;
    return test::figure<F>(s);
}

Picco picco(Punto punto) {
    Picco p;
    p.punto = punto;
    p.forme = {{"573.3 · 9.00 m"}, {"573.3", "9.00 m"}};
    return p;
}

std::vector<scene::Primitiva> etichette(const CampoPicchi& campo,
                                        std::vector<Riquadro> occupati = {}) {
    return etichettePicchi({campo}, std::move(occupati), scene::MisuraStimata());
}

TEST(EtichettePicchi, StandBesideAPeakInOneRowWhereThereIsRoom) {
    CampoPicchi campo{{0, 0, 200, 300}, {{{100, 0}, {60, 150}, {100, 300}}}, {}, {}};
    campo.picchi.push_back(picco({60, 150}));
    const auto tutte = etichette(campo);
    const auto testi = figure<Testo>(tutte);
    ASSERT_EQ(testi.size(), 1u);
    EXPECT_EQ(testi[0].testo, "573.3 · 9.00 m");
    EXPECT_NEAR(testi[0].punto.y, 150, 1);
    EXPECT_TRUE(figure<Linea>(tutte).empty());  // so near that no stroke leads to it
    EXPECT_EQ(figure<scene::Area>(tutte).size(), 1u);
}

// The curves of the stages within an envelope leave no place free of them.
TEST(EtichettePicchi, LieOnThinCurvesRatherThanFarFromTheirPeak) {
    CampoPicchi campo{{0, 0, 200, 600}, {{{100, 0}, {60, 150}, {100, 600}}}, {}, {}};
    for (double x = 70; x < 200; x += 25) campo.sottili.push_back({{x, 0}, {x, 400}});
    campo.picchi.push_back(picco({60, 150}));
    const auto testi = figure<Testo>(etichette(campo));
    ASSERT_FALSE(testi.empty());
    EXPECT_NEAR(testi[0].punto.y, 150, 30);
}

// Between the curve and the right border there is room for the shorter rows alone.
TEST(EtichettePicchi, TakeTwoRowsWhereOneWouldLieOnTheCurve) {
    CampoPicchi campo{{0, 0, 110, 60}, {{{50, 0}, {60, 30}, {50, 60}}}, {}, {}};
    campo.picchi.push_back(picco({60, 30}));
    const auto testi = figure<Testo>(etichette(campo));
    ASSERT_EQ(testi.size(), 2u);
    EXPECT_EQ(testi[0].testo, "573.3");
    EXPECT_EQ(testi[1].testo, "9.00 m");
    EXPECT_LT(testi[0].punto.y, testi[1].punto.y);
    for (const Testo& t : testi) {
        EXPECT_GT(t.riquadro().sinistra, 60);
        EXPECT_LE(t.riquadro().destra, 110);
    }
}

TEST(EtichettePicchi, LeadAStrokeToATextThatIsFarAway) {
    CampoPicchi campo{{0, 0, 120, 300}, {}, {}, {}};
    campo.picchi.push_back(picco({60, 150}));
    const auto tutte = etichette(campo, {{0, 100, 120, 200}});
    const auto testi = figure<Testo>(tutte);
    const auto linee = figure<Linea>(tutte);
    ASSERT_EQ(testi.size(), 1u);
    const Riquadro r = testi[0].riquadro();
    EXPECT_TRUE(r.basso <= 100 || r.alto >= 200);
    ASSERT_EQ(linee.size(), 1u);
    EXPECT_EQ(linee[0].punti[0], (Punto{60, 150}));
}

TEST(EtichettePicchi, OfPeaksSideBySideDoNotTouch) {
    CampoPicchi campo{{0, 0, 200, 200}, {}, {}, {}};
    for (int i = 0; i < 5; ++i) campo.picchi.push_back(picco({90.0 + 3 * i, 100}));
    const auto testi = figure<Testo>(etichette(campo));
    EXPECT_GE(testi.size(), 5u);
    for (std::size_t i = 0; i < testi.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(testi[i].riquadro().tocca(testi[j].riquadro())) << i << ' ' << j;
}

TEST(EtichettePicchi, AreLeftOutWhereThereIsNoRoomAtAll) {
    CampoPicchi campo{{0, 0, 200, 200}, {}, {}, {}};
    campo.picchi.push_back(picco({100, 100}));
    const auto tutte = etichette(campo, {{0, 0, 200, 200}});
    EXPECT_TRUE(figure<Testo>(tutte).empty());
    EXPECT_EQ(figure<scene::Area>(tutte).size(), 1u);
}

}  // namespace
}  // namespace korven::drawings
