#pragma once

#include <vector>

#include "drawings/annex/wall_sheets.hpp"
#include "live/section_checks.hpp"
#include "project/section.hpp"
#include "structure/interaction_domain.hpp"

// The drawings of a document, drawn with the plot engine from (0, 0) to (larghezza, altezza) [cm].
// Each is part of a page: it neither opens a drawing nor ends it, and the pens and margins of the
// user have no part in it. Their texts are 2 mm high at least, in the language in force, and none
// lies over another.

namespace korven::drawings {

/// A size at which a drawing can be read [cm]; others are possible, texts keep their size.
struct FormatoFigura {
    double larghezza, altezza;
};
/// So high that the balance of a stage stands below it on the same page.
inline constexpr FormatoFigura formatoFase{17, 11.5};
inline constexpr FormatoFigura formatoInviluppi{17, 12.5};
/// So high that the section of the wall stands below it on the same page.
inline constexpr FormatoFigura formatoParete{17, 12.4};
inline constexpr FormatoFigura formatoSezione{10, 7.8};
/// So high that the directions of bending or the stages share its page.
inline constexpr FormatoFigura formatoDominio{15, 8.5};
inline constexpr FormatoFigura formatoConfronto{17, 21};
/// For a screen, which is wide.
inline constexpr FormatoFigura formatoConfrontoLargo{27, 11};

/// One stage, counted from 1 (`scenaFase`).
void disegnaFase(const live::PareteViva& parete, int fase, double larghezza, double altezza);

/// A stage that is a mechanism (`scenaMeccanismo`).
void disegnaMeccanismo(const live::PareteViva& parete, int fase, const PressioniLimite& pressioni,
                       double larghezza, double altezza);

/// Moment, shear and displacement over all stages (`scenaInviluppi`).
void disegnaInviluppi(const live::PareteViva& parete, double larghezza, double altezza);

/// The N-M domain and the stages in it (`scenaDominioCarta`); nothing for an empty domain.
void disegnaDominio(const std::vector<structure::PuntoDominio>& dominio,
                    const std::vector<live::FaseNelDominio>& fasi, double larghezza,
                    double altezza);

/// The wall in section, to scale (`scenaParete`).
void disegnaParete(const live::PareteViva& parete, double larghezza, double altezza);

/// The section of the wall in plan (`scenaSezione`); nothing without one.
void disegnaSezioneParete(const project::Sezione& sezione, double larghezza, double altezza);

/// Two walls and their envelopes (`scenaConfronto`).
void disegnaConfronto(const MuroDetto& a, const MuroDetto& b, double larghezza, double altezza);

}  // namespace korven::drawings
