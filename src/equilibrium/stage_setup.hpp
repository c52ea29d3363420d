#pragma once

#include <optional>
#include <vector>

#include "analysis/node_soil.hpp"
#include "analysis/soil_state.hpp"
#include "equilibrium/stage_problem.hpp"
#include "project/project_data.hpp"

namespace korven::equilibrium {

/// How much a restraint gives way.
enum class RigiditaVincoli {
    comeLaCorsa,  ///< by the spring of the specified run
    /// By nothing that shows. That spring turns a fixed toe by as little as its length lets it: its
    /// hold on the rotation falls with the cube of the step, and a fine mesh would be one of a wall
    /// whose toe turns. So meshes can be compared with these alone.
    rigidi,
};

/// Puts the stages of a wall one after the other into a ProblemaFase, with the soil, the mesh, the
/// anchors and the restraints of the specified run.
class ImpostazioneFasi {
 public:
    /// @param dati    the project
    /// @param nSeg    segments of the wall, not fewer than 3: asserted. More than the specified run
    ///                can take are welcome
    /// @param strati   the layers of the project, or the same with other strengths
    /// @param rigidita of head and toe where they are restrained
    ImpostazioneFasi(const project::DatiProgetto& dati, int nSeg,
                     const analysis::SuoloStrati& strati,
                     RigiditaVincoli rigidita = RigiditaVincoli::comeLaCorsa);

    /// Sets stage k up. An anchor that is new in it refers to the displacements y of the stage
    /// before. After the first stage nothing is allocated.
    /// @param y  one element a node of the system, node 1 in element 0 [m]
    /// @return where the soil has no value, and why; the problem is then half set
    /// @throws base::ErroreIndice if the stage asks for more anchors than their table holds
    [[nodiscard]] std::optional<analysis::RifiutoSuolo> prepara(int k,
                                                                const std::vector<double>& y);

    [[nodiscard]] const ProblemaFase& problema() const { return problema_; }

 private:
    [[nodiscard]] std::optional<analysis::RifiutoSuolo> suolo(int k);
    void tiranti(int k, const std::vector<double>& y);

    project::DatiProgetto dati_;
    analysis::SuoloStrati strati_;
    std::vector<analysis::SuoloMonte> monte_;  ///< the same in all stages
    std::vector<double> riferimenti_;          ///< of the anchors, by row
    ProblemaFase problema_;
};

}  // namespace korven::equilibrium
