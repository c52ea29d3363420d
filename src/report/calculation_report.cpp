#include "report/calculation_report.hpp"

#include <filesystem>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "project/output_guard.hpp"
#include "report/footer.hpp"
#include "report/sections.hpp"

namespace korven::report {

namespace {

// While a report is written `fileCorrente` names the result file; the run that asked for it knows
// the project.
std::string nomeProgetto() {
    const std::string& corrente = project::progettiProtetti.corrente;
    return std::filesystem::path(corrente.empty() ? project::fileCorrente : corrente)
        .filename()
        .string();
}

}  // namespace

std::string testoRelazione(const results::DatiRelazione& dati, const std::string& nomeProgetto) {
    RigheRelazione righe;
    sezioneApertura(dati.progetto, testoPiede({nomeProgetto, dati.metodoUsato, dati.nNodi - 1}),
                    righe);
    sezioneDati(dati.progetto, righe);
    sezioneRisultati(dati, righe);
    sezioneStrutturale(dati, righe);
    righe.riga("#ENDDOCUMENT");
    return righe.testo();
}

std::string scriviRelazione(const base::Disco& disco) {
    std::string percorso = base::nomeRelazione(project::fileCorrente);
    project::controllaUscita(percorso, project::fileCorrente);
    const results::DatiRelazione dati =
        results::leggiRisultati(project::fileCorrente, project::Progetto);
    base::scriviFile(percorso, base::inCp1252(testoRelazione(dati, nomeProgetto())), disco);
    return percorso;
}

}  // namespace korven::report
