#include "commands/report_files.hpp"

#include <filesystem>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "markup/text_renderer.hpp"
#include "project/output_guard.hpp"
#include "report/calculation_report.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

// A name may be nothing but an extension (".kvd"), which the library takes for a name.
std::string senzaEstensione(const fs::path& percorso) {
    const std::string nome = percorso.filename().string();
    return (percorso.parent_path() / nome.substr(0, nome.rfind('.'))).string();
}

}  // namespace

std::vector<std::string> UscitaRelazione::file(analysis::ModoUscita modoUscita,
                                               const std::string& risultati) const {
    if (!scrive_ || modoUscita != analysis::relazione) return {};
    const std::string relazione = base::nomeRelazione(risultati);
    std::vector<std::string> nomi = {relazione};
    if (testo_) nomi.push_back(nomeTesto(relazione));
    if (documento_) nomi.push_back(base::nomeDocumento(relazione));
    return nomi;
}

void UscitaRelazione::scriviRelazione() {
    if (scrive_) relazione_ = report::scriviRelazione(disco_);
}

std::string nomeTesto(const std::string& relazione) { return base::conUltimiTre(relazione, "txt"); }

std::string scriviTesto(const std::string& relazione, const base::Disco& disco) {
    std::string percorso = nomeTesto(relazione);
    project::controllaUscita(percorso, relazione);
    auto file = base::LettoreRighe::apri(relazione);
    const auto testo = markup::renderText(file);
    if (!testo)
        throw base::ErroreFile(relazione, 0,
                               base::traduttore("la relazione non apre nessun documento (#RESET)"));
    base::scriviFile(percorso, *testo, disco);
    return percorso;
}

std::vector<std::string> relazioniRimaste(const std::string& progetto) {
    const std::string relazione = base::nomeRelazione(base::nomeRisultati(progetto));
    std::vector<std::string> possibili = {
        relazione, nomeTesto(relazione), base::nomeDocumento(relazione),
        base::nomePdfRelazione(progetto),
        base::nomeUscita(progetto, base::parolaRelazione.inglese, "pdf")};
    for (const std::string_view parola :
         {base::parolaAllegato.italiano, base::parolaAllegato.inglese})
        for (const char* estensione : {"pdf", "doc", "txt"})
            possibili.push_back(base::nomeUscita(progetto, parola, estensione));
    std::vector<std::string> rimaste;
    for (const auto& percorso : possibili) {
        std::error_code errore;
        if (fs::is_regular_file(percorso, errore) && !project::prendeIlPostoDelProgetto(percorso))
            rimaste.push_back(percorso);
    }
    return rimaste;
}

bool relazioneAltrove(const std::string& progetto) {
    const std::string risultati = base::nomeRisultati(progetto);
    return senzaEstensione(risultati) != senzaEstensione(base::nomeRelazione(risultati));
}

}  // namespace korven::commands
