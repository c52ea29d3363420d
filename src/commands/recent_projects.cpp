#include "commands/recent_projects.hpp"

#include <algorithm>
#include <filesystem>
#include <string_view>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/file_identity.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "commands/document_names.hpp"
#include "commands/file_on_disk.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t larghezzaCartella = 60;  // characters of a folder that a menu has room for

std::string fileRecenti() { return base::fileProgramma("recenti"); }

std::vector<std::string> righe(const std::string& contenuto) {
    std::vector<std::string> lette;
    std::size_t inizio = 0;
    while (inizio < contenuto.size()) {
        const auto fine = std::min(contenuto.find_first_of("\r\n", inizio), contenuto.size());
        if (fine > inizio) lette.push_back(contenuto.substr(inizio, fine - inizio));
        inizio = fine + 1;
    }
    return lette;
}

void scrivi(const std::vector<std::string>& percorsi, const base::Disco& disco) {
    std::string contenuto;
    for (const auto& percorso : percorsi) contenuto += percorso + "\r\n";
    try {
        base::scriviFile(fileRecenti(), contenuto, disco);
    } catch (const base::ErroreFile&) {
        return;  // the list stays as it was
    }
}

// Not a path that a line can't hold, nor one that opening would turn into that of another project.
bool ricordabile(const std::string& percorso) {
    return fs::path(percorso).is_absolute() &&
           percorso.find_first_of("\r\n") == std::string::npos &&
           trovaProgetto(nomeDaAprire(percorso)) == percorso;
}

// In the middle: a folder is known by its beginning and by its end.
std::string accorciata(const std::string& cartella) {
    std::vector<std::string_view> caratteri;
    for (std::string_view resto = cartella; !resto.empty();) {
        caratteri.push_back(resto.substr(0, base::lunghezzaPrimoCarattere(resto)));
        resto.remove_prefix(caratteri.back().size());
    }
    if (caratteri.size() <= larghezzaCartella) return cartella;
    constexpr std::size_t testa = larghezzaCartella / 3, coda = larghezzaCartella - testa - 1;
    std::string corta;
    for (std::size_t i = 0; i < testa; ++i) corta += caratteri[i];
    corta += "…";
    for (std::size_t i = caratteri.size() - coda; i < caratteri.size(); ++i) corta += caratteri[i];
    return corta;
}

std::string perMenu(std::string_view testo) {
    std::string fatto;
    for (const char c : testo) {
        if (c == '&') fatto += c;
        fatto += c == '\t' ? ' ' : c;  // what follows a tab a menu shows as the keys of the item
    }
    return fatto;
}

}  // namespace

std::vector<std::string> progettiRecenti() {
    try {
        if (!base::esisteFile(fileRecenti())) return {};
        auto percorsi = righe(base::leggiFile(fileRecenti()));
        percorsi.resize(std::min(percorsi.size(), massimoRecenti));
        return percorsi;
    } catch (const base::ErroreFile&) {
        return {};
    }
}

void ricordaRecente(const std::string& percorso, const base::Disco& disco) {
    if (!ricordabile(percorso)) return;
    const auto prima = progettiRecenti();
    auto percorsi = prima;
    std::erase_if(percorsi,
                  [&](const std::string& altro) { return base::stessoFile(altro, percorso); });
    percorsi.insert(percorsi.begin(), percorso);
    percorsi.resize(std::min(percorsi.size(), massimoRecenti));
    if (percorsi != prima) scrivi(percorsi, disco);
}

void dimenticaRecenti(const base::Disco& disco) { scrivi({}, disco); }

std::string voceRecente(std::size_t posto, const std::string& percorso) {
    const fs::path progetto(percorso);
    return "&" + std::to_string((posto + 1) % massimoRecenti) + " " +
           perMenu(progetto.filename().string() + " - " +
                   accorciata(progetto.parent_path().string()));
}

}  // namespace korven::commands
