#pragma once

#include <optional>

#include "document/blocks.hpp"
#include "dossier/dossier.hpp"

namespace korven::report {

/// The name of a file without its folders.
[[nodiscard]] std::string nomeFile(const std::string& percorso);

/// The project's file as the program writes it, which the PDF carries; nothing of a project with a
/// number that no file can hold.
[[nodiscard]] std::optional<document::FileAllegato> copiaProgetto(const dossier::Fascicolo& f);

}  // namespace korven::report
