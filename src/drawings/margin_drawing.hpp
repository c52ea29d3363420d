#pragma once

#include "project/project_data.hpp"
#include "safety/margin.hpp"

namespace korven::drawings {

/// The marks of the bars: below or beyond the first a bar is hatched, beyond the second densely.
struct SegniMargine {
    double riduzioneModesta = 0, riduzioneScarsa = 0;
    double passivaAlta = 1, passivaMoltoAlta = 1;  ///< shares of 1
};

/// Draws the margin on the sheet of the diagrams: the wall in section, beside it strength reduction
/// and passive side used, a bar for each stage, and below
/// what the wall comes to in words.
/// @param margine  of the same project
/// @throws base::ErroreValore for a wall too long to be drawn
void disegnaSicurezza(const project::DatiProgetto& dati, const safety::Margine& margine,
                      const SegniMargine& segni);

}  // namespace korven::drawings
