#pragma once

namespace korven::analysis {

/// Active and passive limit of one side of a node [t/m2]: positive on the retained side, negative
/// on the excavated one.
struct PressioniLimite {
    double attiva = 0;
    double passiva = 0;
};

/// What cohesion takes from the active limit and gives to the passive one [t/m2].
struct CoesioneLimiti {
    double attiva = 0;   ///< 2 c tan(pi/4 - phi/2)
    double passiva = 0;  ///< 2 c tan(pi/4 + phi/2)
};

/// @param c    cohesion [t/m2]
/// @param phi  friction angle [rad]
/// Source: Bell (1915), 233-272 (not looked up).
[[nodiscard]] CoesioneLimiti coesioneLimiti(double c, double phi);

/// Limits of the retained side:
///
///     active  = sigma ka - 2 c tan(pi/4 - phi/2), not below 0
///     passive = sigma kp + 2 c tan(pi/4 + phi/2)
///
/// Cohesion, and with it the limit at 0, enters for `metodoSpinte` below 3 only: Bell's limits stay
/// bare products. The slope does not enter the cohesion term.
/// @param sigma  vertical stress that the pressures use [t/m2]
[[nodiscard]] PressioniLimite limitiMonte(double metodoSpinte, double sigma, double ka, double kp,
                                          const CoesioneLimiti& coesione);

/// Limits of the excavated side, with ka and kp stored negative:
///
///     active  = sigma ka + 2 c tan(pi/4 - phi/2), not above 0
///     passive = sigma kp - 2 c tan(pi/4 + phi/2)
///
/// Where ka or kp is 0, as above the excavation, no cohesion enters.
/// Source of the cohesion term: Bell (1915), 233-272 (not looked up).
[[nodiscard]] PressioniLimite limitiValle(double metodoSpinte, double sigma, double ka, double kp,
                                          const CoesioneLimiti& coesione);

}  // namespace korven::analysis
