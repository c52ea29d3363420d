#pragma once

namespace korven::structure {

// Partial factors of the limit-state checks. Constants: the user has no field for them.

inline constexpr double fsCalcestruzzo = 1.6;   ///< concrete: fcd = fck / 1.6
inline constexpr double fsAcciaio = 1.15;       ///< steel: fyd = fyk / 1.15
inline constexpr double fsAzioniSezione = 1.4;  ///< actions

}  // namespace korven::structure
