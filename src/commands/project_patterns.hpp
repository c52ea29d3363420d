#pragma once

#include <string>
#include <vector>

#include "project/project_data.hpp"

namespace korven::commands {

/// A project that a new one can begin with.
struct Modello {
    std::string percorso;     ///< of its file
    std::string nome;         ///< of the file, without folder and extension
    std::string descrizione;  ///< its headings that are not empty, parted by " - "
    bool operator==(const Modello&) const = default;
};

/// The projects of a folder by their names. A file that can't be read as one is left out; a folder
/// that is missing has none.
[[nodiscard]] std::vector<Modello> modelli(const std::string& cartella);

/// The content of a pattern, with the defaults of a new project in what an old file lacks.
/// @throws base::ErroreFile if the file is missing, unreadable or broken
[[nodiscard]] project::DatiProgetto leggiModello(const std::string& percorso);

}  // namespace korven::commands
