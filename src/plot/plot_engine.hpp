#pragma once

#include <span>
#include <string>
#include <string_view>

#include "plot/drawing_store.hpp"
#include "plot/drawing_surface.hpp"
#include "plot/drawing_watch.hpp"
#include "plot/geometry.hpp"
#include "plot/pens.hpp"
#include "plot/text_width.hpp"

// A pen plotter that knows no device and no subject. Whoever draws speaks of pens, moves and texts
// in centimetres on a sheet, y upward; the engine draws at once on the surface, if one is attached,
// and records every line and text, so that the same drawing can be replayed at another zoom,
// printed or written as DXF. A drawing is always: plotApri; any number of plotPenna, plotMuovi,
// plotSimbolo, plotNumero; plotMuovi(0, 0, fineDisegno).

namespace korven::plot {

/// The pen in use. It starts at values that no row of the table has, so that the first selection
/// always takes effect.
inline const PennaPlot nessunaPenna{-1, -1, {}};

/// The one drawing of the program and the plotter that draws it. There is never more than one.
struct StatoPlot {
    ArchivioDisegno archivio;

    TabellaPenne penne;
    PennaPlot penna = nessunaPenna;
    Punto origine;            ///< of the caller's coordinates on the sheet
    Punto posizione;          ///< of the pen, from the origin
    double scostamentoX = 0;  ///< shift of the drawing to the right [cm]
    double scostamentoY = 0;  ///< shift of the drawing down [cm]

    Riquadro finestra;        ///< what the surface shows
    Riquadro estensione;      ///< the whole drawing; no zoom touches it
    Riquadro rettangoloZoom;  ///< of the last zoom, moved by panning
    bool zoom = false;        ///< a zoom is in force
    bool replay = false;      ///< strokes are shown, not recorded
    int lavori = 0;           ///< how many `LavoroDisegno` live

    /// Page of the printer [cm], marked on the surface; an A4 sheet as long as no printer is known.
    /// 0 marks nothing.
    Foglio foglioStampante{21.0, 29.7};

    double scalaX = 0;  ///< pixels per centimetre of the surface
    double scalaY = 0;
    double spessoreSuperficie = -1;  ///< width [cm] last set on the surface

    /// What its files add to the project's name: "momenti"; the drawing says it after `plotApri`.
    /// Empty: they have the project's name alone.
    std::string nome;

    std::string stileTesti;  ///< text style of DXF files, held from the first one on

    SorvegliaDisegno* sorveglia = nullptr;    ///< not owned; nullptr: nobody can end the work
    SuperficieDisegno* superficie = nullptr;  ///< not owned; nullptr: store only
    const MetricaTesto* metrica = nullptr;    ///< not owned; nullptr: widths are estimated
};

extern StatoPlot statoPlot;

/// Codes of `plotMuovi`.
inline constexpr int pennaSu = 3;
inline constexpr int pennaGiu = 2;
inline constexpr int pennaSuOrigine = -3;
inline constexpr int pennaGiuOrigine = -2;
inline constexpr int fineDisegno = 999;

/// Starts a drawing on the sheet given [cm]: forgets the one before, reads pens and margins from
/// the configuration file of the current language and widens the window by the margins. With
/// `replay` not 0 nothing is forgotten, read or widened: the surface is prepared to show the stored
/// drawing in that window.
/// @throws ErroreFile when the configuration can't be read; the drawing before is then untouched
void plotApri(double xmin, double ymin, double xmax, double ymax, int replay = 0);

/// Selects pen `n`; above 30 it is 30.
/// @throws ErroreIndice below 0
void plotPenna(int n);

/// Selects width and font of pen `n` with another colour.
void plotPennaRgb(int n, Colore colore);

/// Selects a pen that is in no table: of a drawing that looks the same whatever pens its user has.
void plotPenna(const PennaPlot& penna);

/// Fills a polygon of up to five corners, from the origin [cm]; white and black are what they say.
/// Filled polygons lie below all lines of the drawing, in the order in which they are drawn.
/// @pre 3 to 5 corners: asserted
/// @throws ErroreIndice at polygon 64001 of a drawing
void plotPoligono(std::span<const Punto> vertici, Colore colore);

/// Moves the pen to (x, y), from the origin [cm].
///
/// | code | effect |
/// | --- | --- |
/// | 3 | pen up, nothing is drawn |
/// | 2 | pen down, a line from the last position is drawn and recorded |
/// | -3, -2 | the same, then (x, y) becomes the origin and the position (0, 0) |
/// | 999 | ends the drawing; x and y are ignored |
///
/// A pen of colour 0 leaves no trace; white is drawn and recorded as black.
/// @throws ErroreFile when a spill file can't be written, ErroreValore when a number for it is not
/// finite; the stored drawing is then empty
/// @throws DisegnoInterrotto at a line drawn after `sorveglia` wanted the end
void plotMuovi(double x, double y, int codice);

/// Writes a text at (x, y), or draws a marker about it. The pen does not move.
/// @param altezza    of the characters, or side of the marker's square [cm]
/// @param angolo     degrees, counter-clockwise
/// @param conteggio  -1: `testo` is the number of a marker (markers.hpp); -2: the text is centred
///                   on (x, y) along its base line; any other: it starts at (x, y)
/// @throws ErroreIndice at text 2001 of a drawing
void plotSimbolo(double x, double y, double altezza, std::string_view testo, double angolo,
                 int conteggio);

/// Writes a number through `plotSimbolo`, starting at (x, y) (plotted_number.hpp).
void plotNumero(double x, double y, double altezza, double valore, double angolo, int decimali);

/// Width [cm] of a text at `altezza` in the font of the pen in use, for labels that end at a point.
[[nodiscard]] double larghezzaTesto(double altezza, std::string_view testo);

/// Shows the stored drawing in the rectangle, which becomes the zoom in force.
void plotZoom(double x1, double y1, double x2, double y2);

/// Shows the whole stored drawing; no zoom is in force any more.
void plotTutto();

/// Draws all that is stored on the surface: polygons, lines, texts. A line or text of which a
/// number is not finite is left out.
/// @throws ErroreFile when a spill file can't be read
/// @throws DisegnoInterrotto when `sorveglia` wants the end; the surface then shows a part
void plotRifai();

}  // namespace korven::plot
