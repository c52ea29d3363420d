#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "analysis/run_arrays.hpp"

namespace korven::analysis {

inline constexpr int segmentiPredefiniti = 50;

/// Replaces the content of `nseg.txt` when it is given, for the rest of the process.
extern std::optional<std::string> contenutoNSeg;

/// Number of wall segments: the first item of `nseg.txt` in the program folder, 50 when
/// there is no such file. It is no part of a project: the same project gives different
/// meshes under different installations.
/// @param incastroPiede  fixed toe, whose system is one node larger
/// @return nothing if what it finds is no whole number from 3 to the capacity
[[nodiscard]] std::optional<int> leggiNSeg(bool incastroPiede);

/// What to tell about an unusable number of segments, an Italian key: it blames the file, or the
/// option that replaces its content.
[[nodiscard]] std::string_view motivoNSeg();

}  // namespace korven::analysis
