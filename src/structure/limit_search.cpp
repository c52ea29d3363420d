#include "structure/limit_search.hpp"

#include <cmath>

#include "structure/equilibrium_search.hpp"

namespace korven::structure {

namespace {

constexpr double campoCurvatura = 0.02;  // chi H at the start of the search
constexpr int dimezzamenti = 14;         // 2^-14 is the first below the tolerance of 1 / 10000

}  // namespace

bool limiteSuperato(double eps0, double chi, double H, const PuntiAllungamento& punti) {
    return eps0 < accorciamentoLimite || eps0 + chi * punti.valle > allungamentoLimite ||
           eps0 + chi * H < accorciamentoLimite || eps0 + chi * punti.monte > allungamentoLimite;
}

StatoLimite statoLimite(const ModelloStrisce& m, int k, double H, const PuntiAllungamento& punti,
                        double Nd) {
    double chiLo = 0;
    double chiHi = k * campoCurvatura / H;
    StatoLimite stato;
    for (int i = 0; i < dimezzamenti; ++i) {
        stato.chi = (chiHi + chiLo) / 2;
        stato.eps0 = cercaDeformazione(m, k, stato.chi, Nd);
        (limiteSuperato(stato.eps0, stato.chi, H, punti) ? chiHi : chiLo) = stato.chi;
    }
    if (!inEquilibrio(m, stato.eps0, stato.chi, Nd)) return stato;
    const double M = momentoSezione(m, stato.eps0, stato.chi, Nd);
    if (std::isfinite(M)) stato.M = M;
    return stato;
}

MomentiResistenti cercaLimite(const ModelloStrisce& m, double H, const PuntiAllungamento& punti,
                              double Nd) {
    MomentiResistenti MRd;
    for (const int k : {-1, 1}) MRd[(k + 3) / 2] = statoLimite(m, k, H, punti, Nd).M;
    return MRd;
}

}  // namespace korven::structure
