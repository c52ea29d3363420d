#include "analysis/pressure_coefficients.hpp"

#include <cmath>

#include "project/codes.hpp"

namespace korven::analysis {

const double pi = 4 * std::atan(1.0);

namespace {

double quadrato(double x) { return x * x; }

// Where phi + beta is 90 degrees Coulomb's kp has a pole, but the sines make of the 0 below it a
// number of this size at most, and of kp one that looks computed.
constexpr double nulloPerArrotondamento = 1e-12;

Indefinito radiceNegativa(double beta) {
    return beta < 0 ? Indefinito::discesaRipida : Indefinito::radiceNegativa;
}

}  // namespace

double coefficienteRiposo(double phi, double beta) {
    return (1 - std::sin(phi)) / (1 + std::sin(beta));
}

CoefficientiSpinta spinteCoulomb(double phi, double beta) {
    const double denominatore = std::sin(pi / 2) * std::sin(pi / 2 + beta);
    const double attiva = std::sin(phi) * std::sin(phi - beta) / denominatore;
    const double passiva = std::sin(phi) * std::sin(phi + beta) / denominatore;
    if (attiva < 0 || passiva < 0) return {0, 0, radiceNegativa(beta)};
    const double sotto = 1 - std::sqrt(passiva);
    if (std::abs(sotto) < nulloPerArrotondamento) return {0, 0, Indefinito::denominatoreNullo};
    return {quadrato(std::sin(pi / 2 + phi)) / quadrato(1 + std::sqrt(attiva)),
            quadrato(std::sin(pi / 2 - phi)) / quadrato(sotto)};
}

CoefficientiSpinta spinteRankine(double phi, double beta) {
    const double radicando = quadrato(std::cos(beta)) - quadrato(std::cos(phi));
    if (radicando < 0) return {0, 0, radiceNegativa(beta)};
    const double c = std::cos(beta);
    const double R = std::sqrt(radicando);
    if (c - R == 0 || c + R == 0) return {0, 0, Indefinito::denominatoreNullo};
    return {c * (c - R) / (c + R), c * (c + R) / (c - R)};
}

CoefficientiSpinta spinteBell(double phi) {
    return {quadrato(std::tan(pi / 4 - phi / 2)), quadrato(std::tan(pi / 4 + phi / 2))};
}

CoefficientiSpinta coefficientiSpinta(double metodoSpinte, double phi, double beta) {
    using project::MetodoSpinte;
    if (metodoSpinte == MetodoSpinte::coulomb) return spinteCoulomb(phi, beta);
    if (metodoSpinte == MetodoSpinte::rankine) return spinteRankine(phi, beta);
    if (metodoSpinte == MetodoSpinte::bell) return spinteBell(phi);
    return {};
}

}  // namespace korven::analysis
