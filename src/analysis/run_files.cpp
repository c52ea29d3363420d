#include "analysis/run_files.hpp"

#include <utility>

#include "analysis/result_file.hpp"
#include "analysis/run_flags.hpp"
#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "project/output_guard.hpp"
#include "project/project_file.hpp"

namespace korven::analysis {

using project::fileCorrente;

NomeRisultati::NomeRisultati()
    : progetto_(fileCorrente), risultati_(base::nomeRisultati(progetto_)) {
    fileCorrente = risultati_;
}

NomeRisultati::~NomeRisultati() {
    if (!lasciato_ && fileCorrente == risultati_) fileCorrente = progetto_;
}

void NomeRisultati::lascia() {
    lasciato_ = true;
    nomeLasciato = fileCorrente;
}

ProgettoAlSicuro::ProgettoAlSicuro(const std::string& progetto)
    : prima_(std::exchange(project::progettiProtetti.corrente,
                           progetto == nomeLasciato ? std::string() : progetto)) {}

ProgettoAlSicuro::~ProgettoAlSicuro() { project::progettiProtetti.corrente = prima_; }

FileInCorso::FileInCorso(Avanzamento& avanzamento, const base::Disco& disco)
    : avanzamento_(avanzamento), disco_(disco), nome_(fileCorrente) {
    project::scriviProgetto(disco_);
    try {
        avanzamento_.apri();
    } catch (...) {
        base::cancellaFile(nome_);
        throw;
    }
}

FileInCorso::~FileInCorso() {
    avanzamento_.chiudi();
    if (!finito_) base::cancellaFile(nome_);
}

void FileInCorso::aggiungi(std::string_view testo) { base::accodaFile(nome_, testo, disco_); }

bool risultatiAggiornati() {
    if (!base::esisteFile(fileCorrente)) return false;
    auto file = base::LettoreRighe::apri(fileCorrente, base::traduttore(rimedioRisultati));
    return !project::progettoDiverso(file, project::Progetto);
}

}  // namespace korven::analysis
