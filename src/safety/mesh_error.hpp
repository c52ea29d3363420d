#pragma once

#include <optional>

#include "equilibrium/extremes.hpp"
#include "project/project_data.hpp"

namespace korven::safety {

/// What three meshes say of the value that ever finer ones would give.
enum class Andamento {
    uguali,      ///< they have the same value
    avvicinano,  ///< from one side: the error falls with a power of the step
    alternano,   ///< closer and closer, but from both sides: no power is known
    lontane,     ///< the step between the finer two is no smaller: no value is in sight
};

/// How far a number of the envelopes is from that of a mesh four times as fine.
struct ErroreGrandezza {
    double valore = 0;  ///< with the project's mesh, in size
    double doppia = 0;  ///< with twice as many segments
    double fine = 0;    ///< with four times as many
    Andamento andamento = Andamento::uguali;
    std::optional<double> quota{};  ///< |valore - fine| / fine; nothing where `fine` is 0
    /// The power of the step with which the error falls,
    /// log2((valore - doppia) / (doppia - fine)); nothing unless they `avvicinano`.
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
