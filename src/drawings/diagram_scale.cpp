#include "drawings/diagram_scale.hpp"

#include <cassert>
#include <cmath>

namespace korven::drawings {

namespace {

// Room for the error of a sum of steps, wherever a whole number of them is meant.
constexpr double tolleranzaIntero = 0.001;
constexpr double tolleranzaMaggiore = 0.01;

double parteIntera(double quanti) { return std::floor(quanti + tolleranzaIntero); }

bool maggiore(double valore, double passo) {
    const double quanti = valore / (10 * passo);
    return std::fabs(quanti - parteIntera(quanti)) < tolleranzaMaggiore;
}

}  // namespace

double passoScala(double valore) {
    // Powers of ten as they are written, not as products, so that 0.1 is 0.1.
    constexpr double passi[] = {0.001, 0.01, 0.1, 1, 10, 100, 1000};
    constexpr double limiti[] = {0.1, 1, 10, 100, 1000, 10000, 100000};
    for (int k = 0; k < 7; ++k)
        if (valore < limiti[k]) return passi[k];
    double passo = 10000;  // no wall bears such values, but its diagram must end
    while (valore >= 100 * passo) passo *= 10;
    return passo;
}

AsseValori asseValori(double vDati) {
    assert(std::fabs(vDati) <= 1e12);
    const double passo = passoScala(vDati);
    double vMax = passo * std::ceil(vDati / passo);
    if (vMax == 0) vMax = 10 * passo;
    return {vMax, passoScala(vMax)};
}

std::vector<Tacca> tacche(double da, double a, double passo) {
    assert(passo > 0);
    std::vector<Tacca> tutte;
    const double ultima = parteIntera((a - da) / passo);
    for (int k = 0; k <= ultima; ++k) {
        const double valore = da + k * passo;
        tutte.push_back({valore, maggiore(valore, passo)});
    }
    return tutte;
}

}  // namespace korven::drawings
