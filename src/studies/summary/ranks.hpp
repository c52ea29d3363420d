#pragma once

#include <optional>
#include <span>
#include <vector>

namespace korven::studies {

/// The value below which a share p of the values lies, by linear interpolation between those next
/// to (n - 1) p.
/// @param ordinati  ascending, one at least: asserted
/// @param p         0 <= p <= 1
/// Source: Hyndman & Fan (1996), Sample quantiles in statistical packages, definition 7.
[[nodiscard]] double quantileCampionario(std::span<const double> ordinati, double p);

/// The rank of each value, from 1; equal values have the mean of their ranks.
[[nodiscard]] std::vector<double> ranghi(std::span<const double> valori);

/// Spearman's coefficient of rank correlation: Pearson's of the ranks. From -1 to 1; nothing for
/// fewer than two pairs, or where one of the two is the same throughout.
/// @param x  ranks, as many as in `y`
/// Source: Kendall & Gibbons (1990), Rank correlation methods.
[[nodiscard]] std::optional<double> spearman(std::span<const double> x, std::span<const double> y);

}  // namespace korven::studies
