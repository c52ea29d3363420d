#pragma once

#include <vector>

#include "base/option_names.hpp"
#include "batch/options/option_row.hpp"

// The options that several commands take, in groups. The order is that of the help.

namespace korven::batch {

/// The files of a drawing, as a message names them.
inline constexpr const char* nomiDisegno = "--dxf, --pdf, --svg, --png";

using base::nomeComandoVerifica;
using base::nomeOpzioneCalcola;
using base::nomeOpzioneCartella;
using base::nomeOpzioneData;
using base::nomeOpzioneLingua;
using base::nomeOpzioneMetodo;
using base::nomeOpzioneNseg;
using base::nomeOpzioneRighe;
using base::nomeOpzioneSevero;

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

/// The code whose partial factors are applied, and what its loads are.
/// @param obbligatoria  the code has to be named
[[nodiscard]] std::vector<RigaOpzione> opzioniNorma(bool obbligatoria);

/// Commands that write an annex: the rows of its tables of nodes.
[[nodiscard]] RigaOpzione opzioneRighe();

/// Commands that write a document with a date.
[[nodiscard]] RigaOpzione opzioneData();

/// The resolution of PNG files.
[[nodiscard]] RigaOpzione opzioneRisoluzione();

}  // namespace korven::batch
