#include "commands/fatal_error.hpp"

#include <filesystem>
#include <vector>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "commands/document_names.hpp"
#include "commands/user_folder.hpp"
#include "project/project_data.hpp"
#include "project/project_file.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> cartelleRecupero() {
    std::error_code errore;
    // A new user may have no folder for data yet, and the temporary one lasts no longer than the
    // machine runs.
    const fs::path dati = fs::path(cartellaDatiUtente()).parent_path();
    fs::create_directories(dati, errore);
    return {fs::path(project::fileCorrente).parent_path(), dati, fs::temp_directory_path(errore)};
}

}  // namespace

std::string spiegazione(const std::exception& errore) {
    const auto* indice = dynamic_cast<const base::ErroreIndice*>(&errore);
    if (indice == nullptr || indice->capacita() == 0) return errore.what();
    return base::traduttore("i dati chiedono più righe di quante ne tiene una tabella") + " (" +
           std::to_string(indice->indice()) + " > " + std::to_string(indice->capacita()) + ")";
}

std::string recuperaProgetto() {
    if (!project::modificato || project::fileCorrente.empty()) return {};
    for (const auto& cartella : cartelleRecupero()) {
        const std::string file = nomeRecupero(
            (cartella / fs::path(project::fileCorrente).filename()).string(), base::esisteFile);
        try {
            base::scriviFile(file, base::inCp1252(project::testoProgetto(project::Progetto)));
            return file;
        } catch (const base::ErroreFile&) {
            continue;  // the next folder may do
        }
    }
    return {};
}

std::string testoFine(const std::exception& errore, const std::string& recuperato) {
    std::string testo =
        spiegazione(errore) + "\n\n" + base::traduttore("Il programma viene chiuso.");
    if (!recuperato.empty())
        return testo + "\n" + base::traduttore("Le modifiche non salvate sono state messe in") +
               ": " + recuperato;
    if (!project::modificato) return testo;
    return testo + "\n" + base::traduttore("Non è stato possibile salvare le modifiche.");
}

}  // namespace korven::commands
