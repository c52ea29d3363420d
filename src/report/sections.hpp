#pragma once

#include <string_view>

#include "report/lines.hpp"
#include "results/report_data.hpp"

// The sections of the calculation report, in its order. Values are shown in kN, m, cm of
// displacement and mm of section, though the data hold tonnes, metres and centimetres.

namespace korven::report {

/// Opening directives, title and the project's own heading lines that are not blank.
/// @param piede  the line at the foot of each page (footer.hpp)
void sezioneApertura(const project::DatiProgetto& progetto, std::string_view piede,
                     RigheRelazione& righe);

/// Soil layers, wall parameters, anchors and stages.
void sezioneDati(const project::DatiProgetto& progetto, RigheRelazione& righe);

/// A table of displacements and moments for each stage, then the anchor forces of the last one.
void sezioneRisultati(const results::DatiRelazione& dati, RigheRelazione& righe);

/// The structural section with its bending and shear checks; nothing unless the section is defined.
void sezioneStrutturale(const results::DatiRelazione& dati, RigheRelazione& righe);

}  // namespace korven::report
