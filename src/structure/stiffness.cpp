#include "structure/stiffness.hpp"

#include <cassert>
#include <cmath>
#include <numbers>

#include "project/units.hpp"
#include "structure/section_millimetres.hpp"
#include "structure/section_type.hpp"
#include "structure/section_validity.hpp"

namespace korven::structure {

namespace {

using std::numbers::pi;

constexpr double metro = project::millimetriMetro;  // of wall, to which the stiffness refers

constexpr double quadrato(double x) { return x * x; }
constexpr double cubo(double x) { return x * x * x; }
constexpr double quarta(double x) { return x * x * x * x; }

// Steel area of a face per mm of wall.
double areaFaccia(const FacciaMm& faccia) {
    return armata(faccia) ? pi * quadrato(faccia.diametro) / 4 / faccia.interasse : 0;
}

EJDiaframma rigidezzaDiaframma(const DiaframmaMm& d, double Ec, double Es) {
    const double H = d.spessore;
    const double n = Es / Ec;
    const double Av = areaFaccia(d.valle);
    const double Am = areaFaccia(d.monte);
    // The uphill layer enters at its cover, the downhill one at its axis.
    const double x = (H * H / 2 + (n - 1) * Av * (H - d.valle.copriferro - d.valle.diametro / 2) +
                      (n - 1) * Am * d.monte.copriferro) /
                     (H + (n - 1) * (Am + Av));
    const double Jv = Av * quadrato(H - x - d.valle.copriferro - d.valle.diametro / 2);
    const double Jm = Am * quadrato(x - d.monte.copriferro - d.monte.diametro / 2);
    return {d, n, Am, Av, x, Jm, Jv, Ec * metro * (cubo(H) / 12 + (n - 1) * (Jv + Jm))};
}

EJPali rigidezzaPali(const PaliMm& p, double Ec, double Es) {
    const double Re = p.diamEst / 2;
    const double Ri = p.diamInt / 2;
    return {p, metro * (pi / 4) * (Ec * quarta(Ri) + Es * (quarta(Re) - quarta(Ri))) / p.interasse};
}

EJPalancola rigidezzaPalancola(const PalancolaMm& p, double Es) {
    const double tw = spessoreOrizzontaleAla(p);
    const double Be = p.base + tw;
    const double He = altezza(p);
    const double Bi = Be - 2 * tw;
    const double Hi = He - 2 * p.spessore;
    return {p,
            tw,
            Be,
            He,
            Bi,
            Hi,
            passoOnda(p),
            metro * Es * (Be * cubo(He) / 12 - Bi * cubo(Hi) / 12) / passoOnda(p)};
}

EJPaliArmati rigidezzaPaliArmati(const PaliArmatiMm& p, double Ec, double Es) {
    const double db = p.diamLong;
    double Sc = (pi * Ec / 4) * quarta(p.diamPalo / 2);
    double Ss = 0;
    double tutti = 0;
    const double Ab = pi * quadrato(db / 2);
    const double delta = 2 * pi / p.numLong;
    const int ferri = numeroFerri(p);
    for (int i = 0; i < ferri; ++i) {
        const double a = std::sin(delta * i) * raggioFerri(p);
        const double Jb = quadrato(a) * Ab + (pi / 4) * quarta(db / 2);
        tutti += Jb;
        Ss = Ss + Jb * Es;
        Sc = Sc - Jb * Ec;
    }
    return {p, ferri, raggioFerri(p), tutti, metro * (Ss + Sc) / p.interasse};
}

double rigidezza(std::monostate) { return 0; }
template <class Passi>
double rigidezza(const Passi& passi) {
    return passi.EJ;
}

}  // namespace

PassiEJ passiEJ(const project::Sezione& s) {
    const TipoSezione tipo = tipoSezione(s);
    assert(tipo == TipoSezione::nessuno || sezioneValida(s));
    switch (tipo) {
        case TipoSezione::diaframma:
            return rigidezzaDiaframma(diaframmaMm(s), s.modEcls, s.modEacciaio);
        case TipoSezione::pali:
            return rigidezzaPali(paliMm(s), s.modEcls, s.modEacciaio);
        case TipoSezione::palancola:
            return rigidezzaPalancola(palancolaMm(s), s.modEacciaio);
        case TipoSezione::paliArmati:
            return rigidezzaPaliArmati(paliArmatiMm(s), s.modEcls, s.modEacciaio);
        case TipoSezione::nessuno:
            break;
    }
    return {};
}

double calcolaEJ(const project::Sezione& s) {
    return std::visit([](const auto& passi) { return rigidezza(passi); }, passiEJ(s));
}

}  // namespace korven::structure
