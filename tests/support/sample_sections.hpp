#pragma once

#include "project/section.hpp"

// One section of each kind, as the project stores it: lengths in cm, strengths in N/mm2. The tests
// of this folder start from them and change what they are about.

namespace korven::structure {

inline project::Sezione sezioneConMateriali() {
    project::Sezione s;
    s.modEcls = 30000;
    s.modEacciaio = 200000;
    s.fck = 25;
    s.fyk = 430;
    return s;
}

/// 800 mm thick, bars of 24 mm every 200 mm on both faces, cover 50 mm.
inline project::Sezione diaframmaSimmetrico() {
    project::Sezione s = sezioneConMateriali();
    s.tipoDiaframma = true;
    s.spessoreDiaframma = 80;
    s.copriferroMonte = s.copriferroValle = 5;
    s.interasseMonte = s.interasseValle = 20;
    s.diametroMonte = s.diametroValle = 2.4;
    return s;
}

/// 600 mm thick, bars of 24 mm every 200 mm on the downhill face alone, cover 50 mm.
inline project::Sezione diaframmaArmatoAValle() {
    project::Sezione s = diaframmaSimmetrico();
    s.spessoreDiaframma = 60;
    s.copriferroMonte = s.interasseMonte = s.diametroMonte = 0;
    return s;
}

/// Tubes of 600 mm, wall 10 mm, every 800 mm.
inline project::Sezione paliTubolari() {
    project::Sezione s = sezioneConMateriali();
    s.tipoPali = true;
    s.paliDiamEst = 60;
    s.paliDiamInt = 58;
    s.paliInterasse = 80;
    return s;
}

/// 400 mm deep: flats of 200 x 20 mm, legs 100 mm wide, 190 mm high, 12 mm thick.
inline project::Sezione palancola() {
    project::Sezione s;
    s.tipoPalancola = true;
    s.modEacciaio = 200000;
    s.fyk = 430;
    s.palancolaBase = 20;
    s.palancolaLargAla = 10;
    s.palancolaAltAla = 19;
    s.palancolaSpessore = 2;
    s.palancolaSpessAla = 1.2;
    return s;
}

/// Piles of 800 mm every 1000 mm, 12 bars of 24 mm, cover 60 mm; no stirrups.
inline project::Sezione paliArmati() {
    project::Sezione s = sezioneConMateriali();
    s.tipoPaliArmati = true;
    s.armInterasse = 100;
    s.armDiamPalo = 80;
    s.armDiamLong = 2.4;
    s.armNumLong = 12;
    s.armCopriferro = 6;
    return s;
}

}  // namespace korven::structure
