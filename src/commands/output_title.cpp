#include "commands/output_title.hpp"

#include <filesystem>

#include "project/output_guard.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

std::string titoloUscite() {
    const std::string& inCorso = project::progettiProtetti.corrente;
    const std::filesystem::path progetto = inCorso.empty() ? project::fileCorrente : inCorso;
    return "KORVEN 32 - " + progetto.filename().string();
}

}  // namespace korven::commands
