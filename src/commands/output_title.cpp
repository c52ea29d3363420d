#include "commands/output_title.hpp"

#include <filesystem>

#include "project/output_guard.hpp"

namespace korven::commands {

std::string titoloUscite() {
    const std::filesystem::path progetto = project::progettoAperto();
    return "KORVEN 32 - " + progetto.filename().string();
}

}  // namespace korven::commands
