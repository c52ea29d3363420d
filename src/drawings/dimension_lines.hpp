#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "plot/geometry.hpp"
#include "plot/sheet.hpp"
#include "project/section.hpp"

// Dimension lines of the section drawing. All positions in cm of the sheet. A dimension is made
// first and drawn when it has found its place (dimension_placing.hpp).

namespace korven::drawings {

/// What lies between the turned names of the two sides, the title above and the box of the
/// materials below: the dimensions and their texts keep to it.
inline constexpr plot::Riquadro stanzaQuote{plot::x0 + 0.5, 2.6, plot::x0 + plot::larghQuadro - 0.5,
                                            22};

/// A text and how long it is in the pen in use, measured once for all the places that are tried.
struct Scritta {
    // A text is put in wherever one of these is asked for: implicit on purpose.
    Scritta(const std::string& scritto);  // NOLINT(google-explicit-constructor)

    std::string testo;
    double lungo;  ///< [cm]
};

/// A dimension or a leader with its text.
struct Quota {
    std::vector<plot::Tratto> linee;
    Scritta scritta;
    plot::Punto posizione;  ///< start of the base line, or its middle
    double angolo = 0;      ///< [degrees], 0 or 90
    bool centrato = false;  ///< `posizione` is the middle

    /// What the text takes up, accents and descenders included.
    [[nodiscard]] plot::Riquadro riquadroTesto() const;
    /// Draws it with the pen in use.
    void disegna() const;
};

/// "Copriferro =50 [mm]": caption and value of a dimension.
/// @param didascalia  Italian key
/// @param centimetri  the length as it is stored
[[nodiscard]] std::string testoQuota(std::string_view didascalia, double centimetri);
/// The same with the caption that the table of fields has.
[[nodiscard]] std::string testoQuota(const project::Sezione& sezione,
                                     double project::Sezione::*misura);

/// "80 [mm]", a length without a caption.
[[nodiscard]] std::string testoMisura(double centimetri);

/// A dimension from x1 to x2 at y, with extension lines from `yOggetto`; the text is centred on the
/// other side of it.
[[nodiscard]] Quota quotaOrizzontale(double x1, double x2, double y, double yOggetto,
                                     const Scritta& scritta);

/// A dimension from y1 to y2 at x, with extension lines from `xOggetto`; the text is turned and on
/// the other side of it, about its middle. An end beyond `stanzaQuote` is cut off there and ends in
/// an arrow.
[[nodiscard]] Quota quotaVerticale(double y1, double y2, double x, double xOggetto,
                                   const Scritta& scritta);

/// A line from a point of the section, ended there by a short slanted stroke, to the edge of
/// `stanzaQuote`, the text on it at that edge.
/// @param y  height at which it runs level; it leaves a point of another height at 45 degrees
[[nodiscard]] Quota richiamo(project::Lato lato, plot::Punto oggetto, double y,
                             const Scritta& scritta);

/// Such a line to x and from there up or down, the text turned along it.
[[nodiscard]] Quota richiamoGirato(project::Lato lato, plot::Punto oggetto, double y, double x,
                                   bool inAlto, const Scritta& scritta);

/// A short upright stroke across a leader at x, where a dimension along it begins or ends.
[[nodiscard]] plot::Tratto tacca(double x, double y);

}  // namespace korven::drawings
