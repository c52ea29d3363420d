#pragma once

#include "base/table.hpp"
#include "project/units.hpp"

namespace korven::structure {

// Conventions of the strip model. y runs across the depth H of the section in mm, from 0 at the
// downhill face to H at the uphill face. Strains are eps0 + chi y, tension positive; stresses have
// the sign of the strain. The design axial force Nd is positive in compression [N]. Areas and
// forces belong to one metre of wall.

inline constexpr int nStrisce = 100;  ///< strips across the depth, for every kind of wall
inline constexpr double bStrisciaMetro =
    project::millimetriMetro;  ///< width of wall of a result [mm]

using TabellaStrisce = base::Tabella<double, nStrisce>;

/// A section cut into strips of equal depth, each with one concrete and one steel area that both
/// work at the strain of the strip's mid-depth.
struct ModelloStrisce {
    double dy = 0;           ///< depth of a strip, H / nStrisce [mm]
    double fcd = 0;          ///< design strength of concrete [N/mm2]
    double fyd = 0;          ///< design yield strength of steel [N/mm2]
    double modEacciaio = 0;  ///< elastic modulus of steel [N/mm2]
    TabellaStrisce Ac;       ///< concrete area of strips 1 to nStrisce [mm2]
    TabellaStrisce As;       ///< steel area of strips 1 to nStrisce [mm2]
};

/// Mid-depth of strip i, 1 to nStrisce [mm].
[[nodiscard]] inline double mezzeria(const ModelloStrisce& modello, int i) {
    return modello.dy / 2 + modello.dy * (i - 1);
}

/// Sum of the strip forces, sum of Ac sigma_c + As sigma_s [N], tension positive.
[[nodiscard]] double forzaSezione(const ModelloStrisce& modello, double eps0, double chi);

/// Moment of the strip forces [N mm], positive when it stretches the uphill side.
///
///     q = Nd / sum(Ac + As)
///     M = sum of y (Ac (sigma_c + q) + As (sigma_s + q))
///
/// q spreads the axial force evenly over all areas, concrete and steel alike. With it the strip
/// forces sum to zero in equilibrium, so that M is a couple and the place of y = 0 makes no
/// difference. Without axial force M is the plain sum of y times force.
/// Source: CEN, ENV 1992-1-1 (1991), 4.3.1, for the plane sections (not looked up); q is this
/// program's own
[[nodiscard]] double momentoSezione(const ModelloStrisce& modello, double eps0, double chi,
                                    double Nd);

}  // namespace korven::structure
