#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "live/view.hpp"
#include "live/wall.hpp"
#include "project/units.hpp"
#include "scene/palette.hpp"

namespace korven::scene {

/// A line along the wall from the top down, in stored units.
struct Serie {
    std::vector<double> valori;
    /// Depth of each value [m]: that of its node. Shear has two at a node where some stage has an
    /// anchor, first the one above it.
    std::vector<double> z;
    Ruolo linea = Ruolo::curva;
    Ruolo fondo = Ruolo::fondoCurva;  ///< of the field to the axis
    bool riempita = true;
    std::string_view nome = {};  ///< Italian key; empty where the curve is the only one
};

/// What is drawn beside the wall.
struct DatiCurva {
    project::Unita unita;
    std::string_view titolo;  ///< Italian key
    /// What is positive acts or goes towards the excavation.
    bool versoScavo = false;
    std::vector<Serie> serie;
    /// The two last series are the borders of an envelope.
    bool fascia = false;
};

/// The curve of a view; without series where nothing is known of the stage, or where a number is
/// none.
/// @param fase  counted from 1; 0: the envelope of the stages that stand
[[nodiscard]] DatiCurva datiCurva(const live::PareteViva& parete, int fase, live::Curva curva);

}  // namespace korven::scene
