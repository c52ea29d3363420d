#include "structure/shear_check.hpp"

#include <algorithm>
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

ValoriTaglio valoriTaglio(const project::Sezione& s, double Nsd) {
    assert(sezioneValida(s) && staffePresenti(s));
    ValoriTaglio v;
    v.fcd = s.fck / fsCalcestruzzo;
    v.fyd = s.fyk / fsAcciaio;
    v.d = inMillimetri(s.armDiamPalo - s.armCopriferro - s.armDiamLong / 2);
    v.bw = inMillimetri(s.armDiamPalo);
    const double fctm = 0.3 * std::pow(s.fck, 2.0 / 3.0);
    v.fctk = 0.7 * fctm;
    v.tauRd = 0.25 * v.fctk / fsCalcestruzzo;
    v.k = 1.6 - v.d / project::millimetriMetro;  // not held above 1
    v.Asl = s.armNumLong * pi * quadrato(inMillimetri(s.armDiamLong) / 2);
    v.rhoL = v.Asl / (v.d * v.bw);
    v.sigmaCp = Nsd / (pi * quadrato(inMillimetri(s.armDiamPalo) / 2) +
                       v.Asl * (s.modEacciaio / s.modEcls - 1));
    v.Vrd1 = v.tauRd * v.k * (1.2 + 40 * v.rhoL + 0.15 * v.sigmaCp) * v.bw * v.d;
    v.nu = std::max(0.7 - s.fck / 200, 0.5);
    v.Asw = 2 * pi * quadrato(inMillimetri(s.armDiamStaffe) / 2);
    v.passo = inMillimetri(s.armPassoStaffe);
    v.Vwd = v.fyd * v.d * 0.9 * v.Asw / v.passo;
    v.resistente = {.Vrd2 = oZero(0.5 * v.nu * v.fcd * v.bw * 0.9 * v.d),
                    .Vrd3 = oZero(v.Vrd1 + v.Vwd)};
    return v;
}

TaglioResistente verificaTaglio(const project::Sezione& sezione, double Nsd) {
    return valoriTaglio(sezione, Nsd).resistente;
}

ConfrontoTaglio confrontaTaglio(const TaglioResistente& resistente, double armInterasse,
                                double Vmax, double fsAzioni) {
    return {.Vrd2 = perMetro(resistente.Vrd2, armInterasse),
            .Vrd3 = perMetro(resistente.Vrd3, armInterasse),
            .taglioMassimo = project::inKilonewton(Vmax),
            .fsAzioni = fsAzioni,
            .Vsd = fsAzioni * project::kilonewton * Vmax};
}

std::vector<std::string_view> righeRotturaTaglio(const ConfrontoTaglio& c) {
    std::vector<std::string_view> righe;
    if (c.rotturaBielle()) righe.emplace_back("Rottura delle bielle di calcestruzzo compresse");
    if (c.rotturaArmatura()) righe.emplace_back("Rottura dell'armatura d'anima");
    return righe;
}

}  // namespace korven::structure
