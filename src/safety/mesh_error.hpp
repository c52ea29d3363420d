#pragma once

#include <optional>

#include "equilibrium/extremes.hpp"
#include "project/project_data.hpp"

namespace korven::safety {

/// How far a number of the envelopes is from that of a mesh four times as fine.
struct ErroreGrandezza {
    double valore = 0;              ///< with the project's mesh, in size
    double fine = 0;                ///< with four times as many segments
    std::optional<double> quota{};  ///< |valore - fine| / fine; nothing where `fine` is 0
    /// The power of the step with which the error falls, from the mesh of twice as many segments
    /// between the two; nothing where the three do not close in on a value.
    std::optional<double> ordine{};
};

/// The error that the mesh leaves in the envelopes of all stages.
struct ErroreMaglia {
    ErroreGrandezza momento;      ///< [t m]
    ErroreGrandezza taglio;       ///< [t]
    ErroreGrandezza spostamento;  ///< [m]
    ErroreGrandezza tiro;         ///< [t]
};

/// Follows the wall at `nSeg`, twice and four times as many segments.
/// @param estremi  of all stages at `nSeg`
/// @return nothing if a stage of a finer mesh has no equilibrium
[[nodiscard]] std::optional<ErroreMaglia> erroreMaglia(const project::DatiProgetto& dati, int nSeg,
                                                       const equilibrium::Estremi& estremi);

}  // namespace korven::safety
