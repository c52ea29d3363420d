#pragma once

#include <string>

#include "live/view.hpp"
#include "live/wall.hpp"
#include "scene/picture.hpp"
#include "scene/text_measure.hpp"

namespace korven::scene {

/// Size of a picture [px], not below `minima` either way: smaller ones are laid out as that.
struct Misura {
    double larghezza = 900, altezza = 580;
    static constexpr double minima = 120;
};

/// What of the picture is wanted.
struct Opzioni {
    bool curva = true;  ///< the panel with the curve; without it the section takes all the width
    /// For a narrow place: no dimensions, anchors by their numbers, of a stage its own level alone.
    bool stretta = false;
    bool parole = true;            ///< headline, verdict and what is in the way: of a fixed height
    std::string impedimento = {};  ///< why what is being typed is not shown, translated
    std::string didascalia = {};   ///< stands above a picture without words, translated
};

/// The wall as a picture: the section to scale (one scale for depth and width) with ground, layers,
/// water, loads, anchors, stages and dimensions as they are in the stage shown, and beside it the
/// curve of that stage, or of all as an envelope. A wall that does not stand is drawn as the
/// mechanism that it is, from the stage on that has none; one that is not computed is drawn as far
/// as its data go, and says why. Data may be of any kind: what has no number is left out.
[[nodiscard]] Scena scena(const live::PareteViva& parete, const live::Vista& vista,
                          const Misura& misura, const MisuraTesti& testi,
                          const Opzioni& opzioni = {});

/// What the picture says, for those who do not see it: the stage, the verdict, the largest values.
[[nodiscard]] std::string descrizione(const live::PareteViva& parete, const live::Vista& vista);

}  // namespace korven::scene
