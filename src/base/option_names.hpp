#pragma once

#include "base/twin_names.hpp"

namespace korven::base {

// Names of the command line that are said elsewhere too: by messages, and by documents that tell
// how they are made.
inline constexpr Gemelli nomeOpzioneCartella{"--cartella", "--folder"};
inline constexpr Gemelli nomeOpzioneLingua{"--lingua", "--language"};
inline constexpr Gemelli nomeComandoVerifica{"verifica", "check"};
inline constexpr Gemelli nomeComandoCampi{"campi", "fields"};
inline constexpr Gemelli nomeOpzioneCalcola{"--calcola", "--calculate"};
inline constexpr Gemelli nomeOpzioneMetodo{"--metodo-spinte", "--pressures"};
inline constexpr Gemelli nomeOpzioneNseg{"--nseg", "--segments"};
inline constexpr Gemelli nomeOpzioneRighe{"--righe", "--rows"};
inline constexpr Gemelli nomeOpzioneData{"--data", "--date"};
inline constexpr Gemelli nomeOpzioneSevero{"--severo", "--strict"};
inline constexpr Gemelli nomeOpzioneEJ = uguali("--ej");
inline constexpr Gemelli rigidezzaMantenuta{"mantieni", "keep"};
inline constexpr Gemelli rigidezzaRicalcolata{"ricalcola", "recalculate"};

}  // namespace korven::base
