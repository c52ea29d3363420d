#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/soil_state.hpp"
#include "structure/bending_resistance.hpp"

namespace korven::analysis {

/// What a run begins with once nothing refuses it.
struct Avvio {
    int nSeg = 0;                      ///< segments of the wall
    structure::MomentiResistenti MRd;  ///< of the section, as `aggiornaEJ` leaves them
};

/// All that a run looks at before its first stage and before it looks at any file: the input
/// checks, the names of its files, the stiffness, which `Progetto` takes from the section if it has
/// none or the user agrees, and the number of segments. Tells the first reason of a refusal.
///
/// Without a stiffness `fileCorrente` stays at the result file's name, as `CalcoloParatia` says.
/// @return nothing if the run is refused
[[nodiscard]] std::optional<Avvio> avviaCalcolo(ModoUscita modoUscita, const UscitaCalcolo& uscita,
                                                base::Dialogo& dialogo);

/// Tells why a run ends without a result.
void avvisa(base::Dialogo& dialogo, std::string_view testo);

/// What is told of a stage whose soil has no value, translated.
[[nodiscard]] std::string testoRifiuto(int fase, const RifiutoSuolo& rifiuto);
void avvisa(base::Dialogo& dialogo, int fase, const RifiutoSuolo& rifiuto);

}  // namespace korven::analysis
