#pragma once

#include "analysis/undefined_cause.hpp"
#include "project/project_data.hpp"

// The modulus of the soil spring at a node [t/m3]. It is stored negative: a displacement towards
// the excavation lowers the pressure of the retained side and makes that of the excavated side more
// negative. The user types ksStrato as a positive number. Where the data turn the sign of a formula
// round (a negative effective stress, a saturated weight below that of water, a negative ks) the
// modulus is positive, a spring that pushes on, and is taken as it is.

namespace korven::analysis {

/// A modulus [t/m3, negative for any sound soil], or why it has no value.
struct ModuloNodo {
    double Eh = 0;
    Indefinito motivo = Indefinito::no;
};

/// Bearing-capacity factors of Bowles' ks, which are Hansen's.
struct FattoriPortanza {
    double Nq = 0, Nc = 0, Ngamma = 0;
};

/// What a method needs to know of a node on one side.
struct NodoKs {
    int strato = 0;              ///< the layer whose values count
    double z = 0;                ///< depth [m]
    FattoriPortanza portanza{};  ///< of the node's friction angle, for Bowles' method
    double falda = 0;            ///< water table of this side [m]
    double sigmaEfficace = 0;    ///< effective vertical stress [t/m2]
    double sigmaRiposo = 0;      ///< at-rest coefficient times vertical stress [t/m2], positive
    double fondo = 0;            ///< bottom of the layer for the linear method [m]
};

inline constexpr double fattoreBowles = 40;   ///< of the sum of three terms [1/m]
inline constexpr double fattoreNgamma = 1.5;  ///< of Ngamma
/// Taken off the saturated weight below water: a fixed 1 t/m3, which the method keeps even where
/// the project gives water another weight.
inline constexpr double alleggerimentoBowles = 1;

///     Nq = tan^2(pi/4 + phi/2) exp(pi tan phi),  Nc = (Nq - 1) / tan phi,
///     Ngamma = 1.5 (Nq - 1) tan phi
///
/// @param phi  friction angle [rad], not 0: asserted
/// Source: Hansen (1970), as Bowles (1996), chapter 4, reports him (neither looked up).
[[nodiscard]] FattoriPortanza fattoriPortanza(double phi);

///     Eh = -40 (c Nc + G Ngamma + sigma' Nq)
///
/// the sum exactly as written: no half and no width enter the G term. Positive when the sum is
/// negative, as with a negative stress.
/// @param c  cohesion [t/m2]
/// @param G  unit weight [t/m3]: natural above water, saturated less 1 below
/// Source: Bowles (1996), chapter 9, subgrade reaction (not looked up).
[[nodiscard]] double moduloBowles(double c, double G, double sigmaEfficace,
                                  const FattoriPortanza& portanza);

/// Modulus by `metodoKs`: 1 Bowles, 2 Lancellotta, -m sqrt(k0 sigma), 3 the layer's own ks, 4
/// linear from the ks of the layer above, at the top, to the layer's own at the bottom (0 at the
/// surface). Any other code gives 0. At the very depth of a layer of no thickness the linear method
/// takes the layer's own value.
/// Source of method 2: Lancellotta (1995) (not looked up).
[[nodiscard]] ModuloNodo moduloReazione(const project::DatiProgetto& dati, const NodoKs& nodo);

}  // namespace korven::analysis
