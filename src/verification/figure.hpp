#pragma once

#include "scene/picture.hpp"
#include "scene/scene.hpp"
#include "verification/case.hpp"

namespace korven::verification {

/// The picture of a group's figure, with what it says to those who do not see it.
struct FiguraGruppo {
    scene::Scena scena;
    std::string descrizione;  ///< a sentence or more
};

/// The case that the figure of a group shows; nullptr where it has none.
[[nodiscard]] const Caso* casoInFigura(const Gruppo& gruppo);

/// Its wall by the equilibrium, with the curve that the group names, at the last stage; without the
/// name of a curve the N-M domain of its section.
/// @param misura  size of the picture [px]
[[nodiscard]] FiguraGruppo figura(const Gruppo& gruppo, const Caso& caso,
                                  const scene::Misura& misura);

}  // namespace korven::verification
