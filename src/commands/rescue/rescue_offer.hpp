#pragma once

#include <ctime>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/dialogo.hpp"
#include "project/differences.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

/// Two states of the project that was just opened: its file, and unsaved work that was found.
struct OffertaRecupero {
    std::string progetto;                ///< path
    std::optional<std::time_t> salvato;  ///< the file was written; nothing: it was never saved
    const project::DatiProgetto& aperto;
    std::string file;         ///< path of the rescue file
    std::time_t scritto = 0;  ///< it was written
    const project::DatiProgetto& recuperato;
    const std::vector<project::Differenza>& differenze;  ///< from `aperto` to `recuperato`
    std::size_t altri = 0;  ///< how many older rescue files wait behind this one
    bool copiato = false;   ///< the project holds what was copied into it and is saved nowhere
};

enum class SceltaRecupero {
    prendi,  ///< go on with the unsaved work
    tieni,   ///< go on with the file; the unsaved work is not wanted any more
    dopo     ///< go on with the file and ask again at the next opening
};

/// Shows an offer and waits for the choice.
using OffreRecupero = std::function<SceltaRecupero(const OffertaRecupero&)>;

/// Offers the unsaved work of the project that was just opened, the latest first, until something
/// is taken or put off. What is taken becomes `Progetto`, sets `modificato`, and its file is the
/// one that this program keeps (kept_rescue.hpp). A file that is not wanted is removed after a
/// question of its own.
/// @return a line that says what has become of it, translated; empty if nothing was found
[[nodiscard]] std::string offriRecuperi(const OffreRecupero& offre, base::Dialogo& dialogo);

}  // namespace korven::commands
