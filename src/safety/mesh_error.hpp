#pragma once

#include <array>
#include <optional>
#include <vector>

#include "equilibrium/extremes.hpp"
#include "project/project_data.hpp"
#include "results/section_uses.hpp"

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

/// A check of the section with the largest numbers of each mesh, all stages together.
struct UsoMaglia {
    results::Verifica cosa = results::Verifica::momentoPositivo;
    /// With the project's mesh, twice and four times as many segments; nothing where no such
    /// moment acts.
    std::array<std::optional<results::Uso>, 3> maglie{};
};

/// The error that the mesh leaves in the envelopes of all stages.
struct ErroreMaglia {
    ErroreGrandezza momento;          ///< the larger in size of the next two [t m]
    ErroreGrandezza momentoPositivo;  ///< largest [t m]
    ErroreGrandezza momentoNegativo;  ///< smallest, in size [t m]
    ErroreGrandezza taglio;           ///< [t]
    ErroreGrandezza spostamento;      ///< [m]
    ErroreGrandezza tiro;             ///< [t]
    /// The checks that some mesh has a use of; none without a section.
    std::vector<UsoMaglia> usi{};

    /// The largest error of all, but for a moment that is small beside the one of the other sign.
    [[nodiscard]] double massimo() const;
    /// Share of the larger moment below which one is small. Reason: a section that bears the one
    /// has room for any error of the other.
    static constexpr double momentoMinore = 0.2;
};

/// Follows the wall at `nSeg`, twice and four times as many segments.
/// @param estremi  of all stages at `nSeg`, of which the uses with this mesh are too
/// @return nothing if a stage of a finer mesh has no equilibrium
[[nodiscard]] std::optional<ErroreMaglia> erroreMaglia(const project::DatiProgetto& dati, int nSeg,
                                                       const equilibrium::Estremi& estremi);

}  // namespace korven::safety
