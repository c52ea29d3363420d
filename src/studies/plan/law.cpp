#include "studies/plan/law.hpp"

#include <algorithm>
#include <boost/math/distributions/lognormal.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/triangular.hpp>
#include <cmath>

namespace korven::studies {

namespace {

// In double alone: a long double has other digits on other processors. What overflows is infinite
// and is told by `difetto`.
using namespace boost::math::policies;
using Regole =
    policy<promote_double<false>, overflow_error<ignore_error>, evaluation_error<ignore_error>>;
using Normale = boost::math::normal_distribution<double, Regole>;
using Triangolare = boost::math::triangular_distribution<double, Regole>;

constexpr NomeLegge nomi[] = {
    {TipoLegge::normale, {"normale", "normal"}, 2, "(m,s)"},
    {TipoLegge::lognormale, {"lognormale", "lognormal"}, 2, "(m,s)"},
    {TipoLegge::uniforme, {"uniforme", "uniform"}, 2, "(a,b)"},
    {TipoLegge::triangolare, {"triangolare", "triangular"}, 3, "(a,c,b)"},
};

// Standard deviation of the logarithm.
double sigma(double m, double s) { return std::sqrt(std::log1p((s / m) * (s / m))); }

double lognormale(double m, double s, double z) {
    const double sg = sigma(m, s);
    return m * std::exp(sg * (z - sg / 2));
}

double tra(double a, double b, double p) { return std::clamp(a + p * (b - a), a, b); }

Triangolare triangolare(const std::array<double, 3>& p) { return {p[0], p[1], p[2]}; }

}  // namespace

std::string NomeLegge::forma() const { return nome.mostrato().append(argomenti); }

std::span<const NomeLegge> nomiLeggi() { return nomi; }

std::optional<DifettoLegge> difetto(const Legge& legge) {
    const auto [p, q, r] = legge.parametri;
    switch (legge.tipo) {
        case TipoLegge::normale:
            if (!(q > 0)) return DifettoLegge::scarto;
            break;
        case TipoLegge::lognormale:
            if (!(p > 0)) return DifettoLegge::media;
            if (!(q > 0)) return DifettoLegge::scarto;
            if (!std::isfinite(sigma(p, q))) return DifettoLegge::oltreNumeri;
            break;
        case TipoLegge::uniforme:
            if (!(p < q)) return DifettoLegge::estremi;
            break;
        case TipoLegge::triangolare:
            if (!(p < r && p <= q && q <= r)) return DifettoLegge::estremi;
            break;
    }
    // Beyond all scores that 53 bits of probability and a correlation come to.
    constexpr double z = 40;
    const bool finita = std::isfinite(daScarto(legge, -z)) && std::isfinite(daScarto(legge, z)) &&
                        std::isfinite(scartoTipo(legge)) && scartoTipo(legge) > 0;
    return finita ? std::nullopt : std::optional(DifettoLegge::oltreNumeri);
}

double scartoNormale(double p) { return boost::math::quantile(Normale(), p); }

double quantile(const Legge& legge, double p) {
    const auto& [a, b, c] = legge.parametri;
    switch (legge.tipo) {
        case TipoLegge::uniforme:
            return tra(a, b, p);
        case TipoLegge::triangolare:
            return boost::math::quantile(triangolare(legge.parametri), p);
        default:
            return daScarto(legge, scartoNormale(p));
    }
}

double daScarto(const Legge& legge, double z) {
    const auto& [a, b, c] = legge.parametri;
    switch (legge.tipo) {
        case TipoLegge::normale:
            return a + b * z;
        case TipoLegge::lognormale:
            return lognormale(a, b, z);
        case TipoLegge::uniforme:
            break;
        case TipoLegge::triangolare:
            // From above, where 1 - Phi(z) has more digits than Phi(z).
            if (z > 0)
                return boost::math::quantile(
                    complement(triangolare(legge.parametri), cdf(complement(Normale(), z))));
            break;
    }
    return quantile(legge, cdf(Normale(), z));
}

double media(const Legge& legge) {
    const auto [a, b, c] = legge.parametri;
    switch (legge.tipo) {
        case TipoLegge::uniforme:
            return (a + b) / 2;
        case TipoLegge::triangolare:
            return (a + b + c) / 3;
        default:
            return a;
    }
}

double scartoTipo(const Legge& legge) {
    const auto [a, b, c] = legge.parametri;
    switch (legge.tipo) {
        case TipoLegge::uniforme:
            return (b - a) / std::sqrt(12.0);
        case TipoLegge::triangolare:
            // a, c, b in the order of the parameters; symmetric in the three.
            return std::sqrt(((a - b) * (a - b) + (b - c) * (b - c) + (c - a) * (c - a)) / 36);
        default:
            return b;
    }
}

}  // namespace korven::studies
