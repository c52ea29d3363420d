#include "studies/plan/samples.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <set>

namespace korven::studies {
namespace {

using enum TipoLegge;

project::CampoNominato campo(const char* nome) { return *project::campoNominato(nome); }

// Fields whose ranges hold all values of their laws: nothing is set to an end.
const std::vector<CampoCasuale> quattro = {
    {campo("phiStrato[1]"), {normale, {32, 2}}},
    {campo("ksStrato[1]"), {lognormale, {4000, 1600}}},
    {campo("sovraccMonte"), {uniforme, {5, 25}}},
    {campo("lunghezzaParatia"), {triangolare, {8, 9, 14}}},
};

struct Somme {
    double media = 0, scartoTipo = 0;
};

Somme somme(const std::vector<double>& x) {
    Somme s;
    for (const double v : x) s.media += v / static_cast<double>(x.size());
    for (const double v : x) s.scartoTipo += (v - s.media) * (v - s.media);
    s.scartoTipo = std::sqrt(s.scartoTipo / static_cast<double>(x.size() - 1));
    return s;
}

std::vector<std::vector<double>> colonne(const Campioni& campioni, int fuoriAttesi = 0) {
    const std::size_t n = campioni.campi().size();
    std::vector<std::vector<double>> c(n);
    std::vector<double> riga(n);
    int fuori = 0;
    for (std::uint64_t i = 0; i < campioni.numero(); ++i) {
        fuori += static_cast<int>(campioni.valori(i, riga).size());
        for (std::size_t j = 0; j < n; ++j) c[j].push_back(riga[j]);
    }
    EXPECT_EQ(fuori, fuoriAttesi);
    return c;
}

// Fourth central moment over the fourth power of the deviation.
double curtosi(const Legge& legge) {
    if (legge.tipo == normale) return 3;
    if (legge.tipo == uniforme) return 1.8;
    if (legge.tipo == triangolare) return 2.4;
    const double w = 1 + std::pow(legge.parametri[1] / legge.parametri[0], 2);
    return std::pow(w, 4) + 2 * std::pow(w, 3) + 3 * w * w - 3;
}

// The standard error of a mean is s/sqrt(n), that of a deviation s sqrt((kurtosis - 1)/n)/2.
void haMomenti(const std::vector<double>& x, const Legge& legge) {
    const auto trovate = somme(x);
    const double s = scartoTipo(legge), radice = std::sqrt(static_cast<double>(x.size()));
    EXPECT_NEAR(trovate.media, media(legge), 4 * s / radice) << static_cast<int>(legge.tipo);
    EXPECT_NEAR(trovate.scartoTipo, s, 4 * s * std::sqrt(curtosi(legge) - 1) / 2 / radice)
        << static_cast<int>(legge.tipo);
}

double correlazione(const std::vector<double>& x, const std::vector<double>& y) {
    const auto a = somme(x), b = somme(y);
    double c = 0;
    for (std::size_t i = 0; i < x.size(); ++i) c += (x[i] - a.media) * (y[i] - b.media);
    return c / static_cast<double>(x.size() - 1) / a.scartoTipo / b.scartoTipo;
}

TEST(Campioni, HaveMeanAndDeviationOfTheirLaws) {
    const auto c = colonne(Campioni(quattro, 100000, 1));
    for (std::size_t j = 0; j < c.size(); ++j) haMomenti(c[j], quattro[j].legge);
}

TEST(Campioni, OfDifferentFieldsHaveNothingToDoWithEachOther) {
    const auto c = colonne(Campioni(quattro, 100000, 1));
    for (std::size_t j = 1; j < c.size(); ++j)
        EXPECT_NEAR(correlazione(c[0], c[j]), 0, 4 / std::sqrt(1e5)) << j;
}

// Of two normal laws the correlation is that of the scores, with the standard error
// (1-rho^2)/sqrt(n); the third field keeps out of it, and every law its moments.
TEST(Campioni, HaveTheCorrelationThatIsAskedFor) {
    const std::vector<CampoCasuale> campi = {
        {campo("phiStrato[1]"), {normale, {32, 2}}},
        {campo("sovraccMonte"), {uniforme, {5, 25}}},
        {campo("coesione[1]"), {normale, {50, 5}}},
    };
    const Coppia coppia{2, 0, -0.5};
    const auto c =
        colonne(Campioni(campi, 100000, 3, Disegno::casuale, *Correlazione::di(3, {&coppia, 1})));
    EXPECT_NEAR(correlazione(c[0], c[2]), -0.5, 4 * 0.75 / std::sqrt(1e5));
    EXPECT_NEAR(correlazione(c[0], c[1]), 0, 4 / std::sqrt(1e5));
    for (std::size_t j = 0; j < c.size(); ++j) haMomenti(c[j], campi[j].legge);
}

TEST(Campioni, DependOnNumberAndSeedAlone) {
    const Campioni molti(quattro, 1000, 5), pochi(quattro, 10, 5), altri(quattro, 10, 6);
    std::array<double, 4> a{}, b{}, c{};
    molti.valori(900, c);
    molti.valori(7, a);
    pochi.valori(7, b);
    EXPECT_EQ(a, b);
    altri.valori(7, b);
    for (std::size_t j = 0; j < a.size(); ++j) EXPECT_NE(a[j], b[j]);
}

// The friction angle goes up to 60: half of the values with this mean are beyond, and none is lost.
TEST(Campioni, AreSetToTheEndOfTheRangeAndCounted) {
    const Campioni campioni(
        {{campo("phiStrato[1]"), {normale, {60, 5}}}, {campo("sovraccMonte"), {normale, {0, 1}}}},
        2000, 1);
    int alFondo = 0;
    ContoEstremita fuori;
    for (std::uint64_t i = 0; i < campioni.numero(); ++i) {
        std::array<double, 2> v{};
        for (const Estremita& una : campioni.valori(i, v)) ++fuori[una];
        EXPECT_LE(v[0], 60);
        EXPECT_GE(v[1], 0);
        alFondo += (v[0] == 60 ? 1 : 0) + (v[1] == 0 ? 1 : 0);
    }
    const auto angoli = static_cast<double>(fuori[{0, true}]),
               carichi = static_cast<double>(fuori[{1, false}]);
    EXPECT_EQ(fuori.size(), 2U);
    EXPECT_EQ(angoli + carichi, alFondo);
    for (const double meta : {angoli, carichi}) EXPECT_NEAR(meta, 1000, 4 * std::sqrt(2000 * 0.25));
}

TEST(Ipercubo, TakesEachPartOfEachRangeOnce) {
    constexpr std::uint64_t n = 200;
    const Campioni campioni({{campo("sovraccMonte"), {uniforme, {0, n}}},
                             {campo("lunghezzaParatia"), {uniforme, {0, 100}}}},
                            n, 9, Disegno::ipercubo);
    std::set<double> parti, altre;
    int uguali = 0;
    for (std::uint64_t i = 0; i < n; ++i) {
        std::array<double, 2> v{};
        campioni.valori(i, v);
        parti.insert(std::floor(v[0]));
        altre.insert(std::floor(v[1] * 2));
        if (std::floor(v[0]) == std::floor(v[1] * 2)) ++uguali;
    }
    EXPECT_EQ(parti.size(), n);
    EXPECT_EQ(altre.size(), n);
    EXPECT_LT(uguali, 10);  // one in the mean: each field has an order of its own
    EXPECT_FALSE(campioni.indipendenti());
}

// The mean of a hypercube has no more than a part's width of error.
TEST(Ipercubo, HitsTheMeanCloserThanRandomSamples) {
    const auto c = colonne(Campioni(quattro, 1000, 1, Disegno::ipercubo));
    for (std::size_t j = 0; j < c.size(); ++j) {
        const auto& legge = quattro[j].legge;
        EXPECT_NEAR(somme(c[j]).media, media(legge), 0.01 * scartoTipo(legge)) << j;
    }
}

}  // namespace
}  // namespace korven::studies
