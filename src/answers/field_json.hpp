#pragma once

#include <nlohmann/json_fwd.hpp>

#include "project/differences.hpp"

// Fields of a project in the JSON: named as programs name them, in the units that people see.

namespace korven::answers {

/// The fields of a project with what may be typed into them: docs/json.md, `campi`.
[[nodiscard]] nlohmann::ordered_json jsonCampi(const project::DatiProgetto& dati);

/// What a field holds, in the shown unit; of a code its name.
/// @param ceLaRiga  false: null
[[nodiscard]] nlohmann::ordered_json jsonValore(const project::DatiProgetto& dati,
                                                const project::Campo& campo, int riga,
                                                bool ceLaRiga);

/// The fields in which two states of a project differ: docs/json.md, `imposta`.
[[nodiscard]] nlohmann::ordered_json jsonDiversi(const project::DatiProgetto& prima,
                                                 const project::DatiProgetto& dopo);

}  // namespace korven::answers
