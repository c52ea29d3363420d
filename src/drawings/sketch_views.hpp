#pragma once

#include <span>

#include "drawings/section_sketch.hpp"

// The sketch of each type, and what they share.

namespace korven::drawings {

[[nodiscard]] Schizzo schizzoDiaframma(const project::Sezione& sezione);
[[nodiscard]] Schizzo schizzoPali(const project::Sezione& sezione);
[[nodiscard]] Schizzo schizzoPalancola(const project::Sezione& sezione);
[[nodiscard]] Schizzo schizzoPaliArmati(const project::Sezione& sezione);

// The sections lie about the middle of the sheet, in this height and width at most.
inline constexpr double xSchizzo = larghezzaSchizzo / 2;
inline constexpr double ySchizzo = altezzaSchizzo / 2;
inline constexpr double sottoSchizzo = 13;
inline constexpr double sopraSchizzo = 87;
inline constexpr double altezzaCorpo = sopraSchizzo - sottoSchizzo;
inline constexpr double larghezzaCorpo = 40;

/// Where the texts at the left begin and those at the right end, beside the names of the sides.
inline constexpr double xTestiSinistri = 9;
inline constexpr double xTestiDestri = larghezzaSchizzo - 9;

/// A usual value of a field [cm].
struct EsempioCampo {
    double project::Sezione::*valore;
    double centimetri;
};

/// The values that a sketch draws.
struct ValoriSchizzo {
    project::Sezione sezione;
    bool inScala = false;  ///< those of the section, filled up; else the examples
};

/// Fills what is 0 or less from the examples, in the proportion that the first of them has to its
/// own value; takes the examples alone when the outcome does not fit together.
[[nodiscard]] ValoriSchizzo valoriSchizzo(const project::Sezione& sezione,
                                          std::span<const EsempioCampo> esempi,
                                          bool (*stannoInsieme)(const project::Sezione&));

/// A dimension across the wall from x1 to x2 at y, with extension lines from `yOggetto`, its text
/// on the far side.
[[nodiscard]] QuotaSchizzo quotaTraverso(double project::Sezione::*campo, double x1, double x2,
                                         double y, double yOggetto);

/// A dimension along the wall from y1 to y2 at x, with extension lines from `xOggetto`, its text
/// beside it on the far side.
[[nodiscard]] QuotaSchizzo quotaLungo(double project::Sezione::*campo, double y1, double y2,
                                      double x, double xOggetto);

/// A line from the edge of the sheet, on the side of `versoSinistra`, to the points of the section
/// at that height, its text on it at the edge.
/// @param estremi  x of the points, of which the line goes to the farthest
[[nodiscard]] QuotaSchizzo quotaRichiamo(double project::Sezione::*campo, bool versoSinistra,
                                         double y, const std::vector<double>& estremi);

}  // namespace korven::drawings
