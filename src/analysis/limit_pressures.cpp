#include "analysis/limit_pressures.hpp"

#include <cmath>

#include "analysis/pressure_coefficients.hpp"
#include "project/codes.hpp"

namespace korven::analysis {

using project::MetodoSpinte;

CoesioneLimiti coesioneLimiti(double c, double phi) {
    return {2 * c * std::tan(pi / 4 - phi / 2), 2 * c * std::tan(pi / 4 + phi / 2)};
}

PressioniLimite limitiMonte(double metodoSpinte, double sigma, double ka, double kp,
                            const CoesioneLimiti& coesione) {
    PressioniLimite limiti{sigma * ka, sigma * kp};
    if (metodoSpinte < MetodoSpinte::bell) {
        limiti.attiva -= coesione.attiva;
        if (limiti.attiva < 0) limiti.attiva = 0;
        limiti.passiva += coesione.passiva;
    }
    return limiti;
}

PressioniLimite limitiValle(double metodoSpinte, double sigma, double ka, double kp,
                            const CoesioneLimiti& coesione) {
    PressioniLimite limiti{sigma * ka, sigma * kp};
    if (metodoSpinte < MetodoSpinte::bell && ka != 0 && kp != 0) {
        limiti.attiva += coesione.attiva;
        if (limiti.attiva > 0) limiti.attiva = 0;
        limiti.passiva -= coesione.passiva;
    }
    return limiti;
}

}  // namespace korven::analysis
