#include "report/annex/project_copy.hpp"

#include "base/code_page.hpp"
#include "base/translated_texts.hpp"
#include "project/project_file.hpp"

namespace korven::report {

std::string nomeFile(const std::string& percorso) {
    return percorso.substr(percorso.find_last_of("/\\") + 1);
}

std::optional<document::FileAllegato> copiaProgetto(const dossier::Fascicolo& f) {
    if (f.identita.impronta.empty()) return std::nullopt;
    const std::string nome = nomeFile(f.identita.file);
    return document::FileAllegato{nome.empty() ? "progetto.kvd" : nome,
                                  base::traduttore("Il file di progetto"),
                                  base::inCp1252(project::testoProgetto(f.scritti))};
}

}  // namespace korven::report
