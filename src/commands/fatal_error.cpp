#include "commands/fatal_error.hpp"

#include <filesystem>
#include <functional>
#include <vector>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "commands/rescue/kept_rescue.hpp"
#include "commands/rescue/rescue_names.hpp"
#include "project/project_data.hpp"
#include "project/project_file.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

// Beside the project, among the user's own data, and where the system keeps things no longer than
// the machine runs.
std::vector<fs::path> cartelleRecupero() {
    std::error_code errore;
    const fs::path progetto = fs::path(project::fileCorrente).parent_path();
    const fs::path dati = cartellaRecuperi();
    const fs::path provvisoria = fs::temp_directory_path(errore);
    try {
        base::creaCartella(dati.string());  // a new user may have none yet
    } catch (const base::ErroreFile&) {
        return {progetto, provvisoria};
    }
    return {progetto, dati, provvisoria};
}

using NomeLibero = std::string (*)(std::string_view,
                                   const std::function<bool(const std::string&)>&);

// Into the first folder that takes it; empty where none does.
std::string recupera(std::string_view byte, NomeLibero nome, const base::Disco& disco) {
    for (const auto& cartella : cartelleRecupero()) {
        std::string file = nome((cartella / fs::path(project::fileCorrente).filename()).string(),
                                base::esisteNome);
        try {
            base::scriviFileNuovo(file, byte, disco);
            return file;
        } catch (const base::ErroreFile&) {
            continue;  // the next folder may do
        }
    }
    return {};
}

std::string doveSono(std::string_view cosa, std::string_view altrimenti, const std::string& file) {
    if (file.empty()) return "\n" + base::traduttore(altrimenti);
    return "\n" + base::traduttore(cosa) + ": " + file;
}

}  // namespace

std::string spiegazione(const std::exception& errore) {
    const auto* indice = dynamic_cast<const base::ErroreIndice*>(&errore);
    if (indice == nullptr || indice->capacita() == 0) return errore.what();
    return base::traduttore("i dati chiedono più righe di quante ne tiene una tabella") + " (" +
           std::to_string(indice->indice()) + " > " + std::to_string(indice->capacita()) + ")";
}

std::string recuperaProgetto(const base::Disco& disco) {
    if (!project::modificato || project::fileCorrente.empty()) return {};
    if (std::string tenuto = recuperoTenuto.chiudi(disco); !tenuto.empty()) return tenuto;
    return recupera(base::inCp1252(project::testoProgetto(project::Progetto)), nomeRecupero, disco);
}

std::string recuperaRighe(std::string_view righe, const base::Disco& disco) {
    return recupera(base::inCp1252(righe), nomeRighe, disco);
}

std::string testoFine(const std::exception& errore, const std::string& recuperato) {
    std::string testo =
        spiegazione(errore) + "\n\n" + base::traduttore("Il programma viene chiuso.");
    if (const auto* righe = dynamic_cast<const ErroreRighe*>(&errore); righe != nullptr)
        testo += doveSono("Le righe scritte nella tabella sono state messe in",
                          "Non è stato possibile salvare le righe scritte nella tabella.",
                          righe->file());
    if (!recuperato.empty() || project::modificato)
        testo += doveSono("Le modifiche non salvate sono state messe in",
                          "Non è stato possibile salvare le modifiche.", recuperato);
    return testo;
}

}  // namespace korven::commands
