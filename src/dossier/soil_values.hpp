#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "analysis/layer_soil.hpp"
#include "live/wall.hpp"
#include "structure/stiffness.hpp"

// What the calculation makes of the layers and of the section before it looks for an equilibrium,
// for whoever follows it with a pencil.

namespace korven::dossier {

/// The soil on one side of a node in one stage. Pressures have the signs of the results: towards
/// the excavation positive, so that those of the excavated side are negative [t/m2].
struct LatoTerreno {
    /// Vertical stress and pore pressure [t/m2]; nothing on an excavated side whose stress is held
    /// equal to the retained one.
    std::optional<double> totale, acqua;
    double sigma = 0;  ///< vertical stress that the pressures use [t/m2]
    double riposo = 0, attivo = 0, passivo = 0;
    double ks = 0;  ///< modulus of the spring, positive for any sound soil [t/m3]
};

struct TerrenoFase {
    int fase = 0;
    std::size_t primo = 0;           ///< first node with soil in front of it, of those of the wall
    std::vector<LatoTerreno> valle;  ///< of all nodes; those above `primo` are 0
};

struct ValoriTerreno {
    std::vector<analysis::SuoloStrato> strati;  ///< element 0 is layer 1
    std::vector<LatoTerreno> monte;  ///< of all nodes, the same in all stages; empty without a mesh
    std::vector<TerrenoFase> fasi;   ///< that were computed, one that does not stand too
};

[[nodiscard]] ValoriTerreno valoriTerreno(const live::PareteViva& parete);

/// How the bending stiffness comes about.
struct ValoriRigidezza {
    structure::PassiEJ passi;       ///< nothing unless the section is defined
    std::optional<double> offerta;  ///< what a run takes of it [t m2]
};

[[nodiscard]] ValoriRigidezza valoriRigidezza(const project::DatiProgetto& dati);

}  // namespace korven::dossier
