#include "factors/catalogue.hpp"

#include <filesystem>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/folders/user_data.hpp"

namespace korven::factors {

namespace {

// A fault is told with the path, since the user's folder is hidden.
void leggi(const std::string& percorso, std::string_view nome, Catalogo& catalogo) {
    const std::size_t prima = catalogo.guaste.size();
    try {
        leggiCombinazioni(base::leggiFile(percorso), std::string(nome), catalogo);
    } catch (const base::ErroreFile& errore) {
        catalogo.guaste.push_back({std::string(nome), 0, errore.atteso()});
    }
    for (std::size_t i = prima; i < catalogo.guaste.size(); ++i) catalogo.guaste[i].file = percorso;
}

}  // namespace

std::string fileCombinazioniUtente() {
    return (std::filesystem::path(base::cartellaDatiUtente()) / nomeCombinazioniUtente).string();
}

Catalogo leggiCombinazioni() {
    Catalogo catalogo;
    leggi(base::fileProgramma(nomeCombinazioni), nomeCombinazioni, catalogo);
    const std::string utente = fileCombinazioniUtente();
    if (base::esisteFile(utente)) leggi(utente, nomeCombinazioniUtente, catalogo);
    return catalogo;
}

}  // namespace korven::factors
