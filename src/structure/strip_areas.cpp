#include "structure/strip_areas.hpp"

#include <cmath>
#include <numbers>

#include "structure/circle_in_strip.hpp"

namespace korven::structure {

namespace {

using std::numbers::pi;

double cerchio(double c, double r, double dy, int i) {
    return areaCerchioInStriscia(c, r, dy * (i - 1), dy * i);
}

}  // namespace

AreeStrisce areeDiaframma(const DiaframmaMm& d, double bStriscia) {
    const double dy = d.spessore / nStrisce;
    const double rMonte = d.monte.diametro / 2;
    const double rValle = d.valle.diametro / 2;
    const double cMonte = d.spessore - d.monte.copriferro - rMonte;
    const double cValle = d.valle.copriferro + rValle;
    AreeStrisce aree;
    for (int i = 1; i <= nStrisce; ++i) {
        if (armata(d.monte))
            aree.As[i] += cerchio(cMonte, rMonte, dy, i) * bStriscia / d.monte.interasse;
        if (armata(d.valle))
            aree.As[i] += cerchio(cValle, rValle, dy, i) * bStriscia / d.valle.interasse;
        aree.Ac[i] = dy * bStriscia - aree.As[i];
    }
    return aree;
}

AreeStrisce areePali(const PaliMm& p, double bStriscia) {
    const double H = p.diamEst;
    const double dy = H / nStrisce;
    AreeStrisce aree;
    for (int i = 1; i <= nStrisce; ++i) {
        const double esterno = cerchio(H / 2, p.diamEst / 2, dy, i);
        const double interno = cerchio(H / 2, p.diamInt / 2, dy, i);
        aree.As[i] = (esterno - interno) * bStriscia / p.interasse;
        aree.Ac[i] = interno * bStriscia / p.interasse;
    }
    return aree;
}

AreeStrisce areePalancola(const PalancolaMm& p, double bStriscia) {
    const double dy = altezza(p) / nStrisce;
    const double tw = spessoreOrizzontaleAla(p);
    const double piene = p.spessore / dy;
    // A profile so low that its flanges fill the whole depth has no part-filled strip.
    const bool soloPiatti = !(piene < nStrisce);
    const int m = soloPiatti ? nStrisce : static_cast<int>(piene);
    // The flanges of a profile with m >= 50 meet and overlap at mid-depth. Then the strips at the
    // end of a flange, m + 1 and 100 - m, keep the part that their own flange fills, although the
    // other flange fills them whole: the part-filled strips are set last.
    TabellaStrisce B;
    for (int i = 1; i <= m; ++i) B[i] = B[nStrisce + 1 - i] = dy * (p.base - tw);
    if (!soloPiatti) B[m + 1] = B[nStrisce - m] = (p.base - tw) * (p.spessore - m * dy);
    AreeStrisce aree;
    for (int i = 1; i <= nStrisce; ++i)
        aree.As[i] = bStriscia * (B[i] + 2 * dy * tw) / passoOnda(p);
    return aree;
}

AreeStrisce areePaliArmati(const PaliArmatiMm& p, double bStriscia) {
    const double H = p.diamPalo;
    const double dy = H / nStrisce;
    const int ferri = numeroFerri(p);
    TabellaStrisce areaFerri;
    for (int j = 1; j <= ferri; ++j) {
        const double c = H / 2 + std::sin((j - 1) * 2 * pi / p.numLong) * raggioFerri(p);
        for (int i = 1; i <= nStrisce; ++i) areaFerri[i] += cerchio(c, p.diamLong / 2, dy, i);
    }
    AreeStrisce aree;
    for (int i = 1; i <= nStrisce; ++i) {
        aree.As[i] = areaFerri[i] * bStriscia / p.interasse;
        aree.Ac[i] = cerchio(H / 2, H / 2, dy, i) * bStriscia / p.interasse - aree.As[i];
    }
    return aree;
}

}  // namespace korven::structure
