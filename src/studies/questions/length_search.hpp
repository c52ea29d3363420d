#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "project/project_data.hpp"
#include "studies/questions/length_criteria.hpp"

namespace korven::studies {

/// Length over which a wall must go on meeting the criteria as it grows [m].
inline constexpr double trattoSicuro = 1;

/// Which lengths are tried.
struct Scala {
    double passo = 0.1;  ///< [m]; the lengths are whole numbers of it
    double finoA = 0;    ///< the longest [m]; the last tried is the largest step not above it
};

struct RicercaLunghezza {
    std::vector<LunghezzaProvata> provate;  ///< from the shortest up
    std::optional<std::size_t> risposta;    ///< place in `provate`; nothing: none of them
    bool fermata = false;                   ///< by its user

    [[nodiscard]] const LunghezzaProvata* trovata() const {
        return risposta ? &provate[*risposta] : nullptr;
    }
};

/// The shortest wall that meets the criteria in all stages, all else equal, number of segments
/// included.
///
/// Criteria need not grow with the length: the nodes move with it, and with them the depths at
/// which excavation, layers and anchors begin to count; a deeper toe may raise the largest moment.
/// So all lengths are tried upward from the deepest excavation, and the answer is the shortest from
/// which on every length tried meets the criteria for `trattoSicuro`, or up to the longest.
/// @param fermata  asked before each length; true ends the search
/// @pre the toe is free (a restrained one makes of a shorter wall another one); `scala.passo` > 0
[[nodiscard]] RicercaLunghezza cercaLunghezza(const project::DatiProgetto& dati, int nSeg,
                                              const Criteri& criteri, const Scala& scala,
                                              const std::function<bool()>& fermata);

}  // namespace korven::studies
