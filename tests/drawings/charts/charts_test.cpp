#include "drawings/charts/charts.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "drawings/charts/axes.hpp"
#include "scene/polygon.hpp"
#include "scene/text_measure.hpp"

namespace korven::drawings {
namespace {

using scene::Area;
using scene::Elemento;
using scene::Linea;
using scene::Primitiva;
using scene::Testo;

constexpr double nessuno = std::numeric_limits<double>::quiet_NaN();
constexpr scene::Riquadro posto{0, 0, 500, 300};

template <class Dati>
std::vector<Primitiva> disegnato(void (*disegna)(scene::Tela&, const scene::Riquadro&, const Dati&),
                                 const Dati& dati) {
    const scene::MisuraStimata testi;
    scene::Tela tela(posto.destra, posto.basso, testi);
    disegna(tela, posto, dati);
    return tela.concludi();
}

template <class Figura>
std::vector<Figura> figure(const std::vector<Primitiva>& tutte, Elemento elemento) {
    std::vector<Figura> trovate;
    for (const auto& una : tutte)
        if (const auto* figura = std::get_if<Figura>(&una.figura))
            if (una.elemento == elemento) trovate.push_back(*figura);
    return trovate;
}

bool scritto(const std::vector<Primitiva>& tutte, const std::string& testo) {
    const auto testi = figure<Testo>(tutte, Elemento::asse);
    return std::ranges::any_of(testi, [&](const Testo& t) { return t.testo == testo; });
}

TEST(Assi, PutNumbersInProportion) {
    const Assi assi(posto, {0, 10, false}, {-1, 1, false}, "x", "y");
    const auto& c = assi.campo();
    EXPECT_DOUBLE_EQ(assi.x(0), c.sinistra);
    EXPECT_DOUBLE_EQ(assi.x(2.5), c.sinistra + c.larghezza() / 4);
    EXPECT_DOUBLE_EQ(assi.y(-1), c.basso);
    EXPECT_DOUBLE_EQ(assi.y(0.5), c.alto + c.altezza() / 4);
}

TEST(Estensione, HasSomeLengthForOneNumberToo) {
    Estensione e;
    e.comprendi(nessuno);
    EXPECT_TRUE(e.vuota);
    e.comprendi(-50);
    EXPECT_LT(e.conAria().minimo, -50);
    EXPECT_GT(e.conAria().massimo, -50);
    EXPECT_GT(Estensione{}.conAria().massimo, Estensione{}.conAria().minimo);
}

// Values 1 to 8: the quartiles among them are 2 and 6, 2 * 4 / 8^(1/3) = 4, which are too few
// classes: five at most of a round width are of 2.
TEST(Classi, HaveRoundEnds) {
    const Classi c = classi({3, 1, 2, 8, 7, 6, 4, 5});
    EXPECT_EQ(c.inizio, 0);
    EXPECT_EQ(c.passo, 2);
    EXPECT_EQ(c.numeri, (std::vector<std::size_t>{1, 2, 2, 3}));
}

TEST(Classi, AreOneForEqualValues) {
    EXPECT_EQ(classi({5, 5, 5}).numeri, (std::vector<std::size_t>{3}));
    EXPECT_EQ(classi({0}).numeri, (std::vector<std::size_t>{1}));
    EXPECT_EQ(classi({-0.4}).numeri, (std::vector<std::size_t>{1}));
}

TEST(GraficoCurve, LeavesGapsAndMarksThem) {
    const GraficoCurve dati{
        "a [m]", "b", {{"", {1, 2, 3, 4, 5, 6}, {1, 2, nessuno, 3, 4, nessuno}}}, "manca"};
    const auto tutte = disegnato(disegnaCurve, dati);
    const auto linee = figure<Linea>(tutte, Elemento::curva);
    ASSERT_EQ(linee.size(), 2U);
    EXPECT_EQ(linee[0].punti.size(), 2U);
    EXPECT_LT(linee[0].punti[1].y, linee[0].punti[0].y);  // a larger number is higher
    EXPECT_EQ(figure<Linea>(tutte, Elemento::estremo).size(), 2U);
    EXPECT_TRUE(scritto(tutte, "manca"));
    EXPECT_TRUE(scritto(tutte, "a [m]"));
}

TEST(GraficoCurve, NamesEachCurveOfAFamilyAtItsRight) {
    GraficoCurve dati{"a", "b", {}, "manca"};
    for (int k = 0; k < 6; ++k)
        dati.curve.push_back({"p = " + std::to_string(k), {0, 1}, {0, 1 + 0.001 * k}});
    const auto tutte = disegnato(disegnaCurve, dati);
    for (const auto& curva : dati.curve) EXPECT_TRUE(scritto(tutte, curva.nome)) << curva.nome;
    EXPECT_FALSE(scritto(tutte, "manca"));
}

TEST(IstogrammaDisegnato, HasABarForEachClassAndItsMarks) {
    const Istogramma dati{"x", "n", {3, 1, 2, 8, 7, 6, 4, 5, nessuno}, {{4.5, "50 %"}}};
    const auto tutte = disegnato(disegnaIstogramma, dati);
    const auto barre = figure<Area>(tutte, Elemento::curva);
    ASSERT_EQ(barre.size(), 4U);
    const auto alta = [](const Area& a) { return scene::intorno(a.punti).altezza(); };
    EXPECT_NEAR(alta(barre[3]), 3 * alta(barre[0]), 1e-9);
    EXPECT_TRUE(scritto(tutte, "50 %"));
    EXPECT_TRUE(disegnato(disegnaIstogramma, Istogramma{"x", "n", {nessuno}, {}}).empty());
}

TEST(NuvolaDisegnata, HasTwoThousandPointsAtMost) {
    Nuvola dati{"x", "y", {}};
    for (int i = 0; i < 5000; ++i) dati.punti.push_back({1.0 * i, std::sin(i)});
    dati.punti.push_back({nessuno, 1});
    EXPECT_EQ(figure<Area>(disegnato(disegnaNuvola, dati), Elemento::curva).size(), 2000U);
    dati.punti = {{1, 2}, {nessuno, 3}, {4, nessuno}};
    EXPECT_EQ(figure<Area>(disegnato(disegnaNuvola, dati), Elemento::curva).size(), 1U);
}

TEST(BarreDisegnate, AreInProportionToBothSides) {
    const GraficoBarre dati{"titolo", {{"uno", 0.8}, {"due", -0.4}, {"tre", std::nullopt}}};
    const auto tutte = disegnato(disegnaGraficoBarre, dati);
    const auto barre = figure<Area>(tutte, Elemento::curva);
    ASSERT_EQ(barre.size(), 3U);
    const auto prima = scene::intorno(barre[0].punti), seconda = scene::intorno(barre[1].punti);
    EXPECT_NEAR(prima.larghezza(), 2 * seconda.larghezza(), 1e-9);
    EXPECT_NEAR(prima.sinistra, seconda.destra, 1e-9);
    EXPECT_TRUE(scritto(tutte, "0.80"));
    EXPECT_TRUE(scritto(tutte, "-0.40"));
    EXPECT_TRUE(scritto(tutte, "-"));
}

TEST(BarreDisegnate, EndWhereTheirPlaceEnds) {
    GraficoBarre dati{"titolo", {}};
    for (int i = 0; i < 100; ++i) dati.barre.push_back({"campo " + std::to_string(i), 0.5});
    const auto barre = figure<Area>(disegnato(disegnaGraficoBarre, dati), Elemento::curva);
    EXPECT_GT(barre.size(), 5U);
    for (const auto& barra : barre) EXPECT_LE(scene::intorno(barra.punti).basso, posto.basso);
}

}  // namespace
}  // namespace korven::drawings
