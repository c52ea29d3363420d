#pragma once

#include <optional>
#include <string>
#include <vector>

#include "safety/diagnosis.hpp"

namespace korven::safety {

/// True if the numbers of a stage in equilibrium have values in the units of the report: one that
/// has not is `nessunNumero`.
[[nodiscard]] bool mostrabile(const equilibrium::FaseEquilibrio& fase);

/// One stage as the equilibrium solution leaves it, with its verdict.
struct FaseRaccontata {
    double scavo = 0;  ///< depth of the excavation [m]
    /// Of a stage that is no equilibrium nothing but its number and its verdict is set.
    equilibrium::FaseEquilibrio fase{};
    std::optional<Diagnosi> perche{};  ///< of a stage that is none by itself
    /// The stage without equilibrium before it; 0: none. There are then no displacements from which
    /// this one would go on: it is a mechanism where no displacement could hold it, else
    /// `nonDefinito`.
    int dopo = 0;

    [[nodiscard]] bool sta() const { return fase.esito == equilibrium::EsitoFase::equilibrio; }
    /// In one line, why it is no equilibrium; empty for one that is.
    [[nodiscard]] std::string frase() const;
};

/// All stages of a wall by the equilibrium solution.
struct EquilibrioRaccontato {
    int nSeg = 0;
    double h = 0;  ///< distance of the nodes [m]
    std::vector<FaseRaccontata> fasi{};
    /// The first stage that is no equilibrium; nothing if all are.
    [[nodiscard]] const FaseRaccontata* caduta() const;
};

/// Follows a wall through all its stages. A number that has no value in the unit of the report is
/// no number: the stage is then `nessunNumero`.
/// @param dati  with the bending stiffness of the run
/// @return the stages; the last has a `rifiuto` if the soil of one that the wall came to has no
///         value, which refuses a run
/// @pre nothing else refuses a run (`analysis::avviaCalcolo`)
[[nodiscard]] EquilibrioRaccontato raccontaFasi(const project::DatiProgetto& dati, int nSeg);

}  // namespace korven::safety
