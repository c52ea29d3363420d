#pragma once

#include "analysis/undefined_cause.hpp"

namespace korven::analysis {

/// Ratio of a circle's circumference to its diameter, as all formulas of the program take it.
extern const double pi;

/// Active and passive coefficient, both positive, and why they have no value if they have none:
/// both are 0 then.
struct CoefficientiSpinta {
    double ka = 0;
    double kp = 0;
    Indefinito motivo = Indefinito::no;
};

/// At-rest coefficient of the retained side:
///
///     k0 = (1 - sin phi) / (1 + sin beta)
///
/// The slope term carries a plus: a rising ground lowers the coefficient.
/// @param phi   friction angle [rad]; any value is computed
/// @param beta  slope of the ground [rad], positive when it rises away from the wall
/// @return k0 [-]; not finite when sin beta is -1
/// Source: Jaky (1944), 355-358; the slope term is Kezdi's (1972), as Bowles (1996) reports it
/// (neither looked up).
[[nodiscard]] double coefficienteRiposo(double phi, double beta);

/// Coulomb's coefficients for a vertical, smooth wall (wall angle pi/2, no wall friction):
///
///     A = sin phi sin(phi - beta) / (sin(pi/2) sin(pi/2 + beta))
///     P = sin phi sin(phi + beta) / (sin(pi/2) sin(pi/2 + beta))
///
///     ka = sin^2(pi/2 + phi) / (1 + sqrt A)^2
///     kp = sin^2(pi/2 - phi) / (1 - sqrt P)^2
///
/// @param phi   friction angle [rad], meant for 0 to below pi/2; other values are computed as the
///              formula has them
/// @param beta  slope of the ground [rad], positive when it rises away from the wall; meant for
///              -phi to phi
/// @return undefined for a slope above phi or below -phi (the root of a negative number), and where
///         the denominator of kp is 0 but for rounding: phi + beta = pi/2, or phi = pi/2. Beyond
///         that pole, phi + beta above pi/2, kp is the formula's and falls again. Without friction
///         both are 1 at any slope
/// Source: Coulomb (1776), 343-382, in the form of Mueller-Breslau (1906) (neither looked up).
[[nodiscard]] CoefficientiSpinta spinteCoulomb(double phi, double beta);

/// Rankine's coefficients for ground that slopes at beta:
///
///     R = sqrt(cos^2 beta - cos^2 phi)
///
///     ka = cos beta (cos beta - R) / (cos beta + R)
///     kp = cos beta (cos beta + R) / (cos beta - R)
///
/// @param phi   friction angle [rad], meant for 0 to below pi/2
/// @param beta  slope of the ground [rad], meant for -phi to phi; its sign does not matter
/// @return undefined for a slope steeper than phi, rising or falling, and at phi = pi/2
/// Source: Rankine (1857), 9-27 (not looked up).
[[nodiscard]] CoefficientiSpinta spinteRankine(double phi, double beta);

/// Bell's coefficients; the slope does not enter.
///
///     ka = tan^2(pi/4 - phi/2),  kp = tan^2(pi/4 + phi/2)
///
/// @param phi  friction angle [rad], meant for 0 to below pi/2; nothing is refused
/// Source: Bell (1915), 233-272 (not looked up).
[[nodiscard]] CoefficientiSpinta spinteBell(double phi);

/// The coefficients by code: 1 Coulomb, 2 Rankine, 3 Bell. Any other code leaves both at 0.
[[nodiscard]] CoefficientiSpinta coefficientiSpinta(double metodoSpinte, double phi, double beta);

}  // namespace korven::analysis
