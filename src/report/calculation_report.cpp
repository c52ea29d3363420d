#include "report/calculation_report.hpp"

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
    const DatiRelazione dati = leggiRisultati(project::fileCorrente, project::Progetto);
    std::string percorso = base::nomeRelazione(project::fileCorrente);
    base::scriviFile(percorso, base::inCp1252(testoRelazione(dati)));
    return percorso;
}

}  // namespace korven::report
