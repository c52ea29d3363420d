#include "analysis/output_guard.hpp"

#include <filesystem>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/translated_texts.hpp"

namespace korven::analysis {

ProgettiProtetti progettiProtetti;

bool prendeIlPostoDelProgetto(const std::string& percorso) {
    const auto colpisce = [&percorso](const std::string& progetto) {
        return !progetto.empty() && base::stessoFile(percorso, progetto);
    };
    return colpisce(progettiProtetti.letto) || colpisce(progettiProtetti.corrente);
}

void controllaUscita(const std::string& percorso, const std::string& origine) {
    if (prendeIlPostoDelProgetto(percorso) || base::stessoFile(percorso, origine))
        throw base::ErroreFile(
            percorso, 0, base::traduttore("la scrittura prenderebbe il posto di un file letto"));
}

std::string motivoNome(const std::string& progetto) {
    const std::string nome = std::filesystem::path(progetto).filename().string();
    if (base::numeroCaratteri(nome) >= 3) return {};
    return "Il nome del progetto ha meno di tre caratteri: i file del calcolo non possono prendere "
           "nome da esso.";
}

}  // namespace korven::analysis
