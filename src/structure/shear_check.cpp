#include "structure/shear_check.hpp"

#include <cassert>
#include <cmath>
#include <numbers>

#include "project/units.hpp"
#include "structure/partial_factors.hpp"
#include "structure/section_validity.hpp"

namespace korven::structure {

namespace {

using project::inMillimetri;
using std::numbers::pi;

constexpr double quadrato(double x) { return x * x; }

double oZero(double resistenza) { return std::isfinite(resistenza) ? resistenza : 0; }

// One pile's resistance [N], spacing in cm: kN to the metre of wall.
double perMetro(double Vrd, double armInterasse) {
    return Vrd / project::newtonKilonewton * project::centimetri / armInterasse;
}

}  // namespace

TaglioResistente verificaTaglio(const project::Sezione& s, double Nsd) {
    assert(sezioneValida(s) && staffePresenti(s));
    const double fcd = s.fck / fsCalcestruzzo;
    const double fyd = s.fyk / fsAcciaio;
    const double d = inMillimetri(s.armDiamPalo - s.armCopriferro - s.armDiamLong / 2);
    const double bw = inMillimetri(s.armDiamPalo);
    const double fctm = 0.3 * std::pow(s.fck, 2.0 / 3.0);
    const double fctk = 0.7 * fctm;
    const double tauRd = 0.25 * fctk / fsCalcestruzzo;
    const double kTaglio = 1.6 - d / project::millimetriMetro;  // not held above 1
    const double Asl = s.armNumLong * pi * quadrato(inMillimetri(s.armDiamLong) / 2);
    const double rhoL = Asl / (d * bw);
    const double sigmaCp = Nsd / (pi * quadrato(inMillimetri(s.armDiamPalo) / 2) +
                                  Asl * (s.modEacciaio / s.modEcls - 1));
    const double Vrd1 = tauRd * kTaglio * (1.2 + 40 * rhoL + 0.15 * sigmaCp) * bw * d;
    double nu = 0.7 - s.fck / 200;
    if (nu < 0.5) nu = 0.5;
    const double Vrd2 = 0.5 * nu * fcd * bw * 0.9 * d;
    const double Asw = 2 * pi * quadrato(inMillimetri(s.armDiamStaffe) / 2);
    const double Vrd3 = Vrd1 + fyd * d * 0.9 * Asw / inMillimetri(s.armPassoStaffe);
    return {.Vrd2 = oZero(Vrd2), .Vrd3 = oZero(Vrd3)};
}

ConfrontoTaglio confrontaTaglio(const TaglioResistente& resistente, double armInterasse,
                                double Vmax) {
    return {.Vrd2 = perMetro(resistente.Vrd2, armInterasse),
            .Vrd3 = perMetro(resistente.Vrd3, armInterasse),
            .taglioMassimo = project::inKilonewton(Vmax),
            .fsAzioni = fsAzioniSezione,
            .Vsd = fsAzioniSezione * project::kilonewton * Vmax};
}

std::vector<std::string_view> righeRotturaTaglio(const ConfrontoTaglio& c) {
    std::vector<std::string_view> righe;
    if (c.rotturaBielle()) righe.emplace_back("Rottura delle bielle di calcestruzzo compresse");
    if (c.rotturaArmatura()) righe.emplace_back("Rottura dell'armatura d'anima");
    return righe;
}

}  // namespace korven::structure
