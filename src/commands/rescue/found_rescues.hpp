#pragma once

#include <ctime>
#include <string>
#include <vector>

#include "commands/rescue/rescue_file.hpp"
#include "project/differences.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

/// Unsaved work of the open project that a program left when it died.
struct LavoroRecuperato {
    FileRecupero file;
    std::time_t quando = 0;  ///< the file was written
    project::DatiProgetto dati;
    std::vector<project::Differenza> differenze;  ///< between `Progetto` and it, at least one
};

/// Looks for it beside the project and among the user's data, the latest first. A file counts if it
/// bears a rescue name of the project, is whole, says that it belongs to it (among the user's data,
/// where projects of all folders meet, to the project of this very path) and is the user's own. One
/// that a living program keeps is passed over, and so is one that can't be read. One that holds
/// what `Progetto` does is removed: there is nothing in it to be decided.
/// @param progetto  path of the open project, which is `Progetto` as it was read
[[nodiscard]] std::vector<LavoroRecuperato> trovaRecuperi(const std::string& progetto);

}  // namespace korven::commands
