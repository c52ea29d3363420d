#include "commands/project_opening.hpp"

#include <filesystem>

#include "base/folders/leftovers.hpp"
#include "project/output_guard.hpp"
#include "project/project_file.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

std::string cartellaAssoluta(const fs::path& cartella) {
    std::error_code errore;
    const fs::path intera = fs::absolute(cartella, errore);
    const fs::path vera = fs::weakly_canonical(intera, errore);
    if (errore) return intera.lexically_normal().string();
    return (vera.has_filename() ? vera : vera.parent_path()).string();  // no separator at the end
}

// The folder is that which the system would go to, also through "link/.."; the name of the file
// stays as it was typed, since the names of the results follow from it.
std::string percorsoAssoluto(const fs::path& percorso) {
    return (fs::path(
                cartellaAssoluta(percorso.parent_path().empty() ? "." : percorso.parent_path())) /
            percorso.filename())
        .string();
}

}  // namespace

void togliResti(const std::string& progetto) {
    base::togliCartelleProvvisorie();
    base::togliProvvisori(fs::path(progetto).parent_path().string());
}

void apriProgetto(const std::string& percorso, const std::string& uscita) {
    const std::string progetto = percorsoAssoluto(percorso);
    project::azzeraProgetto();
    project::fileCorrente = progetto;
    project::progettiProtetti = {.letto = progetto, .corrente = {}};
    togliResti(progetto);
    project::leggiProgetto();
    if (uscita.empty()) return;
    project::fileCorrente =
        (fs::path(cartellaAssoluta(uscita)) / fs::path(progetto).filename()).string();
    togliResti(project::fileCorrente);
}

}  // namespace korven::commands
