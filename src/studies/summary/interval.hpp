#pragma once

#include <cstdint>

namespace korven::studies {

struct Intervallo {
    double da = 0, a = 1;
};

/// Wilson's interval of a probability, from how often something came to pass among independent
/// trials: the probabilities from which what was seen is no more than z standard errors away.
///
///     (p + z^2/2n -+ z sqrt(p (1-p)/n + z^2/4n^2)) / (1 + z^2/n)       p = k/n
///
/// Within 0 and 1, and of use where p is 0 or 1 too.
/// @param volte  k, how often
/// @param prove  n, of how many; without any the interval is from 0 to 1
/// @param z      normal score of the level: 1.96 for 95 %
/// Source: Wilson (1927), Probable inference, the law of succession, and statistical inference.
[[nodiscard]] Intervallo intervalloWilson(std::uint64_t volte, std::uint64_t prove,
                                          double z = 1.959963984540054);

}  // namespace korven::studies
