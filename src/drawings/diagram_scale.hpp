#pragma once

#include <vector>

namespace korven::drawings {

/// Step of the value axis [units of the value]: 0.001 for values below 0.1, ten times that for
/// values below 1, and so on, so that an axis has at most a hundred steps on each side.
[[nodiscard]] double passoScala(double valore);

/// A value axis, which runs from -vMax to vMax.
struct AsseValori {
    double vMax;
    double passo;
};

/// The axis for data that reach `vDati`: the first whole number of steps not below it, or ten steps
/// when that is 0. The end of the axis may need a wider step than the data.
///
/// A negative `vDati` gives a negative end, rounded towards 0: the two ends of the axis then change
/// places and it has no ticks.
/// @param vDati  at most 10^12 in size: asserted
[[nodiscard]] AsseValori asseValori(double vDati);

/// A mark on an axis.
struct Tacca {
    double valore;
    bool maggiore;  ///< a multiple of ten steps: longer, and with a number
};

/// The ticks at `da`, `da` + `passo`, ... up to `a`, which is included; none when `a` lies before
/// `da`. Each is computed by its index, so that no error adds up.
/// @param passo  above 0: asserted
[[nodiscard]] std::vector<Tacca> tacche(double da, double a, double passo);

}  // namespace korven::drawings
