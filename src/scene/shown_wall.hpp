#pragma once

#include <vector>

#include "live/view.hpp"
#include "live/wall.hpp"

namespace korven::scene {

// The project as numbers that can be drawn: what a file or a form may hold beyond them is left out.

/// The wall and which of its stages is drawn.
struct Mostrata {
    const live::PareteViva& parete;
    live::Vista vista;
    /// Whose excavation, water and anchors are drawn: the one chosen; for the envelope the first
    /// that does not stand, else the last. 0: there is none.
    int fase = 0;
    /// That stage is the first that does not stand.
    bool cade = false;
    /// It comes after that one.
    bool dopo = false;
    double lunghezza = 0;  ///< of the wall [m]; 0: not to be drawn
    double scavo = 0;      ///< of the stage [m]

    [[nodiscard]] const project::DatiProgetto& dati() const { return parete.dati; }
    [[nodiscard]] int nStrati() const;
    [[nodiscard]] int nTiranti() const;
    [[nodiscard]] int nFasi() const;
    /// Anchors in place.
    [[nodiscard]] int tirantiInOpera() const;
    /// Force of an anchor [t], for the envelope its largest; nothing where none is computed.
    [[nodiscard]] const double* tiro(int tirante) const;

    std::vector<double> tiri = {};
};

[[nodiscard]] Mostrata mostrata(const live::PareteViva& parete, const live::Vista& vista);

/// A number that can be drawn: finite, and below what any ground is deep or a load is large.
[[nodiscard]] bool disegnabile(double valore);

/// Depth of a layer's foot as it is drawn [m]. A last layer that ends above the toe has none: the
/// analysis goes on with it below, and a wall that hangs in the void would tell of another one.
[[nodiscard]] double lettoMostrato(const Mostrata& m, int strato);

/// The layer at a depth; 0 where no layer is known.
[[nodiscard]] int stratoMostrato(const Mostrata& m, double z);

/// Hatch colour of the ground at a depth; 0 where no layer is known.
[[nodiscard]] int coloreTerreno(const Mostrata& m, double z);

/// Thickness of the section [m] as seen from its end; 0 where it is not given.
[[nodiscard]] double spessore(const project::Sezione& sezione);

}  // namespace korven::scene
