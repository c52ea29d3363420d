#pragma once

#include <string_view>

#include "exchange/ags_file.hpp"
#include "exchange/layer_rows.hpp"

namespace korven::exchange {

/// Where the wall's head stands at a hole, as it is typed; one text counts.
struct TestaAlForo {
    enum class Modo {
        profondita,  ///< below the ground level of the hole [m]; negative: above it
        quota,       ///< level of the head [m above datum], for a hole with a ground level
    };
    Modo modo = Modo::profondita;
    std::string_view testo = "0";
};

/// The layers of a hole, their depths from the wall's head. What lies above the head is cut. A
/// range without a description between two others becomes a layer of its own, so that no boundary
/// moves; a soil above the ground level of the hole is the first layer's. The columns of values are
/// missing: the file does not know them.
///
/// Faults, with their lines: depths that are no numbers, a base not below its top, ranges that
/// overlap, a head below the hole, all that `Foro` tells. Warnings: ranges out of order, the same
/// range twice, gaps, what was cut.
[[nodiscard]] StratiLetti stratiForo(const Foro& foro, const TestaAlForo& testa);

}  // namespace korven::exchange
