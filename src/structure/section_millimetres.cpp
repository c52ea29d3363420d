#include "structure/section_millimetres.hpp"

#include <cmath>
#include <limits>

#include "base/table.hpp"

namespace korven::structure {

namespace {

constexpr double mm(double cm) { return cm * 10; }

}  // namespace

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
    return {.spessore = mm(s.spessoreDiaframma),
            .monte = {mm(s.copriferroMonte), mm(s.interasseMonte), mm(s.diametroMonte)},
            .valle = {mm(s.copriferroValle), mm(s.interasseValle), mm(s.diametroValle)}};
}

PaliMm paliMm(const project::Sezione& s) {
    return {.diamEst = mm(s.paliDiamEst),
            .diamInt = mm(s.paliDiamInt),
            .interasse = mm(s.paliInterasse)};
}

PalancolaMm palancolaMm(const project::Sezione& s) {
    return {.base = mm(s.palancolaBase),
            .largAla = mm(s.palancolaLargAla),
            .altAla = mm(s.palancolaAltAla),
            .spessore = mm(s.palancolaSpessore),
            .spessAla = mm(s.palancolaSpessAla)};
}

// The count of bars shares the editors' factor of ten with the lengths but is taken here as it is
// stored: a pile shown with 120 bars calculates with 12.
PaliArmatiMm paliArmatiMm(const project::Sezione& s) {
    return {.interasse = mm(s.armInterasse),
            .diamPalo = mm(s.armDiamPalo),
            .diamLong = mm(s.armDiamLong),
            .copriferro = mm(s.armCopriferro),
            .numLong = s.armNumLong};
}

}  // namespace korven::structure
