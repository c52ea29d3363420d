#pragma once

#include "live/wall.hpp"
#include "project/field_table.hpp"

namespace korven::tables {

/// True for a field that is on or off.
[[nodiscard]] bool flag(const project::Campo& campo);

/// What the calculation does with a field, beside its value.
struct UsoCampo {
    bool letto = true;           ///< false: nothing that is computed reads it
    bool diAltroTipo = false;    ///< because it is of another type of section than the one in force
    const char* nota = nullptr;  ///< Italian key of what is to be said of it; nullptr: nothing
};

/// What the calculation of a wall does with a field.
/// @param scritti  the project as typed
/// @param parete   the wall that was made of it
[[nodiscard]] UsoCampo usoCampo(const project::DatiProgetto& scritti,
                                const live::PareteViva& parete, const project::Campo& campo);

}  // namespace korven::tables
