#pragma once

#include <optional>

#include "project/project_data.hpp"
#include "safety/margin.hpp"

namespace korven::review {

/// Of the remark on a stage that stands, but of which the specified run comes to no rest.
inline constexpr const char* codiceOscilla = "iterazione-che-oscilla";

/// What that remark is about; nothing where the run comes to rest or a stage does not stand.
[[nodiscard]] std::optional<safety::Diagnosi> oscillazione(const project::DatiProgetto& dati,
                                                           const safety::Margine& margine);

}  // namespace korven::review
