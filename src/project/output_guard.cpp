#include "project/output_guard.hpp"

#include <filesystem>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/file_identity.hpp"
#include "base/translated_texts.hpp"
#include "project/project_data.hpp"

namespace korven::project {

ProgettiProtetti progettiProtetti;

const std::string& progettoAperto() {
    return progettiProtetti.corrente.empty() ? fileCorrente : progettiProtetti.corrente;
}

namespace {

[[noreturn]] void rifiuta(const std::string& percorso, const std::string& perso,
                          std::string_view motivo) {
    throw base::ErroreFile(percorso, 0, base::traduttore(motivo) + ": " + perso);
}

}  // namespace

std::string progettoColpito(const std::string& percorso) {
    for (const std::string& progetto : {progettiProtetti.letto, progettiProtetti.corrente})
        if (!progetto.empty() && base::stessoFile(percorso, progetto)) return progetto;
    return {};
}

bool prendeIlPostoDelProgetto(const std::string& percorso) {
    return !progettoColpito(percorso).empty();
}

void controllaUscita(const std::string& percorso, const std::string& origine) {
    if (const auto progetto = progettoColpito(percorso); !progetto.empty())
        rifiuta(percorso, progetto, "la scrittura prenderebbe il posto di un file letto");
    controllaCoppia(percorso, origine);
}

void controllaCoppia(const std::string& percorso, const std::string& altro) {
    if (base::stessoFile(percorso, altro))
        rifiuta(percorso, altro,
                "la scrittura prenderebbe il posto di un altro file del comando o del progetto");
}

std::string motivoNome(const std::string& progetto) {
    const std::string nome = std::filesystem::path(progetto).filename().string();
    if (base::numeroCaratteri(nome) >= 3) return {};
    return "Il nome del progetto ha meno di tre caratteri: i file del calcolo non possono prendere "
           "nome da esso.";
}

}  // namespace korven::project
