#pragma once

#include <optional>

#include "project/project_data.hpp"

namespace korven::safety {

/// How closely the length is searched for [m].
inline constexpr double passoLunghezza = 0.01;
/// The longest wall that is tried, in lengths of the project's.
inline constexpr double massimaLunghezzaRelativa = 3;

/// What the search finds.
enum class EsitoLunghezza {
    trovata,
    sempre,     ///< it stands down to the deepest excavation
    mai,        ///< it stands with none of the lengths tried
    vincolata,  ///< the toe is restrained: a shorter wall is another one
};

struct LunghezzaMinima {
    EsitoLunghezza esito = EsitoLunghezza::trovata;
    std::optional<double> lunghezza;  ///< [m], of `trovata` and `sempre`
};

/// The shortest wall of which all stages have an equilibrium by the exact verdict, all else equal:
/// number of segments, soil, anchors, stages.
///
/// With the length the nodes move, and with them the depths at which excavation, water and layers
/// begin to count: the verdict may change to and fro within a step of the mesh. The search begins
/// at the project's length and goes down (or, if that wall does not stand, up) in hundredths of the
/// length to the first change, closes in on it by bisection to `passoLunghezza`, and then tries
/// every length within two steps of the mesh: the answer is the length from which on all of these
/// stand.
[[nodiscard]] LunghezzaMinima lunghezzaMinima(const project::DatiProgetto& dati, int nSeg);

}  // namespace korven::safety
