#pragma once

#include "project/section.hpp"

namespace korven::structure {

/// The four kinds of wall that have a structural section.
enum class TipoSezione { nessuno, diaframma, pali, palancola, paliArmati };

/// Kind of a section: that of its first true flag in the order diaphragm, piles, sheet pile,
/// reinforced piles; `nessuno` if none is true. Everything that depends on the kind asks here, so a
/// file with two true flags is computed, checked and reported as one and the same section.
[[nodiscard]] TipoSezione tipoSezione(const project::Sezione& sezione);

}  // namespace korven::structure
