#pragma once

#include <span>
#include <string_view>

#include "dossier/dossier.hpp"
#include "project/units.hpp"
#include "tables/result_table.hpp"

// The results by which walls are compared, one row each.

namespace korven::comparison {

struct VoceRisultato {
    std::string_view codice;  ///< "momento_massimo"
    const char* cosa;         ///< Italian key; %1 is the anchor
    /// The result of a stage, or with 0 that of the wall; "-" where there is none.
    tables::Cella (*cella)(const dossier::Fascicolo& f, int fase, int tirante);
    const project::Unita& unita;
    bool soloParete = false;           ///< stages have none of their own
    bool delTirante = false;           ///< one for each anchor
    const char* delPuntone = nullptr;  ///< what it is of a strut; Italian key, %1 as above
    const char* diAmbedue = nullptr;   ///< and where one wall has an anchor, the other a strut
};

/// All of them, in the order in which they are told.
[[nodiscard]] std::span<const VoceRisultato> vociRisultati();

/// Stages that the project has.
[[nodiscard]] int nFasi(const dossier::Fascicolo& f);

}  // namespace korven::comparison
