#include "commands/file_on_disk.hpp"

#include <filesystem>

#include "base/code_page.hpp"
#include "base/file_identity.hpp"
#include "base/files.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

std::optional<std::string> contenuto(const std::string& percorso) {
    if (!base::esisteFile(percorso)) return std::nullopt;
    return base::leggiFile(percorso);
}

bool stessaEstensione(const fs::path& uno, const fs::path& altro) {
    return uno.stem() == altro.stem() &&
           base::minuscolo(uno.extension().string()) == base::minuscolo(altro.extension().string());
}

}  // namespace

void FileSuDisco::ricorda(const std::string& percorso) {
    contenuto_ = contenuto(percorso);
    percorso_ = percorso;
}

bool FileSuDisco::cambiato(const std::string& percorso) const {
    if (percorso_.empty() || !base::stessoFile(percorso, percorso_)) return false;
    const auto adesso = contenuto(percorso);
    return adesso && adesso != contenuto_;
}

std::string trovaProgetto(const std::string& nome) {
    if (base::esisteFile(nome)) return nome;
    const fs::path cercato(nome);
    std::string trovato;
    std::error_code errore;
    fs::directory_iterator voce(cercato.parent_path(), errore);
    for (; !errore && voce != fs::directory_iterator(); voce.increment(errore)) {
        const std::string candidato = voce->path().string();
        if (stessaEstensione(voce->path().filename(), cercato.filename()) &&
            base::esisteFile(candidato) && (trovato.empty() || candidato < trovato))
            trovato = candidato;
    }
    return trovato;
}

}  // namespace korven::commands
