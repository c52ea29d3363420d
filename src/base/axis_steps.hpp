#pragma once

#include <string>

namespace korven::base {

/// The distance between two numbers of an axis: 1, 2 or 5 times a power of ten, the smallest that
/// divides the range into `massimo` at most.
/// @param ampiezza  of the range, above 0
/// @param massimo   at least 1
[[nodiscard]] double passoAsse(double ampiezza, int massimo);

/// The number of an axis: no more digits than its step needs.
[[nodiscard]] std::string numeroAsse(double valore, double passo);

}  // namespace korven::base
