#pragma once

#include "support/chapter_bench.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::test {

/// A simple wall with a section, and an axial force [t].
inline project::DatiProgetto muro(const project::Sezione& sezione, double sforzoNormale = 0) {
    auto dati = progettoSemplice();
    dati.sezione = sezione;
    dati.sforzoNormale = sforzoNormale;
    return dati;
}

/// Reinforced piles with stirrups of 10 mm every 20 cm.
inline project::Sezione conStaffe() {
    auto s = structure::paliArmati();
    s.armDiamStaffe = 1;
    s.armPassoStaffe = 20;
    return s;
}

/// The chapter of the section.
inline report::Blocchi sezione(const report::Contesto& c) {
    return blocchi(report::capitoloSezione, c);
}

}  // namespace korven::test
