#include "analysis/limit_pressures.hpp"

#include <cmath>

#include "analysis/pressure_coefficients.hpp"
#include "project/codes.hpp"

namespace korven::analysis {

using project::MetodoSpinte;

PressioniLimite limitiMonte(double metodoSpinte, double sigma, double ka, double kp, double c,
                            double phi) {
    PressioniLimite limiti{sigma * ka, sigma * kp};
    if (metodoSpinte < MetodoSpinte::bell) {
        limiti.attiva -= 2 * c * std::tan(pi / 4 - phi / 2);
        if (limiti.attiva < 0) limiti.attiva = 0;
        limiti.passiva += 2 * c * std::tan(pi / 4 + phi / 2);
    }
    return limiti;
}

PressioniLimite limitiValle(double metodoSpinte, double sigma, double ka, double kp, double c,
                            double phi) {
    PressioniLimite limiti{sigma * ka, sigma * kp};
    if (metodoSpinte < MetodoSpinte::bell && ka != 0 && kp != 0) {
        limiti.attiva += 2 * c * std::tan(pi / 4 - phi / 2);
        if (limiti.attiva > 0) limiti.attiva = 0;
        limiti.passiva -= 2 * c * std::tan(pi / 4 + phi / 2);
    }
    return limiti;
}

}  // namespace korven::analysis
