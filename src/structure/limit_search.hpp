#pragma once

#include "base/table.hpp"
#include "structure/strip_model.hpp"

namespace korven::structure {

/// Moment resistances of one metre of wall [N mm]. Row 1: the downhill side stretched, a negative
/// number; row 2: the uphill side stretched, a positive number.
using MomentiResistenti = base::Tabella<double, 2>;

/// Where the elongation limit is read near either face [mm]: at the cover's depth in reinforced
/// concrete (not at the bars' axis, and whether or not that side has bars), at the very face where
/// steel reaches it.
struct PuntiAllungamento {
    double valle;  ///< y near the downhill face
    double monte;  ///< y near the uphill face
};

inline constexpr double accorciamentoLimite = -0.0035;  ///< strain at a face
inline constexpr double allungamentoLimite = 0.01;      ///< strain where the steel is

/// True when a strain limit is exceeded: a shortening of 0.0035 at either face, y = 0 and y = H, or
/// an elongation of 0.01 at either of the given points. A limit exactly reached is not exceeded.
[[nodiscard]] bool limiteSuperato(double eps0, double chi, double H,
                                  const PuntiAllungamento& punti);

/// The state in which a section reaches its resistance in one direction of bending. Strains are
/// eps0 + chi y.
struct StatoLimite {
    double eps0 = 0;  ///< strain of the downhill face, y = 0
    double chi = 0;   ///< curvature [1/mm]
    double M = 0;     ///< the resistance [N mm]; 0 without an equilibrium, and then it is no state
};

/// @param k  direction of bending: 1 stretches the uphill side, -1 the downhill one
[[nodiscard]] StatoLimite statoLimite(const ModelloStrisce& modello, int k, double H,
                                      const PuntiAllungamento& punti, double Nd);

/// Resistance of a section in both directions: the moment at the curvature at which the first
/// strain limit is exceeded.
///
/// The curvature is found by 14 halvings between 0 and 0.02 / H, which leave less than a
/// ten-thousandth of that range; the moment is that of the last halving, on whichever side of the
/// limit it fell. A direction in which the last halving finds no equilibrium (the axial force
/// crushes or tears the section) has resistance 0, and so has one whose moment is not finite.
///
/// @param H   depth of the section [mm]
/// @param Nd  design axial force on one metre of wall [N], positive in compression
[[nodiscard]] MomentiResistenti cercaLimite(const ModelloStrisce& modello, double H,
                                            const PuntiAllungamento& punti, double Nd);

}  // namespace korven::structure
