#pragma once

#include <string>
#include <vector>

#include "drawings/annex/plot_strokes.hpp"
#include "scene/picture.hpp"
#include "scene/text_measure.hpp"

namespace korven::drawings {

/// A peak of a curve and what is written at it.
struct Picco {
    scene::Punto punto;
    scene::Ruolo ruolo = scene::Ruolo::curva;
    /// The same in one row, in two, ...: the first that finds a good place is taken.
    std::vector<std::vector<std::string>> forme;
};

/// Where the peaks of one panel may be written.
struct CampoPicchi {
    scene::Riquadro posto;
    /// From the top down; no text lies on one as long as there is another place.
    std::vector<std::vector<scene::Punto>> curve;
    std::vector<TrattoScena> rette;  ///< lines that a text had better leave alone
    std::vector<Picco> picchi;
    /// Thin curves behind the others: a text next to its peak over one reads better than one far
    /// away.
    std::vector<std::vector<scene::Punto>> sottili = {};
};

/// Marks at the peaks and their texts, each near its peak, clear of curves and never over another
/// text; strokes lead to those that are farther away. A text that has no free place is left out.
/// @param occupati  texts of the picture that are there already
[[nodiscard]] std::vector<scene::Primitiva> etichettePicchi(const std::vector<CampoPicchi>& campi,
                                                            std::vector<scene::Riquadro> occupati,
                                                            const scene::MisuraTesti& misura);

}  // namespace korven::drawings
