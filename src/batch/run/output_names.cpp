#include "batch/run/output_names.hpp"

#include <filesystem>
#include <set>

#include "base/colon.hpp"
#include "base/file_identity.hpp"
#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "base/folders/leftovers.hpp"
#include "base/translated_texts.hpp"
#include "commands/report_files.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

NomiInConflitto::NomiInConflitto(const std::string& uscita, const std::string& altro)
    : std::runtime_error(
          uscita + ": " +
          base::traduttore("la scrittura prenderebbe il posto di un altro file del comando o del "
                           "progetto") +
          base::duePunti() + altro) {}

std::vector<std::string> fileDelProgetto() {
    if (project::fileCorrente.empty()) return {};
    const std::string risultati = base::nomeRisultati(project::fileCorrente);
    const std::string relazione = base::nomeRelazione(risultati);
    return {risultati, relazione, commands::nomeTesto(relazione), base::nomeDocumento(relazione)};
}

std::string nomeProprio(const base::Gemelli& nome, const std::string& estensione) {
    return base::nomeUscita(project::fileCorrente, nome.mostrato(), estensione);
}

void controllaNomi(const std::vector<std::string>& uscite, const std::vector<std::string>& altri) {
    for (std::size_t i = 0; i < uscite.size(); ++i) {
        for (const auto& altro : altri)
            if (base::stessoFile(uscite[i], altro)) throw NomiInConflitto(uscite[i], altro);
        for (std::size_t j = 0; j < i; ++j)
            if (base::stessoFile(uscite[i], uscite[j])) throw NomiInConflitto(uscite[i], uscite[j]);
    }
    std::set<std::string> cartelle;
    for (const auto& uscita : uscite)
        cartelle.insert(std::filesystem::path(uscita).parent_path().string());
    for (const auto& cartella : cartelle) base::togliProvvisori(cartella);
}

void controllaTabella(const std::string& percorso, const std::vector<std::string>& altri) {
    if (percorso.empty()) return;
    project::controllaUscita(percorso, base::nomeRisultati(project::fileCorrente));
    std::vector<std::string> tutti = fileDelProgetto();
    tutti.insert(tutti.end(), altri.begin(), altri.end());
    controllaNomi({percorso}, tutti);
}

void controllaFile(const std::vector<std::string>& uscite, const base::Disco& disco) {
    for (const auto& uscita : uscite) controllaTabella(uscita);
    controllaNomi(uscite, {});
    for (const auto& uscita : uscite) base::controllaScrivibile(uscita, disco);
}

}  // namespace korven::batch
