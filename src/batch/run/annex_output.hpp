#pragma once

#include <optional>

#include "base/disk.hpp"
#include "batch/options/choices.hpp"
#include "batch/run/computed_dossier.hpp"
#include "batch/run/outcome.hpp"
#include "dossier/dossier.hpp"

namespace korven::batch {

/// The names that an annex has beside the results, in all its formats.
[[nodiscard]] FormatiAllegato allegatoAccanto(FormatiAllegato chiesti);

/// The command that makes an annex again, byte by byte, as a shell takes it.
/// @param formati  with the names of the files
/// @param norma    that it has a chapter on; nothing: none
[[nodiscard]] ComandoDocumento comandoAllegato(
    const Opzioni& opzioni, const FormatiAllegato& formati,
    const std::optional<factors::NormaChiesta>& norma = {});

/// Writes the annex and names its files in the outcome, those too that were written before one
/// failed.
/// @pre an AmbienteDisegno lives, a painting one for a PDF file: asserted
/// @throws base::ErroreFile with the system's reason
void scriviAllegato(dossier::Fascicolo fascicolo, const FormatiAllegato& formati,
                    const base::Disco& disco, Esito& esito);

}  // namespace korven::batch
