#pragma once

#include <string>

#include "project/project_data.hpp"

namespace korven::batch {

/// The fields of a project with what may be typed into them, a line each.
[[nodiscard]] std::string testoCampi(const project::DatiProgetto& dati);

/// docs/batch.md, `fields --csv`: a row a field; a number as `set` takes it.
[[nodiscard]] std::string csvCampi(const project::DatiProgetto& dati);

/// The fields in which two states of a project differ, a line each, and that none does.
[[nodiscard]] std::string testoDiversi(const project::DatiProgetto& prima,
                                       const project::DatiProgetto& dopo);

}  // namespace korven::batch
