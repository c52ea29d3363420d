#include "structure/limit_search.hpp"

#include <cmath>

#include "structure/equilibrium_search.hpp"

namespace korven::structure {

namespace {

constexpr double campoCurvatura = 0.02;  // chi H at the start of the search
constexpr int dimezzamenti = 14;         // 2^-14 is the first below the tolerance of 1 / 10000

double momentoLimite(const ModelloStrisce& m, int k, double H, const PuntiAllungamento& punti,
                     double Nd) {
    double chiLo = 0;
    double chiHi = k * campoCurvatura / H;
    double chi = 0;
    double eps0 = 0;
    for (int i = 0; i < dimezzamenti; ++i) {
        chi = (chiHi + chiLo) / 2;
        eps0 = cercaDeformazione(m, k, chi, Nd);
        (limiteSuperato(eps0, chi, H, punti) ? chiHi : chiLo) = chi;
    }
    if (!inEquilibrio(m, eps0, chi, Nd)) return 0;
    const double M = momentoSezione(m, eps0, chi, Nd);
    return std::isfinite(M) ? M : 0;
}

}  // namespace

bool limiteSuperato(double eps0, double chi, double H, const PuntiAllungamento& punti) {
    return eps0 < accorciamentoLimite || eps0 + chi * punti.valle > allungamentoLimite ||
           eps0 + chi * H < accorciamentoLimite || eps0 + chi * punti.monte > allungamentoLimite;
}

MomentiResistenti cercaLimite(const ModelloStrisce& m, double H, const PuntiAllungamento& punti,
                              double Nd) {
    MomentiResistenti MRd;
    for (const int k : {-1, 1}) MRd[(k + 3) / 2] = momentoLimite(m, k, H, punti, Nd);
    return MRd;
}

}  // namespace korven::structure
