#pragma once

#include <string>

#include "base/disk.hpp"
#include "batch/options/choices.hpp"
#include "batch/run/outcome.hpp"
#include "dossier/dossier.hpp"

namespace korven::batch {

/// The names that an annex has beside the results, in all its formats.
[[nodiscard]] FormatiAllegato allegatoAccanto(FormatiAllegato chiesti);

/// The command that makes an annex again, byte by byte, as a shell takes it.
/// @param formati  with the names of the files
/// @param data     of the document
[[nodiscard]] std::string comandoAllegato(const Opzioni& opzioni, const FormatiAllegato& formati,
                                          int nSeg, const std::string& data);

/// Computes all that the annex tells.
/// @param usati    what the run is made with
/// @param formati  with the names of the files
/// @param esito    of a project that was read and reviewed
[[nodiscard]] dossier::Fascicolo fascicoloAllegato(const Opzioni& opzioni,
                                                   const project::DatiProgetto& usati,
                                                   const FormatiAllegato& formati,
                                                   const Esito& esito);

/// Writes the annex and names its files in the outcome.
/// @pre an AmbienteDisegno lives, a painting one for a PDF file: asserted
/// @throws base::ErroreFile with the system's reason
void scriviAllegato(dossier::Fascicolo fascicolo, const FormatiAllegato& formati,
                    const base::Disco& disco, Esito& esito);

}  // namespace korven::batch
