#pragma once

#include "analysis/node_vector.hpp"
#include "project/project_data.hpp"

namespace korven::results {

/// Smallest and largest shear of one stage [t/m], and the depths of their nodes [m].
struct EstremiTaglio {
    double vMin = 0;
    double vMax = 0;
    double zMin = 0;
    double zMax = 0;
};

/// The larger of the two in absolute value [t/m].
[[nodiscard]] double massimoAssoluto(const EstremiTaglio& estremi);

/// The force that the shear takes anchor j for when its node is at displacement `y` [t]: that of a
/// spring, for a tension-only anchor too where it would be compressed and is slack in truth.
/// @param yTirante  displacement of its node when it came into place [m]
[[nodiscard]] double tiroNelTaglio(const project::DatiProgetto& dati, int j, double y,
                                   double yTirante);

/// True if anchor j is exactly at the depth of node i, as doubles: what falls between two nodes
/// shows no step.
[[nodiscard]] bool gradinoNelTaglio(const project::DatiProgetto& dati, int j, int i, double passo);

/// Extremes of the shear along the wall in one stage.
///
/// The shear of an anchor's node lies between the values on its two sides. It is replaced by the
/// value just below the anchor, extrapolated from the two nodes under it,
///
///     taglioNodo[a] = 2 taglioNodo[a + 1] - taglioNodo[a + 2],
///
/// anchor after anchor in the order of their table, so that a later anchor may build on a value
/// that an earlier one has set. Nodes beyond the toe read 0. An anchor at depth 0 keeps the node's
/// own value, and one that is at no node of the wall changes nothing.
///
/// Where an anchor is exactly at a node (`gradinoNelTaglio`) the value above it counts too:
/// taglioNodo[i] - tiro, with tiro = pretTirante + rigTirante (yNodo[i] - yTirante). An anchor
/// between two nodes has no such second value.
///
/// @param dati         the anchor table (profTirante [m], pretTirante [t], rigTirante [t/m])
/// @param nTirantiFase anchors in place in the stage, rows 1 to nTirantiFase
/// @param yTirante     displacement of each anchor's head when it was set [m]
/// @param nNodi        nodes of the wall, 1 at the top
/// @param passo        distance of the nodes, lunghezzaParatia / (nNodi - 1) [m]
/// @param yNodo        displacements of the stage [m]
/// @param taglioNodo   shear of the stage [t/m]; changed in place at the anchors' nodes
/// @return vMin 1e30 and vMax -1e30 if there is no node
[[nodiscard]] EstremiTaglio estremiTaglio(
    const project::DatiProgetto& dati, int nTirantiFase,
    const base::Tabella<double, project::massimoTiranti>& yTirante, int nNodi, double passo,
    const analysis::VettoreNodi& yNodo, analysis::VettoreNodi& taglioNodo);

}  // namespace korven::results
