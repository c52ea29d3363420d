#pragma once

#include "analysis/watch/run_end.hpp"
#include "project/project_data.hpp"
#include "review/remark_list.hpp"
#include "safety/margin.hpp"

// The parts of the review of a wall's results, by subject. All take their numbers from the margin.

namespace korven::review {

/// "fase 2: Prof. [m] = 4.5", the excavation of a stage, with the length of the wall in question.
[[nodiscard]] Soggetto scavo(const project::DatiProgetto& dati, int fase);

/// Stages without equilibrium, and those that only the iteration does not find.
void controlloEquilibrio(const project::DatiProgetto& dati, const safety::Margine& margine,
                         ElencoOsservazioni& elenco);

/// Strength reduction, passive side, displacements and toe: the worst stage of each.
void controlloMargine(const project::DatiProgetto& dati, const safety::Margine& margine,
                      ElencoOsservazioni& elenco);

/// The forces of the anchors in the report, against the true ones.
void controlloTiri(const project::DatiProgetto& dati, const safety::Margine& margine,
                   ElencoOsservazioni& elenco);

/// Levels that the nodes move, where the mesh is too coarse for its envelopes.
void controlloMaglia(const project::DatiProgetto& dati, const safety::Margine& margine,
                     ElencoOsservazioni& elenco);

/// True if the report is off by more than the limits of a difference that is told.
[[nodiscard]] bool lontano(const safety::Confronto& confronto);

/// Moments and shears of the report, against the statics of the same wall.
void controlloStatica(const project::DatiProgetto& dati, const safety::Margine& margine,
                      ElencoOsservazioni& elenco);

/// The checks of the section that the report says have failed, one remark for each of its
/// sentences.
void controlloVerifiche(const project::DatiProgetto& dati, const safety::Margine& margine,
                        ElencoOsservazioni& elenco);

/// The checks that fail by the numbers of the equilibrium and not by the report's, and the verdicts
/// that a finer mesh changes.
void controlloGiudizi(const safety::Margine& margine, ElencoOsservazioni& elenco);

/// A fixed toe: what the report shows there, and how far it gives.
void controlloIncastro(const project::DatiProgetto& dati, const safety::Margine& margine,
                       ElencoOsservazioni& elenco);

}  // namespace korven::review
