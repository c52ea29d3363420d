#pragma once

#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "drawings/charts/axes.hpp"
#include "drawings/charts/missing_marks.hpp"
#include "scene/canvas.hpp"

// Charts of numbers, each in a place of a picture [px]. Texts are translated, or code names, with
// their units. A value that is no number is none.

namespace korven::drawings {

/// A number over another, or why there is none.
struct PuntoGrafico {
    double x, y;
    Mancanza perche = Mancanza::senzaNumero;  ///< of a y that is no number, or is `senzaPiede`

    [[nodiscard]] bool senzaPiede() const {
        return std::isfinite(y) && perche == Mancanza::senzaPiede;
    }
};

struct CurvaGrafico {
    std::string nome;                 ///< written at its end where there are several
    std::vector<PuntoGrafico> punti;  ///< ascending; without a y, or a toe, the curve has a gap
};

struct GraficoCurve {
    TestiAsse x;
    std::string titoloY;
    std::string titoloCurve;  ///< what the names of the curves are; empty for one
    std::vector<CurvaGrafico> curve;
    ParoleMancanze mancanze{};
};

/// Draws curves with a mark at each of their points where these are few; over an axis of whole
/// numbers the marks alone. What has no y is marked below the field, a row a curve, or one
/// for all curves that lack the same.
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
    TestiAsse x;
    std::string titoloY;
    std::vector<PuntoGrafico> punti;
    ParoleMancanze mancanze{};
};

/// Draws 2000 of the points at most, evenly out of their order, and what has no y below the field.
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

/// Bars to both sides of 0, as many as have room, with their values, over a scale from -1 to 1.
void disegnaGraficoBarre(scene::Tela& tela, const scene::Riquadro& posto, const GraficoBarre& dati);
/// The height that all of so many bars need [px].
[[nodiscard]] double altezzaBarre(std::size_t barre);

}  // namespace korven::drawings
