#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drawings/annex/peak_labels.hpp"
#include "project/units.hpp"
#include "scene/canvas.hpp"

// Curves along the wall, one panel beside the other on one axis of depth.

namespace korven::drawings {

/// Where depths lie in a picture [px].
struct AsseProfondita {
    double yTesta = 0;
    double scala = 1;      ///< pixels in a metre
    double lunghezza = 0;  ///< of the wall [m]; above 0
    [[nodiscard]] double y(double z) const { return yTesta + scala * z; }
    [[nodiscard]] double piede() const { return y(lunghezza); }
};

/// A line along the wall from the top down, in stored units.
struct CurvaPannello {
    std::vector<double> valori;
    std::vector<double> z;  ///< depth of each value [m]; a step has two values at one depth
    scene::Ruolo linea = scene::Ruolo::curva;
    std::optional<scene::Ruolo> fondo = {};  ///< of the field to the axis
    double spessore = 2;                     ///< [px]
    scene::Tratteggio tratteggio = scene::Tratteggio::nessuno;
    bool massimo = true, minimo = true;  ///< these peaks have their value
    std::string prima = {};              ///< stands before the value: "A "
    std::vector<int> fasi = {};          ///< of each value, told behind the value; empty: none is
    std::string nome = {};               ///< translated, for the key below the panel
};

struct DatiPannello {
    std::string titolo;  ///< translated, without the unit
    project::Unita unita;
    std::vector<CurvaPannello> curve;  ///< drawn in this order
    /// Curves between which the ground is filled; none where the first is below 0.
    int fasciaDa = -1, fasciaA = -1;
    bool versoScavo = false;  ///< positive values act towards the excavation: told below
};

/// Draws panels on a canvas, and their peaks where its texts leave room.
class Pannelli {
 public:
    /// @param linee  depths with a dashed line across all panels: levels of the excavation [m]
    /// @param basso  lower end of the picture [px], `piede` below the toe at least
    Pannelli(const AsseProfondita& asse, std::vector<double> linee, double basso,
             scene::Tela& tela);

    /// Numbers of the depths, that end at `x`.
    void profondita(double x);
    /// @param x1, x2  its left and right end [px]
    void disegna(const DatiPannello& dati, double x1, double x2);
    /// Ends the canvas: its figures, and the values of the peaks, which take what room there is.
    [[nodiscard]] std::vector<scene::Primitiva> concludi();

    /// Room above depth 0 for titles and numbers [px].
    static double testata();
    /// Room below the toe for keys [px].
    static double piede();

 private:
    class Pannello;

    [[nodiscard]] double passo() const;

    AsseProfondita asse_;
    std::vector<double> linee_;
    double yChiave_;  // of the first key
    scene::Tela& tela_;
    std::vector<CampoPicchi> campi_;  // one a panel
};

}  // namespace korven::drawings
