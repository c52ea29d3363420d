#include "commands/rescue/found_rescues.hpp"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include "base/file_error.hpp"
#include "base/file_identity.hpp"
#include "commands/rescue/rescue_names.hpp"
#include "project/project_file.hpp"
#include "project/rescue_mark.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

struct Letto {
    project::DatiProgetto dati;
    std::string progetto;  // whose work it is
};

std::optional<Letto> leggi(const FileRecupero& file) {
    try {
        Letto letto{project::Progetto, {}};
        base::LettoreRighe righe(file.percorso(), file.byte());
        // The method of earth pressures that a project loses when it is read is unsaved work too.
        letto.dati.metodoSpinte = project::leggiDati(righe, letto.dati);
        const auto segno = project::progettoRecuperato(righe);
        if (!segno) return std::nullopt;
        letto.progetto = *segno;
        return letto;
    } catch (const base::ErroreFile&) {
        return std::nullopt;
    }
}

// The folder of a project may have been moved or copied with all that is in it: what lies beside
// the project is known by the name alone.
bool appartiene(const std::string& file, const std::string& segnato, const std::string& progetto) {
    const bool accanto = fs::path(file).parent_path() == fs::path(progetto).parent_path();
    return accanto ? fs::path(segnato).stem() == fs::path(progetto).stem()
                   : base::stessoFile(segnato, progetto);
}

std::vector<std::string> candidati(const std::string& progetto) {
    std::set<std::string> trovati;
    for (const auto& cartella : {fs::path(progetto).parent_path(), fs::path(cartellaRecuperi())}) {
        std::error_code errore;
        fs::directory_iterator voce(cartella, errore);
        for (; !errore && voce != fs::directory_iterator(); voce.increment(errore))
            if (eNomeRecupero(voce->path().string(), progetto))
                trovati.insert(voce->path().string());
    }
    return {trovati.begin(), trovati.end()};
}

std::optional<LavoroRecuperato> esamina(const std::string& percorso, const std::string& progetto) {
    auto file = FileRecupero::prendi(percorso);
    if (!file) return std::nullopt;
    auto letto = leggi(*file);
    if (!letto || !appartiene(percorso, letto->progetto, progetto)) return std::nullopt;
    auto diverse = project::differenze(project::Progetto, letto->dati);
    if (diverse.empty()) {
        file->togli();
        return std::nullopt;
    }
    return LavoroRecuperato{std::move(*file), base::quandoScritto(percorso).value_or(0),
                            std::move(letto->dati), std::move(diverse)};
}

}  // namespace

std::vector<LavoroRecuperato> trovaRecuperi(const std::string& progetto) {
    std::vector<LavoroRecuperato> trovati;
    for (const auto& percorso : candidati(progetto)) {
        try {
            if (auto trovato = esamina(percorso, progetto)) trovati.push_back(std::move(*trovato));
        } catch (const base::ErroreFile&) {
            continue;  // not to be read, so nothing can be offered
        }
    }
    std::stable_sort(trovati.begin(), trovati.end(),
                     [](const auto& uno, const auto& altro) { return uno.quando > altro.quando; });
    return trovati;
}

}  // namespace korven::commands
