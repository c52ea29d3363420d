#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/twin_names.hpp"

namespace korven::studies {

/// How a value is spread.
enum class TipoLegge {
    normale,      ///< mean m, standard deviation s
    lognormale,   ///< m and s of the variable itself, not of its logarithm
    uniforme,     ///< from a to b
    triangolare,  ///< from a to b, most often c
};

/// A law with its parameters in the order in which they are typed: m, s; a, b; a, c, b.
struct Legge {
    TipoLegge tipo;
    std::array<double, 3> parametri{};
};

/// What a law is called and how many parameters it has.
struct NomeLegge {
    TipoLegge tipo;
    base::Gemelli nome;
    std::size_t parametri;
    std::string_view argomenti;  ///< "(m,s)"

    /// How it is typed: "normale(m,s)", in the language in force.
    [[nodiscard]] std::string forma() const;
};

[[nodiscard]] std::span<const NomeLegge> nomiLeggi();

/// Why parameters make no law.
enum class DifettoLegge {
    scarto,      ///< a standard deviation that is not above 0
    media,       ///< a lognormal value is above 0, and so is its mean
    estremi,     ///< not a < b, or c not between them
    oltreNumeri  ///< values that are too large for numbers
};

/// Nothing for a law that has values.
[[nodiscard]] std::optional<DifettoLegge> difetto(const Legge& legge);

/// The value that is not exceeded with probability p.
///
///     normal      m + s z                      z = Phi^-1(p)
///     lognormal   exp(mu + sigma z)            sigma^2 = ln(1 + (s/m)^2), mu = ln m - sigma^2/2
///     uniform     a + p (b - a)
///     triangular  a + sqrt(p (b-a) (c-a))      up to p = (c-a)/(b-a), from there
///                 b - sqrt((1-p) (b-a) (b-c))
///
/// @param p  0 < p < 1
/// @pre the law has no fault
/// Source: Ang & Tang (2007), Probability concepts in engineering.
[[nodiscard]] double quantile(const Legge& legge, double p);

/// The value at a normal score: quantile(legge, Phi(z)), without the loss of Phi's digits near 1.
[[nodiscard]] double daScarto(const Legge& legge, double z);

/// Phi^-1: the normal score that is not exceeded with probability p, 0 < p < 1.
[[nodiscard]] double scartoNormale(double p);

[[nodiscard]] double media(const Legge& legge);
[[nodiscard]] double scartoTipo(const Legge& legge);

}  // namespace korven::studies
