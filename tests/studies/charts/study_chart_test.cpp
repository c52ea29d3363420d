#include "studies/charts/study_chart.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "studies/plan/random_words.hpp"

namespace korven::studies {
namespace {

using scene::Elemento;

FormaRiga forma(std::size_t campi) {
    return {.campi = campi, .valori = campi + 1, .risultati = {campi}, .usi = {}};
}

GraficoStudio grafico(std::size_t campi, bool campioni) {
    GraficoStudio g{.risultato = campi, .campioni = campioni};
    for (std::size_t j = 0; j < campi; ++j)
        g.valori.push_back({std::string(1, 'a' + static_cast<char>(j))});
    g.valori.push_back({"r"});
    return g;
}

std::size_t quante(const scene::Scena& scena, Elemento elemento, std::size_t figura) {
    return static_cast<std::size_t>(std::ranges::count_if(scena.primitive, [&](const auto& p) {
        return p.elemento == elemento && p.figura.index() == figura;
    }));
}

bool scritto(const scene::Scena& scena, const std::string& testo) {
    return std::ranges::any_of(scena.primitive, [&](const auto& p) {
        const auto* t = std::get_if<scene::Testo>(&p.figura);
        return t != nullptr && t->testo == testo;
    });
}

constexpr std::size_t area = 0, linea = 2;  // of scene::Figura

scene::Scena di(const Riassunto& r, std::size_t campi, bool campioni) {
    return scenaGrafico(r, forma(campi), grafico(campi, campioni), 17, 12);
}

// Four variants of one field, the third of which has no result.
scene::Scena senzaLaTerza(Sorte perche) {
    Riassunto r(forma(1), 1);
    for (const auto i : {0U, 1U, 2U, 3U}) {
        const double x = 8 + i, y = i == 2 ? std::nan("") : 1.0 / x;
        r.prendi(i, std::array{x, y}, {.sorte = i == 2 ? perche : Sorte::sta});
    }
    return di(r, 1, false);
}

TEST(GraficoStudio, OfOneFieldIsACurve) {
    const auto scena = senzaLaTerza(Sorte::cade);
    EXPECT_EQ(quante(scena, Elemento::curva, linea), 1U);    // before the gap; behind it one value
    EXPECT_EQ(quante(scena, Elemento::estremo, area), 3U);   // a mark at each value
    EXPECT_EQ(quante(scena, Elemento::estremo, linea), 4U);  // a cross, and again in the key
    EXPECT_TRUE(scritto(scena, "la paratia cade"));
    EXPECT_TRUE(scritto(scena, "a"));
    EXPECT_TRUE(scritto(scena, "r"));
}

// As in the table: 1 and 2 stand without their toe, the curve begins behind them.
TEST(GraficoStudio, SetsWallsWithoutTheirToeApart) {
    Riassunto r(forma(1), 1), cento(forma(3), 1);
    for (const auto i : {0U, 1U, 2U, 3U}) {
        const EsitoRiga esito{.sorte = i < 2 ? Sorte::senzaPiede : Sorte::sta};
        const double x = 8 + i;
        r.prendi(i, std::array{x, 1 / x}, esito);
        cento.prendi(i, std::array{x, 1.0, 2.0, 1 / x}, esito);
    }
    EXPECT_EQ(r.stanno(), 4U);
    EXPECT_EQ(r.piediScavati(), 2U);
    const auto curva = di(r, 1, false), punti = di(cento, 3, false);
    EXPECT_EQ(quante(curva, Elemento::curva, linea), 1U);
    for (const auto& scena : {curva, punti}) {
        EXPECT_EQ(quante(scena, Elemento::estremo, area), 2U);   // ordinary marks
        EXPECT_EQ(quante(scena, Elemento::estremo, linea), 3U);  // rings, one in the key
        EXPECT_TRUE(scritto(scena, "in equilibrio con il piede scavato"));
    }
}

// Three values of one field, twenty of the other: three curves, whichever comes first.
TEST(GraficoStudio, OfTwoFieldsIsAFamily) {
    Riassunto prima(forma(2), 1), dopo(forma(2), 1);
    for (std::uint64_t i = 0; i < 60; ++i) {
        const auto poco = static_cast<double>(i / 20), molto = static_cast<double>(i % 20);
        prima.prendi(i, std::array{poco, molto, poco + molto}, {});
        dopo.prendi(i, std::array{molto, poco, poco + molto}, {});
    }
    const auto a = di(prima, 2, false), b = di(dopo, 2, false);
    EXPECT_EQ(quante(a, Elemento::curva, linea), 6U);  // each with its stroke in the key
    EXPECT_TRUE(scritto(a, "a"));
    EXPECT_TRUE(scritto(b, "b"));
    EXPECT_TRUE(scritto(b, "2"));
}

// Neither is random: nothing that tells a distribution is drawn of them.
TEST(GraficoStudio, OfThreeFieldsOrManyCurvesIsPointsAndSaysSo) {
    Riassunto tre(forma(3), 1), molte(forma(2), 1);
    for (std::uint64_t i = 0; i < 100; ++i) {
        const auto a = static_cast<double>(i / 10), b = static_cast<double>(i % 10);
        tre.prendi(i, std::array{a, b, 1.0, a + b}, {});
        molte.prendi(i, std::array{a, b, a + b}, {});
    }
    const auto punti = di(tre, 3, false), altri = di(molte, 2, false);
    EXPECT_TRUE(scritto(punti, "Variano 3 campi: ogni punto è una variante."));
    EXPECT_TRUE(scritto(altri,
                        "Sarebbero 10 curve, 8 al massimo si distinguono: ogni punto è una "
                        "variante."));
    for (const auto& scena : {punti, altri}) {
        EXPECT_EQ(quante(scena, Elemento::estremo, area), 100U);
        EXPECT_FALSE(scritto(scena, "Correlazione tra i ranghi (Spearman)"));
    }
}

TEST(GraficoStudio, SaysWhoseItIsAndHowMuchOfTheStudy) {
    Riassunto r(forma(1), 1, 10);
    for (std::uint64_t i = 0; i < 20; ++i) {
        const auto x = static_cast<double>(i);
        r.prendi(i, std::array{x, x}, {});
    }
    auto g = grafico(1, false);
    g.progetto = "muro.kvd";
    g.data = "2026-01-31";
    const auto scena = scenaGrafico(r, forma(1), g, 17, 11);
    EXPECT_TRUE(scritto(scena, "muro.kvd"));
    EXPECT_TRUE(scritto(scena, "2026-01-31"));
    EXPECT_TRUE(scritto(scena, "10 varianti scelte a caso tra 20."));
    g.progetto.clear();
    EXPECT_FALSE(scritto(scenaGrafico(r, forma(1), g, 17, 11), "2026-01-31"));
}

TEST(GraficoStudio, IsInShownUnits) {
    Riassunto r(forma(1), 1);
    for (std::uint64_t i = 0; i < 3; ++i) {
        const auto x = static_cast<double>(i);
        r.prendi(i, std::array{x, 0.01 * x}, {});
    }
    auto g = grafico(1, false);
    g.valori[1] = valoreMostrato("spostamento_massimo_m");
    const auto scena = scenaGrafico(r, forma(1), g, 17, 11);
    EXPECT_TRUE(scritto(scena, "Spostamento massimo [mm]"));
    EXPECT_TRUE(scritto(scena, "20"));
}

// b decides, a does not matter: the bars have b first, the points lie over b.
TEST(GraficoStudio, OfSamplesHasHistogramBarsAndPoints) {
    Riassunto r(forma(2), 1);
    for (std::uint64_t i = 0; i < 300; ++i) {
        const auto parole = paroleCasuali(5, Scopo::valori, {i, 0, 0, 0});
        const double a = traZeroEUno(parole[0]), b = traZeroEUno(parole[1]);
        r.prendi(i, std::array{a, b, b * b}, {});
    }
    const auto g = grafico(2, true);
    const auto scena = di(r, 2, true);
    EXPECT_TRUE(scritto(scena, "50 %"));
    EXPECT_TRUE(scritto(scena, "1.00"));
    EXPECT_GT(quante(scena, Elemento::estremo, area), 300U);  // points, two bars, classes
    EXPECT_GT(formatoGrafico(r, forma(2), g).altezza, 12);
    const auto nome = [&](const char* quale) {
        for (const auto& p : scena.primitive)
            if (const auto* t = std::get_if<scene::Testo>(&p.figura))
                if (t->testo == quale && t->punto.x < 50) return t->punto.y;
        return 0.0;
    };
    EXPECT_LT(nome("b"), nome("a"));
}

TEST(GraficoStudio, MarksVariantsWhoseDataAreRefused) {
    const auto scena = senzaLaTerza(Sorte::rifiutata);
    EXPECT_TRUE(scritto(scena, "dati rifiutati"));
    EXPECT_FALSE(scritto(scena, "la paratia cade"));
}

}  // namespace
}  // namespace korven::studies
