#include "report/calculation_report.hpp"

#include "analysis/output_guard.hpp"
#include "base/code_page.hpp"
#include "base/file_names.hpp"
#include "base/files.hpp"
#include "report/report_sections.hpp"

namespace korven::report {

std::string testoRelazione(const DatiRelazione& dati) {
    RigheRelazione righe;
    sezioneApertura(dati.progetto, righe);
    sezioneDati(dati.progetto, righe);
    sezioneRisultati(dati, righe);
    sezioneStrutturale(dati, righe);
    righe.riga("#ENDDOCUMENT");
    return righe.testo();
}

std::string scriviRelazione() {
    std::string percorso = base::nomeRelazione(project::fileCorrente);
    analysis::controllaUscita(percorso, project::fileCorrente);
    const DatiRelazione dati = leggiRisultati(project::fileCorrente, project::Progetto);
    base::scriviFile(percorso, base::inCp1252(testoRelazione(dati)));
    return percorso;
}

}  // namespace korven::report
