#pragma once

#include <optional>

#include "safety/margin.hpp"

namespace korven::safety {

/// True if a margin can be computed: nothing refuses a run of this project, and the specified run
/// can take so many segments.
/// @param dati  with the bending stiffness of the run
[[nodiscard]] bool haMargine(const project::DatiProgetto& dati, int nSeg);

/// A margin with the data that it is of.
struct MargineBreve {
    project::DatiProgetto dati;  ///< with the stiffness of the section where none was stored
    Margine margine;
};

/// The margin of data that nobody has looked at, for whoever waits: the specified run is given up
/// after about as much work as 250 solves of the finest mesh take, about a second. Of that it is
/// not known whether it would come to rest, and there is no report.
/// @return nothing where a run would be refused
[[nodiscard]] std::optional<MargineBreve> margineBreve(const project::DatiProgetto& dati, int nSeg);

}  // namespace korven::safety
