#pragma once

#include <cstdint>
#include <string>

#include "studies/runner.hpp"

namespace korven::batch {

/// Variants that one command computes without being told to: beyond them a step was rather
/// mistyped.
inline constexpr std::uint64_t massimoSenzaChiedere = 10'000'000;

/// Why a study is not begun, translated: it has more variants than that. Says how many, how large
/// the rows will be and how long they will take, by a few of them that are computed for it; empty
/// for a study that may begin.
/// @param fili  threads
[[nodiscard]] std::string troppeVarianti(const studies::Studio& studio, studies::Tratto tratto,
                                         int fili);

}  // namespace korven::batch
