#pragma once

#include <optional>
#include <string>
#include <vector>

#include "live/section_checks.hpp"
#include "live/wall.hpp"
#include "project/project_data.hpp"

namespace korven::studies {

/// What a wall of some length must meet, besides the equilibrium of all stages.
struct Criteri {
    std::optional<double> riduzione{};    ///< the least strength reduction of every stage
    std::optional<double> spostamento{};  ///< the largest displacement of all stages in size [m]
    bool resistenza = false;  ///< the section's checks in bending and shear, where it has them
};

enum class Criterio { equilibrio, riduzione, spostamento, flessione, taglio };

/// A number with the stage that it is of; 0: of none.
struct DiFase {
    double valore = 0;
    int fase = 0;
};

/// A wall of one length beside the criteria.
struct LunghezzaProvata {
    double lunghezza = 0;  ///< [m]
    /// Why it is no equilibrium, in one translated sentence; empty for one that is. Of that nothing
    /// below is known, but for the strength reduction.
    std::string perche{};
    /// The smallest of all stages; nothing unless asked for, or where a stage has none in the range
    /// that is searched. One beyond the range is its end.
    std::optional<DiFase> riduzione{};
    std::optional<DiFase> spostamento{};  ///< largest in size [m]
    /// The largest share of a resistance that is used; nothing unless asked for, without a section,
    /// for shear without stirrups, and where the resistance is 0.
    std::optional<DiFase> flessione{}, taglio{};
    std::vector<Criterio> mancati{};  ///< in their order; empty: it meets all

    [[nodiscard]] bool basta() const { return mancati.empty(); }
};

/// The wall of this length, all else equal, by the equilibrium solution with the statics of its
/// nodes: checks of the section by the rules of the report, shear being the largest of all stages.
/// @param dati       with the bending stiffness of the run
/// @param lunghezza  [m]
[[nodiscard]] LunghezzaProvata prova(const project::DatiProgetto& dati, double lunghezza, int nSeg,
                                     const Criteri& criteri);

}  // namespace korven::studies
