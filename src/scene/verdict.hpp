#pragma once

#include <string>
#include <vector>

#include "scene/palette.hpp"
#include "scene/shown_wall.hpp"

namespace korven::scene {

/// What is said of the wall, and how heavy it is.
struct Verdetto {
    std::string testo;  ///< one sentence, translated
    Ruolo ruolo = Ruolo::avviso;
};

/// Which stage is shown: "fase 2 di 4  ·  scavo 5.00 m"; of a project that nobody has begun that it
/// is empty.
[[nodiscard]] std::string titolo(const Mostrata& m);

/// What keeps values from being shown, a wall from being computed (with the forms that are still to
/// be filled in) or from standing; else that the
/// stage shown stands, or all do, with its largest values or those of all, after what keeps the
/// report from having numbers.
[[nodiscard]] std::vector<Verdetto> verdetti(const Mostrata& m, const std::string& impedimento);

}  // namespace korven::scene
