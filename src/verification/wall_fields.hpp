#pragma once

#include <string>
#include <string_view>

#include "verification/case.hpp"
#include "verification/case_lines.hpp"

namespace korven::verification {

/// The wall that a case begins with: a new project with the first code of every choice, a ks of its
/// own in each layer, and no water: all tables of it at 100 m.
[[nodiscard]] Parete pareteVuota();

/// Takes one line of a wall: "nome = valori".
/// @param nome    a stable name of a field ("profStrato[2]", or "profStrato" for its rows from the
///                first on), `segmenti` or `base`
/// @param valori  numbers in the shown unit or names of codes, parted by blanks
/// @param basi    folder of the projects that `base` may name
/// @throws base::ErroreFile by `righe`
void prendiCampo(const RigheCaso& righe, std::string_view nome, std::string_view valori,
                 const std::string& basi, Parete& parete);

}  // namespace korven::verification
