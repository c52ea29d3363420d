#include "drawings/charts/charts.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "drawings/charts/axes.hpp"
#include "drawings/charts/series_style.hpp"
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
    constexpr double bordo = 5;  // texts at the edge need it
    scene::Tela tela(posto.destra + bordo, posto.basso, testi);
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
    const Assi assi(posto, {0, 10, false}, {-1, 1, false}, {"x"}, {"y"});
    const auto& c = assi.campo();
    EXPECT_DOUBLE_EQ(assi.x(0), c.sinistra);
    EXPECT_DOUBLE_EQ(assi.x(2.5), c.sinistra + c.larghezza() / 4);
    EXPECT_DOUBLE_EQ(assi.y(-1), c.basso);
    EXPECT_DOUBLE_EQ(assi.y(0.5), c.alto + c.altezza() / 4);
}

// A number within the field would be taken for one of a curve.
TEST(Assi, HaveTheirNumbersAndTitlesBelowAndLeftOfTheField) {
    const Assi assi(posto, {0, 10, false}, {0, 4, false}, {"sotto"}, {"accanto"});
    const scene::MisuraStimata misura;
    scene::Tela tela(posto.destra + 5, posto.basso, misura);
    assi.disegna(tela);
    const auto testi = figure<Testo>(tela.concludi(), Elemento::asse);
    ASSERT_GT(testi.size(), 6u);
    const auto& c = assi.campo();
    for (const Testo& t : testi) {
        const bool sotto = t.punto.y > c.basso, sinistra = t.punto.x < c.sinistra;
        EXPECT_TRUE(sotto || sinistra || t.punto.y < c.alto) << t.testo << " " << t.punto.y;
    }
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

// 500 values from 8 on and 500 up to 541: the quartiles stand as far apart as the heaps.
TEST(Classi, AreSeveralForTwoHeapsFarApart) {
    std::vector<double> valori;
    for (int i = 0; i < 500; ++i) valori.insert(valori.end(), {8 + 0.01 * i, 541 - 0.01 * i});
    const Classi c = classi(valori);
    EXPECT_EQ(c.passo, 50);
    EXPECT_EQ(c.numeri.size(), 11u);
    EXPECT_EQ(c.numeri.front(), 500u);
    EXPECT_EQ(c.numeri.back(), 500u);
}

const ParoleMancanze parole{"cade", "rifiutata", "manca", "senza piede"};

GraficoCurve grafico(std::vector<CurvaGrafico> curve) {
    return {{"a [m]"}, "b", curve.size() > 1 ? "p" : "", std::move(curve), parole};
}

TEST(GraficoCurve, LeavesGapsAndMarksThem) {
    const auto dati = grafico({{"",
                                {{1, 1},
                                 {2, 2},
                                 {3, nessuno, Mancanza::cade},
                                 {4, 3},
                                 {5, 4},
                                 {6, nessuno, Mancanza::rifiutata}}}});
    const auto tutte = disegnato(disegnaCurve, dati);
    const auto linee = figure<Linea>(tutte, Elemento::curva);
    ASSERT_EQ(linee.size(), 2U);
    EXPECT_EQ(linee[0].punti.size(), 2U);
    EXPECT_LT(linee[0].punti[1].y, linee[0].punti[0].y);  // a larger number is higher
    EXPECT_EQ(figure<Area>(tutte, Elemento::estremo).size(), 4U) << "a mark at each point";
    // A cross and a stroke below the field, and again beside what they mean.
    EXPECT_EQ(figure<Linea>(tutte, Elemento::estremo).size(), 6U);
    EXPECT_TRUE(scritto(tutte, "cade"));
    EXPECT_TRUE(scritto(tutte, "rifiutata"));
    EXPECT_FALSE(scritto(tutte, "manca"));
    EXPECT_TRUE(scritto(tutte, "a [m]"));
}

TEST(GraficoCurve, NamesEachCurveOfAFamilyAtItsRight) {
    std::vector<CurvaGrafico> curve;
    for (int k = 0; k < 6; ++k)
        curve.push_back({"p = " + std::to_string(k), {{0, 0}, {1, 1 + 0.001 * k}}});
    const auto dati = grafico(curve);
    const auto tutte = disegnato(disegnaCurve, dati);
    for (const auto& curva : dati.curve) EXPECT_TRUE(scritto(tutte, curva.nome)) << curva.nome;
    EXPECT_TRUE(scritto(tutte, "p")) << "what the names are";
    EXPECT_FALSE(scritto(tutte, "cade"));
}

// What is missing of each curve has a row of its own, named as the curve.
TEST(GraficoCurve, MarksWhatIsMissingOfEachCurveInItsRow) {
    const CurvaGrafico intera{"intera", {{0, 0}, {1, 1}}};
    const CurvaGrafico una{"una", {{0, nessuno, Mancanza::cade}, {1, 2}}};
    const CurvaGrafico tutta{"tutta", {{0, nessuno, Mancanza::cade}, {1, nessuno, Mancanza::cade}}};
    const auto tutte = disegnato(disegnaCurve, grafico({intera, una, tutta}));
    const auto testi = figure<Testo>(tutte, Elemento::asse);
    const auto volte = [&](const char* nome) {
        return std::ranges::count(testi, nome, &Testo::testo);
    };
    EXPECT_EQ(volte("intera"), 1);
    EXPECT_EQ(volte("una"), 2) << "at its end and at its row";
    EXPECT_EQ(volte("tutta"), 1) << "it has no end";
}

TEST(GraficoCurve, MarksOnceWhatIsMissingOfAllCurves) {
    const auto curva = [](const char* nome, double y) {
        return CurvaGrafico{nome, {{0, nessuno, Mancanza::cade}, {1, y}, {2, y}}};
    };
    const auto tutte = disegnato(disegnaCurve, grafico({curva("una", 1), curva("altra", 2)}));
    EXPECT_EQ(figure<Linea>(tutte, Elemento::estremo).size(), 4U) << "a cross, and in words";
    const auto testi = figure<Testo>(tutte, Elemento::asse);
    EXPECT_EQ(std::ranges::count(testi, "una", &Testo::testo), 1);
}

// A value alone has no line to be seen by.
TEST(GraficoCurve, MarksAPointThatStandsAlone) {
    std::vector<PuntoGrafico> punti;
    for (int i = 0; i < 100; ++i) punti.push_back({1.0 * i, i % 50 == 25 ? nessuno : 1.0 * i});
    punti[98].y = nessuno;
    const auto tutte = disegnato(disegnaCurve, grafico({{"", punti}}));
    EXPECT_EQ(figure<Area>(tutte, Elemento::estremo).size(), 1U) << "too many for marks";
    EXPECT_EQ(figure<Linea>(tutte, Elemento::curva).size(), 3U);
}

// Between two codes there is nothing to be read.
TEST(GraficoCurve, HasNoLinesOverCodes) {
    auto dati = grafico({{"", {{1, 5}, {2, 6}, {3, 7}}}});
    dati.x = {.titolo = "vincolo", .interi = true, .nomi = {{1, "libero"}, {2, "cerniera"}}};
    const auto tutte = disegnato(disegnaCurve, dati);
    EXPECT_TRUE(figure<Linea>(tutte, Elemento::curva).empty());
    EXPECT_EQ(figure<Area>(tutte, Elemento::estremo).size(), 3U);
    EXPECT_TRUE(scritto(tutte, "cerniera"));
    EXPECT_FALSE(scritto(tutte, "1"));
    EXPECT_FALSE(scritto(tutte, "1.5"));
}

TEST(StileSerie, IsAnotherOneForEachCurve) {
    const scene::MisuraStimata testi;
    std::vector<std::pair<Linea, std::vector<scene::Punto>>> stili;
    for (std::size_t k = 0; k < massimeSerie; ++k) {
        scene::Tela tela(100, 100, testi);
        segnaSerie(tela, k, {50, 50});
        const auto segno = tela.concludi().at(0).figura;
        const auto* area = std::get_if<Area>(&segno);
        auto stile = std::pair(lineaSerie(k, {}),
                               area != nullptr ? area->punti : std::get<Linea>(segno).punti);
        // Without colours too.
        stile.first.tinta = {};
        EXPECT_EQ(std::ranges::count(stili, stile), 0) << k;
        stili.push_back(std::move(stile));
    }
}

TEST(IstogrammaDisegnato, HasABarForEachClassAndItsMarks) {
    const Istogramma dati{"x", "n", {3, 1, 2, 8, 7, 6, 4, 5, nessuno}, {{4.5, "50 %"}}};
    const auto tutte = disegnato(disegnaIstogramma, dati);
    const auto barre = figure<Area>(tutte, Elemento::estremo);
    ASSERT_EQ(barre.size(), 4U);
    const auto alta = [](const Area& a) { return scene::intorno(a.punti).altezza(); };
    EXPECT_NEAR(alta(barre[3]), 3 * alta(barre[0]), 1e-9);
    EXPECT_EQ(figure<Testo>(tutte, Elemento::estremo).size(), 1U);
    EXPECT_TRUE(disegnato(disegnaIstogramma, Istogramma{"x", "n", {nessuno}, {}}).empty());
}

// Quantiles near each other, and near the end where the title of the axis stands.
TEST(IstogrammaDisegnato, WritesTheNamesOfMarksThatStandTogether) {
    Istogramma dati{"x", "n", {}, {{1, "5 %"}, {1.5, "50 %"}, {90, "95 %"}}};
    for (int i = 0; i < 100; ++i) dati.valori.push_back(1.0 * i);
    EXPECT_EQ(figure<Testo>(disegnato(disegnaIstogramma, dati), Elemento::estremo).size(), 3U);
}

TEST(NuvolaDisegnata, HasTwoThousandPointsAtMost) {
    Nuvola dati{{"x"}, "y", {}, parole};
    for (int i = 0; i < 5000; ++i) dati.punti.push_back({1.0 * i, std::sin(i)});
    dati.punti.push_back({nessuno, 1});
    EXPECT_EQ(figure<Area>(disegnato(disegnaNuvola, dati), Elemento::estremo).size(), 2000U);
    dati.punti = {{1, 2}, {nessuno, 3}, {4, nessuno, Mancanza::cade}};
    EXPECT_EQ(figure<Area>(disegnato(disegnaNuvola, dati), Elemento::estremo).size(), 1U);
}

TEST(NuvolaDisegnata, MarksOnceWhereWallsFall) {
    const Nuvola dati{
        {"x"}, "y", {{1, 2}, {4, nessuno, Mancanza::cade}, {4, nessuno, Mancanza::cade}}, parole};
    const auto tutte = disegnato(disegnaNuvola, dati);
    EXPECT_EQ(figure<Linea>(tutte, Elemento::estremo).size(), 4U) << "a cross there and in words";
    EXPECT_TRUE(scritto(tutte, "cade"));
}

TEST(BarreDisegnate, AreInProportionToBothSides) {
    const GraficoBarre dati{"titolo", {{"uno", 0.8}, {"due", -0.4}, {"tre", std::nullopt}}};
    const auto tutte = disegnato(disegnaGraficoBarre, dati);
    const auto barre = figure<Area>(tutte, Elemento::estremo);
    ASSERT_EQ(barre.size(), 3U);
    const auto prima = scene::intorno(barre[0].punti), seconda = scene::intorno(barre[1].punti);
    EXPECT_NEAR(prima.larghezza(), 2 * seconda.larghezza(), 1e-9);
    EXPECT_NEAR(prima.sinistra, seconda.destra, 1e-9);
    EXPECT_TRUE(scritto(tutte, "0.80"));
    EXPECT_TRUE(scritto(tutte, "-0.40"));
    EXPECT_TRUE(scritto(tutte, "-"));
    EXPECT_TRUE(scritto(tutte, "-1.0")) << "the end of the scale";
}

TEST(BarreDisegnate, HaveTheHeightThatTheyNeed) {
    GraficoBarre dati{"titolo", {}};
    for (int i = 0; i < 7; ++i) dati.barre.push_back({"campo " + std::to_string(i), 0.5});
    const scene::MisuraStimata testi;
    scene::Tela tela(posto.destra, posto.basso, testi);
    disegnaGraficoBarre(tela, {0, 0, 500, altezzaBarre(7)}, dati);
    EXPECT_EQ(figure<Area>(tela.concludi(), Elemento::estremo).size(), 7U);
}

TEST(BarreDisegnate, EndWhereTheirPlaceEnds) {
    GraficoBarre dati{"titolo", {}};
    for (int i = 0; i < 100; ++i) dati.barre.push_back({"campo " + std::to_string(i), 0.5});
    const auto barre = figure<Area>(disegnato(disegnaGraficoBarre, dati), Elemento::estremo);
    EXPECT_GT(barre.size(), 5U);
    for (const auto& barra : barre) EXPECT_LE(scene::intorno(barra.punti).basso, posto.basso);
}

}  // namespace
}  // namespace korven::drawings
