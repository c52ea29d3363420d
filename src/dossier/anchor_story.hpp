#pragma once

#include <optional>
#include <vector>

#include "live/wall.hpp"
#include "safety/margin.hpp"

namespace korven::dossier {

/// An anchor through the stages.
struct StoriaTirante {
    int tirante = 0;
    double profondita = 0;  ///< of its head, as typed [m]
    /// Of the node that it acts on [m]; nothing beside the wall, and where nothing is computed.
    std::optional<double> profonditaNodo;
    int posa = 0;  ///< stage that puts it in place; 0: none that stands
    /// Its force in each stage that stands, from its displacement, tension positive [t]; element 0
    /// is stage 1. Nothing before it is in place.
    std::vector<std::optional<double>> tiri;
    /// Displacement of its node at the end of the stage before it is placed, from which it counts
    /// [m]; 0 for the first stage, nothing of one that is not placed.
    std::optional<double> spostamentoPosa;
    double allaPosa = 0;  ///< at the end of the stage that puts it in place [t]
    double massimo = 0;   ///< largest [t]
    int faseMassimo = 0;  ///< its stage; 0: it is in none
    /// Largest force as the report prints it [t], where it has one.
    std::optional<double> relazione;
};

/// All rows of the table of anchors.
/// @param margine  of the same wall; nullptr: none is known
[[nodiscard]] std::vector<StoriaTirante> storieTiranti(const live::PareteViva& parete,
                                                       const safety::Margine* margine);

}  // namespace korven::dossier
