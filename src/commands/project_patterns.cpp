#include "commands/project_patterns.hpp"

#include <algorithm>
#include <filesystem>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/text_lines.hpp"
#include "commands/document_names.hpp"
#include "project/project_file.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

bool progetto(const fs::path& file) {
    return base::minuscolo(file.extension().string()) == "." + std::string(estensioneProgetti);
}

std::string titoliUniti(const project::DatiProgetto& dati) {
    std::string uniti;
    for (int i = 1; i <= project::numeroTitoli; ++i) {
        const auto titolo = base::senzaSpaziEsterni(dati.titoli[i]);
        if (titolo.empty()) continue;
        if (!uniti.empty()) uniti += " - ";
        uniti += titolo;
    }
    return uniti;
}

}  // namespace

std::vector<Modello> modelli(const std::string& cartella) {
    std::vector<Modello> trovati;
    std::error_code errore;
    fs::directory_iterator voce(cartella, errore);
    for (; !errore && voce != fs::directory_iterator(); voce.increment(errore)) {
        if (!progetto(voce->path())) continue;
        try {
            trovati.push_back({.percorso = voce->path().string(),
                               .nome = voce->path().stem().string(),
                               .descrizione = titoliUniti(leggiModello(voce->path().string()))});
        } catch (const base::ErroreFile&) {
            continue;
        }
    }
    std::sort(trovati.begin(), trovati.end(),
              [](const Modello& a, const Modello& b) { return a.nome < b.nome; });
    return trovati;
}

project::DatiProgetto leggiModello(const std::string& percorso) {
    project::DatiProgetto dati;
    project::azzera(dati);
    auto file = base::LettoreRighe::apri(percorso);
    project::leggiDati(file, dati);
    return dati;
}

}  // namespace korven::commands
