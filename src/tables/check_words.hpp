#pragma once

#include <string>

#include "live/wall.hpp"
#include "project/project_data.hpp"
#include "project/units.hpp"
#include "results/section_uses.hpp"

// How the checks of the section are called wherever they stand in a table.

namespace korven::tables {

/// "Flessione, momento positivo": an Italian key.
[[nodiscard]] const char* nome(results::Verifica verifica);

/// Of its design value and its resistance.
[[nodiscard]] const project::Unita& unitaDi(results::Verifica verifica);

/// Why a section has no check of shear, a sentence. @pre it has none
[[nodiscard]] std::string percheSenzaTaglio(const project::Sezione& sezione);

/// Why there are no actions to check a section with: an Italian key. @pre no stage stands
[[nodiscard]] const char* azioniNonNote(const live::PareteViva& parete);

}  // namespace korven::tables
