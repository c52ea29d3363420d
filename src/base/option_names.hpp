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
inline constexpr Gemelli nomeOpzioneNorma{"--norma", "--code"};
inline constexpr Gemelli nomeOpzioneSovraccarico{"--sovraccarico", "--surcharge"};
inline constexpr Gemelli nomeOpzioneSovraccaricoScavo{"--sovraccarico-scavo",
                                                      "--excavation-surcharge"};
inline constexpr Gemelli nomeOpzioneCarichiTesta{"--carichi-testa", "--head-loads"};
inline constexpr Gemelli naturaPermanente{"permanente", "permanent"};
inline constexpr Gemelli naturaVariabile{"variabile", "variable"};
inline constexpr Gemelli nomeOpzioneEJ = uguali("--ej");
inline constexpr Gemelli rigidezzaMantenuta{"mantieni", "keep"};
inline constexpr Gemelli rigidezzaRicalcolata{"ricalcola", "recalculate"};

}  // namespace korven::base
