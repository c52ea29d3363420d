#include "structure/section_millimetres.hpp"

#include <cmath>
#include <limits>

#include "base/table.hpp"
#include "project/units.hpp"

namespace korven::structure {

using project::inMillimetri;

double altezza(const PalancolaMm& palancola) { return 2 * palancola.altAla + palancola.spessore; }

double passoOnda(const PalancolaMm& palancola) {
    return 4 * palancola.largAla + 2 * palancola.base;
}

double spessoreOrizzontaleAla(const PalancolaMm& palancola) {
    return palancola.spessAla / std::cos(std::atan(palancola.largAla / palancola.altAla));
}

double raggioFerri(const PaliArmatiMm& pali) {
    return pali.diamPalo / 2 - pali.copriferro - pali.diamLong / 2;
}

int numeroFerri(const PaliArmatiMm& pali) {
    if (!(pali.numLong >= 1)) return 0;
    const double ferri = std::floor(pali.numLong);
    if (ferri > massimoFerri) {
        constexpr int oltre = std::numeric_limits<int>::max();
        throw base::ErroreIndice(ferri < oltre ? static_cast<int>(ferri) : oltre, massimoFerri);
    }
    return static_cast<int>(ferri);
}

DiaframmaMm diaframmaMm(const project::Sezione& s) {
    return {.spessore = inMillimetri(s.spessoreDiaframma),
            .monte = {inMillimetri(s.copriferroMonte), inMillimetri(s.interasseMonte),
                      inMillimetri(s.diametroMonte)},
            .valle = {inMillimetri(s.copriferroValle), inMillimetri(s.interasseValle),
                      inMillimetri(s.diametroValle)}};
}

PaliMm paliMm(const project::Sezione& s) {
    return {.diamEst = inMillimetri(s.paliDiamEst),
            .diamInt = inMillimetri(s.paliDiamInt),
            .interasse = inMillimetri(s.paliInterasse)};
}

PalancolaMm palancolaMm(const project::Sezione& s) {
    return {.base = inMillimetri(s.palancolaBase),
            .largAla = inMillimetri(s.palancolaLargAla),
            .altAla = inMillimetri(s.palancolaAltAla),
            .spessore = inMillimetri(s.palancolaSpessore),
            .spessAla = inMillimetri(s.palancolaSpessAla)};
}

// The count of bars shares the editors' factor of ten with the lengths but is taken here as it is
// stored: a pile shown with 120 bars calculates with 12.
PaliArmatiMm paliArmatiMm(const project::Sezione& s) {
    return {.interasse = inMillimetri(s.armInterasse),
            .diamPalo = inMillimetri(s.armDiamPalo),
            .diamLong = inMillimetri(s.armDiamLong),
            .copriferro = inMillimetri(s.armCopriferro),
            .numLong = s.armNumLong};
}

}  // namespace korven::structure
