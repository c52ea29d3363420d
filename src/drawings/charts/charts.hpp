#pragma once

#include <optional>
#include <string>
#include <vector>

#include "scene/canvas.hpp"

// Charts of numbers, each in a place of a picture [px]. Texts are translated, or code names, with
// their units. A value that is no number is none.

namespace korven::drawings {

/// One number over another.
struct CurvaGrafico {
    std::string nome;          ///< written at its end where there are several
    std::vector<double> x, y;  ///< as many of both; ascending; without a y the curve has a gap
};

struct GraficoCurve {
    std::string titoloX, titoloY;
    std::vector<CurvaGrafico> curve;
    std::string mancanti;  ///< what is said of the x without a y, which are marked on the axis
};

/// Marks an x without a y in a chart of one curve alone: those of many would lie over each other.
void disegnaCurve(scene::Tela& tela, const scene::Riquadro& posto, const GraficoCurve& dati);

/// A value of the axis that is told: "5 %".
struct SegnoGrafico {
    double x;
    std::string nome;
};

struct Istogramma {
    std::string titoloX, titoloY;
    std::vector<double> valori;
    std::vector<SegnoGrafico> segni;
};

/// How many values lie in each of some classes of equal width.
struct Classi {
    double inizio = 0, passo = 1;  ///< the first class is from `inizio` to `inizio + passo`
    std::vector<std::size_t> numeri;
};

/// Classes whose ends are round numbers, at most 60, about as wide as the spread of the values
/// asks for: 2 (q75 - q25) / n^(1/3). A value at an end belongs to the class above it, one at the
/// end of the last to that.
/// @param valori  one at least
/// Source: Freedman & Diaconis (1981), On the histogram as a density estimator.
[[nodiscard]] Classi classi(std::vector<double> valori);

void disegnaIstogramma(scene::Tela& tela, const scene::Riquadro& posto, const Istogramma& dati);

struct Nuvola {
    std::string titoloX, titoloY;
    std::vector<scene::Punto> punti;
};

/// Draws 2000 of the points at most, evenly out of their order.
void disegnaNuvola(scene::Tela& tela, const scene::Riquadro& posto, const Nuvola& dati);

/// A share from -1 to 1.
struct BarraGrafico {
    std::string nome;
    std::optional<double> valore;
};

struct GraficoBarre {
    std::string titolo;
    std::vector<BarraGrafico> barre;  ///< drawn from the top down
};

/// Bars to both sides of 0, as many as have room, with their values.
void disegnaGraficoBarre(scene::Tela& tela, const scene::Riquadro& posto, const GraficoBarre& dati);

}  // namespace korven::drawings
