#pragma once

#include <vector>

#include "batch/options/option_row.hpp"

// The options that several commands take, in groups. The order is that of the help.

namespace korven::batch {

/// Names of the two options that are looked up before the others can be read.
inline constexpr base::Gemelli nomeOpzioneCartella{"--cartella", "--folder"};
inline constexpr base::Gemelli nomeOpzioneLingua{"--lingua", "--language"};

/// Names that messages say too: the command that lists remarks, with its options.
inline constexpr base::Gemelli nomeComandoVerifica{"verifica", "check"};
inline constexpr base::Gemelli nomeOpzioneCalcola{"--calcola", "--calculate"};
inline constexpr base::Gemelli nomeOpzioneMetodo{"--metodo-spinte", "--pressures"};
inline constexpr base::Gemelli nomeOpzioneNseg{"--nseg", "--segments"};
inline constexpr base::Gemelli nomeOpzioneRighe{"--righe", "--rows"};
inline constexpr base::Gemelli nomeOpzioneData{"--data", "--date"};
inline constexpr base::Gemelli nomeOpzioneSevero{"--severo", "--strict"};

/// The name of a method for the soil pressures, as the option takes it.
/// @pre the code is one of theirs: asserted
[[nodiscard]] std::string nomeMetodo(double codice);

/// Every command.
[[nodiscard]] std::vector<RigaOpzione> opzioniComuni();

/// Commands that read a project.
[[nodiscard]] std::vector<RigaOpzione> opzioniProgetto();

/// Commands for which the analysis matters.
/// @param cartellaObbligatoria  the folder for the results has to be named
[[nodiscard]] std::vector<RigaOpzione> opzioniModello(bool cartellaObbligatoria = false);

/// Commands that run the analysis.
[[nodiscard]] std::vector<RigaOpzione> opzioniCalcolo(bool cartellaObbligatoria = false);

/// The method of the pressures, and the number of segments, in the place of the project's.
[[nodiscard]] RigaOpzione opzioneMetodo();
[[nodiscard]] RigaOpzione opzioneSegmenti();

/// Commands that look for remarks.
[[nodiscard]] RigaOpzione opzioneSevero();

/// Commands that make one drawing: its files.
[[nodiscard]] std::vector<RigaOpzione> opzioniDisegno();

/// Where a stiffness comes from that the project and its section tell differently.
[[nodiscard]] RigaOpzione opzioneEJ();

/// A table for other programs.
[[nodiscard]] RigaOpzione opzioneCsv();

/// The resolution of PNG files.
[[nodiscard]] RigaOpzione opzioneRisoluzione();

}  // namespace korven::batch
