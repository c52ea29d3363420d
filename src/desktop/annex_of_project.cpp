#include "desktop/annex_of_project.hpp"

#include <string>
#include <string_view>
#include <utility>

#include "base/folders/file_names.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "dossier/dossier.hpp"
#include "project/project_data.hpp"
#include "report/annex/annex.hpp"

namespace korven::desktop {

namespace {

// Between the quote marks of the shell, whatever is in it.
std::string citato(std::string_view testo) {
    std::string fra = "'";
    for (const char c : testo) fra += c == '\'' ? "'\\''" : std::string(1, c);
    return fra + "'";
}

std::string comando(const std::string& data) {
    const std::string& file = project::fileCorrente;
    if (file.empty()) return {};
    return "korven32c " + base::parolaAllegato.mostrato() + " " + citato(file) + " --pdf " +
           citato(base::nomeUscita(file, "allegato", "pdf")) + " --data " + data + " --lingua " +
           std::string(base::siglaLingua(base::linguaCorrente()));
}

}  // namespace

document::Documento allegatoDelProgetto() {
    dossier::Identita identita;
    identita.file = project::fileCorrente;
    identita.data = dossier::data(dossier::fontiDiSistema({}));
    identita.comando = comando(identita.data);
    analysis::OsservatoreCorsa nessuno;
    return report::allegato(dossier::fascicolo({.scritti = project::Progetto,
                                                .usati = project::Progetto,
                                                .nSeg = {},
                                                .identita = std::move(identita),
                                                .sulProgetto = {}},
                                               nessuno));
}

}  // namespace korven::desktop
