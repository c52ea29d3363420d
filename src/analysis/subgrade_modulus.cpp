#include "analysis/subgrade_modulus.hpp"

#include <cassert>
#include <cmath>

#include "analysis/pressure_coefficients.hpp"
#include "project/codes.hpp"

namespace korven::analysis {

namespace {

ModuloNodo lancellotta(double coeffM, double sigmaRiposo) {
    if (sigmaRiposo < 0) return {0, Indefinito::tensioneNegativa};
    return {-coeffM * std::sqrt(sigmaRiposo)};
}

ModuloNodo lineare(const project::DatiProgetto& dati, const NodoKs& nodo) {
    const int j = nodo.strato;
    const double t = dati.profStrato[j - 1];
    const double b = nodo.fondo;
    const double sopra = dati.ksStrato[j - 1];
    const double sotto = dati.ksStrato[j];
    if (b - t == 0) return {-sotto, nodo.z == b ? Indefinito::no : Indefinito::spessoreNullo};
    return {-(sopra + (sotto - sopra) * (nodo.z - t) / (b - t))};
}

}  // namespace

FattoriPortanza fattoriPortanza(double phi) {
    assert(phi != 0);
    const double radice = std::tan(pi / 4 + phi / 2);
    const double Nq = radice * radice * std::exp(pi * std::tan(phi));
    return {Nq, (Nq - 1) / std::tan(phi), fattoreNgamma * (Nq - 1) * std::tan(phi)};
}

double moduloBowles(double c, double G, double sigmaEfficace, const FattoriPortanza& portanza) {
    const auto& [Nq, Nc, Ngamma] = portanza;
    return -fattoreBowles * (c * Nc + G * Ngamma + sigmaEfficace * Nq);
}

ModuloNodo moduloReazione(const project::DatiProgetto& dati, const NodoKs& nodo) {
    using project::MetodoKs;
    const int j = nodo.strato;
    if (dati.metodoKs == MetodoKs::bowles) {
        const double G =
            nodo.falda > nodo.z ? dati.gammaN[j] : dati.gammaSat[j] - alleggerimentoBowles;
        return {moduloBowles(dati.coesione[j], G, nodo.sigmaEfficace, nodo.portanza)};
    }
    if (dati.metodoKs == MetodoKs::lancellotta) return lancellotta(dati.coeffM, nodo.sigmaRiposo);
    if (dati.metodoKs == MetodoKs::costante) return {-dati.ksStrato[j]};
    if (dati.metodoKs == MetodoKs::lineare) return lineare(dati, nodo);
    return {};
}

}  // namespace korven::analysis
