#pragma once

#include <vector>

#include "exchange/ags_file.hpp"
#include "exchange/layer_rows.hpp"

namespace korven::exchange {

/// Depths are given to a centimetre: two that are nearer are the same boundary [m].
inline constexpr double stessoConfine = 0.005;

/// A range of a hole with its numbers [m below the ground level of the hole].
struct Tratto {
    double tetto, base;
    const TrattoForo* letto;
};

/// The ranges of a hole from the top down, each once, none over another. What was put right is
/// added to the warnings of `letti`, what can't be to its faults.
[[nodiscard]] std::vector<Tratto> trattiOrdinati(const Foro& foro, StratiLetti& letti);

}  // namespace korven::exchange
